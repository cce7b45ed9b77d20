#pragma once

#include "ui/session/desk.h"

#include <QListWidget>

namespace orb::ui {

/// The orders that were written for the stage of the history that is looked at, in the place of the
/// stage's panel. They cannot be changed.
class PastOrders : public QWidget {
  Q_OBJECT

 public:
  explicit PastOrders(const Desk& desk, QWidget* parent = nullptr);

  /// Whether that stage has any.
  bool hasLines() const { return m_list->count() > 0; }

 private:
  void showOrders();

  const Desk& m_desk;
  QListWidget* m_list;
};

}  // namespace orb::ui
