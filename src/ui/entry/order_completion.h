#pragma once

#include "ui/entry/order_box.h"
#include "ui/session/desk.h"

#include <QObject>
#include <QStringListModel>

class QCompleter;

namespace orb::ui {

/// Offers below the box, as an order is typed there, the units and then what they can be ordered.
class OrderCompletion : public QObject {
  Q_OBJECT

 public:
  /// The desk and the box must outlive it.
  OrderCompletion(const Desk& desk, OrderBox& box);

  /// Only what the power in this row can order is offered; 0: all.
  void offerOnly(int power) { m_power = power; }

 private:
  void offer(const QString& typed);

  const Desk& m_desk;
  OrderBox& m_box;
  QStringListModel m_offered;
  QCompleter* m_completer;
  int m_power = 0;
};

}  // namespace orb::ui
