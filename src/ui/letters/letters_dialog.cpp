#include "ui/letters/letters_dialog.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"
#include "ui/letters/text_view.h"
#include "ui/widgets/controls.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QtMath>

#include <utility>

namespace orb::ui {
namespace {

// Pixels.
constexpr int MapWidth = 360;
constexpr int LettersHeight = 560;

/// As wide as letters are: their lines are not broken twice.
int widthOfLetters(const QPlainTextEdit& view) {
  constexpr int columns = 80;
  const int text = view.fontMetrics().horizontalAdvance(QString(columns, QLatin1Char('m')));
  return text + qCeil(2 * view.document()->documentMargin()) + 2 * view.frameWidth() +
         view.verticalScrollBar()->sizeHint().width();
}

}  // namespace

LettersDialog::LettersDialog(std::vector<letters::Letter> letters, const QStringList& names,
                             Drawing draw, QWidget* parent)
    : QDialog(parent),
      m_letters(std::move(letters)),
      m_draw(std::move(draw)),
      m_open(QDesktopServices::openUrl),
      m_powers(new QListWidget),
      m_text(newTextView(QStringLiteral("txtLetter"), tr("The letter"))),
      m_map(new QLabel),
      m_note(new QLabel) {
  setObjectName(QStringLiteral("frmLetters"));
  setWindowTitle(text::ToQString(model::ProgramName) + tr(" Letters"));
  m_powers->setObjectName(QStringLiteral("lstLetterPowers"));
  m_powers->setAccessibleName(tr("Powers"));
  m_powers->addItems(names);
  m_powers->setMaximumWidth(m_powers->sizeHintForColumn(0) +
                            4 * m_powers->fontMetrics().averageCharWidth());
  m_map->setObjectName(QStringLiteral("lblLetterMap"));
  m_map->setAlignment(Qt::AlignTop);
  m_map->setAccessibleName(tr("The map with the power's own orders"));
  m_note->setObjectName(QStringLiteral("lblLetterNote"));
  QDialogButtonBox* buttons = newCloseButtons(*this, tr("Letters"));
  const auto add = [&](const QString& name, const QString& caption, auto slot) {
    QPushButton* button = newButton(name, caption);
    buttons->addButton(button, QDialogButtonBox::ActionRole);
    connect(button, &QPushButton::clicked, this, slot);
  };
  add(QStringLiteral("butLetterCopy"), tr("Cop&y"), &LettersDialog::copy);
  add(QStringLiteral("butLetterMail"), tr("Open in &mail program"), &LettersDialog::openInMail);
  add(QStringLiteral("butLetterSave"), tr("&Save all..."), &LettersDialog::savingWanted);
  auto* rows = new QVBoxLayout(this);
  rows->addLayout(newColumns(), 1);
  rows->addWidget(m_note);
  rows->addWidget(buttons);
  connect(m_powers, &QListWidget::currentRowChanged, this, &LettersDialog::showLetter);
  m_powers->setCurrentRow(0);
  const int wanted = sizeHint().width() - m_text->sizeHint().width() + widthOfLetters(*m_text);
  resize(QSize(wanted, LettersHeight).boundedTo(screen()->availableSize()));
}

QLayout* LettersDialog::newColumns() {
  auto* columns = new QHBoxLayout;
  columns->addWidget(m_powers);
  columns->addWidget(m_text, 1);
  columns->addWidget(m_map);
  return columns;
}

const letters::Letter& LettersDialog::current() const {
  return m_letters[static_cast<std::size_t>(m_powers->currentRow())];
}

void LettersDialog::showLetter() {
  m_text->setPlainText(text::ToQString(current().Text));
  m_map->setPixmap(QPixmap::fromImage(m_draw(current(), MapWidth)));
  m_note->clear();
}

void LettersDialog::copy() {
  QGuiApplication::clipboard()->setText(m_text->toPlainText());
  m_note->setText(tr("The letter is on the clipboard."));
}

void LettersDialog::openInMail() {
  const QUrl link(QString::fromStdString(letters::MailLink(current())), QUrl::StrictMode);
  m_note->setText(
      m_open(link)
          ? tr("The mail program opens the letter. The map goes with it from a file: Save all.")
          : tr("No program for mails was found. Copy takes the letter along."));
}

}  // namespace orb::ui
