#include "orders/exchange/markup.h"

#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::exchange {
namespace {

// "<s>" and "[s]" are missing on purpose: an order that is struck out must not be read as one.

/// Tags that end a line or an item; orders on both sides of one are apart.
constexpr std::array<std::string_view, 19> BlockTags{
    "br", "p",  "div", "li", "ul", "ol",  "tr",         "table", "tbody", "thead",
    "h1", "h2", "h3",  "h4", "hr", "pre", "blockquote", "html",  "body"};
/// Tags within a line, which only change how its text looks or divide it into cells.
constexpr std::array<std::string_view, 12> InlineTags{"b",    "i", "em", "strong", "u",    "span",
                                                      "font", "a", "td", "th",     "code", "o:p"};

constexpr std::array<std::string_view, 7> ForumTags{"b",    "i",    "u",    "color",
                                                    "size", "font", "quote"};

template <std::size_t Count>
bool IsOneOf(std::string_view name, const std::array<std::string_view, Count>& names) {
  return std::ranges::find(names, name) != names.end();
}

bool HasText(std::string_view text) {
  return text.find_first_not_of(" ;") != std::string_view::npos;
}

}  // namespace

void DropTags(PlainText& line) {
  std::string text;
  std::vector<Span> origins;
  std::size_t at = 0;
  while (at < line.Text.size()) {
    const bool isForum = line.Text[at] == '[';
    const bool isOpen = isForum || line.Text[at] == '<';
    const std::size_t close = isOpen ? line.Text.find(isForum ? ']' : '>', at) : std::string::npos;
    std::string name;
    if (close != std::string::npos) {
      const std::size_t start = at + (line.Text[at + 1] == '/' ? 2 : 1);
      const std::size_t end = line.Text.find_first_of(" /=>]", start);
      name = text::LowerCase(std::string_view(line.Text).substr(start, end - start));
    }
    const bool isBlock = !isForum && IsOneOf(name, BlockTags);
    if (!isBlock && !(isForum ? IsOneOf(name, ForumTags) : IsOneOf(name, InlineTags))) {
      text += line.Text[at];
      origins.push_back(line.Origins[at++]);
      continue;
    }
    // Cells of a table are separated by blanks.
    if (isBlock ? HasText(text) : name.starts_with('t')) {
      text += isBlock ? ';' : ' ';
      origins.push_back(line.Written(at, close + 1));
    }
    at = close + 1;
  }
  line = {std::move(text), std::move(origins)};
}

}  // namespace orb::exchange
