#pragma once

#include "ui/session/desk.h"

#include <QLabel>
#include <QWidget>

#include <vector>

namespace orb::ui {

/// A table of the powers: their centres, their units, and how many units each may build (+) or must
/// disband (-).
class AdjustmentCounts : public QWidget {
  Q_OBJECT

 public:
  explicit AdjustmentCounts(const Desk& desk, QWidget* parent = nullptr);

 private:
  /// The labels of one power, from the top.
  struct Column {
    QLabel* power;
    QLabel* centres;
    QLabel* units;
    QLabel* due;
  };

  void showCounts();

  const Desk& m_desk;
  std::vector<Column> m_columns;  ///< one per power, in the order of the game's table
};

}  // namespace orb::ui
