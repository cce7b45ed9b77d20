#pragma once

#include "help/help_topics.h"

#include <QPagedPaintDevice>
#include <QWidget>

namespace orb::ui {

/// Prints topics of the help, each beginning on a page of its own. `all` are the topics that links
/// may lead to.
void printHelp(const help::HelpTopics& topics, const help::HelpTopics& all,
               QPagedPaintDevice& device);

/// The same on the printer, or into the PDF file, that the user chooses in a dialog.
void askToPrintHelp(const help::HelpTopics& topics, const help::HelpTopics& all, QWidget* parent);

}  // namespace orb::ui
