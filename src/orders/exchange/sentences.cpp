#include "orders/exchange/sentences.h"

#include "orders/exchange/comments.h"

namespace orb::exchange {
namespace {

/// Whether a full stop ends a sentence: none of "St. Petersburg", "N. Sea" or "A. Par".
bool EndsSentence(Tokens tokens, std::size_t dot, std::size_t begin, const PlaceNames& names) {
  const bool asks = tokens[dot].Text == "?" && tokens[dot].Kind == TokenKind::Mark;
  if (asks && dot + 1 < tokens.size() && dot != begin) {
    const Token& next = tokens[dot + 1];
    return !next.Glued && next.Capital && next.Text.size() > 1;
  }
  if (tokens[dot].Kind != TokenKind::Dot || dot + 1 == tokens.size() || dot == begin) return false;
  const Token& before = tokens[dot - 1];
  const Token& behind = tokens[dot + 1];
  if (behind.Glued || !IsA(behind, TokenKind::Word) || IsWord(behind, "via")) return false;
  if (VerbOf(behind) != Verb::None && (!behind.Capital || behind.Text.size() == 1)) return false;
  // The last word of an order may be one letter, but one that means something alone.
  if (before.Text.size() == 1 && VerbOf(before) == Verb::None) return false;
  for (const PlaceMatch& match : names.At(tokens, dot - 1)) {
    if (match.Next > dot) return false;
  }
  return true;
}

}  // namespace

std::vector<TokenRange> Sentences(Tokens tokens, TokenRange range, const PlaceNames& names) {
  std::vector<TokenRange> sentences;
  std::size_t begin = range.Begin;
  for (std::size_t at = begin; at < range.End; ++at) {
    if (IsA(tokens[at], TokenKind::Open)) {
      const std::size_t close = ClosingBracket(tokens.first(range.End), at);
      if (close < range.End) at = close;
    } else if (EndsSentence(tokens.first(range.End), at, begin, names)) {
      // A question keeps its mark.
      sentences.push_back({begin, IsA(tokens[at], TokenKind::Dot) ? at : at + 1});
      begin = at + 1;
    }
  }
  if (begin < range.End) sentences.push_back({begin, range.End});
  return sentences;
}

std::vector<TokenRange> SentencesOf(Tokens line) {
  std::vector<TokenRange> sentences;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const bool isStop = line[at].Text == "?" || IsA(line[at], TokenKind::Dot);
    const bool isEnd = at + 1 == line.size() || (isStop && !line[at + 1].Glued);
    if (!isEnd) continue;
    sentences.push_back({begin, at + 1});
    begin = at + 1;
  }
  return sentences;
}

Tokens LastSentence(Tokens line) {
  for (std::size_t at = line.size() - 1; at > 0; --at) {
    if (IsA(line[at - 1], TokenKind::Dot) && !line[at].Glued) return line.subspan(at);
  }
  return line;
}

}  // namespace orb::exchange
