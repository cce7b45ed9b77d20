#pragma once

#include "orders/exchange/plain_text.h"

#include <cstddef>
#include <string_view>

namespace orb::exchange {

/// Follows what is struck out over several lines: from "~~" or a tag that a line leaves open to
/// where it is closed, or to an empty line.
class StruckLines {
 public:
  /// Takes the next line, without what is struck out within it; whether any of it may be so.
  bool Take(std::string_view plain);

 private:
  bool isOpen_ = false;
};

/// How much of a text is the first line of a page: up to a tag of HTML that begins another one, or
/// with those that end it.
std::size_t LengthOfPageLine(std::string_view text);

/// Takes the tags of HTML and forums, "<b>" and "[b]", out of a line: those that end a line or an
/// item become semicolons. What is struck out, by tags, styles or "~~", goes with them: it is no
/// order. Where it is not closed in the line, the tag stays, and so do others that are not known.
void DropTags(PlainText& line);

}  // namespace orb::exchange
