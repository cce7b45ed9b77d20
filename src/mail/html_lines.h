#pragma once

#include <string>
#include <string_view>

namespace orb::mail {

/// A page of HTML in UTF-8 as the text that a browser shows: broken where a line or a block ends,
/// joined where only the source is folded. Of the tags those stay that say how a text is meant:
/// "<blockquote>", and "<s>" around what is struck out, in each line. So do "&lt;", "&gt;" and
/// "&amp;", which are no tags. A page without tags that part lines keeps its own.
std::string HtmlLines(std::string_view html);

}  // namespace orb::mail
