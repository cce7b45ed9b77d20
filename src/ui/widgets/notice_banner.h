#pragma once

#include "ui/widgets/controls.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>

namespace orb::ui {

/// Says above the map that what the window shows is not the game as it is, with buttons that lead
/// back or on. As low as its buttons: the map needs the room.
class NoticeBanner : public QFrame {
  Q_OBJECT

 public:
  /// Esc is taken from the window, while the banner shows, wherever nothing else in it has a use
  /// for it.
  NoticeBanner(const QString& name, const QString& detailName, const QString& heading,
               QWidget* window);

 signals:
  void escaped();

 protected:
  void setHeading(const QString& text) { m_heading->setText(text); }
  void setDetail(const QString& text);
  QPushButton* addButton(const QString& name, const QString& caption, const QString& tip);

  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void colour();

  QLabel* m_heading;
  ElidedLabel* m_detail;
  QHBoxLayout* m_row;
};

}  // namespace orb::ui
