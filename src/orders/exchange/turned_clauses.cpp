#include "orders/exchange/turned_clauses.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace orb::exchange {
namespace {

using ClauseWords = std::vector<Token>;

/// A place and the tokens that name it, articles before it left out.
struct NamedPlace {
  std::size_t Begin = 0;
  std::size_t End = 0;  ///< the same as Begin: none
};

NamedPlace NamedPlaceAt(const ClauseWords& words, std::size_t at, const PlaceNames& names) {
  while (at < words.size() && HasUse(words[at], WordUse::Filler) && names.At(words, at).empty())
    ++at;
  if (at >= words.size()) return {};
  const auto places = names.At(words, at);
  return places.empty() ? NamedPlace{at, at} : NamedPlace{at, places[0].Next};
}

Token ToWord() {
  Token to;
  to.SetWord("to");
  to.Written = "to";
  return to;
}

/// "UNIT to PLACE" in the place of all words.
void SetMove(ClauseWords& words, std::size_t unitBegin, std::size_t unitEnd, NamedPlace place) {
  ClauseWords turned(words.begin() + static_cast<std::ptrdiff_t>(unitBegin),
                     words.begin() + static_cast<std::ptrdiff_t>(unitEnd));
  while (!turned.empty() && IsA(turned.back(), TokenKind::Dot))
    turned.pop_back();
  turned.push_back(ToWord());
  turned.insert(turned.end(), words.begin() + static_cast<std::ptrdiff_t>(place.Begin),
                words.begin() + static_cast<std::ptrdiff_t>(place.End));
  words = std::move(turned);
}

/// "Serbia is to be taken by Budapest"; behind such a clause "and Galicia by Vienna".
bool TurnPassive(ClauseWords& words, const PlaceNames& names, bool followsMove) {
  constexpr std::array<std::string_view, 29> taken{
      "taken",   "occupied",    "attacked",    "invaded",  "entered",   "seized",
      "besetzt", "angegriffen", "eingenommen", "occupe",   "occupee",   "attaquee",
      "attaque", "prise",       "occupata",    "occupato", "attaccata", "attaccato",
      "ocupada", "ocupado",     "atacada",     "atacado",  "bezet",     "aangevallen",
      "besat",   "angrebet",    "angrepet",    "besatt",   "zajeta"};
  const NamedPlace place = NamedPlaceAt(words, 0, names);
  if (place.Begin == place.End) return false;
  std::size_t at = place.End;
  while (at < words.size() && HasUse(words[at], ProseUse::Copula))
    ++at;
  const bool isTaken = at < words.size() && IsOneOf(words[at], taken);
  if (isTaken) ++at;
  if (!isTaken && (!followsMove || at != place.End)) return false;
  // German has its participle behind who does it.
  std::size_t end = words.size();
  if (at + 1 >= end || !HasUse(words[at], ProseUse::Agent)) return false;
  SetMove(words, at + 1, end, place);
  return true;
}

/// "Spain gets the army from Marseilles".
bool TurnGift(ClauseWords& words, const PlaceNames& names) {
  constexpr std::array<std::string_view, 13> getting{
      "gets",   "receives", "welcomes", "bekommt", "erhalt", "recoit", "recibe",
      "riceve", "recebe",   "krijgt",   "far",     "faar",   "dostaje"};
  const NamedPlace place = NamedPlaceAt(words, 0, names);
  if (place.Begin == place.End || place.End + 2 >= words.size()) return false;
  if (!IsOneOf(words[place.End], getting)) return false;
  const bool isUnit = std::any_of(
      words.begin() + static_cast<std::ptrdiff_t>(place.End) + 1, words.end(),
      [](const Token& token) { return UnitTypeOf(token) != 0 && token.Text.size() > 1; });
  if (!isUnit) return false;
  SetMove(words, place.End + 1, words.size(), place);
  return true;
}

/// "To Burgundy: Paris".
bool TurnTitle(ClauseWords& words, const PlaceNames& names) {
  if (words.size() < 4 || VerbOf(words[0]) != Verb::Move || IsA(words[0], TokenKind::Dash))
    return false;
  const NamedPlace place = NamedPlaceAt(words, 1, names);
  const bool isTitle = place.Begin != place.End && place.End + 1 < words.size() &&
                       IsA(words[place.End], TokenKind::Colon);
  if (!isTitle) return false;
  SetMove(words, place.End + 1, words.size(), place);
  return true;
}

/// "Ich baue F NTH ab", "ik haal F NTH weg": a verb whose particle ends the clause removes the
/// unit.
bool TurnSeparable(ClauseWords& words) {
  struct Separable {
    std::string_view Verb;
    std::string_view Particle;
  };
  constexpr std::array<Separable, 16> verbs{{{"baue", "ab"},
                                             {"baut", "ab"},
                                             {"bauen", "ab"},
                                             {"lose", "auf"},
                                             {"lost", "auf"},
                                             {"losen", "auf"},
                                             {"nehme", "weg"},
                                             {"nimm", "weg"},
                                             {"nimmt", "weg"},
                                             {"haal", "weg"},
                                             {"haalt", "weg"},
                                             {"neem", "weg"},
                                             {"hef", "op"},
                                             {"heft", "op"},
                                             {"tar", "bort"},
                                             {"tager", "vaek"}}};
  std::size_t end = words.size();
  while (end > 0 && !IsA(words[end - 1], TokenKind::Word))
    --end;
  for (std::size_t at = 0; at + 2 < end; ++at) {
    const auto verb = std::ranges::find_if(verbs, [&](const Separable& separable) {
      return IsWord(words[at], separable.Verb) && (IsWord(words[end - 1], separable.Particle) ||
                                                   IsWord(words[at + 1], separable.Particle));
    });
    if (verb == verbs.end()) continue;
    // "Tar bort A Yor" has the particle right behind the verb.
    const std::size_t particle = IsWord(words[at + 1], verb->Particle) ? at + 1 : end - 1;
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(particle));
    words[at].SetWord("disband");
    words[at].Written = "disband";
    // "Ich", "ik".
    words.erase(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(at));
    return true;
  }
  return false;
}

/// "The London fleet for the North Sea", "el ejercito de Viena a Galitzia": only a word like "to"
/// between the unit and where it is to go.
void GiveVerb(ClauseWords& words, const PlaceNames& names, bool followsMove) {
  constexpr std::array<std::string_view, 12> to{"a",  "al", "alla", "do",  "na", "ad",
                                                "pa", "au", "tae",  "ins", "in", "en"};
  const bool hasVerb = std::ranges::any_of(words, [](const Token& token) {
    return VerbOf(token) != Verb::None && token.Text != "-" && token.Text.size() > 1;
  });
  const auto type = std::ranges::find_if(
      words, [](const Token& token) { return UnitTypeOf(token) != 0 && token.Text.size() > 1; });
  if (hasVerb || type == words.end()) return;
  for (std::size_t at = words.size() - 1; at > 1; --at) {
    const bool isFor = followsMove && (IsWord(words[at], "for") || IsWord(words[at], "into"));
    if ((!isFor && !IsOneOf(words[at], to)) || words[at].Capital) continue;
    const NamedPlace place = NamedPlaceAt(words, at + 1, names);
    std::size_t end = words.size();
    while (end > at && IsA(words[end - 1], TokenKind::Dot))
      --end;
    const std::size_t unit = static_cast<std::size_t>(type - words.begin());
    const bool isBehind = place.Begin != place.End && place.End == end && unit < at;
    // "The fleet in Kiel": there is no other place for the unit.
    bool isPlaced = false;
    for (std::size_t before = 0; before < at && !isPlaced; ++before)
      isPlaced = !names.At(words, before).empty();
    if (!isBehind || !isPlaced) continue;
    const std::string_view written = "to";
    words[at].SetWord("to");
    words[at].Written = written;
    return;
  }
}

}  // namespace

void TurnClause(std::vector<Token>& words, const PlaceNames& names, bool followsMove) {
  if (words.size() < 3) return;
  if (TurnSeparable(words)) return;
  if (TurnPassive(words, names, followsMove) || TurnGift(words, names) || TurnTitle(words, names))
    return;
  GiveVerb(words, names, followsMove);
}

}  // namespace orb::exchange
