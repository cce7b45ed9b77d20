#include "ui/output/print_dialog.h"

#include "text/qt/text_codec.h"
#include "ui/widgets/help_request.h"

#include <QPrintDialog>

namespace orb::ui {
namespace {

// Where the dialog is Qt's own, its list of printers ends with printing to a PDF file, which is the
// only way to one; elsewhere the system has a printer for that.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr bool DialogWritesPdf = true;
#else
constexpr bool DialogWritesPdf = false;
#endif

/// Qt's own dialog leaves choices open that its options forbid.
void closeForbiddenChoices(QPrintDialog& dialog) {
  if (auto* range = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"))) {
    range->setEnabled(false);
  }
  if (auto* reverse = dialog.findChild<QWidget*>(QStringLiteral("reverse"))) reverse->hide();
}

}  // namespace

bool askHowToPrint(QWidget* parent, const QString& proposedFile, QPrinter& printer) {
  if (DialogWritesPdf) {
    const QPrinter::OutputFormat format = printer.outputFormat();
    printer.setOutputFileName(proposedFile);
    printer.setOutputFormat(format);
  }
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(text::ToQString(model::ProgramName) + QObject::tr(" Print"));
  dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, DialogWritesPdf);
  closeForbiddenChoices(dialog);
  offerHelp(dialog, QObject::tr("Printing and exporting"));
  return dialog.exec() == QDialog::Accepted;
}

PrintChoice choiceOf(const QPrinter& printer) {
  return {printer.printerName(), printer.copyCount(),
          printer.outputFormat() == QPrinter::PdfFormat};
}

void printCopies(const PrintChoice& choice, const QString& defaultPrinter,
                 model::Messages& messages, const std::function<void()>& printOnce) {
  if (choice.toFile) {
    printOnce();
  } else if (choice.printer.isEmpty() || choice.printer != defaultPrinter) {
    messages.Show("No default printer set.", model::Icon::Exclamation);
  } else {
    for (int copy = 1; copy <= choice.copies; ++copy)
      printOnce();
  }
}

}  // namespace orb::ui
