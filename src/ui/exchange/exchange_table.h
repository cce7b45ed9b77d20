#pragma once

#include "ui/exchange/exchange_model.h"

#include <QTableView>

namespace orb::ui {

/// The lines of a text of orders. The space bar takes a line or leaves it out, F2 or a double click
/// writes it anew or offers what it can mean.
class ExchangeTable : public QTableView {
  Q_OBJECT

 public:
  ExchangeTable(ExchangeModel& model, QWidget* parent);

  /// Whether lines that are no orders are shown too.
  void showNoOrders(bool shown);

  /// Selects the first line that needs a look.
  void selectFirst();

  /// Takes over what is still being written.
  void finishEditing();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void editWritten(int row);
  void toggle(int row);
  void applyHiding();

  ExchangeModel& m_model;
  bool m_noOrdersShown = false;
};

}  // namespace orb::ui
