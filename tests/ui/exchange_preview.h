#pragma once

#include "ui/exchange/exchange_model.h"
#include "ui/widgets/order_marks.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include <string>
#include <vector>

namespace orb::tests {

/// The preview of orders read from a text as a test sees it.
struct ExchangePreview {
  explicit ExchangePreview(QDialog& dialog)
      : table(*dialog.findChild<QTableView*>(QStringLiteral("tblExchange"))),
        ok(*dialog.findChild<QPushButton*>(QStringLiteral("butExchangeOK"))) {}

  /// The cell of a line of the text, counted from 1.
  QModelIndex At(int line, ui::ExchangeModel::Column column) const {
    int row = 0;
    while (table.model()->headerData(row, Qt::Vertical).toInt() != line)
      ++row;
    return table.model()->index(row, column);
  }
  std::string Understood(int line) const {
    return At(line, ui::ExchangeModel::Understood).data().toString().toStdString();
  }
  ui::OrderMark Mark(int line) const {
    return static_cast<ui::OrderMark>(
        At(line, ui::ExchangeModel::Understood).data(ui::OrderMarkRole).toInt());
  }
  bool IsTaken(int line) const {
    return At(line, ui::ExchangeModel::Take).data(Qt::CheckStateRole).toInt() == Qt::Checked;
  }
  /// The keys work in this line.
  void Select(int line, ui::ExchangeModel::Column column = ui::ExchangeModel::Written) const {
    table.setFocus();
    table.setCurrentIndex(At(line, column));
  }
  /// What is shown from top to bottom: the numbers of the lines, and captions.
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
      if (table.isRowHidden(row)) continue;
      const QString number = table.model()->headerData(row, Qt::Vertical).toString();
      const QString caption = table.model()->index(row, 0).data().toString();
      rows.push_back((number.isEmpty() ? caption : number).toStdString());
    }
    return rows;
  }
  /// The numbers above the table.
  std::vector<std::string> Summary() const {
    std::vector<std::string> texts;
    const auto* panel = table.window()->findChild<QWidget*>(QStringLiteral("panExchangeSummary"));
    for (const QLabel* label : panel->findChildren<QLabel*>())
      texts.push_back(label->text().toStdString());
    return texts;
  }
  std::string Label(const char* name) const {
    return table.window()->findChild<QLabel*>(QLatin1String(name))->text().toStdString();
  }
  void Choose(const char* power) const {
    auto& box = *table.window()->findChild<QComboBox*>(QStringLiteral("cboExchangePower"));
    box.setCurrentText(QLatin1String(power));
  }

  QTableView& table;
  QPushButton& ok;
};

}  // namespace orb::tests
