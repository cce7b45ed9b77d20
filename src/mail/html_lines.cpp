#include "mail/html_lines.h"

#include "text/references.h"
#include "text/strings.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace orb::mail {
namespace {

using text::IsOneOf;

constexpr std::array<std::string_view, 27> BlockTags{
    "br",    "p",     "div",   "tr",         "li",      "ul",      "ol",     "dl",   "dt",
    "dd",    "h1",    "h2",    "h3",         "h4",      "h5",      "h6",     "hr",   "pre",
    "table", "tbody", "thead", "blockquote", "section", "article", "center", "form", "address"};
/// Elements whose content is no text.
constexpr std::array<std::string_view, 4> HiddenTags{"head", "style", "script", "title"};
constexpr std::array<std::string_view, 3> StrikingTags{"s", "strike", "del"};

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

struct Tag {
  std::string Name;  ///< in small letters; empty for declarations
  bool IsEnd = false;
  bool StrikesOut = false;
  std::size_t Length = 0;
};

/// The tag at the front of a text; of length 0 where none begins there: "<tom@example.org>" and
/// "<- Bur" are none.
Tag TagAt(std::string_view html) {
  Tag tag;
  const std::size_t close = html.find_first_of("<>", 1);
  if (!html.starts_with('<') || close == std::string_view::npos || html[close] == '<') return tag;
  const std::string_view inside = html.substr(1, close - 1);
  tag.IsEnd = inside.starts_with('/');
  const std::size_t first = tag.IsEnd ? 1 : 0;
  const std::size_t last = std::min(inside.find_first_of(" \t\r\n/", first), inside.size());
  const std::string_view name = inside.substr(first, last - first);
  const bool isDeclaration = name.starts_with('!') || name.starts_with('?');
  const bool isName = !name.empty() && IsLetter(name[0]) && name.find('@') == std::string::npos;
  if (!isDeclaration && !isName) return {};
  if (isName) tag.Name = text::LowerCase(name);
  tag.StrikesOut = IsOneOf(tag.Name, StrikingTags) ||
                   text::LowerCase(inside).find("line-through") != std::string::npos;
  tag.Length = close + 1;
  return tag;
}

std::string WithoutComments(std::string_view html) {
  std::string kept;
  while (!html.empty()) {
    const std::size_t begin = html.find("<!--");
    const std::size_t end = begin == std::string_view::npos ? begin : html.find("-->", begin);
    if (end == std::string_view::npos) break;
    kept += html.substr(0, begin);
    html.remove_prefix(end + 3);
  }
  return kept.append(html);
}

/// Whether a page has tags that part its lines.
bool HasBlocks(std::string_view html) {
  for (std::size_t at = html.find('<'); at != std::string_view::npos; at = html.find('<', at + 1)) {
    if (IsOneOf(TagAt(html.substr(at)).Name, BlockTags)) return true;
  }
  return false;
}

/// Writes the lines of a page.
class Page {
 public:
  explicit Page(std::string_view html) : rest_(html), isPreformatted_(!HasBlocks(html)) {}

  std::string Lines() {
    while (!rest_.empty()) {
      const Tag tag = rest_[0] == '<' ? TagAt(rest_) : Tag{};
      if (tag.Length == 0) {
        TakeCharacter();
      } else {
        rest_.remove_prefix(tag.Length);
        Take(tag);
      }
    }
    return std::move(lines_);
  }

 private:
  void Take(const Tag& tag) {
    if (IsOneOf(tag.Name, HiddenTags)) {
      if (!tag.IsEnd) SkipTo(tag.Name);
    } else if (tag.Name == "br") {
      EndLine();
    } else if (tag.Name == "blockquote") {
      BreakLine();
      lines_.append(tag.IsEnd ? "</blockquote>\n" : "<blockquote>\n");
    } else if (IsOneOf(tag.Name, BlockTags)) {
      BreakLine();
      if (tag.Name == "pre") isPreformatted_ = !tag.IsEnd;
    } else if (tag.Name == "td" || tag.Name == "th") {
      AddBlank();
    }
    FollowStriking(tag);
  }

  /// What is struck out ends with the element in which it began.
  void FollowStriking(const Tag& tag) {
    if (striking_.empty() && tag.StrikesOut && !tag.IsEnd) {
      striking_ = tag.Name;
      depth_ = 0;
      lines_ += "<s>";
    }
    if (striking_.empty() || tag.Name != striking_) return;
    depth_ += tag.IsEnd ? -1 : 1;
    if (depth_ > 0) return;
    striking_.clear();
    lines_ += "</s>";
  }

  void EndLine() {
    if (lines_.ends_with(' ')) lines_.pop_back();
    // Each line is read by itself.
    lines_ += striking_.empty() ? "\n" : "</s>\n<s>";
  }

  void BreakLine() {
    if (!lines_.empty() && !lines_.ends_with('\n') && !lines_.ends_with("\n<s>")) EndLine();
  }

  void AddBlank() {
    if (!lines_.empty() && lines_.back() != ' ' && lines_.back() != '\n') lines_ += ' ';
  }

  void TakeCharacter() {
    const char c = rest_[0];
    const std::string_view before = rest_;
    if (const auto character = text::NextReference(rest_)) {
      const bool isSign = *character == '<' || *character == '>' || *character == '&';
      if (isSign) {
        lines_ += before.substr(0, before.size() - rest_.size());
      } else {
        text::AppendUtf8(lines_, *character < ' ' ? U' ' : *character);
      }
      return;
    }
    rest_.remove_prefix(1);
    const bool isBlank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
    if (isBlank && !isPreformatted_) return AddBlank();
    lines_ += c;
  }

  /// Passes over the content of an element; one without an end hides nothing.
  void SkipTo(const std::string& name) {
    // Looked for once alone, or a page of nothing but beginnings would take for ever.
    if (std::ranges::find(endless_, name) != endless_.end()) return;
    for (std::size_t at = rest_.find("</"); at != std::string_view::npos;
         at = rest_.find("</", at + 1)) {
      const Tag tag = TagAt(rest_.substr(at));
      if (tag.Name == name) return rest_.remove_prefix(at + tag.Length);
    }
    endless_.push_back(name);
  }

  std::string_view rest_;
  std::string lines_;
  bool isPreformatted_;
  std::string striking_;  ///< the name of the element that strikes out, or empty
  int depth_ = 0;         ///< how many of that name are open since
  std::vector<std::string> endless_;
};

}  // namespace

std::string HtmlLines(std::string_view html) {
  const std::string page = WithoutComments(html);
  return Page(page).Lines();
}

}  // namespace orb::mail
