#include "orders/exchange/comments.h"
#include "orders/exchange/phrase_words.h"
#include "orders/exchange/phrases.h"

#include <array>
#include <unordered_map>
#include <vector>

// Verbs and what belongs to them, of the parts that orders are made of.

namespace orb::exchange {
namespace {

using std::string_view_literals::operator""sv;

/// Words that say together what a unit does, though none of them does alone.
struct VerbPhrase {
  Verb Does;
  std::vector<std::string_view> Words;
};

const std::vector<VerbPhrase>& AllVerbPhrases() {
  static const std::vector<VerbPhrase> phrases{{Verb::Hold, {"does", "nothing"}},
                                               {Verb::Hold, {"do", "nothing"}},
                                               {Verb::Hold, {"no", "move"}},
                                               {Verb::Hold, {"doesnt", "move"}},
                                               {Verb::Hold, {"does", "not", "move"}},
                                               {Verb::Hold, {"bewegt", "sich", "nicht"}},
                                               {Verb::Hold, {"ne", "bouge", "pas"}},
                                               {Verb::Hold, {"no", "se", "mueve"}},
                                               {Verb::Hold, {"non", "si", "muove"}},
                                               {Verb::Hold, {"beweegt", "niet"}},
                                               {Verb::Hold, {"star", "kvar"}},
                                               {Verb::Hold, {"star", "stille"}},
                                               {Verb::Hold, {"reste", "sur", "place"}},
                                               {Verb::Hold, {"flytter", "ikke"}},
                                               {Verb::Hold, {"nie", "rusza", "sie"}},
                                               {Verb::Support, {"in", "support", "of"}},
                                               {Verb::Move, {"should", "go", "to"}},
                                               {Verb::Move, {"must", "go", "to"}},
                                               {Verb::Move, {"tem", "de", "ir", "para"}},
                                               {Verb::Move, {"tem", "que", "ir", "para"}},
                                               {Verb::Move, {"doch", "nach"}},
                                               {Verb::Move, {"doch", "in"}},
                                               {Verb::Move, {"geht", "doch", "in"}},
                                               {Verb::Move, {"should", "move", "to"}},
                                               {Verb::Move, {"doit", "aller", "en"}},
                                               {Verb::Move, {"doit", "aller", "a"}},
                                               {Verb::Move, {"tiene", "que", "ir", "a"}},
                                               {Verb::Move, {"debe", "ir", "a"}},
                                               {Verb::Move, {"deve", "andare", "in"}},
                                               {Verb::Move, {"deve", "andare", "a"}},
                                               {Verb::Move, {"deve", "ir", "para"}},
                                               {Verb::Move, {"moet", "naar"}},
                                               {Verb::Move, {"skal", "til"}},
                                               {Verb::Move, {"ska", "till"}},
                                               {Verb::Move, {"ma", "isc", "do"}},
                                               {Verb::Move, {"geht", "doch", "nach"}},
                                               {Verb::Move, {"zieht", "doch", "nach"}},
                                               {Verb::Move, {"va", "finalement", "en"}},
                                               {Verb::Move, {"va", "finalement", "a"}},
                                               {Verb::Move, {"gaat", "toch", "naar"}},
                                               {Verb::Move, {"gar", "alligevel", "til"}},
                                               {Verb::Move, {"gar", "likevel", "til"}},
                                               {Verb::Move, {"gar", "anda", "till"}},
                                               {Verb::Move, {"idzie", "jednak", "do"}},
                                               {Verb::Move, {"part", "pour"}},
                                               {Verb::Move, {"part", "en"}},
                                               {Verb::Move, {"part", "vers"}},
                                               {Verb::Move, {"se", "dirige", "vers"}},
                                               {Verb::Move, {"sale", "a"}},
                                               {Verb::Move, {"sale", "al"}},
                                               {Verb::Move, {"sale", "hacia"}},
                                               {Verb::Move, {"sale", "para"}},
                                               {Verb::Retreat, {"bat", "en", "retraite"}},
                                               {Verb::Retreat, {"en", "retraite"}},
                                               {Verb::Retreat, {"in", "ritirata"}},
                                               {Verb::Retreat, {"en", "retirada"}},
                                               {Verb::Retreat, {"em", "retirada"}},
                                               {Verb::Retreat, {"wijkt", "uit"}},
                                               {Verb::Disband, {"zostaje", "rozwiazana"}},
                                               {Verb::Disband, {"goes", "home"}},
                                               {Verb::Disband, {"geht", "nach", "hause"}},
                                               {Verb::Disband, {"off", "the", "board"}},
                                               {Verb::Disband, {"from", "the", "board"}},
                                               {Verb::Disband, {"lost", "sich", "auf"}},
                                               {Verb::Disband, {"gets", "scrapped"}},
                                               {Verb::Disband, {"gets", "disbanded"}},
                                               {Verb::Disband, {"gets", "removed"}}};
  return phrases;
}

using PhrasesByWord = std::unordered_map<std::string_view, std::vector<const VerbPhrase*>>;

/// By their first words.
const PhrasesByWord& VerbPhrases() {
  static const PhrasesByWord phrases = [] {
    PhrasesByWord all;
    for (const VerbPhrase& phrase : AllVerbPhrases())
      all[phrase.Words[0]].push_back(&phrase);
    return all;
  }();
  return phrases;
}

}  // namespace

/// A verb alone in brackets, "(H)" or "(sup.)"; but "(S)" before a move is the south coast, "Spa
/// (S) - MAO".
bool Phrases::IsVerbInBrackets(std::size_t at) const {
  if (!Is(at, TokenKind::Open) || at + 1 == tokens_.size()) return false;
  const std::size_t close = Is(at + 2, TokenKind::Dot) ? at + 3 : at + 2;
  if (!Is(close, TokenKind::Close) || VerbOf(tokens_[at + 1]) == Verb::None) return false;
  const std::size_t next = close + 1;
  const bool moves = next < tokens_.size() && VerbOf(tokens_[next]) == Verb::Move;
  return !moves || CoastLetter(tokens_[at + 1].Text) == 0;
}

/// Where the verb of a unit can stand. A bracket that opens before it begins a comment, unless it
/// holds a verb alone or tells that the unit is dislodged.
std::size_t Phrases::ToVerb(std::size_t at) const {
  while (at < tokens_.size()) {
    if (Is(at, TokenKind::Open)) {
      if (IsVerbInBrackets(at)) return at + 1;
      const std::size_t close = ClosingBracket(tokens_, at);
      if (!Is(at + 1, "dislodged") || close == tokens_.size()) return tokens_.size();
      at = close;
    } else if (Is(at, TokenKind::Colon)) {
      // "A Par: H" has a colon before its verb; before anything else it ends the order.
      const std::size_t next = ToVerb(at + 1);
      return next < tokens_.size() && VerbOf(tokens_[next]) != Verb::None ? next : at;
    } else if (!IsPassedOver(at)) {
      break;
    }
    ++at;
  }
  return at;
}

/// "To" in languages that have a short word for it, between two names.
bool Phrases::IsPreposition(std::size_t at) const {
  constexpr std::array<std::string_view, 15> words{
      "do", "a", "na", "em", "in", "en", "ins", "im", "dans", "sur", "au", "auf", "op", "pa", "su"};
  constexpr std::array<std::string_view, 8> articles{"die", "den", "das", "la",
                                                     "le",  "les", "het", "de"};
  if (at == 0 || at + 1 >= tokens_.size()) return false;
  // "F Edi in die Nordsee".
  const std::size_t place = IsOneOf(tokens_[at + 1], articles) ? at + 2 : at + 1;
  return place < tokens_.size() && IsOneOf(tokens_[at], words) && !tokens_[at].Capital &&
         tokens_[at - 1].Capital && tokens_[place].Capital && tokens_[place].Text.size() > 2 &&
         UnitTypeOf(tokens_[place]) == 0 && !names_.At(tokens_, at - 1).empty();
}

/// "Se replie", "si ritira". Before other verbs the words are "if".
bool Phrases::IsReflexive(std::size_t at) const {
  constexpr std::array<std::string_view, 2> words{"se", "si"};
  constexpr std::array verbs{"replie"sv,  "replient"sv, "retire"sv,    "retirent"sv, "retira"sv,
                             "retiran"sv, "ritira"sv,   "ritirano"sv,  "sposta"sv,   "spostano"sv,
                             "muove"sv,   "muovono"sv,  "mueve"sv,     "mueven"sv,   "queda"sv,
                             "quedan"sv,  "mantiene"sv, "desplaza"sv,  "repliega"sv, "rend"sv,
                             "rendent"sv, "disuelve"sv, "disuelven"sv, "scioglie"sv, "sciolgono"sv,
                             "dissout"sv, "dissolve"sv};
  return at + 1 < tokens_.size() && IsOneOf(tokens_[at], words) && IsOneOf(tokens_[at + 1], verbs);
}

/// "To" before a place, in languages whose word for it is short or a verb elsewhere: "retraite à
/// Paris".
bool Phrases::IsDirection(std::size_t at) const {
  constexpr std::array words{"a"sv,  "in"sv, "em"sv,  "do"sv,   "na"sv,    "au"sv,   "en"sv,
                             "al"sv, "ad"sv, "to"sv,  "para"sv, "pour"sv,  "upon"sv, "into"sv,
                             "on"sv, "su"sv, "sur"sv, "vers"sv, "verso"sv, "hacia"sv};
  return at + 1 < tokens_.size() && !tokens_[at].Capital && IsOneOf(tokens_[at], words) &&
         !names_.At(tokens_, Skip(at + 1)).empty();
}

/// The phrase of a verb that stands here, and the token behind it; None where there is none.
std::pair<Verb, std::size_t> Phrases::VerbPhraseAt(std::size_t at) const {
  if (!Is(at, TokenKind::Word)) return {Verb::None, at};
  const auto phrases = VerbPhrases().find(tokens_[at].Text);
  if (phrases == VerbPhrases().end()) return {Verb::None, at};
  for (const VerbPhrase* const phrase : phrases->second) {
    const bool isOfMoves = phrase->Does != Verb::Disband && phrase->Does != Verb::Retreat;
    const bool isOfStage = isOfMoves == (stage_ == model::Stage::Moves);
    std::size_t next = at;
    for (const std::string_view word : phrase->Words)
      next = next != tokens_.size() + 1 && Is(next, word) ? next + 1 : tokens_.size() + 1;
    if (isOfStage && next <= tokens_.size()) return {phrase->Does, next};
  }
  return {Verb::None, at};
}

std::pair<Verb, std::size_t> Phrases::VerbAt(std::size_t at) const {
  std::size_t tail = ToVerb(at);
  if (auto phrase = VerbPhraseAt(tail); phrase.first != Verb::None) {
    // "Wijkt uit naar".
    const std::size_t to = phrase.second;
    const bool leads = phrase.first == Verb::Retreat && to < tokens_.size() &&
                       (VerbOf(tokens_[to]) == Verb::Move || IsDirection(to));
    if (leads) ++phrase.second;
    return phrase;
  }
  Verb verb = Verb::None;
  const bool isReflexive = IsReflexive(tail);
  if (isReflexive) {
    at = tail + 1;
    tail = ToVerb(at);
  }
  // "Back to Warsaw".
  // "A Vie, A Bud all hold".
  if (tail < tokens_.size() && IsOneOf(tokens_[tail], AllWords)) {
    const std::size_t next = ToVerb(tail + 1);
    if (next < tokens_.size() && VerbOf(tokens_[next]) == Verb::Hold) at = tail + 1;
  }
  const bool isBeforeTo = tail + 1 < tokens_.size() && VerbOf(tokens_[tail]) == Verb::None &&
                          VerbOf(tokens_[tail + 1]) == Verb::Move &&
                          IsOneOf(tokens_[tail], MoveTails);
  if (isBeforeTo) at = tail + 1;
  for (std::size_t next = ToVerb(at); next < tokens_.size(); next = ToVerb(next + 1)) {
    const bool isFirst = verb == Verb::None;
    Verb word = isFirst && IsPreposition(next) ? Verb::Move : VerbOf(tokens_[next]);
    // "Retira" removes, "se retira" and "retira para París" go elsewhere.
    const bool mayReturn = isFirst && word == Verb::Disband && IsOneOf(tokens_[next], ReturnWords);
    if (mayReturn && (isReflexive || IsDirection(next + 1))) word = Verb::Retreat;
    if (!isFirst && (verb == Verb::Retreat || verb == Verb::Move) && IsDirection(next)) {
      at = next + 1;
      continue;
    }
    const bool isTail =
        (verb == Verb::Hold && IsOneOf(tokens_[next], HoldTails)) ||
        ((verb == Verb::Move || verb == Verb::Retreat) && IsOneOf(tokens_[next], MoveTails));
    // "Moves to" and "retreats to" are one verb; of "moves to hold" the last word tells.
    // "Retreats OTB" is no retreat.
    const bool isOff = verb == Verb::Retreat && word == Verb::Disband;
    const bool goesOn =
        verb == Verb::Move || (verb == Verb::Retreat && word == Verb::Move) || isOff;
    if (!isTail && (word == Verb::None || !(isFirst || goesOn))) break;
    if (!isTail && (isFirst || verb == Verb::Move || isOff)) verb = word;
    at = next + 1;
  }
  return {verb, at};
}

bool Phrases::MayLead(std::size_t at) const {
  at = Skip(at);
  if (at >= tokens_.size() || IsA(tokens_[at], TokenKind::Dash)) return false;
  // "To Par" or "attack Par" at the front would name a destination, not the unit that moves.
  constexpr std::array leading{"move"sv,    "moves"sv, "send"sv,   "mueve"sv,   "muevo"sv,
                               "muove"sv,   "muovo"sv, "walk"sv,   "sende"sv,   "sending"sv,
                               "schicke"sv, "stuur"sv, "moving"sv, "flytter"sv, "flyttar"sv};
  return VerbOf(tokens_[at]) != Verb::Move || IsOneOf(tokens_[at], leading);
}

}  // namespace orb::exchange
