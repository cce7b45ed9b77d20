#pragma once

#include "ui/window/shared_room.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include <vector>

namespace orb::ui {

/// The panels at the right of the map: where the powers stand, the panel of the stage, and below it
/// what is known of the game. The stage's share of the height is the user's choice. Where
/// a screen is too low for large letters, it scrolls.
class SideColumn : public QScrollArea {
  Q_OBJECT

 public:
  /// `brief` is a panel with so little to say that it leaves the room to the facts.
  /// The other panels are shown in one place.
  SideColumn(QWidget* powers, QWidget* brief, const std::vector<QWidget*>& panels, QWidget* facts);

  /// Shows this panel and none of the others; null for none at all.
  void showInstead(QWidget* shown);

  /// Between the panel and the facts.
  SharedRoom& shares() { return *m_shares; }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;

 private:
  QWidget* m_brief;
  SharedRoom* m_shares;
  QWidget* m_place;
  QVBoxLayout* m_panels;
};

}  // namespace orb::ui
