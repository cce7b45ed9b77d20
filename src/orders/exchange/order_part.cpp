#include "orders/exchange/order_part.h"

#include "orders/exchange/concerns.h"
#include "orders/exchange/line_kinds.h"
#include "orders/exchange/power_names.h"
#include "text/strings.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace orb::exchange {
namespace {

/// Behind the words "my orders are" or "French orders", or 0.
std::size_t PastOrdersAre(Tokens tokens) {
  std::size_t past = 0;
  bool isOfOrders = false;
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    const PowerName power = PowerAt(tokens, at);
    if (power.Power == 0 && !HasUse(tokens[at], WordUse::Heading)) break;
    const bool isOrders = IsWord(tokens[at], "order") || IsWord(tokens[at], "orders");
    isOfOrders = isOfOrders || isOrders;
    if (isOrders || (isOfOrders && IsWord(tokens[at], "are"))) past = at + 1;
    if (power.Power != 0) at = power.Next - 1;
  }
  return past;
}

/// Behind "I would like to", "please let", "I should be obliged if you would" and the like, or 0.
std::size_t PastWish(Tokens tokens) {
  std::size_t at = 0;
  while (at < tokens.size() && HasUse(tokens[at], WordUse::Wish, WordUse::Filler))
    ++at;
  const Tokens wish = tokens.first(at);
  const auto has = [&](std::initializer_list<std::string_view> words) {
    return std::ranges::any_of(wish, [&](const Token& token) {
      return std::ranges::find(words, token.Text) != words.end();
    });
  };
  // "I could" and "if you would" leave it open, unless they are polite.
  const bool isOpen = (has({"if", "should", "could"}) || (has({"may"}) && !has({"have"}))) &&
                      !has({"obliged", "grateful", "glad", "appreciate", "you"});
  // "Sie will" tells what somebody else wants.
  const bool isOfOther = has({"sie"}) && !has({"konnten", "bitte"});
  return isOpen || isOfOther ||
                 std::ranges::all_of(
                     wish, [](const Token& token) { return !HasUse(token, WordUse::Wish); })
             ? 0
             : at;
}

/// What a sign before a type says in the adjustments: "new F Lon", "+F Lon", "-A Bur". A dash that
/// stands apart only begins a line of a list.
Verb SignedVerb(Tokens tokens) {
  if (tokens.size() < 3 || UnitTypeOf(tokens[1]) == 0) return Verb::None;
  if (IsWord(tokens[0], "new") || tokens[0].Written == "+") return Verb::Build;
  const bool isMinus = IsA(tokens[0], TokenKind::Dash) && tokens[0].Written == "-";
  return isMinus && tokens[1].Glued ? Verb::Disband : Verb::None;
}

/// Behind a heading before the order, "France:" or "Builds.", whose power and verb go into the
/// context; 0 when there is none.
std::size_t PastHeading(Tokens tokens, const KnownGame& known, Context& context) {
  const auto lengthTo = [&](TokenKind kind) {
    return static_cast<std::size_t>(std::ranges::find(tokens, kind, &Token::Kind) - tokens.begin());
  };
  if (const std::size_t wish = PastWish(tokens); wish != 0 && wish < tokens.size()) return wish;
  // "AUS -A Bud".
  const PowerName named = PowerAt(tokens, 0);
  const std::size_t sign = named.Power != 0 ? named.Next : 0;
  if (const Verb verb = SignedVerb(tokens.subspan(sign));
      known.Stage == model::Stage::Adjustments && verb != Verb::None) {
    context.Orders = verb;
    if (named.Power != 0) context.Power = named.Power;
    return sign + 1;
  }
  const std::size_t colon = lengthTo(TokenKind::Colon);
  // "A: Par" is an army; "A: F Tri" is Austria's.
  if (colon == 1 && tokens.size() > 2 && UnitTypeOf(tokens[0]) != 0 && UnitTypeOf(tokens[2]) == 0) {
    return 0;
  }
  const std::size_t dot = lengthTo(TokenKind::Dot);
  for (const auto& [length, past] : {std::pair(colon, colon + 1), std::pair(dot, dot + 1),
                                     std::pair(PastOrdersAre(tokens), PastOrdersAre(tokens))}) {
    if (length == 0 || past >= tokens.size()) continue;
    // An initial is a heading only with its colon.
    const bool isInitial = length == 1 && past == colon + 1;
    const auto heading = ReadHeading(tokens.first(isInitial ? past : length), known.Names);
    if (!heading || !IsHeadingOf(known.Stage, *heading)) continue;
    if (heading->Power != 0) context.Power = heading->Power;
    if (heading->Orders != Verb::None) context.Orders = heading->Orders;
    return past;
  }
  return 0;
}

/// `first` is the order's first token: in retreats "A Bur D" says nothing of the unit behind it.
void LeaveInContext(const WrittenOrder& order, const Token& first, model::Stage stage,
                    Context& context) {
  if (order.Power != 0) context.Power = order.Power;
  if (stage == model::Stage::Retreats && VerbOf(first) == Verb::None) return;
  if (order.What == Verb::Build || order.What == Verb::Disband) context.Orders = order.What;
}

bool IsOnlyPossible(const Meanings& meanings, const KnownGame& known) {
  return meanings.All.size() == 1 && IsPossible(meanings.All[0], known);
}

/// A type and a free home centre without a verb can only be built: "f ber + a mun".
void FindBuild(Tokens tokens, const KnownGame& known, int power, PartRead& part) {
  const Parse parse =
      ParseWrittenOrder(tokens, known.Names, *known.Game.Map, known.Stage, Verb::Build);
  if (parse.Orders.size() != 1 || parse.Orders[0].Unit.Type == 0) return;
  Meanings meant = FindMeanings(parse.Orders, known, power);
  if (!IsOnlyPossible(meant, known)) return;
  const std::string province = ProvinceOf(meant.All[0].Line);
  const bool isFree =
      std::none_of(known.Game.Units.begin(), known.Game.Units.end(), [&](const model::Unit& unit) {
        return text::UpperCase(unit.Location).starts_with(province);
      });
  if (!isFree) return;
  part.Meant = std::move(meant);
  part.End = parse.Orders[0].End;
  part.IsInferred = true;
  part.Kind = LineKind::Order;
}

}  // namespace

PartRead ReadPart(Tokens tokens, const KnownGame& known, Context& context, Rest rest) {
  PartRead part;
  std::size_t start = 0;
  // "France: Builds: A Par" has two headings.
  for (std::size_t past = 1; past != 0; start += past)
    past = PastHeading(tokens.subspan(start), known, context);
  // In the retreats stage "A Bur" under "Retreats:" names no destination; only "Disbands:" is
  // complete.
  const bool isImplied =
      known.Stage == model::Stage::Adjustments || context.Orders == Verb::Disband;
  const Verb verb = isImplied ? context.Orders : Verb::None;
  const Parse parse = ParseWrittenOrder(tokens.subspan(start), known.Names, *known.Game.Map,
                                        known.Stage, verb, rest);
  if (!parse.Orders.empty() && parse.Orders[0].What == Verb::Waive) {
    LeaveInContext(parse.Orders.back(), tokens[start], known.Stage, context);
    part.Power = context.Power;
    part.Kind = LineKind::Waive;
    return part;
  }
  part.Meant = FindMeanings(parse.Orders, known, context.Power);
  const bool isNamed = std::ranges::any_of(parse.Orders, [](const WrittenOrder& order) {
    return order.Power != 0 || order.Unit.Power != 0;
  });
  if (part.Meant.All.empty() && context.IsChosen && !isNamed) {
    // Of another power's unit, and so none that is filed without a question.
    Meanings others = FindMeanings(parse.Orders, known, 0);
    if (IsOnlyPossible(others, known)) part.Meant = std::move(others);
  }
  const bool isBare =
      !parse.Orders.empty() && std::ranges::all_of(parse.Orders, &WrittenOrder::IsBare);
  const bool isSailed = std::ranges::any_of(parse.Orders, &WrittenOrder::ByConvoy);
  if (isBare && (rest == Rest::Anything || (!isSailed && !IsOnlyPossible(part.Meant, known)))) {
    part.Meant = {};
    part.Meant.Problem = Fault{"it is not said what the unit does", parse.Orders[0].Destination.At};
  }
  for (const WrittenOrder& order : parse.Orders)
    part.End = std::max(part.End, start + order.End);
  if (!part.Meant.All.empty()) {
    LeaveInContext(parse.Orders.back(), tokens[start], known.Stage, context);
    part.Kind = part.Meant.All.size() == 1 ? LineKind::Order : LineKind::Ambiguous;
    part.IsGuess = std::ranges::any_of(parse.Orders, &WrittenOrder::IsGuess);
    part.IsBare = isBare;
    if (part.IsGuess && !IsPossible(part.Meant.All[0], known)) {
      part.Doubt = "it is not said what the unit does";
    }
    part.NamesPower = std::ranges::any_of(
        parse.Orders, [](const WrittenOrder& order) { return order.Power != 0; });
    return part;
  }
  if (known.Stage == model::Stage::Adjustments && verb == Verb::None && rest == Rest::Remarks) {
    FindBuild(tokens.subspan(start), known, context.Power, part);
    part.End += start;
    if (part.Kind == LineKind::Order) return part;
  }
  // What is wrong in the situation is reported rather than what is wrong in the grammar: the order
  // was read to its end then.
  const auto& problem = part.Meant.Problem ? part.Meant.Problem : parse.Problem;
  part.Problem = problem.value_or(Fault{"it is not understood", {0, tokens.size() - start}});
  part.Problem.At.Begin += start;
  part.Problem.At.End += start;
  return part;
}

std::string AmbiguityText(const Meanings& meanings) {
  // More than a few would not be read anyway.
  constexpr std::size_t shown = 4;
  std::string text = "it can mean ";
  const std::size_t count = meanings.All.size();
  for (std::size_t i = 0; i < std::min(count, shown); ++i) {
    if (i > 0) text += i + 1 == count ? " or " : ", ";
    text += meanings.All[i].Line;
  }
  return count > shown ? text + " and more" : text;
}

}  // namespace orb::exchange
