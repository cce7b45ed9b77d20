#include "ui/entry/adjustment_counts.h"

#include "model/counts.h"
#include "text/qt/text_codec.h"

#include <QGridLayout>

namespace orb::ui {
namespace {

/// As "+0;-0; 0": with its sign, or a blank for none.
QString signedNumber(int number) {
  return number == 0 ? QStringLiteral(" 0") : QString::asprintf("%+d", number);
}

QString dueText(int due) {
  if (due == 0) return QObject::tr("no change");
  return due > 0 ? QObject::tr("may build %1").arg(due) : QObject::tr("must disband %1").arg(-due);
}

void setBold(QLabel& label, bool bold) {
  QFont font = label.font();
  font.setBold(bold);
  label.setFont(font);
}

}  // namespace

AdjustmentCounts::AdjustmentCounts(const Desk& desk, QWidget* parent)
    : QWidget(parent), m_desk(desk) {
  setObjectName(QStringLiteral("picAdjustments"));
  setAccessibleName(tr("Centres and units of the powers"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins({});
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(fontMetrics().averageCharWidth());
  // A row for each figure and a column for each power; all columns share the width evenly.
  const auto add = [grid](const QString& text, int row, int column) {
    auto* label = new QLabel(text);
    grid->addWidget(label, row, column, column == 0 ? Qt::AlignLeft : Qt::AlignRight);
    return label;
  };
  add(tr("Centres"), 1, 0);
  add(tr("Units"), 2, 0);
  add(tr("Change"), 3, 0);
  grid->setColumnStretch(0, 1);
  for (const model::Country& country : m_desk.game().Countries) {
    const int column = static_cast<int>(m_columns.size()) + 1;
    m_columns.push_back({add(text::ToQString(country.Abbreviation), 0, column), add({}, 1, column),
                         add({}, 2, column), add({}, 3, column)});
    grid->setColumnStretch(column, 1);
  }
  m_desk.whenChanged(session::Changes::Position, this, &AdjustmentCounts::showCounts);
  showCounts();
}

void AdjustmentCounts::showCounts() {
  int row = 0;
  for (const Column& column : m_columns) {
    const model::Country& country = m_desk.game().Countries[++row];
    const auto count = model::CountPower(m_desk.game(), country.Abbreviation);
    const int due = count.Centres - count.Units;
    column.centres->setText(QString::number(count.Centres));
    column.units->setText(QString::number(count.Units));
    column.due->setText(signedNumber(due));
    setBold(*column.due, due != 0);
    const QString name = text::ToQString(country.Name);
    // For a screen reader the numbers of a column make one sentence.
    const QString told = tr("%1: %2 centres, %3 units, %4")
                             .arg(name)
                             .arg(count.Centres)
                             .arg(count.Units)
                             .arg(dueText(due));
    for (QLabel* label : {column.power, column.centres, column.units, column.due})
      label->setToolTip(told);
    column.centres->setAccessibleName(tr("%1: centres").arg(name));
    column.due->setAccessibleName(told);
  }
}

}  // namespace orb::ui
