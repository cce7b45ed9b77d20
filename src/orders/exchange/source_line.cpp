#include "orders/exchange/source_line.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/markup.h"

#include <algorithm>

namespace orb::exchange {
namespace {

bool IsSeam(const Token& token, Seam seam) {
  if (seam == Seam::Semicolon) return token.Kind == TokenKind::Semicolon;
  // A slash with a blank before it is no coast's.
  return token.Kind == TokenKind::Comma || IsWord(token, "and") ||
         (token.Kind == TokenKind::Slash && !token.Glued) ||
         (seam == Seam::FullStop && token.Kind == TokenKind::Dot);
}

}  // namespace

SourceLine CutLine(int number, std::string_view bytes, std::size_t offset,
                   std::span<const TextRepair> repairs) {
  SourceLine line;
  const std::size_t start = std::min(bytes.find_first_not_of(" \t"), bytes.size());
  const std::size_t end = bytes.find_last_not_of(" \t");
  line.Number = number;
  line.Offset = offset + start;
  line.Bytes = bytes.substr(start, end == std::string_view::npos ? 0 : end + 1 - start);
  // Plain characters first, since repairs are written in them, and tags last, since a repair may
  // mend one.
  line.Plain = ToPlain(line.Bytes, line.Offset);
  line.IsTooLong = !Repair(line.Plain, repairs);
  if (!line.IsTooLong) DropTags(line.Plain);
  return line;
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
    } else if (IsSeam(tokens[at], seam)) {
      close(at);
      start = at + 1;
    }
  }
  close(range.End);
  return parts;
}

}  // namespace orb::exchange
