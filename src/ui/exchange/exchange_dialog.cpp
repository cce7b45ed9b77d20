#include "ui/exchange/exchange_dialog.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"
#include "ui/exchange/exchange_table.h"
#include "ui/widgets/power_choice.h"

#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

namespace orb::ui {
namespace {

/// "1 order", "2 orders".
QString counted(int count, const QString& one, const QString& many) {
  return QStringLiteral("%1 %2").arg(count).arg(count == 1 ? one : many);
}

/// A label for text that may quote the mail and so is never markup.
QLabel* newLabel(const QString& name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

}  // namespace

ExchangeDialog::ExchangeDialog(const model::GameState& game, ExchangeKind kind, std::string text,
                               std::vector<exchange::TextRepair> repairs, QWidget* parent)
    : QDialog(parent),
      m_model(game, std::move(text), std::move(repairs), nullptr),
      m_table(new ExchangeTable(m_model, this)),
      m_count(newLabel(QStringLiteral("lblExchangeCount"))),
      m_noOrders(new QCheckBox(tr("&Show lines that are no orders"))),
      m_reason(newLabel(QStringLiteral("lblExchangeReason"))),
      m_result(newLabel(QStringLiteral("lblExchangeResult"))) {
  const bool pasting = kind == ExchangeKind::Paste;
  setObjectName(QStringLiteral("frmExchange"));
  setWindowTitle(text::ToQString(model::ProgramName) +
                 (pasting ? tr(" Paste Orders") : tr(" Import Orders")));
  m_table->setObjectName(QStringLiteral("tblExchange"));
  m_table->setAccessibleName(tr("Lines of the text"));
  m_noOrders->setObjectName(QStringLiteral("chkExchangeNoOrders"));
  m_reason->setWordWrap(true);
  // Room for the longest reason: the table must not jump while the user goes through it.
  m_reason->setMinimumHeight(3 * fontMetrics().lineSpacing());
  m_reason->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  auto* column = new QVBoxLayout(this);
  if (pasting) column->addLayout(newPowerRow(game));
  column->addWidget(m_count);
  column->addWidget(m_table, 1);
  column->addWidget(m_reason);
  column->addWidget(m_noOrders);
  column->addLayout(newButtonRow());

  connect(m_noOrders, &QCheckBox::toggled, m_table, &ExchangeTable::showNoOrders);
  connect(&m_model, &QAbstractItemModel::dataChanged, this, &ExchangeDialog::showCounts);
  connect(&m_model, &QAbstractItemModel::dataChanged, this, &ExchangeDialog::showReason);
  connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &ExchangeDialog::showReason);
  const ExchangeModel::Counts counts = m_model.counts();
  // A text without a single order is shown whole, so that the user sees what it was.
  m_noOrders->setChecked(counts.orders + counts.unclear == 0);
  choosePower();
  const QSize letters(fontMetrics().averageCharWidth(), fontMetrics().height());
  // Room for 110 letters and 32 lines, as far as the screen has it.
  resize(QSize(letters.width() * 110, letters.height() * 32)
             .boundedTo(parent->screen()->availableSize() * 0.9));
  // When the text does not name the power, that is the first thing to choose.
  (m_power != nullptr && m_power->currentIndex() < 0 ? static_cast<QWidget*>(m_power) : m_table)
      ->setFocus();
}

QLayout* ExchangeDialog::newPowerRow(const model::GameState& game) {
  m_power = new QComboBox;
  m_power->setObjectName(QStringLiteral("cboExchangePower"));
  m_power->setPlaceholderText(tr("Choose a power"));
  for (int row = 1; row <= game.Countries.Count(); ++row) {
    m_power->addItem(powerIcon(game.Countries, row), powerName(game.Countries, row),
                     QByteArray::fromStdString(game.Countries[row].Abbreviation));
  }
  // The mail itself mostly says whose orders it has.
  const QByteArray named = QByteArray::fromStdString(m_model.powerOfText());
  m_power->setCurrentIndex(named.isEmpty() ? -1 : m_power->findData(named));
  connect(m_power, &QComboBox::currentIndexChanged, this, &ExchangeDialog::choosePower);

  auto* label = new QLabel(tr("&Power whose orders these are:"));
  label->setBuddy(m_power);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(m_power);
  row->addStretch(1);
  return row;
}

QLayout* ExchangeDialog::newButtonRow() {
  m_ok = newButton(QStringLiteral("butExchangeOK"), tr("&OK"));
  m_ok->setDefault(true);
  m_ok->setToolTip(tr("Puts the ticked orders into the list (Enter)"));
  auto* cancel = newButton(QStringLiteral("butExchangeCancel"), tr("Ca&ncel"));
  cancel->setToolTip(tr("Leaves the list as it is (Esc)"));
  auto* help = newButton(QStringLiteral("butExchangeHelp"), tr("&Help"));
  help->setToolTip(tr("Opens the help (F1)"));
  connect(help, &QPushButton::clicked, this, &ExchangeDialog::wantHelp);
  new QShortcut(QKeySequence(Qt::Key_F1), this, this, &ExchangeDialog::wantHelp);
  connect(m_ok, &QPushButton::clicked, this, &ExchangeDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &ExchangeDialog::reject);
  auto* row = new QHBoxLayout;
  row->addWidget(m_result, 1);
  row->addWidget(m_ok);
  row->addWidget(cancel);
  row->addWidget(help);
  return row;
}

void ExchangeDialog::wantHelp() {
  emit helpWanted(tr("Exchanging orders"));
}

void ExchangeDialog::choosePower() {
  m_table->finishEditing();
  if (m_power != nullptr) m_model.setPower(m_power->currentData().toByteArray().toStdString());
  m_table->selectFirst();
  showCounts();
  showReason();
}

void ExchangeDialog::showCounts() {
  const ExchangeModel::Counts counts = m_model.counts();
  QStringList parts{counted(counts.orders - counts.ofOthers, tr("order"), tr("orders")),
                    tr("%1 unclear").arg(counts.unclear)};
  if (counts.ofOthers > 0) parts << tr("%1 of another power").arg(counts.ofOthers);
  m_count->setText(parts.join(QStringLiteral(", ")));

  // An import takes the orders of every power, so there is none to choose.
  const bool chosen = m_power == nullptr || m_power->currentIndex() >= 0;
  m_ok->setEnabled(chosen && counts.taken > 0);
  const QString filed = counted(counts.taken, tr("order"), tr("orders"));
  QStringList result{counts.replacing == 0 ? tr("OK files %1.").arg(filed)
                                           : tr("OK files %1, %2 in place of what is in the list.")
                                                 .arg(filed)
                                                 .arg(counts.replacing)};
  if (!chosen) result = QStringList{tr("Choose the power first.")};
  const int leftOut = counts.orders - counts.taken;
  if (counts.unclear == 1) result << tr("1 unclear line is left out.");
  if (counts.unclear > 1) result << tr("%1 unclear lines are left out.").arg(counts.unclear);
  if (leftOut > 0) result << tr("%1 not ticked.").arg(leftOut);
  m_result->setText(result.join(QLatin1Char(' ')));
}

/// What is to be said about the current line, and how to go on.
void ExchangeDialog::showReason() {
  const QModelIndex current = m_table->currentIndex();
  if (!current.isValid()) return m_reason->clear();
  const exchange::ReadLine& line = m_model.line(current.row());
  const QModelIndex understood = m_model.index(current.row(), ExchangeModel::Understood);
  QStringList hints{tr("F2 edits the line.")};
  if (line.Kind == exchange::LineKind::Ambiguous) {
    hints << tr("A right click, or F2 in the right column, offers what it can mean.");
  }
  if (IsUnderstood(line)) hints << tr("The space bar takes it or leaves it out.");
  QString text = tr("Line %1").arg(line.Number);
  const QString reason = understood.data(Qt::ToolTipRole).toString();
  if (!reason.isEmpty()) text += QStringLiteral(": ") + reason;
  m_reason->setText(text + QLatin1Char('\n') + hints.join(QLatin1Char(' ')));
}

void ExchangeDialog::accept() {
  m_table->finishEditing();
  if (m_ok->isEnabled()) QDialog::accept();
}

}  // namespace orb::ui
