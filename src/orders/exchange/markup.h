#pragma once

#include "orders/exchange/plain_text.h"

namespace orb::exchange {

/// Takes the tags of HTML and forums, "<b>" and "[b]", out of a line: those that end a line or an
/// item become semicolons. Tags that strike out and others that are not known stay.
void DropTags(PlainText& line);

}  // namespace orb::exchange
