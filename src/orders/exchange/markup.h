#pragma once

#include "orders/exchange/plain_text.h"

namespace orb::exchange {

/// Takes the tags of HTML and forums, "<b>" and "[b]", out of a line: those that end a line or an
/// item become semicolons. What is struck out, by tags, styles or "~~", goes with them: it is no
/// order. Where it is not closed in the line, the tag stays, and so do others that are not known.
void DropTags(PlainText& line);

}  // namespace orb::exchange
