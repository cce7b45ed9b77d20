#include "orders/exchange/spoken_marks.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace orb::exchange {
namespace {

using std::string_view_literals::operator""sv;

/// Two words that nobody writes beside orders for anything else.
constexpr std::array SpokenPairs{
    std::pair{"full"sv, "stop"sv},   std::pair{"new"sv, "line"sv},
    std::pair{"next"sv, "line"sv},   std::pair{"new"sv, "paragraph"sv},
    std::pair{"neue"sv, "zeile"sv},  std::pair{"nouvelle"sv, "ligne"sv},
    std::pair{"nueva"sv, "linea"sv}, std::pair{"nuova"sv, "riga"sv},
    std::pair{"nova"sv, "linha"sv},  std::pair{"nieuwe"sv, "regel"sv},
    std::pair{"ny"sv, "linje"sv},    std::pair{"ny"sv, "rad"sv},
    std::pair{"nowa"sv, "linia"sv},  std::pair{"punto"sv, "aparte"sv}};

constexpr std::array SpokenStops{"stop"sv,  "period"sv, "punkt"sv, "point"sv,
                                 "punto"sv, "ponto"sv,  "punt"sv,  "kropka"sv};
constexpr std::array SpokenCommas{"comma"sv, "komma"sv,   "virgule"sv,
                                  "coma"sv,  "virgola"sv, "virgula"sv};

bool IsSpokenPair(const std::vector<Token>& tokens, std::size_t at) {
  return at + 1 < tokens.size() && std::ranges::any_of(SpokenPairs, [&](const auto& pair) {
           return IsWord(tokens[at], pair.first) && IsWord(tokens[at + 1], pair.second);
         });
}

void SetMark(Token& token, TokenKind kind, std::string_view mark) {
  token.Kind = kind;
  token.Text = mark;
  token.Means = {};
  token.Capital = false;
}

}  // namespace

void ReadSpokenMarks(std::vector<Token>& tokens) {
  std::ptrdiff_t pairs = 0;
  for (std::size_t at = 0; at < tokens.size(); ++at)
    pairs += IsSpokenPair(tokens, at) ? 1 : 0;
  const auto stops =
      std::ranges::count_if(tokens, [](const Token& token) { return IsOneOf(token, SpokenStops); });
  const bool hasDots =
      std::ranges::any_of(tokens, [](const Token& token) { return token.Kind == TokenKind::Dot; });
  const bool areSpoken = pairs > 0 || (stops > 1 && !hasDots);
  if (!areSpoken) return;
  std::vector<Token> read;
  read.reserve(tokens.size());
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const bool isPair = IsSpokenPair(tokens, at);
    const bool isStop = isPair || IsOneOf(tokens[at], SpokenStops);
    Token token = std::move(tokens[at]);
    if (isPair) {
      ++at;
      token.End = tokens[at].End;
      token.Written = {token.Written.data(), token.End - token.Begin};
    }
    // Of "full stop new line" one is enough.
    const bool isAgain = isStop && !read.empty() && read.back().Kind == TokenKind::Dot;
    if (isAgain) continue;
    if (isStop) SetMark(token, TokenKind::Dot, ".");
    if (IsOneOf(token, SpokenCommas)) SetMark(token, TokenKind::Comma, ",");
    if (IsWord(token, "colon")) SetMark(token, TokenKind::Colon, ":");
    read.push_back(std::move(token));
  }
  tokens = std::move(read);
}

}  // namespace orb::exchange
