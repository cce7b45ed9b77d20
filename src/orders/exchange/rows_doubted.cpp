#include "orders/exchange/bearing.h"
#include "orders/exchange/doubts.h"
#include "orders/exchange/harmless_words.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/rows.h"
#include "orders/exchange/sayings.h"
#include "orders/exchange/second_thoughts.h"

#include <algorithm>
#include <array>
#include <string_view>

// Whether the words beside the orders of a line leave them as they are.

namespace orb::exchange {
namespace {

/// Whether words right before an order only wish for it, or name whose it is: "For the opening
/// season I should like the", "okay so this is Italy um orders for spring the".
bool IsOpening(Tokens words, const PlaceNames& names, int power) {
  const auto last = std::find_if_not(words.rbegin(), words.rend(), [](const Token& token) {
    return HasUse(token, WordUse::Filler) && !HasUse(token, WordUse::Wish);
  });
  if (last == words.rend()) return false;
  const bool leads =
      HasUse(*last, WordUse::Wish, WordUse::Season, WordUse::Orders) || IsWord(*last, "that");
  const int named = PowerIn(words);
  const bool wishes = std::ranges::any_of(words, [](const Token& token) {
    return HasUse(token, WordUse::Wish) && token.Text.size() > 2 && !IsWord(token, "have");
  });
  const bool isAsked = std::ranges::any_of(words, [](const Token& token) {
    return IsWord(token, "you") || IsWord(token, "like") || IsWord(token, "please");
  });
  const bool isOpen = std::ranges::any_of(words, [&](const Token& token) {
    // "I could move" is a thought, "could you" a wish.
    const bool isPolite = isAsked && (IsWord(token, "should") || IsWord(token, "could"));
    return (HasUse(token, WordUse::Condition) && !isPolite) || IsDoubtfulSign(token) ||
           HasUse(token, WordUse::Aside, WordUse::SetsAside, WordUse::Elsewhere) ||
           HasUse(token, WordUse::Report, WordUse::Reservation);
  });
  const bool isOwn = named == power || (named == 0 && wishes);
  return leads && isOwn && !isOpen && !ReadAside(words, names) && !NamesPlace(words, names);
}

/// "Sadly I must remove a unit:" before adjustments.
bool IsTitleOfAdjustments(Tokens words, const PlaceNames& names) {
  const bool isOpen = std::ranges::any_of(words, [](const Token& token) {
    return HasUse(token, WordUse::Condition, WordUse::Report) || IsDoubtfulSign(token);
  });
  const bool adjusts = std::ranges::any_of(words, [](const Token& token) {
    constexpr std::size_t shortest = 4;
    const Verb verb = VerbOf(token);
    return (verb == Verb::Build || verb == Verb::Disband) && token.Text.size() > shortest;
  });
  return IsA(words.back(), TokenKind::Colon) && adjusts && !isOpen && !NamesPlace(words, names) &&
         PowerIn(words) == 0 && !SaysOfOrders(words) && !ReadAside(words, names);
}

/// Whether words before an order are a title of it: "Orders of Turkey, with love: the".
bool IsTitle(Tokens words, const PlaceNames& names, int power) {
  const auto last = std::find_if_not(words.rbegin(), words.rend(), [](const Token& token) {
    return HasUse(token, WordUse::Filler, WordUse::Plea) || IsA(token, TokenKind::Comma) ||
           IsWord(token, "het") || IsWord(token, "o");
  });
  if (last == words.rend() || !IsA(*last, TokenKind::Colon)) return false;
  const Tokens title = words.first(static_cast<std::size_t>(words.rend() - last));
  const bool isOpen = std::ranges::any_of(title, [](const Token& token) {
    return HasUse(token, WordUse::Condition) || IsDoubtfulSign(token);
  });
  const int named = PowerIn(title);
  constexpr std::array<std::string_view, 4> postscripts{"ps", "pps", "pd", "p"};
  if (IsOneOf(title[0], postscripts) && std::ranges::count_if(title, IsWordToken) == 1) return true;
  // "One change to what I sent:".
  if (Corrects(title) && !NamesPlace(title, names)) return true;
  if (isOpen || ReadAside(title, names) || IsReport(title) || Reconsiders(title)) return false;
  return named == power || (named == 0 && IsOwnTitle(title));
}

/// Whether the writer signs at the end of a line, behind a full stop, a comma or the like: "A Par -
/// Bur, A Mar H. Pierre".
bool SignsOff(Tokens line, TokenRange at, const PlaceNames& names) {
  const bool isLast = std::ranges::none_of(line.subspan(at.End), IsWordToken);
  if (!isLast || at.Begin == 0) return false;
  constexpr std::size_t longest = 2;  // words of a name
  std::size_t words = 0;
  bool isParted = !IsA(line[at.Begin - 1], TokenKind::Word);
  for (std::size_t next = at.Begin; next < at.End; ++next) {
    const bool isMark = IsA(line[next], TokenKind::Dot) || IsA(line[next], TokenKind::Comma) ||
                        IsA(line[next], TokenKind::Slash);
    if (!isMark && !(IsPersonAt(line, next, names) && ++words <= longest)) return false;
    isParted = isParted || (isMark && words == 0);
  }
  return isParted && words > 0;
}

}  // namespace

void Rows::PassOverAside(const SourceLine& line, TokenRange at, std::size_t first,
                         bool inSignature) {
  std::vector<Token> rest(line.All.begin(), line.All.end());
  rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at.Begin),
             rest.begin() + static_cast<std::ptrdiff_t>(at.End));
  std::erase_if(rest, [](const Token& token) { return HasUse(token, WordUse::Condition); });
  const bool isTitle = IsA(line.All.back(), TokenKind::Colon) &&
                       std::ranges::find(rest, TokenKind::Dash, &Token::Kind) == rest.end();
  if (isTitle || IsNoOrder(rest, known_.Names, inSignature)) PassOver(first);
}

bool Rows::ApologizesApart(const SourceLine& line, std::size_t first) const {
  const bool isApart = first > 0 && Lines[first - 1].Place.Length == 0;
  return isApart && std::ranges::all_of(line.All, [](const Token& token) {
           return HasUse(token, WordUse::Plea) || (!IsWordToken(token) && token.Text != "?");
         });
}

bool Rows::MayBeOfAbove(const SourceLine& line, std::size_t first, bool isBehindOrders) const {
  constexpr std::size_t few = 4;
  constexpr std::size_t more = 8;  // "sorry, I meant Pic."
  const bool corrects = FindSaying(line.All, Saying::Corrects).has_value();
  const bool isBrief = line.All.size() <= (corrects ? more : few) && !ApologizesApart(line, first);
  // "Rather Pic", in a paragraph of its own as well.
  const bool isTitle = IsA(line.All.back(), TokenKind::Colon);
  if (isBrief && !isTitle && NamesPlace(line.All, known_.Names)) return true;
  // Units name themselves in other stages.
  const bool isBuild = known_.Stage == model::Stage::Adjustments;
  return (isBuild && (isBrief || IsUnclear(Lines.back()))) ||
         (isBehindOrders && (isBrief || NamesOtherPlaces(line.All, Lines, known_)));
}

/// Whether words at the beginning of a line greet and head it: "alright mate england orders for
/// spring".
bool Rows::IsAddress(Tokens words, bool isFirst, int power) const {
  std::size_t at = 0;
  while (at < words.size() && HasUse(words[at], WordUse::Mood, WordUse::Greeting))
    ++at;
  if (!isFirst || at == words.size()) return false;
  const auto heading = ReadHeading(words.subspan(at), known_.Names);
  return heading && heading->Orders == Verb::None &&
         (heading->Power == power || heading->Power == 0);
}

/// Whether words belong to a sentence of another matter behind the orders of their line: "Lambing
/// season, so sorry if I'm slow to answer." Such sentences are read as lines of their own are.
bool Rows::IsOfAnotherMatter(const SourceLine& line, const Said& said) const {
  TokenRange whole = said.At;
  for (const Said& other : remarks_) {
    if (other.Sentence != said.Sentence) continue;
    whole.Begin = std::min(whole.Begin, other.At.Begin);
    whole.End = std::max(whole.End, other.At.End);
  }
  const Tokens sentence = line.Part(whole);
  constexpr std::ptrdiff_t few = 4;
  if (std::ranges::count_if(sentence, IsWordToken) < few || IsA(sentence.back(), TokenKind::Colon))
    return false;
  const bool isBehind = std::ranges::all_of(
      understood_, [&](const Understood& order) { return order.At.End <= whole.Begin; });
  const bool speaksOfUnits = std::ranges::any_of(sentence, [](const Token& token) {
    return (UnitTypeOf(token) != 0 && token.Text.size() > 1) || HasUse(token, WordUse::Orders) ||
           IsDoubtfulSign(token);
  });
  // "Looking forward to the results."
  const bool chats = FindSaying(sentence, Saying::Chats).has_value();
  return isBehind && !speaksOfUnits && !BeginsCondition(sentence, known_.Names) &&
         !NamesPlace(sentence, known_.Names) && PowerIn(sentence) == 0 &&
         (chats || !SaysOfOrders(sentence)) && (Apologizes(sentence) || !Reconsiders(sentence)) &&
         (chats || !ReadAside(sentence, known_.Names)) && !ReadReservation(sentence, true) &&
         !FindBearing(sentence, known_.Names);
}

/// Whether words are not known to leave the orders of their sentence as they are.
bool Rows::IsDoubted(const SourceLine& line, const Said& said, bool isOwn) const {
  std::vector<Token> own;
  int power = 0;
  for (const Understood& order : understood_) {
    power = model::FindCountry(Lines[order.Row].Power);
    const Tokens words = line.Part(order.At);
    if (!isOwn || order.Sentence == said.Sentence)
      own.insert(own.end(), words.begin(), words.end());
  }
  const Tokens remark = line.Part(said.At);
  if (IsAddress(remark, said.At.Begin == 0, power) || IsTitle(remark, known_.Names, power))
    return false;
  if (SignsOff(line.All, said.At, known_.Names)) return false;
  if (known_.Stage == model::Stage::Adjustments && IsTitleOfAdjustments(remark, known_.Names))
    return false;
  // "(if the Brit minds, tough luck)".
  if (FindSaying(remark, Saying::Shrugs) && !NamesPlace(remark, known_.Names)) return false;
  if (!isOwn && IsOfAnotherMatter(line, said)) return false;
  // "Correction: A Lvp - Yor, sorry, wrong line".
  const bool excuses =
      ExcusesSlip(remark) || ExcusesSlip(line.Part({said.At.Begin, line.All.size()}));
  const bool isPutRight = std::ranges::any_of(understood_, [&](const Understood& order) {
    return !Around.Rows()[order.Row].Instead.empty();
  });
  if (excuses && (isPutRight || Corrects(line.All))) return false;
  // "Edit: F Bre - ENG (was MAO)".
  if (Corrects(line.All) && FormerPlace(remark, known_.Names) != 0) return false;
  const bool isFirst = std::ranges::all_of(
      understood_, [&](const Understood& order) { return order.At.Begin >= said.At.End; });
  // "Forget the first line. New: A Par - Pic".
  if (isFirst && !isOwn && Corrects(line.All) && FindSaying(remark, Saying::Revokes)) return false;
  if (isFirst && IsOpening(remark, known_.Names, power)) return false;
  // "Nothing surprising from Turkey: A Con - Bul".
  if (isFirst && !understood_.empty() && understood_.front().At.Begin == said.At.End) {
    const std::size_t begin = understood_.front().At.Begin;
    const Tokens rest = Tokens(line.All).subspan(begin);
    const PowerName heading = PowerAt(rest, 0);
    const bool isHeading = heading.Power != 0 && heading.Power == power &&
                           heading.Next < rest.size() && IsA(rest[heading.Next], TokenKind::Colon);
    const std::size_t end = begin + heading.Next + 1;
    if (isHeading && IsTitle(line.Part({said.At.Begin, end}), known_.Names, power)) return false;
  }
  // Before an order such words put it in the place of another one, behind it another in its place.
  const bool isBefore = std::ranges::any_of(
      understood_, [&](const Understood& order) { return order.At.Begin >= said.At.End; });
  const auto correction = FindCorrection(remark, isBefore);
  if (!correction) {
    // "Germany promised me A Mun - Tyr": before an order words of everyday life may well bear on
    // it.
    const bool isBracket = IsA(remark[0], TokenKind::Open);
    const auto everyday = isBefore && !isBracket ? EverydayWords::Doubted : EverydayWords::Harmless;
    return FindDoubt(remark, own, known_.Names, power, everyday).has_value();
  }
  return FindDoubt(remark.first(correction->Begin), own, known_.Names, power) ||
         FindDoubt(remark.subspan(correction->End), own, known_.Names, power);
}

}  // namespace orb::exchange
