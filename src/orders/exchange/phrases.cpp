#include "orders/exchange/phrases.h"

#include "orders/exchange/comments.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/phrase_words.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"
#include "text/strings.h"

#include <algorithm>
#include <array>

namespace orb::exchange {
namespace {

using std::string_view_literals::operator""sv;

/// The mouth of ":)", ":D" and ":P".
bool IsSmile(const Token& token) {
  return token.Kind == TokenKind::Close || IsWord(token, "d") || IsWord(token, "p");
}

/// Faces, hearts and other such signs.
bool IsSymbol(const Token& token) {
  return token.Kind == TokenKind::Mark && static_cast<unsigned char>(token.Text[0]) >= 0x80;
}

/// A dash that may begin a comment, where an order has none of its kind before it.
bool IsLongDash(const Token& token) {
  return token.Kind == TokenKind::Dash && token.Text == "--";
}

}  // namespace

bool Phrases::Is(std::size_t at, TokenKind kind) const {
  return at < tokens_.size() && IsA(tokens_[at], kind);
}

bool Phrases::Is(std::size_t at, std::string_view word) const {
  return at < tokens_.size() && IsWord(tokens_[at], word);
}

bool Phrases::IsPassedOver(std::size_t at) const {
  return Is(at, TokenKind::Open) || Is(at, TokenKind::Close) || Is(at, TokenKind::Comma) ||
         Is(at, TokenKind::Dot) || (at < tokens_.size() && HasUse(tokens_[at], WordUse::Filler));
}

std::size_t Phrases::Skip(std::size_t at) const {
  while (IsPassedOver(at))
    ++at;
  return at;
}

PowerName Phrases::Power(std::size_t at) const {
  return PowerAt(tokens_, Skip(at));
}

PowerName Phrases::PowerInBrackets(std::size_t at) const {
  while (!Is(at, TokenKind::Open) && IsPassedOver(at))
    ++at;
  if (!Is(at, TokenKind::Open)) return {};
  PowerName name = PowerAt(tokens_, at + 1);
  if (name.Power == 0 || !Is(name.Next, TokenKind::Close)) return {};
  ++name.Next;
  return name;
}

std::pair<char, std::size_t> Phrases::TypeAt(std::size_t at) const {
  const std::size_t next = Skip(at);
  const char type = next < tokens_.size() ? UnitTypeOf(tokens_[next]) : '\0';
  return {type, type == 0 ? at : next + 1};
}

/// Behind a mark that joins a type to its place: "A-Par", "A: Par".
std::size_t Phrases::PastMark(std::size_t type) const {
  const std::size_t mark = type + 1;
  if (Is(mark, TokenKind::Colon)) return mark + 1;
  const bool isJoint =
      Is(mark, TokenKind::Slash) || (mark < tokens_.size() && tokens_[mark].Text == "-");
  const bool isGlued =
      isJoint && tokens_[mark].Glued && Is(mark + 1, TokenKind::Word) && tokens_[mark + 1].Glued;
  return isGlued ? mark + 1 : mark;
}

Phrases::Read<WrittenUnit> Phrases::Units(std::size_t at) {
  Read<WrittenUnit> heads{{{}, Skip(at)}};
  if (const PowerName name = Power(at); name.Power != 0) {
    heads.push_back({{name.Power, 0, {}}, Skip(name.Next)});
  }
  Read<WrittenUnit> units;
  for (auto& [head, next] : heads) {
    // "a fleet", "apoya a F Bre": here "a" is no army.
    const bool isBeforeType = Is(next, "a") && next + 1 < tokens_.size() &&
                              UnitTypeOf(tokens_[next + 1]) != 0 &&
                              (tokens_[next + 1].Text.size() > 1 ||
                               (!tokens_[next].Capital && tokens_[next + 1].Capital));
    if (isBeforeType) ++next;
    if (next < tokens_.size()) head.Type = UnitTypeOf(tokens_[next]);
    if (head.Type != 0) next = Skip(PastMark(next));
    const bool isTypeWord = head.Type != 0 && next > 0 && tokens_[next - 1].Text.size() > 2;
    while (next < tokens_.size() &&
           (IsOneOf(tokens_[next], InWords) || (isTypeWord && IsOneOf(tokens_[next], TypeInWords))))
      next = Skip(next + 1);
    // Without a power or a type, a word that is no place may be anything: it is not said to be off
    // the map.
    const bool isBare = next == Skip(at);
    for (auto& [place, behind] :
         Places(next, "the unit's place is missing", isBare ? NotUnderstoodText : NotOnTheMap)) {
      WrittenUnit unit = head;
      unit.Place = std::move(place);
      // "Kiel gets a fleet, Munich an army".
      if (unit.Type == 0 && stage_ == model::Stage::Adjustments) behind = PastGift(behind);
      // The type may follow, "Paris army", but as a word: "Par F" may begin the next order.
      const bool hasTail = behind < tokens_.size() && tokens_[behind].Text.size() > 1;
      if (unit.Type == 0 && hasTail) unit.Type = UnitTypeOf(tokens_[behind]);
      const bool isTail = head.Type == 0 && unit.Type != 0;
      if (isTail) ++behind;
      // "Trieste (F)".
      const bool isBracketed = unit.Type == 0 && Is(behind, TokenKind::Open) &&
                               Is(behind + 2, TokenKind::Close) &&
                               UnitTypeOf(tokens_[behind + 1]) != 0;
      if (isBracketed) {
        unit.Type = UnitTypeOf(tokens_[behind + 1]);
        behind += 3;
      }
      if (const PowerName owner = PowerInBrackets(behind); owner.Power != 0 && unit.Power == 0) {
        WrittenUnit owned = unit;
        owned.Power = owner.Power;
        units.push_back({std::move(owned), owner.Next});
      }
      units.push_back({std::move(unit), behind});
    }
  }
  return units;
}

std::size_t Phrases::PastGift(std::size_t at) const {
  constexpr std::array getting{"gets"sv,   "get"sv,    "receives"sv, "bekommt"sv, "erhalt"sv,
                               "recoit"sv, "recibe"sv, "riceve"sv,   "recebe"sv,  "krijgt"sv,
                               "far"sv,    "faar"sv,   "dostaje"sv};
  const std::size_t given = at < tokens_.size() && IsOneOf(tokens_[at], getting) ? at + 1 : at;
  const std::size_t type = Skip(Is(given, "a") ? given + 1 : given);
  const bool isWord = type > at && type < tokens_.size() && tokens_[type].Text.size() > 1;
  // Behind a comma another unit begins.
  return isWord && UnitTypeOf(tokens_[type]) != 0 && !Is(given, TokenKind::Comma) ? type : at;
}

std::size_t Phrases::PastVia(std::size_t at) const {
  std::size_t next = Skip(at);
  if (Is(next, "vc")) return next + 1;
  const bool isConvoyed = Is(next, "convoyed");
  if (isConvoyed) {
    at = ++next;
    next = Skip(next);
  }
  if (next >= tokens_.size() || !IsOneOf(tokens_[next], ViaWords)) return at;
  const bool isVia = Is(next, "via");
  next = Skip(next + 1);
  if (Is(next, "a")) next = Skip(next + 1);
  if (next < tokens_.size() && IsOneOf(tokens_[next], SeaWords)) return next + 1;
  // "Via" is enough by itself; "by" and "over" need the fleets or waters that they lead over.
  std::size_t end = isVia ? next : at;
  while (next < tokens_.size()) {
    if (UnitTypeOf(tokens_[next]) != 0 || IsOneOf(tokens_[next], InWords) || Is(next, "and")) {
      next = Skip(next + 1);
      continue;
    }
    const auto matches = names_.At(tokens_, next);
    if (matches.empty() || !IsWater({matches[0].Rows, {}})) break;
    end = matches[0].Next;
    next = Skip(end);
  }
  return end;
}

std::size_t Phrases::PastConvoy(std::size_t at) const {
  const std::size_t next = Skip(at);
  const bool isConvoy = next < tokens_.size() && VerbOf(tokens_[next]) == Verb::Convoy &&
                        tokens_[next].Text.size() > 2;
  return isConvoy && !Is(next + 1, TokenKind::Word) ? next + 1 : at;
}

std::size_t Phrases::PastPlace(std::size_t at, const WrittenPlace& place) const {
  std::size_t next = Skip(at);
  while (next < tokens_.size() && IsOneOf(tokens_[next], InWords))
    next = Skip(next + 1);
  for (const PlaceMatch& match : names_.At(tokens_.subspan(std::min(next, tokens_.size())), 0)) {
    if (match.Rows == place.Rows) return next + match.Next;
  }
  return at;
}

std::size_t Phrases::PastNoun(std::size_t at) const {
  if (Is(at, TokenKind::Colon)) ++at;
  std::size_t next = Skip(at);
  // "Den Angriff" is not of Denmark.
  const bool isArticle = Is(next, "den") || Is(next, "o");
  if (isArticle && next + 1 < tokens_.size() && IsOneOf(tokens_[next + 1], Nouns)) ++next;
  while (next + 1 < tokens_.size() && IsOneOf(tokens_[next], Nouns) &&
         VerbOf(tokens_[Skip(next + 1) < tokens_.size() ? Skip(next + 1) : next]) == Verb::None) {
    next = Skip(next + 1);
  }
  return next;
}

std::size_t Phrases::PastCount(std::size_t at) const {
  for (at = Skip(at); at < tokens_.size(); at = Skip(at + 1)) {
    const Token& token = tokens_[at];
    if (!IsOneOf(token, CountingWords) && !IsNumber(token) && VerbOf(token) != Verb::Build) break;
  }
  return at;
}

std::size_t Phrases::PastColon(std::size_t at) const {
  const bool isBeforePlace = Is(at, TokenKind::Colon) && !names_.At(tokens_, at + 1).empty();
  return isBeforePlace ? at + 1 : at;
}

std::size_t Phrases::PastMarks(std::size_t at) const {
  while (Is(at, TokenKind::Colon) || Is(at, TokenKind::Dash) || Skip(at) != at)
    at = Skip(at) != at ? Skip(at) : at + 1;
  return at;
}

/// "- 3 votes" behind what a group decided.
bool Phrases::IsCount(std::size_t at) const {
  constexpr std::array votes{"vote"sv, "votes"sv,   "stimmen"sv, "voix"sv,   "votos"sv,
                             "voti"sv, "stemmen"sv, "stemmer"sv, "roster"sv, "glosy"sv};
  return Is(at, TokenKind::Dash) && Is(at + 2, TokenKind::Word) && IsNumber(tokens_[at + 1]) &&
         IsOneOf(tokens_[at + 2], votes);
}

/// Behind a face, a sign or what is passed over anyway; the same token when there is none.
std::size_t Phrases::PastDecoration(std::size_t at) const {
  const bool isSmile = Is(at, TokenKind::Colon) && at + 1 < tokens_.size() &&
                       tokens_[at + 1].Glued && IsSmile(tokens_[at + 1]);
  if (isSmile) return at + 2;
  return IsSymbol(tokens_[at]) || IsPassedOver(at) ? at + 1 : at;
}

bool Phrases::Ends(std::size_t at) {
  const auto part = [&](std::size_t begin, std::size_t end) {
    return tokens_.subspan(begin, end - begin);
  };
  while (at < tokens_.size()) {
    const Token& token = tokens_[at];
    if (token.Kind == TokenKind::Open) {
      const std::size_t close = ClosingBracket(tokens_, at);
      const Tokens inside = part(at + 1, std::max(at + 1, close));
      if ((close == tokens_.size() && !inside.empty()) ||
          (!IsRemark(inside, names_) && FindDoubt(inside, part(0, at), names_))) {
        at += FindCondition(inside) < inside.size() ? FindCondition(inside) + 1 : 0;
        break;
      }
      at = std::min(close + 1, tokens_.size());
      // Only the first long dash may begin a comment: where the order itself has one, "A Par --
      // Bur", a second may belong to it as well.
    } else if ((IsLongDash(token) && std::ranges::none_of(part(0, at), IsLongDash) &&
                IsProse(part(at + 1, tokens_.size()), names_)) ||
               (token.Kind == TokenKind::Word && IsHarmlessTail(part(at, tokens_.size()))) ||
               (MayBegin(token, Saying::Excludes) &&
                ExcludedPlace(part(at, tokens_.size()), names_) != 0)) {
      return true;
    } else if (IsCount(at)) {
      at += 3;
    } else if (const std::size_t next = PastDecoration(at); next != at) {
      at = next;
    } else {
      break;
    }
  }
  if (at < tokens_.size()) Unknown(at, NotUnderstoodText, EndOfBracket(at));
  return at == tokens_.size();
}

std::size_t Phrases::EndOfBracket(std::size_t at) const {
  if (!Is(at, TokenKind::Open)) return at + 1;
  return std::min(ClosingBracket(tokens_, at) + 1, tokens_.size());
}

void Phrases::Expected(std::string_view reason, std::size_t at) {
  at = std::min(at, tokens_.size());
  SetProblem(std::string(reason), {at, std::min(at + 1, tokens_.size())});
}

void Phrases::SetProblem(std::string reason, TokenRange at, bool isNoPlace) {
  if (!problem_ || problem_->At.Begin < at.Begin) {
    problem_ = Fault{std::move(reason), at, isNoPlace};
  }
}

void Phrases::Unknown(std::size_t at, std::string_view reason, std::size_t end) {
  std::string quoted = Quoted(tokens_.subspan(at, end - at));
  const std::string_view near = names_.NearlyNamed(tokens_[at].Text);
  if (!near.empty() && names_.At(tokens_, at).empty()) {
    return SetProblem(quoted.append(NotOnTheMap).append("; ").append(near).append("?"), {at, end},
                      true);
  }
  SetProblem(quoted.append(reason), {at, end}, reason == NotOnTheMap);
}

void Phrases::NotInStage(std::size_t at) {
  at = Skip(at);
  if (at >= tokens_.size()) return;
  Expected(HasOrders(stage_) ? Quoted(tokens_.subspan(at, 1)) + " is not an order of the stage \"" +
                                   std::string(StageName(stage_)) + "\""
                             : "no orders are taken in this stage",
           at);
}

}  // namespace orb::exchange
