#pragma once

#include "render/help_topics.h"

#include <QPagedPaintDevice>
#include <QWidget>

namespace orb::ui {

/// Prints topics of the help, each beginning a page of its own. Links are read in `all`.
void printHelp(const render::HelpTopics& topics, const render::HelpTopics& all,
               QPagedPaintDevice& device);

/// The same on the printer, or into the PDF file, that the user chooses in a dialog.
void askToPrintHelp(const render::HelpTopics& topics, const render::HelpTopics& all,
                    QWidget* parent);

}  // namespace orb::ui
