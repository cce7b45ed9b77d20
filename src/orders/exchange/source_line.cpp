#include "orders/exchange/source_line.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/glued_types.h"
#include "orders/exchange/markup.h"
#include "orders/exchange/spoken_marks.h"
#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::exchange {
namespace {

/// "And" in several languages. Words that are others as well are only so before a unit.
bool IsAnd(Tokens tokens, std::size_t at) {
  constexpr std::array<std::string_view, 7> words{"and", "und", "et", "och", "og", "oraz", "ja"};
  constexpr std::array<std::string_view, 11> shortWords{
      "y", "e", "ed", "en", "i", "plus", "dazu", "sowie", "nonche", "alsmede", "samt"};
  if (!IsA(tokens[at], TokenKind::Word)) return false;
  const std::string& word = tokens[at].Text;
  if (std::ranges::find(words, word) != words.end()) return true;
  const bool isShort = std::ranges::find(shortWords, word) != shortWords.end();
  if (!isShort || at == 0 || at + 1 == tokens.size()) return false;
  // "Bygger en flåde".
  if (HasUse(tokens[at], WordUse::Filler)) return false;
  if (tokens[at].Capital || tokens[at].Glued) return false;
  const Token& next = tokens[at + 1];
  const auto isTypeAt = [&](std::size_t place) {
    return place < tokens.size() && UnitTypeOf(tokens[place]) != 0;
  };
  const auto isVerbAt = [&](std::size_t place) {
    return place < tokens.size() && VerbOf(tokens[place]) != Verb::None;
  };
  // "En Berlijn naar Kiel"; but "en Bourgogne" is where somebody goes.
  const bool isBeforePlace =
      next.Capital && tokens[at - 1].Capital && (isVerbAt(at + 2) || isVerbAt(at + 3));
  // "Plus a fleet".
  if (IsWord(next, "a") && isTypeAt(at + 2) && tokens[at + 2].Text.size() > 1) return true;
  // "F Londres y A Liverpool", "F Stp (cn) e A War".
  const Token& before = tokens[at - 1];
  const bool isBehindPlace = before.Capital || IsA(before, TokenKind::Close) ||
                             CoastLetter(before.Text) != 0 || IsCoastNoun(before.Text);
  const bool joinsUnits = next.Capital && isTypeAt(at + 1) && isBehindPlace &&
                          at + 2 < tokens.size() && tokens[at + 2].Capital;
  if (joinsUnits) return true;
  return next.Text.size() > 1 && (isTypeAt(at + 1) || isTypeAt(at + 2) || isBeforePlace ||
                                  HasUse(next, WordUse::Filler, WordUse::Wish));
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
  ReadSpokenMarks(line.All);
  PartGluedTypes(line.All, names);
}

std::deque<SourceLine> CutText(std::string_view text, std::span<const TextRepair> repairs,
                               const PlaceNames& names) {
  std::deque<SourceLine> lines;
  const char* const begin = text.data();
  for (int number = 1; !text.empty(); ++number) {
    std::string_view rest = text::NextLine(text);
    // The lines of a page may stand in one.
    do {
      const std::string_view bytes = rest.substr(0, LengthOfPageLine(rest));
      SourceLine& line = lines.emplace_back();
      line.Number = number;
      CutLine(line, bytes, static_cast<std::size_t>(bytes.data() - begin), repairs, names);
      rest.remove_prefix(bytes.size());
    } while (!rest.empty());
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
