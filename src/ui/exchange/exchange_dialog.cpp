#include "ui/exchange/exchange_dialog.h"

#include "model/messages.h"
#include "orders/exchange/check_line.h"
#include "text/qt/text_codec.h"
#include "ui/exchange/exchange_summary.h"
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

/// Who wrote the mails that the text comes from, and what of: a line for each of the first ones.
QLabel* newMailsLabel(const std::vector<session::MailHead>& mails) {
  constexpr std::size_t shown = 4;
  constexpr int longest = 120;
  QStringList lines;
  for (const session::MailHead& mail : mails) {
    QString line =
        QObject::tr("From %1: %2")
            .arg(QString::fromStdString(mail.Sender), QString::fromStdString(mail.Subject));
    if (line.size() > longest) line = line.left(longest) + QChar(0x2026);
    lines << line;
    if (mails.size() > shown && lines.size() + 1 == shown) break;
  }
  const std::size_t more = mails.size() - static_cast<std::size_t>(lines.size());
  if (mails.size() > shown) lines << QObject::tr("and %1 more mails").arg(more);
  QLabel* const label = newLabel(QStringLiteral("lblExchangeMails"));
  label->setText(lines.join(QLatin1Char('\n')));
  label->setWordWrap(true);
  return label;
}

}  // namespace

ExchangeDialog::ExchangeDialog(const model::GameState& game, ExchangeKind kind,
                               session::IncomingText text,
                               std::vector<exchange::TextRepair> repairs, SenderPowers& senders,
                               QWidget* parent)
    : QDialog(parent),
      m_game(game),
      m_text(text.Text),
      m_model(game, std::move(text.Text), std::move(repairs), nullptr),
      m_table(new ExchangeTable(m_model, this)),
      m_senders(senders),
      m_summary(new ExchangeSummary(this)),
      m_sheet(newLabel(QStringLiteral("lblExchangeSheet"))),
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
  m_sheet->setWordWrap(true);
  m_reason->setWordWrap(true);
  // Room for the longest reason: the table must not jump while the user goes through it. Where
  // there is little room at all, the table needs it more.
  const QSize screen = parent->screen()->availableSize();
  const int line = fontMetrics().lineSpacing();
  m_reason->setMinimumHeight((screen.height() < 30 * line ? 2 : 3) * line);
  m_reason->setAlignment(Qt::AlignLeft | Qt::AlignTop);

  auto* column = new QVBoxLayout(this);
  if (!text.Mails.empty()) column->addWidget(newMailsLabel(text.Mails));
  if (pasting) column->addLayout(newPowerRow(game, text.Mails));
  column->addWidget(m_sheet);
  column->addWidget(m_summary);
  column->addWidget(m_table, 1);
  column->addWidget(m_reason);
  column->addWidget(m_noOrders);
  column->addLayout(newButtonRow());

  m_result->setWordWrap(true);
  m_result->setMinimumHeight(2 * line);
  connect(m_noOrders, &QCheckBox::toggled, m_table, &ExchangeTable::showNoOrders);
  connect(&m_model, &QAbstractItemModel::dataChanged, this, &ExchangeDialog::showNumbers);
  connect(&m_model, &QAbstractItemModel::dataChanged, this, &ExchangeDialog::showReason);
  connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &ExchangeDialog::showReason);
  const ExchangeModel::Counts counts = m_model.counts();
  // A text without a single order is shown whole, so that the user sees what it was.
  m_noOrders->setChecked(counts.orders + counts.unclear == 0);
  choosePower();
  const QSize letters(fontMetrics().averageCharWidth(), fontMetrics().height());
  // Room for 140 letters and 42 lines, as far as the screen has it.
  resize(QSize(letters.width() * 140, letters.height() * 42).boundedTo(screen * 0.9));
  // When the text does not name the power, that is the first thing to choose.
  (m_power != nullptr && m_power->currentIndex() < 0 ? static_cast<QWidget*>(m_power) : m_table)
      ->setFocus();
}

void ExchangeDialog::proposePower(int power) {
  if (power == 0 || m_power == nullptr || m_power->currentIndex() >= 0) return;
  m_power->setCurrentIndex(power - 1);
  m_table->setFocus();
}

QLayout* ExchangeDialog::newPowerRow(const model::GameState& game,
                                     const std::vector<session::MailHead>& mails) {
  m_power = new QComboBox;
  m_power->setObjectName(QStringLiteral("cboExchangePower"));
  m_power->setPlaceholderText(tr("Choose a power"));
  for (int row = 1; row <= game.Countries.Count(); ++row) {
    m_power->addItem(powerIcon(game.Countries, row), powerName(game.Countries, row),
                     QByteArray::fromStdString(game.Countries[row].Abbreviation));
  }
  m_power->addItem(tr("All powers"), QByteArray());
  // The mail itself mostly says whose orders it has.
  const QByteArray named = QByteArray::fromStdString(m_model.powerOfText());
  m_power->setCurrentIndex(named.isEmpty() ? -1 : m_power->findData(named));
  offerSender(mails);
  connect(m_power, &QComboBox::currentIndexChanged, this, &ExchangeDialog::choosePower);

  auto* label = new QLabel(tr("&Power whose orders these are:"));
  label->setBuddy(m_power);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(m_power);
  if (m_remember != nullptr) row->addWidget(m_remember);
  row->addStretch(1);
  return row;
}

/// What is remembered of the sender stands in for a power that the text does not name. Who takes
/// the tick away has it forgotten.
void ExchangeDialog::offerSender(const std::vector<session::MailHead>& mails) {
  for (const session::MailHead& mail : mails) {
    const QString address = SenderPowers::addressOf(mail.Sender);
    if (&mail != mails.data() && address != m_sender) return m_sender.clear();
    m_sender = address;
  }
  if (m_sender.isEmpty()) return;
  const QByteArray power = m_senders.power(m_sender);
  const int remembered = power.isEmpty() ? -1 : m_power->findData(power);
  // An ampersand would mark a key.
  QString shown = m_sender;
  shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
  m_remember = new QCheckBox(tr("&Remember it for %1").arg(shown));
  m_remember->setObjectName(QStringLiteral("chkExchangeRemember"));
  m_remember->setToolTip(tr("Offers this power for the next mail from there, until you untick it"));
  m_remember->setChecked(remembered >= 0);
  if (m_power->currentIndex() < 0) m_power->setCurrentIndex(remembered);
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
  showSheet();
  showNumbers();
  showReason();
}

/// What speaks against the text as a whole, in bold: everything else in it may look right.
void ExchangeDialog::showSheet() {
  QStringList warnings;
  for (const std::string& warning : exchange::SheetWarnings(m_game, m_text, m_model.power()))
    warnings << text::ToQString(warning);
  QFont bold = font();
  bold.setBold(true);
  m_sheet->setFont(bold);
  m_sheet->setText(warnings.join(QLatin1Char('\n')));
  m_sheet->setVisible(!warnings.isEmpty());
}

void ExchangeDialog::showNumbers() {
  m_summary->showLines(m_game, m_model.lines(), m_model.takenLines(), m_model.power());
  m_ok->setEnabled(isPowerChosen() && m_model.counts().taken > 0);
  m_result->setText(resultText());
  // A screen reader comes to the button without passing the label.
  m_ok->setAccessibleDescription(m_result->text());
}

bool ExchangeDialog::isPowerChosen() const {
  // An import takes the orders of every power, so there is none to choose.
  return m_power == nullptr || m_power->currentIndex() >= 0;
}

/// What OK does, and what it does not.
QString ExchangeDialog::resultText() const {
  if (!isPowerChosen()) return tr("Choose the power first.");
  const ExchangeModel::Counts counts = m_model.counts();
  QString filed = tr("No order is ticked");
  if (counts.taken > 0) {
    filed = tr("OK files %1").arg(counted(counts.taken, tr("order"), tr("orders")));
    if (counts.takenDoubtful > 0) filed += tr(", %1 of them doubtful").arg(counts.takenDoubtful);
    if (counts.replacing > 0)
      filed += tr(", %1 in place of what is in the list").arg(counts.replacing);
  }
  QStringList leftOut;
  const auto add = [&](int count, const QString& text) {
    if (count > 0) leftOut << text.arg(count);
  };
  const int doubtful = counts.doubtful - counts.takenDoubtful;
  add(counts.unclear, tr("%1 unclear"));
  add(doubtful, tr("%1 doubtful"));
  add(counts.orders - counts.taken - doubtful, tr("%1 not ticked"));
  return leftOut.isEmpty() ? filed + QLatin1Char('.')
                           : tr("%1. Left out: %2.").arg(filed, leftOut.join(QStringLiteral(", ")));
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
  const QModelIndex box = m_model.index(current.row(), ExchangeModel::Take);
  const bool isTicked = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  if (IsDoubtful(line) && !isTicked) {
    hints << tr("It is filed only if you tick it, with the space bar.");
  } else if (IsUnderstood(line)) {
    hints << tr("The space bar takes it or leaves it out.");
  }
  QString text = tr("Line %1").arg(line.Number);
  const QString reason = understood.data(Qt::ToolTipRole).toString();
  if (!reason.isEmpty()) text += QStringLiteral(": ") + reason;
  m_reason->setText(text + QLatin1Char('\n') + hints.join(QLatin1Char(' ')));
}

void ExchangeDialog::accept() {
  m_table->finishEditing();
  if (!m_ok->isEnabled()) return;
  if (m_remember != nullptr) {
    const QByteArray power = m_power->currentData().toByteArray();
    m_senders.setPower(m_sender, m_remember->isChecked() ? power : QByteArray());
  }
  QDialog::accept();
}

}  // namespace orb::ui
