#pragma once

#include "ui/desk.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

namespace orb::ui {

/// What tells the panels of the three stages apart: the names of their controls and their texts.
struct OrderEntryTexts {
  QString panel;
  QString list;
  QString text;
  QString ok;
  QString remove;
  QString resolve;
  QString heading;
  QString example;  ///< shown in the empty text box
};

/// A list of order lines with the box in which a line is written, and the command that resolves
/// them.
class OrderEntryPanel : public QWidget {
  Q_OBJECT

 public:
  OrderEntryPanel(Desk& desk, Desk::OrderList list, const OrderEntryTexts& texts, QWidget* parent);

  /// The user is about to write an order.
  void startEntry();

 private:
  void layOut(const OrderEntryTexts& texts);
  void connectControls();
  void showLines();
  void fileOrder();
  void deleteOrder();
  void editSelectedOrder();

  Desk& m_desk;
  Desk::OrderList m_orders;
  QListWidget* m_list;
  QLineEdit* m_text;
  QPushButton* m_ok;
  QPushButton* m_delete;
  QPushButton* m_resolve;
};

}  // namespace orb::ui
