#include "orders/exchange/source_line.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/glued_types.h"
#include "orders/exchange/markup.h"
#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::exchange {
namespace {

/// "And" in several languages. Short words are only so before a unit.
bool IsAnd(Tokens tokens, std::size_t at) {
  constexpr std::array<std::string_view, 7> words{"and", "und", "et", "och", "og", "oraz", "ja"};
  constexpr std::array<std::string_view, 5> shortWords{"y", "e", "ed", "en", "i"};
  if (!IsA(tokens[at], TokenKind::Word)) return false;
  const std::string& word = tokens[at].Text;
  if (std::ranges::find(words, word) != words.end()) return true;
  const bool isBeforeUnit =
      at > 0 && at + 1 < tokens.size() && tokens[at + 1].Text.size() > 1 &&
      (UnitTypeOf(tokens[at + 1]) != 0 || HasUse(tokens[at + 1], WordUse::Filler));
  return isBeforeUnit && !tokens[at].Capital &&
         std::ranges::find(shortWords, word) != shortWords.end();
}

bool IsSeam(Tokens tokens, std::size_t at, Seam seam) {
  const Token& token = tokens[at];
  if (seam == Seam::Semicolon) return token.Kind == TokenKind::Semicolon;
  // A slash with a blank before it is no coast's.
  return token.Kind == TokenKind::Comma || IsAnd(tokens, at) ||
         (token.Kind == TokenKind::Slash && !token.Glued);
}

}  // namespace

void CutLine(SourceLine& line, std::string_view bytes, std::size_t offset,
             std::span<const TextRepair> repairs, const PlaceNames& names) {
  const std::size_t start = std::min(bytes.find_first_not_of(" \t"), bytes.size());
  const std::size_t end = bytes.find_last_not_of(" \t");
  line.Offset = offset + start;
  line.Bytes = bytes.substr(start, end == std::string_view::npos ? 0 : end + 1 - start);
  // Plain characters first, since repairs are written in them, and tags last, since a repair may
  // mend one.
  line.Plain = ToPlain(line.Bytes, line.Offset);
  line.IsTooLong = !Repair(line.Plain, repairs);
  if (line.IsTooLong) {
    // As written: thousands of lines as long as repairs can make them would fill the memory.
    line.Plain = ToPlain(line.Bytes, line.Offset);
    return;
  }
  DropTags(line.Plain);
  line.All = CutTokens(line.Plain.Text);
  PartGluedTypes(line.All, names);
}

bool MayGoOn(const SourceLine& line, const SourceLine& next) {
  // Shorter lines are broken on purpose.
  constexpr std::size_t shortest = 24;
  if (line.IsTooLong || next.IsTooLong || line.All.empty() || next.All.empty()) return false;
  if (line.Plain.Text.size() < shortest) return false;
  const Token& last = line.All.back();
  const Token& first = next.All.front();
  const bool isOpen = IsA(last, TokenKind::Word) || IsA(last, TokenKind::Dash) ||
                      IsA(last, TokenKind::Comma) || IsA(last, TokenKind::Close);
  const bool isClosed =
      IsA(first, TokenKind::Open) && ClosingBracket(next.All, 0) < next.All.size();
  const bool begins = isClosed || (IsA(first, TokenKind::Word) && !IsNumber(first));
  if (!isOpen || !begins || next.Plain.Text.find_first_of(">|") == 0) return false;
  const bool isSmall = IsA(first, TokenKind::Word) && !first.Capital;
  return isSmall || HasUse(last, WordUse::Filler) || VerbOf(last) != Verb::None ||
         IsWord(last, "of") || IsWord(last, "in") || IsWord(last, "from") || IsWord(last, "at") ||
         IsWord(last, "and") || IsA(first, TokenKind::Open);
}

void JoinLines(SourceLine& joined, const std::deque<SourceLine>& text, std::size_t first,
               std::size_t count, const PlaceNames& names) {
  const SourceLine& begin = text[first];
  const SourceLine& end = text[first + count - 1];
  joined.Number = begin.Number;
  joined.Offset = begin.Offset;
  joined.Bytes = {
      begin.Bytes.data(),
      static_cast<std::size_t>(end.Bytes.data() - begin.Bytes.data()) + end.Bytes.size()};
  PlainText& plain = joined.Plain;
  for (std::size_t i = first; i < first + count; ++i) {
    const PlainText& next = text[i].Plain;
    const std::size_t size = plain.Text.size();
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    const bool isParted = size > 1 && plain.Text.back() == '-' && isLetter(plain.Text[size - 2]) &&
                          next.Text[0] >= 'a' && next.Text[0] <= 'z';
    if (isParted) {
      plain.Text.pop_back();
      plain.Origins.pop_back();
    } else if (size > 0) {
      plain.Text += ' ';
      plain.Origins.push_back({text[i].Offset, 0});
    }
    plain.Text += next.Text;
    plain.Origins.insert(plain.Origins.end(), next.Origins.begin(), next.Origins.end());
  }
  joined.All = CutTokens(plain.Text);
  PartGluedTypes(joined.All, names);
}

std::deque<SourceLine> CutText(std::string_view text, std::span<const TextRepair> repairs,
                               const PlaceNames& names) {
  std::deque<SourceLine> lines;
  const char* const begin = text.data();
  while (!text.empty()) {
    const std::string_view bytes = text::NextLine(text);
    const auto offset = static_cast<std::size_t>(bytes.data() - begin);
    SourceLine& line = lines.emplace_back();
    line.Number = static_cast<int>(lines.size());
    CutLine(line, bytes, offset, repairs, names);
  }
  return lines;
}

std::vector<TokenRange> Split(Tokens tokens, TokenRange range, Seam seam) {
  std::vector<TokenRange> parts;
  std::size_t start = range.Begin;
  const auto close = [&](std::size_t end) {
    if (end > start) parts.push_back({start, end});
  };
  for (std::size_t at = range.Begin; at < range.End; ++at) {
    if (IsA(tokens[at], TokenKind::Open)) {
      const std::size_t bracket = ClosingBracket(tokens.first(range.End), at);
      if (bracket < range.End) at = bracket;
    } else if (IsSeam(tokens.first(range.End), at, seam)) {
      close(at);
      start = at + 1;
    }
  }
  close(range.End);
  return parts;
}

}  // namespace orb::exchange
