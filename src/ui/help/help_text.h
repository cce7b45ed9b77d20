#pragma once

#include "help/help_topics.h"

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

#include <vector>

namespace orb::ui {

/// What the text of the help looks like on its background. The page and the printer draw the same
/// rich text with looks of their own.
struct HelpLook {
  QColor link;
  QColor box;  ///< the background of lines that are shown as they are
  QString typedFamily;
  int lineHeight = 0;  ///< in pixels; one for all lines, whatever stands in them
};

/// The look that suits a palette, light or dark, and a font.
HelpLook helpLook(const QPalette& palette, const QFont& font);

/// A topic as rich text with its caption as the title. A link goes to "topic:" and the position of
/// its topic in the list, from 0.
QString helpHtml(const help::HelpTopic& topic, const help::HelpTopics& topics,
                 const HelpLook& look);

/// A place where a text was found: the text's position in its list, and the characters in it.
struct HelpMatch {
  int topic = 0;
  int start = 0;
  int length = 0;
};

/// Every place in the texts where the wanted words stand, in order; letter case does not matter.
/// Nothing is found for a text of blanks.
std::vector<HelpMatch> findInHelp(const std::vector<QString>& texts, const QString& wanted);

}  // namespace orb::ui
