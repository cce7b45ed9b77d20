#include "orders/exchange/comments.h"

#include "orders/exchange/power_names.h"

#include <algorithm>

namespace orb::exchange {
namespace {

bool IsCoastWord(const Token& token) {
  return IsCoastNoun(token.Text) || (token.Text.size() > 1 && CoastLetter(token.Text) != 0);
}

/// How many tokens from here make up a word of orders: a verb, a type of unit, a power, a place or
/// a coast; 0: they are none. Places come first, since their names may be longer than a verb.
std::size_t OrderWord(Tokens tokens, std::size_t at, const PlaceNames& names) {
  const Token& token = tokens[at];
  if (token.Kind != TokenKind::Word) return 0;
  if (const auto places = names.At(tokens, at); !places.empty()) return places[0].Next - at;
  if (const PowerName power = PowerAt(tokens, at); power.Power != 0) return power.Next - at;
  const bool isWord = VerbOf(token) != Verb::None || UnitTypeOf(token) != 0 || IsCoastWord(token) ||
                      token.Text == "via";
  return isWord ? 1 : 0;
}

/// How many words belong to orders, and how many do not. Fillers, "the" and "my", are neither.
std::pair<int, int> CountWords(Tokens tokens, const PlaceNames& names) {
  std::pair<int, int> count;
  for (std::size_t at = 0; at < tokens.size();) {
    const std::size_t length = OrderWord(tokens, at, names);
    const bool counts = tokens[at].Kind == TokenKind::Word && !HasUse(tokens[at], WordUse::Filler);
    if (length > 0) {
      ++count.first;
    } else if (counts) {
      ++count.second;
    }
    at += std::max<std::size_t>(length, 1);
  }
  return count;
}

/// Whether a type, its place and a verb stand there one after another: "(A Par H)" is an order.
bool OrdersUnit(Tokens tokens, const PlaceNames& names) {
  for (std::size_t at = 0; at + 2 < tokens.size(); ++at) {
    if (UnitTypeOf(tokens[at]) == 0 || !IsA(tokens[at + 1], TokenKind::Word)) continue;
    for (const PlaceMatch& place : names.At(tokens, at + 1)) {
      if (place.Next < tokens.size() && VerbOf(tokens[place.Next]) != Verb::None) return true;
    }
  }
  return false;
}

}  // namespace

std::size_t ClosingBracket(Tokens tokens, std::size_t open) {
  // Nobody means brackets nested deeper than these.
  constexpr int deepest = 8;
  int depth = 0;
  for (std::size_t at = open; at < tokens.size(); ++at) {
    if (IsA(tokens[at], TokenKind::Open) && ++depth > deepest) break;
    if (IsA(tokens[at], TokenKind::Close) && --depth == 0) return at;
  }
  return tokens.size();
}

bool IsProse(Tokens tokens, const PlaceNames& names) {
  const auto [ofOrders, others] = CountWords(tokens, names);
  return ofOrders == 0 && others > 1 && FindCondition(tokens) == tokens.size();
}

bool IsRemark(Tokens tokens, const PlaceNames& names) {
  const auto isWord = [](const Token& token) { return token.Kind == TokenKind::Word; };
  if (FindCondition(tokens) != tokens.size()) return false;
  // "(sc)" belongs to the place before it, and must not be dropped as a remark.
  if (std::ranges::any_of(tokens, IsCoastWord) || OrdersUnit(tokens, names)) return false;
  const auto words = std::ranges::count_if(tokens, isWord);
  if (words == 0 || std::ranges::all_of(tokens, IsNumber)) return true;
  if (std::ranges::all_of(tokens, [&](const Token& token) {
        return !isWord(token) || HasUse(token, WordUse::Filler);
      })) {
    return true;
  }
  // A single word may be a place with a slip of the pen, "(Spian)".
  if (words == 1) {
    const auto word = std::ranges::find_if(tokens, isWord);
    if (!names.NearlyNamed(word->Text).empty()) return false;
  }
  return CountWords(tokens, names).second > 0;
}

std::size_t FindCondition(Tokens tokens) {
  const auto isCondition = [](const Token& token) { return HasUse(token, WordUse::Condition); };
  return static_cast<std::size_t>(std::ranges::find_if(tokens, isCondition) - tokens.begin());
}

TokenRange CommentAtEnd(Tokens line, TokenRange part) {
  const auto isSign = [](const Token& token) {
    return token.Kind == TokenKind::Mark &&
           (token.Text == "#" || token.Text.starts_with("//") || token.Text.starts_with("<-"));
  };
  while (part.Begin < part.End && !isSign(line[part.Begin]))
    ++part.Begin;
  return part;
}

}  // namespace orb::exchange
