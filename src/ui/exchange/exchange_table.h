#pragma once

#include "ui/exchange/exchange_model.h"

#include <QTableView>

namespace orb::ui {

/// The lines of a text of orders, in three columns: a box to tick, what is written, and the order
/// that was understood. The space bar ticks a line or unticks it; F2 or a double click edits it or,
/// in the right column, offers what it can mean.
class ExchangeTable : public QTableView {
  Q_OBJECT

 public:
  ExchangeTable(ExchangeModel& model, QWidget* parent);

  /// Whether lines that are no orders are shown too.
  void showNoOrders(bool shown);

  /// Selects the first line that is shown: one that needs a decision if any does.
  void selectFirst();

  /// Takes over what is still being written: the buttons must not work on the text from before.
  void finishEditing();

 protected:
  /// The current line is always the selected one, whatever keys are held down.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void editWritten(int row);
  void toggle(int row);
  /// Hides the lines that are no orders, or shows them, and spreads the captions over the columns;
  /// again after the model has read the text anew.
  void applyHiding();

  ExchangeModel& m_model;
  bool m_noOrdersShown = false;
};

}  // namespace orb::ui
