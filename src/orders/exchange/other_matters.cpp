#include "orders/exchange/other_matters.h"

#include "orders/exchange/asides.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/open_matters.h"
#include "orders/exchange/power_names.h"
#include "orders/exchange/sayings.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orb::exchange {
namespace {

/// Whether words may be about orders: they speak of orders or units, or point at something.
bool RefersToOrders(Tokens words) {
  constexpr std::array<std::string_view, 28> pointing{
      "it",       "this",  "that",       "these",   "those", "them",   "all",
      "above",    "below", "rest",       "one",     "ones",  "both",   "first",
      "second",   "same",  "everything", "instead", "other", "others", "else",
      "anything", "legal", "valid",      "right",   "ok",    "okay",   "correct"};
  return std::ranges::any_of(words, [&](const Token& token) {
    const Verb verb = VerbOf(token);
    const bool isVerb = verb != Verb::None && verb != Verb::Move && token.Text.size() > 2;
    const bool isUnit = UnitTypeOf(token) != 0 && token.Text.size() > 1;
    return isVerb || isUnit || HasUse(token, WordUse::Orders) ||
           std::ranges::find(pointing, token.Text) != pointing.end();
  });
}

/// What happens if the condition that begins a sentence is met; empty where it is not told by what
/// the writer, or who is written to, will do then.
Tokens ConsequenceOf(Tokens line) {
  constexpr std::array<std::string_view, 9> persons{"i",   "im",   "ill", "id",   "we",
                                                    "you", "well", "ich", "youll"};
  constexpr std::size_t shortest = 3;
  for (std::size_t at = shortest; at < line.size(); ++at) {
    if (std::ranges::find(persons, line[at].Text) != persons.end()) return line.subspan(at);
  }
  return {};
}

/// "I don't want to provoke anybody".
bool IsOfFeeling(Tokens line) {
  constexpr std::array<std::string_view, 4> denying{"dont", "never", "wont", "cant"};
  constexpr std::array<std::string_view, 3> feeling{"want", "trust", "believe"};
  const auto isOneOf = [&](std::size_t at, const auto& words) {
    return std::ranges::find(words, line[at].Text) != words.end();
  };
  return line.size() > 4 && (IsWord(line[0], "i") || IsWord(line[0], "we")) &&
         isOneOf(1, denying) && isOneOf(2, feeling) && !IsA(line.back(), TokenKind::Colon);
}

/// Whether words announce another message: "I will write again".
bool TellsMaster(Tokens words) {
  constexpr std::array<std::string_view, 20> telling{
      "tell", "mail",   "send",   "call", "confirm", "say",  "ask", "message", "update", "inform",
      "let",  "change", "decide", "wait", "check",   "come", "get", "give",    "resend", "use"};
  const bool isPress = std::ranges::any_of(
      words, [](const Token& token) { return IsWord(token, "press") || IsWord(token, "letter"); });
  return std::ranges::any_of(words, [&](const Token& token) {
    return std::ranges::find(telling, token.Text) != telling.end() ||
           (IsWord(token, "write") && !isPress);
  });
}

}  // namespace

bool SpeaksOfElse(Tokens line, const PlaceNames& names) {
  constexpr std::ptrdiff_t few = 5;
  const auto words = std::ranges::count(line, TokenKind::Word, &Token::Kind);
  if (LeavesOpen(line)) return false;
  if (IsOfFeeling(line)) return !RefersToOrders(line) && !NamesPlace(line, names);
  if (words < 2 || IsA(line.back(), TokenKind::Colon) || !HasUse(line[0], WordUse::Condition)) {
    const bool asks = words >= few && line.back().Text == "?";
    const bool isOfWriter = FindSaying(line, Saying::Asks) || FindSaying(line, Saying::Corrects);
    const bool hints = std::ranges::any_of(line, [](const Token& token) {
      constexpr auto hinting =
          static_cast<unsigned>(Signal::Hints) | static_cast<unsigned>(Signal::Leaves);
      return (token.Means.Signals & hinting) != 0;
    });
    return asks && !isOfWriter && !hints && !RefersToOrders(line) && !NamesPlace(line, names);
  }
  constexpr std::array<std::string_view, 8> telling{"tell",  "trust", "believe", "mention",
                                                    "blame", "worry", "listen",  "show"};
  const bool isAdvice = std::ranges::find(telling, line[1].Text) != telling.end();
  if (isAdvice) return PowerIn(line) != 0 && !RefersToOrders(line) && !NamesPlace(line, names);
  constexpr std::array<std::string_view, 9> conjunctions{"if", "when", "wenn", "falls", "si",
                                                         "se", "als",  "hvis", "om"};
  if (std::ranges::find(conjunctions, line[0].Text) == conjunctions.end()) return false;
  // Whatever hangs on somebody's consent may be the orders.
  constexpr std::array<std::string_view, 10> consenting{
      "agree", "accept", "consent", "confirm", "approv", "allow", "mind", "object", "ok", "refus"};
  const bool isConsent = std::ranges::any_of(line, [&](const Token& token) {
    return std::ranges::any_of(
        consenting, [&](std::string_view begin) { return token.Text.starts_with(begin); });
  });
  if (isConsent) return false;
  const Tokens then = ConsequenceOf(line);
  const bool isOpen = std::ranges::any_of(then, [](const Token& token) {
    return HasUse(token, WordUse::Condition, WordUse::Elsewhere, WordUse::SetsAside,
                  WordUse::Aside) ||
           HasUse(token, WordUse::Reservation);
  });
  return then.size() > 3 && !isOpen && !RefersToOrders(then) && !TellsMaster(then) &&
         !NamesPlace(then, names);
}

bool DoubtsOrders(Tokens sentence) {
  constexpr std::array<std::string_view, 4> pointing{"these", "those", "them", "above"};
  const bool points = std::ranges::any_of(sentence, [&](const Token& token) {
    return std::ranges::find(pointing, token.Text) != pointing.end();
  });
  const bool signals = std::ranges::any_of(sentence, [](const Token& token) {
    return token.Text == "?" || HasUse(token, WordUse::Condition, WordUse::Report);
  });
  return points && signals && !IsOffer(sentence);
}

}  // namespace orb::exchange
