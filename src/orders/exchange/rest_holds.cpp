#include "orders/exchange/rest_holds.h"

#include "model/lookups.h"
#include "orders/exchange/contradictions.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <unordered_set>

namespace orb::exchange {
namespace {

/// Words for all units, or for all others.
const std::unordered_set<std::string_view>& AllWords() {
  static const std::unordered_set<std::string_view> words{
      "everything", "everybody", "everyone", "all",     "rest",   "others", "alles",  "alle",
      "anderen",    "andere",    "ubrigen",  "tout",    "tous",   "toutes", "reste",  "autres",
      "tutto",      "tutti",     "tutte",    "resto",   "altri",  "altre",  "todo",   "todos",
      "todas",      "demas",     "tudo",     "overige", "resten", "andra",  "alla",   "allt",
      "alt",        "wszystko",  "reszta",   "wszyscy", "kaikki", "minden", "vsechno"};
  return words;
}

/// What may stand beside them.
const std::unordered_set<std::string_view>& BesideWords() {
  static const std::unordered_set<std::string_view> words{
      "else",    "other",  "of",    "them",   "units",    "armies",    "fleets", "monde", "for",
      "still",   "just",   "and",   "simply", "position", "positions", "sa",     "leurs", "tight",
      "put",     "firm",   "fast",  "ground", "still",    "fermo",     "fermi",  "ferma", "quieto",
      "quietos", "stehen", "staan", "stille", "kvar",     "der",       "altre",  "die",   "las",
      "los",     "so",     "then",  "turn",   "season",   "now",       "weiter", "autre", "altro",
      "demas",   "mas",    "lo",    "i",      "le",       "les",       "im"};
  return words;
}

}  // namespace

bool TellsOfRest(Tokens clause) {
  constexpr std::size_t longest = 12;
  if (clause.size() > longest) return false;
  bool isAll = false;
  bool holds = false;
  for (const Token& token : clause) {
    if (token.Kind != TokenKind::Word) {
      if (IsA(token, TokenKind::Dot) || IsA(token, TokenKind::Comma)) continue;
      return false;
    }
    const bool isHold = VerbOf(token) == Verb::Hold;
    if (!isHold && AllWords().contains(token.Text)) {
      isAll = true;
    } else if (isHold && isAll) {
      holds = true;
    } else if (!HasUse(token, WordUse::Filler, WordUse::Mood) &&
               !BesideWords().contains(token.Text)) {
      return false;
    }
  }
  return isAll && holds;
}

bool TellsOfNothing(Tokens clause) {
  constexpr std::array<std::string_view, 8> nothing{"nothing", "nobody", "none", "nichts",
                                                    "rien",    "niente", "nada", "niets"};
  constexpr std::array<std::string_view, 12> beside{"else",    "other", "more",  "moves",
                                                    "changes", "new",   "sonst", "weiter",
                                                    "dautre",  "altro", "mas",   "anders"};
  const auto isOneOf = [](const Token& token, const auto& words) {
    return std::ranges::find(words, token.Text) != words.end();
  };
  const auto words = std::ranges::count(clause, TokenKind::Word, &Token::Kind);
  return words > 1 && isOneOf(clause[0], nothing) &&
         std::all_of(clause.begin() + 1, clause.end(), [&](const Token& token) {
           return IsA(token, TokenKind::Dot) || isOneOf(token, beside);
         });
}

PartsRead HoldsOfRest(TokenRange range, Tokens clause, const KnownGame& known,
                      const Context& context) {
  constexpr std::array<std::string_view, 10> holding{
      "hold", "holds", "halt", "halten", "haelt", "tient", "tiennent", "houdt", "holder", "haller"};
  const bool isPlain = std::ranges::any_of(clause, [&](const Token& token) {
    return std::ranges::find(holding, token.Text) != holding.end();
  });
  PartsRead parts;
  const std::string power = context.Power != 0 ? PowerText(context.Power) : known.OnlyPower();
  if (known.Stage != model::Stage::Moves || !known.TakeRest() || power.empty()) return parts;
  for (const model::Unit& unit : known.Game.Units) {
    if (unit.Power != power || unit.UnitType.empty()) continue;
    const std::string line = model::UnitText(unit) + " hold";
    if (known.Ordered.contains(SubjectOf(line, known.Stage))) continue;
    PartRead part;
    part.Kind = LineKind::Order;
    part.IsRest = true;
    part.Meant.All.push_back({line, {}, model::FindCountry(power)});
    part.End = range.End - range.Begin;
    if (!isPlain) part.Doubt = "it is not said which units are meant";
    parts.emplace_back(range, std::move(part));
  }
  return parts;
}

}  // namespace orb::exchange
