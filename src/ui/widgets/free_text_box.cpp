#include "ui/widgets/free_text_box.h"

#include "model/game_state.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/text_validator.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTextBlock>

namespace orb::ui {
namespace {

bool endsLine(const QKeyEvent& event) {
  return event.matches(QKeySequence::InsertParagraphSeparator) ||
         event.matches(QKeySequence::InsertLineSeparator);
}

/// Keys such as Backspace have a text too, a control character.
bool typesText(const QKeyEvent& event) {
  return !event.text().isEmpty() && event.text().at(0) >= QLatin1Char(' ') &&
         event.text().at(0) != QChar(0x7F);
}

/// The beginning of a text that has no more line breaks than these; of a break behind its last line
/// nobody knows that it was copied along.
QString fittingPart(const QString& text, qsizetype breaks) {
  qsizetype end = -1;
  for (qsizetype i = 0; i <= breaks; ++i) {
    end = text.indexOf(QLatin1Char('\n'), end + 1);
    if (end < 0) return text;
  }
  return text.left(end);
}

/// What is said where the end of a text, of that length, did not fit; empty for a mere line break
/// behind the last line.
QString lineFault(const QString& text, qsizetype length) {
  QString bound =
      FreeTextBox::tr("A game keeps at most %1 lines of text.").arg(model::TextLineBound);
  const QString leftOut = text.right(length);
  if (leftOut == text && !text.isEmpty()) return bound;
  const auto lines = leftOut.mid(1).split(QLatin1Char('\n')).size() -
                     (leftOut.endsWith(QLatin1Char('\n')) ? 1 : 0);
  if (lines <= 0 || length == 0) return {};
  return bound + QLatin1Char(' ') +
         (lines == 1 ? FreeTextBox::tr("1 line was left out.")
                     : FreeTextBox::tr("%1 lines were left out.").arg(lines));
}

}  // namespace

FreeTextBox::FreeTextBox(QWidget* parent) : QPlainTextEdit(parent) {
  // A tab in the report would spoil its columns; the key leads on to the next control.
  setTabChangesFocus(true);
}

void FreeTextBox::setLines(const std::vector<std::string>& lines) {
  m_setLines = lines;
  QStringList texts;
  for (const std::string& line : lines)
    texts << text::ToQString(line);
  setPlainText(texts.join(QLatin1Char('\n')));
  document()->setModified(false);
}

std::vector<std::string> FreeTextBox::lines() const {
  if (!document()->isModified()) return m_setLines;
  std::vector<std::string> lines;
  if (document()->isEmpty()) return lines;
  // Not the plain text of the whole, in which a fixed blank has become a blank.
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    lines.push_back(text::ToBytes(storablePart(block.text())).value());
  return lines;
}

int FreeTextBox::lineCount() const {
  return document()->isEmpty() ? 0 : blockCount();
}

void FreeTextBox::keyPressEvent(QKeyEvent* event) {
  if (endsLine(*event)) return insert(QStringLiteral("\n"));
  const QString fault = typesText(*event) ? storageFault(event->text()) : QString();
  if (fault.isEmpty()) return QPlainTextEdit::keyPressEvent(event);
  emit refused(fault);
}

void FreeTextBox::insertFromMimeData(const QMimeData* source) {
  insert(source->text());
}

void FreeTextBox::inputMethodEvent(QInputMethodEvent* event) {
  const QString committed = event->commitString();
  // Qt would insert the text itself, without the checks of insert.
  event->setCommitString({}, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(event);
  if (!committed.isEmpty()) insert(committed);
}

void FreeTextBox::insert(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  // Other programs end lines in their own ways.
  for (const QChar lineEnd :
       {QChar(QLatin1Char('\r')), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
    text.replace(lineEnd, QLatin1Char('\n'));
  const QString storable = storablePart(text);
  QTextCursor cursor = textCursor();
  // What is inserted replaces what is selected.
  const qsizetype taken =
      blockCount() - cursor.selectedText().count(QChar(QChar::ParagraphSeparator));
  const QString part = fittingPart(storable, model::TextLineBound - taken);
  if (!part.isEmpty()) cursor.insertText(part);
  setTextCursor(cursor);
  ensureCursorVisible();
  QStringList told;
  const qsizetype characters = text.size() - storable.size();
  if (characters > 0) {
    told << (characters == 1 ? tr("1 character was left out.")
                             : tr("%1 characters were left out.").arg(characters))
         << storageFault(text);
  }
  const QString lines = lineFault(storable, storable.size() - part.size());
  if (!lines.isEmpty()) told << lines;
  if (!told.isEmpty()) emit refused(told.join(QLatin1Char(' ')));
}

}  // namespace orb::ui
