#pragma once

#include "model/messages.h"

#include <QPrinter>
#include <QString>
#include <QWidget>

#include <functional>

namespace orb::ui {

/// What the user chose in the print dialog.
struct PrintChoice {
  QString printer;  ///< its name
  int copies = 1;
  bool toFile = false;  ///< a PDF file instead of a printer
};

/// Shows the print dialog for a printer, which is then set up as chosen. False when cancelled.
/// `proposedFile` is the path proposed for printing to a PDF file.
bool askHowToPrint(QWidget* parent, const QString& proposedFile, QPrinter& printer);

PrintChoice choiceOf(const QPrinter& printer);

/// Calls `printOnce` once for a file, and once per copy for the system's default printer; any other
/// printer is refused in a message box.
void printCopies(const PrintChoice& choice, const QString& defaultPrinter,
                 model::Messages& messages, const std::function<void()>& printOnce);

}  // namespace orb::ui
