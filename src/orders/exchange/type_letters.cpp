#include "orders/exchange/type_letters.h"

#include "model/place.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/power_names.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

namespace orb::exchange {
namespace {

/// How often a word stands before armies and before fleets.
struct Count {
  int Armies = 0;
  int Fleets = 0;

  bool IsOfOneType() const { return (Armies == 0) != (Fleets == 0); }
  char Type() const { return Armies > 0 ? 'A' : 'F'; }
};

/// Whether a word at the beginning of a line may be a type that is not known.
bool MayBeType(const Token& token) {
  constexpr std::size_t longest = 5;
  const Verb verb = VerbOf(token);
  const bool isFree = (verb == Verb::None || verb == Verb::Hold) && UnitTypeOf(token) == 0 &&
                      !HasUse(token, WordUse::Condition, WordUse::Reservation, WordUse::Greeting);
  return isFree && token.Kind == TokenKind::Word && token.Capital && token.Text.size() <= longest &&
         !IsNumber(token);
}

/// The type of the unit that stands in the place right behind a token, or 0. A word may have been
/// cut short before it: "Ej. Roma".
char TypeBehind(Tokens line, std::size_t at, const KnownGame& known) {
  const bool isCut =
      line[at].Text.size() > 1 && at + 1 < line.size() && IsA(line[at + 1], TokenKind::Dot);
  const auto places = known.Names.At(line, isCut ? at + 2 : at + 1);
  if (places.empty() || places[0].Rows.size() != 1) return 0;
  const std::string& name = known.NameOf(places[0].Rows[0]);
  char type = 0;
  for (const model::Unit& unit : known.Game.Units) {
    if (unit.UnitType.empty() || !model::SamePlace(unit.Location, name)) continue;
    if (type != 0 && type != unit.UnitType[0]) return 0;
    type = unit.UnitType[0];
  }
  return type;
}

/// Before other units of a line, as in supports, the learnt letters stand for types as well.
void SpreadTypes(std::deque<SourceLine>& text, const std::map<std::string, char>& learnt,
                 const KnownGame& known) {
  for (SourceLine& line : text) {
    for (std::size_t at = 0; at < line.All.size(); ++at) {
      Token& token = line.All[at];
      const auto type = token.Capital ? learnt.find(token.Text) : learnt.end();
      if (type == learnt.end() || TypeBehind(line.All, at, known) != type->second) continue;
      token.Means = MeaningOf(type->second == 'A' ? "army" : "fleet");
      const auto next = line.All.begin() + static_cast<std::ptrdiff_t>(at) + 1;
      if (next != line.All.end() && IsA(*next, TokenKind::Dot)) line.All.erase(next);
    }
  }
}

/// Whether a place stands right behind a token, or behind "in".
bool IsBeforePlace(Tokens line, std::size_t at, const KnownGame& known) {
  const bool isIn = at + 1 < line.size() && IsWord(line[at + 1], "i");
  return !known.Names.At(line, isIn ? at + 2 : at + 1).empty();
}

/// Articles before types that are other words elsewhere: "en" is Dutch "and", "o" Spanish "or"; and
/// what says that a unit is built, "neue Flotte".
void PassOverArticles(std::vector<Token>& line, std::size_t type) {
  constexpr std::array<std::string_view, 5> nordic{"flade", "flate", "flotta", "arme", "har"};
  constexpr std::array<std::string_view, 4> nordicArticles{"en", "et", "ett", "ei"};
  constexpr std::array<std::string_view, 2> portuguese{"exercito", "exercitos"};
  constexpr std::array<std::string_view, 2> portugueseArticles{"o", "os"};
  constexpr std::array<std::string_view, 18> fresh{
      "neue", "neuer", "neuen", "nueva", "nuevo",  "nuova", "nuovo", "nova", "novo",
      "ny",   "nytt",  "nyt",   "nowa",  "nieuwe", "nieuw", "nowy",  "nowe", "nouvelle"};
  for (std::size_t at = type; at > 0; --at) {
    Token& word = line[at - 1];
    const bool isArticle = (IsOneOf(line[type], nordic) && IsOneOf(word, nordicArticles)) ||
                           (IsOneOf(line[type], portuguese) && IsOneOf(word, portugueseArticles));
    if (!isArticle && !IsOneOf(word, fresh)) return;
    word.Means.Uses |= static_cast<unsigned>(WordUse::Filler);
  }
}

/// Danish and Norwegian "hær" is another word elsewhere, but not beside a "flåde" or "flåte".
void ReadTypesOfLanguages(std::deque<SourceLine>& text, const KnownGame& known) {
  const bool isNordic = std::ranges::any_of(text, [](const SourceLine& line) {
    return std::ranges::any_of(line.All, [](const Token& token) {
      return IsWord(token, "flade") || IsWord(token, "flate");
    });
  });
  const bool isBuilt = known.Stage == model::Stage::Adjustments;
  for (SourceLine& line : text) {
    for (std::size_t at = 0; at < line.All.size(); ++at) {
      Token& token = line.All[at];
      const bool isArmy =
          isNordic && IsWord(token, "har") &&
          (isBuilt ? IsBeforePlace(line.All, at, known) : TypeBehind(line.All, at, known) == 'A');
      if (isArmy) token.Means = MeaningOf("army");
      if (UnitTypeOf(token) != 0 && token.Text.size() > 1) PassOverArticles(line.All, at);
    }
  }
}

}  // namespace

void LearnTypeLetters(std::deque<SourceLine>& text, const KnownGame& known) {
  ReadTypesOfLanguages(text, known);
  std::map<std::string, Count> counts;
  std::vector<Token*> found;
  for (SourceLine& line : text) {
    const std::size_t at = PastLineStart(line.All);
    if (at >= line.All.size() || !MayBeType(line.All[at])) continue;
    // "H Par" holds.
    const bool isVerb = VerbOf(line.All[at]) != Verb::None;
    if (isVerb &&
        std::none_of(line.All.begin() + static_cast<std::ptrdiff_t>(at) + 1, line.All.end(),
                     [](const Token& token) { return VerbOf(token) != Verb::None; })) {
      continue;
    }
    if (line.All[at].Text.size() > 1 && line.All[at].Means.Sayings != 0) continue;
    if (PowerAt(line.All, at).Power != 0 || !known.Names.At(line.All, at).empty()) continue;
    const char type = TypeBehind(line.All, at, known);
    if (type == 0) continue;
    Count& count = counts[line.All[at].Text];
    ++(type == 'A' ? count.Armies : count.Fleets);
    found.push_back(&line.All[at]);
  }
  std::set<char> ofWords;
  for (const auto& [word, count] : counts) {
    if (word.size() > 1 && count.IsOfOneType()) ofWords.insert(count.Type());
  }
  std::map<std::string, char> learnt;
  for (const Token* token : found) {
    const Count& count = counts[token->Text];
    // A word may be anything, unless another one stands before the units of the other type.
    // Danish "hær" and "flåde" are other words elsewhere.
    const bool isDanish = token->Text == "har" || token->Text == "flade";
    const bool isKnown = token->Text.size() == 1
                             ? count.Armies + count.Fleets > 1 || counts.size() > 1
                             : ofWords.size() > 1 && found.size() > 2;
    if (!count.IsOfOneType() || !(isKnown || isDanish)) continue;
    learnt[token->Text] = count.Type();
  }
  if (!learnt.empty()) SpreadTypes(text, learnt, known);
}

}  // namespace orb::exchange
