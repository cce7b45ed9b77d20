#include "orders/exchange/markup.h"

#include "text/strings.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orb::exchange {
namespace {

/// Tags that end a line or an item; orders on both sides of one are apart.
constexpr std::array<std::string_view, 19> BlockTags{
    "br", "p",  "div", "li", "ul", "ol",  "tr",         "table", "tbody", "thead",
    "h1", "h2", "h3",  "h4", "hr", "pre", "blockquote", "html",  "body"};
/// Tags within a line, which only change how its text looks or divide it into cells.
constexpr std::array<std::string_view, 12> InlineTags{"b",    "i", "em", "strong", "u",    "span",
                                                      "font", "a", "td", "th",     "code", "o:p"};

constexpr std::array<std::string_view, 12> ForumTags{
    "b", "i", "u", "color", "size", "font", "quote", "code", "list", "center", "spoiler", "pre"};

template <std::size_t Count>
bool IsOneOf(std::string_view name, const std::array<std::string_view, Count>& names) {
  return std::ranges::find(names, name) != names.end();
}

/// Tags that strike out what they enclose, in pages and forums.
constexpr std::array<std::string_view, 4> StrikingTags{"s", "del", "strike", "strikethrough"};

/// A part of the plain text that is struck out: its bounds with its marks.
struct Struck {
  std::size_t Begin = std::string::npos;
  std::size_t End = std::string::npos;
};

/// Struck out from here on, "~~A Par - Bur~~" or between tags; nothing where it is not closed.
Struck StruckAt(std::string_view text, std::size_t at) {
  constexpr std::string_view wave = "~~";
  if (text.substr(at).starts_with(wave)) {
    const std::size_t close = text.find(wave, at + wave.size());
    return close == std::string_view::npos ? Struck{} : Struck{at, close + wave.size()};
  }
  const bool isForum = text[at] == '[';
  if (!isForum && text[at] != '<') return {};
  const char end = isForum ? ']' : '>';
  const std::size_t close = text.find(end, at);
  if (close == std::string_view::npos) return {};
  const std::string_view tag = text.substr(at + 1, close - at - 1);
  const std::string_view name = tag.substr(0, tag.find_first_of(" ="));
  const bool strikes = IsOneOf(name, StrikingTags) ||
                       (!isForum && tag.find("line-through") != std::string_view::npos);
  if (!strikes || name.empty()) return {};
  std::string closing(1, text[at]);
  closing.append("/").append(name).append(1, end);
  const std::size_t last = text.find(closing, close);
  return last == std::string_view::npos ? Struck{} : Struck{at, last + closing.size()};
}

/// Takes out what is struck out.
void DropStruck(PlainText& line) {
  constexpr std::string_view marks = "~<[";
  if (line.Text.find_first_of(marks) == std::string::npos) return;
  const std::string lower = text::LowerCase(line.Text);
  PlainText left;
  for (std::size_t at = 0; at < line.Text.size();) {
    if (const Struck struck = StruckAt(lower, at); struck.End != std::string::npos) {
      at = struck.End;
      continue;
    }
    left.Text += line.Text[at];
    left.Origins.push_back(line.Origins[at++]);
  }
  line = std::move(left);
}

/// "div" of "</div", "<div class" in small letters.
std::string TagName(std::string_view tag) {
  tag.remove_prefix(tag.substr(1).starts_with('/') ? 2 : 1);
  return text::LowerCase(tag.substr(0, tag.find_first_of(" /=")));
}

bool HasText(std::string_view text) {
  return text.find_first_not_of(" ;") != std::string_view::npos;
}

}  // namespace

bool StruckLines::Take(std::string_view plain) {
  constexpr std::string_view marks = "~<[";
  if (plain.empty()) isOpen_ = false;
  if (plain.find_first_of(marks) == std::string_view::npos) return isOpen_;
  bool isStruck = isOpen_;
  const std::string lower = text::LowerCase(plain);
  for (std::size_t at = 0; at < lower.size(); ++at) {
    const std::string_view rest = std::string_view(lower).substr(at);
    if (rest.starts_with("~~")) {
      isOpen_ = !isOpen_;
      ++at;
    }
    for (const std::string_view tag : StrikingTags) {
      if (rest[0] != '<' && rest[0] != '[') break;
      const bool isEnd = rest.substr(1).starts_with('/');
      const std::string_view name = rest.substr(isEnd ? 2 : 1);
      if (name.starts_with(tag) && name.substr(tag.size()).find_first_of(">] ") == 0)
        isOpen_ = !isEnd;
    }
    isStruck = isStruck || isOpen_;
  }
  return isStruck;
}

std::size_t LengthOfPageLine(std::string_view text) {
  bool ends = false;
  for (std::size_t at = text.find('<'); at < text.size();) {
    const std::size_t close = text.find('>', at);
    if (close == std::string_view::npos) break;
    const bool isEnd = text[at + 1] == '/';
    if (IsOneOf(TagName(text.substr(at, close - at)), BlockTags)) {
      if (!isEnd && at > 0) return at;
      ends = ends || isEnd;
    }
    // What ends together, "</p></div>", ends one line.
    if (ends && !text.substr(close + 1).starts_with('<')) return close + 1;
    at = text.find('<', close);
  }
  return text.size();
}

void DropTags(PlainText& line) {
  DropStruck(line);
  if (line.Text.find_first_of("<[") == std::string::npos) return;
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
    // "[I mean Pic]" is no tag, though it begins as one.
    const std::size_t behind = at + 1 + name.size() + (line.Text[at + 1] == '/' ? 1 : 0);
    if (isForum && !name.empty() && line.Text[behind] != ']' && line.Text[behind] != '=')
      name.clear();
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
