#include "orders/exchange/concerns.h"

#include "model/place.h"
#include "orders/exchange/asides.h"
#include "orders/exchange/comments.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "orders/exchange/sentences.h"
#include "text/strings.h"

#include <algorithm>
#include <array>
#include <string_view>

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

/// Whether a line that begins with a place may order something there: it is short, or a verb stands
/// near the place.
bool MayOrder(Tokens tokens, std::size_t place, const PlaceNames& names) {
  constexpr std::ptrdiff_t few = 6;
  constexpr std::size_t near = 3;
  if (std::ranges::count(tokens, TokenKind::Word, &Token::Kind) <= few) return true;
  const std::size_t next = names.At(tokens, place)[0].Next;
  for (std::size_t at = next; at < std::min(next + near, tokens.size()); ++at) {
    // "PARIS - The President of the Republic".
    const bool isDash = IsA(tokens[at], TokenKind::Dash);
    if (isDash ? !names.At(tokens, at + 1).empty() : VerbOf(tokens[at]) != Verb::None) return true;
  }
  return false;
}

/// Whether a place heads a report of the press: "PARIS - The President", "VIENNA (AP) -- The
/// Emperor".
bool IsDateline(Tokens tokens, std::size_t place, const PlaceNames& names) {
  constexpr std::ptrdiff_t few = 8;
  const auto matches = names.At(tokens, place);
  if (matches.empty() || std::ranges::count(tokens, TokenKind::Word, &Token::Kind) <= few) {
    return false;
  }
  const std::string_view written = tokens[place].Written;
  const bool isLoud = text::UpperCase(written) == written;
  std::size_t at = matches[0].Next;
  if (at < tokens.size() && IsA(tokens[at], TokenKind::Open)) at = ClosingBracket(tokens, at) + 1;
  return isLoud && at + 1 < tokens.size() && IsA(tokens[at], TokenKind::Dash) &&
         UnitTypeOf(tokens[at + 1]) == 0 && names.At(tokens, at + 1).empty();
}

/// Whether a unit's type stands before a token: "F Nwy".
bool IsUnitAt(Tokens tokens, std::size_t at) {
  return at > 0 && UnitTypeOf(tokens[at - 1]) != 0;
}

/// Whether any word speaks of orders: a verb, but none such as "to", a unit, the word itself.
bool SpeaksOfOrders(Tokens tokens) {
  constexpr std::array<std::string_view, 15> prepositions{"to",   "into", "nach", "zum",  "zur",
                                                          "vers", "al",   "alla", "para", "naar",
                                                          "til",  "mot",  "till", "nel",  "hacia"};
  return std::ranges::any_of(tokens, [&](const Token& token) {
    const bool isVerb = VerbOf(token) != Verb::None &&
                        std::ranges::find(prepositions, token.Text) == prepositions.end();
    return isVerb || (UnitTypeOf(token) != 0 && token.Text.size() > 1) ||
           HasUse(token, WordUse::Orders);
  });
}

/// Whether words point at something, or name units or orders.
bool Points(Tokens sentence) {
  return std::ranges::any_of(sentence, [](const Token& token) {
    constexpr auto pointing =
        static_cast<unsigned>(Signal::Points) | static_cast<unsigned>(Signal::Hints);
    return (token.Means.Signals & pointing) != 0 || HasUse(token, WordUse::Orders) ||
           (UnitTypeOf(token) != 0 && token.Text.size() > 1);
  });
}

/// Whether a sentence makes a condition and may be about the orders: it points at something, or
/// names units or orders.
bool MayBeOfAll(Tokens tokens) {
  return std::ranges::any_of(SentencesOf(tokens), [&](const TokenRange& at) {
    const Tokens sentence = tokens.subspan(at.Begin, at.End - at.Begin);
    return Points(sentence) && MakesCondition(sentence) && SpeaksOfOrders(sentence);
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

std::vector<std::string> PlacesIn(Tokens tokens, const PlaceNames& names, const model::Map& map) {
  constexpr std::size_t nameLength = 3;
  std::vector<std::string> places;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const int row = PlaceAt(tokens, at, names);
    if (row != 0) places.push_back(text::UpperCase(map.Provinces[row].Name.substr(0, nameLength)));
  }
  return places;
}

Concern ConcernOf(Tokens tokens, const PlaceNames& names, const model::Map& map) {
  Concern concern;
  if (FindSaying(tokens, Saying::Chats)) return concern;
  const auto add = [&](int row) {
    constexpr std::size_t nameLength = 3;
    if (row == 0) return;
    concern.Provinces.push_back(text::UpperCase(map.Provinces[row].Name.substr(0, nameLength)));
  };
  std::size_t first = 0;
  if (const PowerName power = PowerAt(tokens, 0); power.Power != 0) first = power.Next;
  const std::size_t thoughts = PastThoughts(tokens.subspan(first));
  first += thoughts;
  // "EDIT 23:10: Bud goes to Ser".
  const auto heads = [&](const Token& token) {
    return !IsA(token, TokenKind::Word) || HasUse(token, WordUse::Correction) ||
           IsWord(token, "ps") || (first > 0 && IsNumber(token));
  };
  while (first < tokens.size() && heads(tokens[first]))
    ++first;
  if (first == tokens.size()) return concern;
  const bool isTyped = UnitTypeOf(tokens[first]) != 0;
  if (IsDateline(tokens, first, names)) return concern;
  // Words behind the name of a place that order nothing are prose: "VIENNA (AP) -- The Emperor".
  const bool isOfPlace = !names.At(tokens, first).empty() && MayOrder(tokens, first, names);
  // A line that ends in a colon speaks of what is below it, and sets it aside or does not.
  const bool isTitle = IsA(tokens.back(), TokenKind::Colon);
  if (isTitle && !isTyped) return concern;
  if (isTyped || isOfPlace) {
    for (std::size_t at = first; at < tokens.size() && concern.Provinces.empty(); ++at) {
      const auto matches = names.At(tokens, at);
      if (!matches.empty() && matches[0].Rows.size() == 1) add(matches[0].Rows[0]);
    }
    concern.IsOwn = isTyped && !concern.Provinces.empty();
    // "No Burgundy please" may be about who goes there.
    concern.OfTargets = thoughts > 0;
    return concern;
  }
  // "Rather not the one to Armenia."
  concern.OfTargets = FindCondition(tokens) < tokens.size();
  const bool isOfOrders = concern.OfTargets || SpeaksOfOrders(tokens);
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (isOfOrders || IsUnitAt(tokens, at)) add(PlaceAt(tokens, at, names));
  }
  if (!isOfOrders) return concern;
  // Farther on a condition may be of anything: "the link does not work".
  constexpr std::size_t few = 4;
  const Tokens opening = tokens.first(SentencesOf(tokens)[0].End);
  constexpr std::size_t brief = 10;
  const bool isOfAll = MayBeOfAll(tokens) || (FindCondition(tokens) < few &&
                                              (opening.size() <= brief || Points(opening)));
  concern.MayBeAll = isOfAll && MakesCondition(tokens) && !IsOffer(tokens);
  return concern;
}

bool BeginsWithUnit(Tokens words, std::string_view power, const KnownGame& known) {
  constexpr std::size_t longest = 12;
  constexpr std::array<std::string_view, 10> ofAll{"all",   "everything", "these", "those", "this",
                                                   "above", "them",       "alles", "tout",  "todo"};
  const bool mayBeAll = std::ranges::any_of(words, [&](const Token& token) {
    return HasUse(token, WordUse::Orders) || std::ranges::find(ofAll, token.Text) != ofAll.end();
  });
  if (mayBeAll || words.size() > longest) return false;
  const std::size_t at = !words.empty() && UnitTypeOf(words[0]) != 0 ? 1 : 0;
  const auto places = known.Names.At(words, at);
  if (power.empty() || places.empty() || places[0].Rows.size() != 1) return false;
  const std::string& name = known.NameOf(places[0].Rows[0]);
  return std::any_of(known.Game.Units.begin(), known.Game.Units.end(),
                     [&](const model::Unit& unit) {
                       return unit.Power == power && model::SamePlace(unit.Location, name);
                     });
}

bool NamesOtherPlaces(Tokens line, const std::vector<ReadLine>& lines, const KnownGame& known) {
  constexpr std::size_t few = 40;
  if (!NamesPlace(line, known.Names)) return false;
  const Concern concern = ConcernOf(line, known.Names, *known.Game.Map);
  const auto begin = lines.end() - static_cast<std::ptrdiff_t>(std::min(few, lines.size()));
  return std::none_of(begin, lines.end(), [&](const ReadLine& row) {
    return IsUnderstood(row) && Concerns(concern, row.Order);
  });
}

}  // namespace orb::exchange
