#include "ui/help/help_print.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"
#include "ui/help/help_text.h"
#include "ui/widgets/help_request.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace orb::ui {
namespace {

/// Links and boxes as they look on white paper.
QPalette paper() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  return palette;
}

}  // namespace

void printHelp(const help::HelpTopics& topics, const help::HelpTopics& all,
               QPagedPaintDevice& device) {
  QTextDocument document;
  HelpLook look = helpLook(paper(), document.defaultFont());
  look.box = Qt::white;  // a box that goes over two pages would be drawn into their margins
  QString html;
  for (const help::HelpTopic& topic : topics) {
    if (!html.isEmpty()) html += QLatin1String("<p style=\"page-break-before:always\"></p>");
    html += helpHtml(topic, all, look);
  }
  document.setHtml(html);
  document.print(&device);
}

void askToPrintHelp(const help::HelpTopics& topics, const help::HelpTopics& all, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(QObject::tr("ORB Help"));
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(text::ToQString(model::ProgramName) + QObject::tr(" Print Help"));
  // There is no selection to print, and no page range to choose.
  dialog.setOptions(QAbstractPrintDialog::PrintToFile);
  offerHelp(dialog, QObject::tr("Printing and exporting"));
  if (dialog.exec() == QDialog::Accepted) printHelp(topics, all, printer);
}

}  // namespace orb::ui
