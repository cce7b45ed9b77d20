#include "orders/exchange/concerns.h"

#include "orders/exchange/asides.h"
#include "orders/exchange/comments.h"
#include "orders/exchange/power_names.h"
#include "text/strings.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// The place named at a token, or 0. "war" and "gas" are words as well.
int PlaceAt(Tokens tokens, std::size_t at, const PlaceNames& names) {
  constexpr std::size_t shortName = 3;
  if (!IsA(tokens[at], TokenKind::Word)) return 0;
  if (tokens[at].Text.size() <= shortName && !tokens[at].Capital) return 0;
  const auto matches = names.At(tokens, at);
  return matches.empty() || matches[0].Rows.size() != 1 ? 0 : matches[0].Rows[0];
}

/// Whether any word speaks of orders: a verb, a unit, the word itself.
bool SpeaksOfOrders(Tokens tokens) {
  return std::ranges::any_of(tokens, [](const Token& token) {
    return VerbOf(token) != Verb::None || (UnitTypeOf(token) != 0 && token.Text.size() > 1) ||
           HasUse(token, WordUse::Orders);
  });
}

}  // namespace

std::string ProvinceOf(std::string_view order) {
  constexpr std::size_t nameLength = 3;
  const std::size_t bracket = order.find('(');
  if (bracket == std::string_view::npos) return {};
  return text::UpperCase(order.substr(bracket + 1, nameLength));
}

std::string TargetOf(std::string_view order) {
  constexpr std::size_t nameLength = 3;
  const std::string last = text::UpperCase(order.substr(order.rfind(' ') + 1));
  const bool isPlace = last != "HOLD" && last != "DISBAND" && last.find('(') == std::string::npos;
  return isPlace ? last.substr(0, nameLength) : std::string();
}

bool Concerns(const Concern& concern, std::string_view order) {
  return std::ranges::find(concern.Provinces, ProvinceOf(order)) != concern.Provinces.end();
}

Concern ConcernOf(Tokens tokens, const PlaceNames& names, const model::Map& map) {
  Concern concern;
  const auto add = [&](int row) {
    constexpr std::size_t nameLength = 3;
    if (row == 0) return;
    concern.Provinces.push_back(text::UpperCase(map.Provinces[row].Name.substr(0, nameLength)));
  };
  std::size_t first = 0;
  if (const PowerName power = PowerAt(tokens, 0); power.Power != 0) first = power.Next;
  while (first < tokens.size() && !IsA(tokens[first], TokenKind::Word))
    ++first;
  if (first == tokens.size()) return concern;
  const bool isTyped = UnitTypeOf(tokens[first]) != 0;
  // A line that ends in a colon speaks of what is below it, and sets it aside or does not.
  const bool isTitle = IsA(tokens.back(), TokenKind::Colon);
  if (isTitle && !isTyped) return concern;
  if (isTyped || !names.At(tokens, first).empty()) {
    for (std::size_t at = first; at < tokens.size() && concern.Provinces.empty(); ++at) {
      const auto matches = names.At(tokens, at);
      if (!matches.empty() && matches[0].Rows.size() == 1) add(matches[0].Rows[0]);
    }
    return concern;
  }
  // "Rather not the one to Armenia."
  concern.OfTargets = FindCondition(tokens) < tokens.size();
  if (!concern.OfTargets && !SpeaksOfOrders(tokens)) return concern;
  for (std::size_t at = 0; at < tokens.size(); ++at)
    add(PlaceAt(tokens, at, names));
  concern.MayBeAll = MakesCondition(tokens) && !IsOffer(tokens);
  return concern;
}

}  // namespace orb::exchange
