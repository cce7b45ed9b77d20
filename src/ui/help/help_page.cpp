#include "ui/help/help_page.h"

#include <QFontMetrics>
#include <QTextDocument>

#include <algorithm>

namespace orb::ui {
namespace {

// Lengths without a unit are in pixels.
constexpr int LineLength = 100;  // letters of average width
constexpr double Margin = 18;
constexpr double Indent = 24;  // of lists

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  document()->setDocumentMargin(Margin);
  document()->setIndentWidth(Indent);
  // The window follows links itself, as they belong to its history.
  setOpenLinks(false);
  setFrameShape(QFrame::NoFrame);
  setLineWrapMode(QTextEdit::FixedPixelWidth);
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  const int longest = fontMetrics().averageCharWidth() * LineLength;
  setLineWrapColumnOrWidth(std::min(viewport()->width(), longest));
  QTextBrowser::resizeEvent(event);
}

}  // namespace orb::ui
