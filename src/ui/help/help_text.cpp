#include "ui/help/help_text.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/fixed_font.h"

#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>

namespace orb::ui {
namespace {

using help::HelpBlock;
using help::HelpBlockForm;
using help::HelpSpan;
using help::HelpSpanForm;

// In pixels.
constexpr int LineGap = 1;

/// The text with nothing in it that rich text would take for markup.
QString escaped(const std::string& text) {
  QString shown = text::ToQString(text);
  // The rich text keeps some codes without a character for its own frames.
  for (QChar& character : shown) {
    const bool spacing = character == QLatin1Char('\n') || character == QLatin1Char('\t');
    if (character.category() == QChar::Other_Control && !spacing)
      character = QChar::ReplacementCharacter;
  }
  return shown.toHtmlEscaped();
}

/// In a font of equal widths, in which the help shows everything that is to be typed.
QString typed(const QString& html, const HelpLook& look) {
  return QStringLiteral("<span style=\"font-family:'%1'\">%2</span>").arg(look.typedFamily, html);
}

QString spanHtml(const HelpSpan& span, const help::HelpTopics& topics, const HelpLook& look) {
  QString text = escaped(span.Text);
  switch (span.Form) {
    case HelpSpanForm::Typed:
      // An order is not broken over two lines.
      return typed(text.replace(QLatin1Char(' '), QLatin1String("&nbsp;")), look);
    case HelpSpanForm::Name:
      return QStringLiteral("<b>%1</b>").arg(text);
    case HelpSpanForm::Link:
      return QStringLiteral("<a href=\"topic:%1\" style=\"color:%2\">%3</a>")
          .arg(FindHelpTopic(topics, span.Text).value_or(0))
          .arg(look.link.name(), text);
    default:
      return text;
  }
}

/// The fonts of a paragraph differ in height; a least line height keeps its lines evenly apart.
QString lineStyle(const HelpLook& look) {
  return QStringLiteral("-qt-line-height-type:minimum; line-height:%1px").arg(look.lineHeight);
}

/// Lines that stand as they are, in a box, which Qt's rich text has only in the form of a table.
QString literalHtml(const std::string& text, const HelpLook& look) {
  const QString box = QStringLiteral(
      "<table width=\"100%\" cellpadding=\"8\" cellspacing=\"0\" "
      "style=\"margin-top:4px; margin-bottom:10px\"><tr><td bgcolor=\"%1\">"
      "<p style=\"margin:0; white-space:pre-wrap\">%2</p></td></tr></table>");
  const QString lines = escaped(text).replace(QLatin1Char('\n'), QLatin1String("<br/>"));
  return box.arg(look.box.name(), typed(lines, look));
}

QString blockHtml(const HelpBlock& block, const help::HelpTopics& topics, const HelpLook& look) {
  if (block.Form == HelpBlockForm::Literal) return literalHtml(block.Text, look);
  QString runs;
  for (const HelpSpan& span : help::HelpSpans(block.Text, topics))
    runs += spanHtml(span, topics, look);
  switch (block.Form) {
    case HelpBlockForm::Heading:
      return QStringLiteral("<h3 style=\"margin-top:18px; margin-bottom:6px\">%1</h3>").arg(runs);
    case HelpBlockForm::Item:
      return QStringLiteral("<li style=\"margin-bottom:4px; %1\">%2</li>")
          .arg(lineStyle(look), runs);
    default:
      return QStringLiteral("<p style=\"margin-top:0; margin-bottom:8px; %1\">%2</p>")
          .arg(lineStyle(look), runs);
  }
}

/// The first colour with this share of the second, 0 to 1.
QColor blend(const QColor& first, const QColor& second, double part) {
  const auto mix = [part](int a, int b) { return static_cast<int>(a + (b - a) * part); };
  return {mix(first.red(), second.red()), mix(first.green(), second.green()),
          mix(first.blue(), second.blue())};
}

}  // namespace

HelpLook helpLook(const QPalette& palette, const QFont& font) {
  const QColor ground = palette.color(QPalette::Base);
  const bool dark = ground.lightness() < 128;
  HelpLook look;
  // The link colour of a palette is often the same blue on any ground.
  look.link = accentColour(ground);
  look.box = blend(ground, palette.color(QPalette::Text), dark ? 0.09 : 0.06);
  look.typedFamily = QFontInfo(fixedFont()).family();
  // The two fonts have different heights at the same size.
  QFont typedFont(font);
  typedFont.setFamily(look.typedFamily);
  look.lineHeight =
      std::max(QFontMetrics(font).lineSpacing(), QFontMetrics(typedFont).lineSpacing()) + LineGap;
  return look;
}

QString helpHtml(const help::HelpTopic& topic, const help::HelpTopics& topics,
                 const HelpLook& look) {
  QString html = QStringLiteral("<h2 style=\"margin-top:0; margin-bottom:10px\">%1</h2>")
                     .arg(escaped(topic.Caption));
  // The blocks know only that they are items; consecutive ones make a list.
  bool inList = false;
  for (const HelpBlock& block : help::HelpBlocks(topic.Text)) {
    const bool item = block.Form == HelpBlockForm::Item;
    if (item && !inList) html += QLatin1String("<ul style=\"margin-top:0; margin-bottom:8px\">");
    if (!item && inList) html += QLatin1String("</ul>");
    inList = item;
    html += blockHtml(block, topics, look);
  }
  if (inList) html += QLatin1String("</ul>");
  return html;
}

std::vector<HelpMatch> findInHelp(const std::vector<QString>& texts, const QString& wanted) {
  std::vector<HelpMatch> matches;
  const QString words = wanted.simplified();
  if (words.isEmpty()) return matches;
  for (std::size_t topic = 0; topic < texts.size(); ++topic) {
    qsizetype at = texts[topic].indexOf(words, 0, Qt::CaseInsensitive);
    while (at >= 0) {
      matches.push_back(
          {static_cast<int>(topic), static_cast<int>(at), static_cast<int>(words.size())});
      // Matches do not overlap, so each can be marked.
      at = texts[topic].indexOf(words, at + words.size(), Qt::CaseInsensitive);
    }
  }
  return matches;
}

}  // namespace orb::ui
