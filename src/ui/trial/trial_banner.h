#pragma once

#include "ui/session/desk.h"
#include "ui/widgets/controls.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace orb::ui {

/// Says above the map that what the window shows is only tried out, and leads back, by its button
/// or Esc, or on to resolving. Hidden while nothing is tried out.
class TrialBanner : public QFrame {
  Q_OBJECT

 public:
  /// Esc is taken from the window wherever nothing else in it has a use for it.
  TrialBanner(Desk& desk, QWidget* window);

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showTrial();
  void colour();

  Desk& m_desk;
  ElidedLabel* m_detail;
  QPushButton* m_resolve;
};

}  // namespace orb::ui
