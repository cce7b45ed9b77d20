#include "orders/exchange/paragraphs.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/glued_types.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/segments.h"
#include "orders/exchange/spoken_marks.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// Whether the second of two lines that follow each other may go on with the sentence of the first.
bool MayGoOn(const SourceLine& line, const SourceLine& next) {
  // Shorter lines are broken on purpose.
  constexpr std::size_t shortest = 24;
  if (line.IsTooLong || next.IsTooLong || line.All.empty() || next.All.empty()) return false;
  if (line.Plain.Text.size() < shortest) return false;
  // The rows of a table begin anew.
  if (std::ranges::count(line.Plain.Text, ';') > 1) return false;
  const Token& last = line.All.back();
  const Token& first = next.All.front();
  const bool isOpen = IsA(last, TokenKind::Word) || IsA(last, TokenKind::Dash) ||
                      IsA(last, TokenKind::Comma) || IsA(last, TokenKind::Close);
  // "[20:02] Ines:" and "[x]" begin lines of their own.
  const bool isClosed =
      next.Plain.Text.starts_with('(') && ClosingBracket(next.All, 0) < next.All.size();
  if (PastLineStart(next.All) != 0) return false;
  const bool begins = isClosed || (IsA(first, TokenKind::Word) && !IsNumber(first));
  const bool isTitled = next.All.size() > 1 && IsA(next.All[1], TokenKind::Colon);
  if (!isOpen || !begins || isTitled || next.Plain.Text.find_first_of(">|") == 0) return false;
  const bool isSmall = IsA(first, TokenKind::Word) && !first.Capital;
  return isSmall || HasUse(last, WordUse::Filler) || VerbOf(last) != Verb::None ||
         IsWord(last, "of") || IsWord(last, "in") || IsWord(last, "from") || IsWord(last, "at") ||
         IsWord(last, "and") || isClosed;
}

/// Lines that follow each other as one. A word that was parted at the end of a line is whole again.
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
  ReadSpokenMarks(joined.All);
  PartGluedTypes(joined.All, names);
}

/// What lines give when they are read.
struct Gain {
  int Orders = 0;
  int Unclear = 0;
};

void AddGain(const SourceLine& line, const KnownGame& known, Context context, Gain& gain) {
  const TokenRange all{PastLineStart(line.All), line.All.size()};
  for (const TokenRange segment : Split(line.All, all, Seam::Semicolon)) {
    for (const auto& [range, part] : ReadSegment(line.All, segment, known, context, false)) {
      const bool isUnclear =
          part.Kind == LineKind::NotUnderstood && !IsNoOrder(line.Part(range), known.Names, false);
      gain.Orders += IsUnderstood(part) ? 1 : 0;
      gain.Unclear += isUnclear ? 1 : 0;
    }
  }
}

}  // namespace

std::size_t JoinParagraph(const std::deque<SourceLine>& text, std::size_t first,
                          const KnownGame& known, const Context& context, int& tries,
                          SourceLine& joined) {
  constexpr std::size_t longest = 8;
  // More than any letter needs, and few enough for texts that are made to take long.
  constexpr int most = 500;
  std::size_t count = 1;
  std::size_t size = text[first].Bytes.size();
  while (count < longest && first + count < text.size() &&
         MayGoOn(text[first + count - 1], text[first + count])) {
    size += 1 + text[first + count++].Bytes.size();
  }
  if (count == 1 || size > LineBound || tries == most) return 1;
  ++tries;
  Gain single;
  bool areWhole = true;
  for (std::size_t i = 0; i < count; ++i) {
    const int before = single.Orders;
    AddGain(text[first + i], known, context, single);
    areWhole = areWhole && single.Orders > before;
  }
  // Lines that all are orders are no paragraph.
  if (areWhole && single.Unclear == 0) return 1;
  JoinLines(joined, text, first, count, known.Names);
  Gain whole;
  AddGain(joined, known, context, whole);
  const bool isBetter = whole.Orders > single.Orders ||
                        (whole.Orders == single.Orders && whole.Unclear < single.Unclear);
  return isBetter ? count : 1;
}

}  // namespace orb::exchange
