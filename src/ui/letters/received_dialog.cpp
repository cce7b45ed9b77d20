#include "ui/letters/received_dialog.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"
#include "ui/letters/text_view.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orb::ui {
namespace {

// Pixels.
constexpr QSize RegisterSize(900, 520);

/// Of a file its name alone: there is no room for more, and the entry has all of it.
QString lineOf(const letters::Receipt& receipt) {
  QString line = QString::fromStdString(receipt.Time);
  const QString source = QString::fromStdString(receipt.Source);
  const bool isFile = QDir::isAbsolutePath(source);
  for (const QString& part :
       {QString::fromStdString(receipt.Power), isFile ? QFileInfo(source).fileName() : source}) {
    if (!part.isEmpty()) line.append(QStringLiteral("  ")).append(part);
  }
  return line;
}

}  // namespace

ReceivedDialog::ReceivedDialog(std::vector<letters::Receipt> receipts, const QString& file,
                               QWidget* parent)
    : QDialog(parent),
      m_receipts(std::move(receipts)),
      m_search(new QLineEdit),
      m_found(new QListWidget),
      m_entry(newTextView(QStringLiteral("txtReceived"), tr("The entry"))),
      m_count(new QLabel) {
  std::ranges::reverse(m_receipts);
  setObjectName(QStringLiteral("frmReceived"));
  setWindowTitle(text::ToQString(model::ProgramName) + tr(" Received Orders"));
  m_search->setObjectName(QStringLiteral("txtReceivedSearch"));
  m_search->setPlaceholderText(tr("Words, powers, senders, dates"));
  m_search->setClearButtonEnabled(true);
  m_found->setObjectName(QStringLiteral("lstReceived"));
  m_found->setAccessibleName(tr("Received texts, the newest first"));
  auto* label = new QLabel(tr("Searc&h:"));
  label->setBuddy(m_search);
  m_count->setToolTip(file);
  m_count->setTextFormat(Qt::PlainText);
  auto* top = new QHBoxLayout;
  top->addWidget(label);
  top->addWidget(m_search, 1);
  top->addWidget(m_count);
  auto* columns = new QHBoxLayout;
  columns->addWidget(m_found, 2);
  columns->addWidget(m_entry, 3);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(top);
  rows->addLayout(columns, 1);
  rows->addWidget(newCloseButtons(*this, tr("Letters")));
  connect(m_search, &QLineEdit::textChanged, this, &ReceivedDialog::showFound);
  connect(m_found, &QListWidget::currentRowChanged, this, &ReceivedDialog::showEntry);
  showFound();
  resize(RegisterSize);
}

void ReceivedDialog::showFound() {
  const std::string words = m_search->text().toStdString();
  m_found->clear();
  for (std::size_t i = 0; i < m_receipts.size(); ++i) {
    if (!letters::Mentions(m_receipts[i], words)) continue;
    auto* item = new QListWidgetItem(lineOf(m_receipts[i]), m_found);
    item->setData(Qt::UserRole, static_cast<int>(i));
  }
  m_count->setText(tr("%1 of %2").arg(m_found->count()).arg(m_receipts.size()));
  m_found->setCurrentRow(0);
  showEntry();
}

void ReceivedDialog::showEntry() {
  const QListWidgetItem* item = m_found->currentItem();
  if (item == nullptr) return m_entry->clear();
  const auto row = static_cast<std::size_t>(item->data(Qt::UserRole).toInt());
  m_entry->setPlainText(QString::fromStdString(letters::FormatReceipt(m_receipts[row])));
}

}  // namespace orb::ui
