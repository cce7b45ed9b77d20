#include "orders/exchange/order_part.h"

#include "orders/exchange/line_kinds.h"

#include <algorithm>

namespace orb::exchange {
namespace {

/// Behind a heading that ends in a colon, whose power and orders go into the context.
std::size_t PastHeading(Tokens tokens, const PlaceNames& names, Context& context) {
  const auto colon = std::ranges::find(tokens, TokenKind::Colon, &Token::Kind);
  const auto length = static_cast<std::size_t>(colon - tokens.begin());
  if (length + 1 >= tokens.size()) return 0;
  const auto heading = ReadHeading(tokens.first(length), names);
  if (!heading) return 0;
  if (heading->Power != 0) context.Power = heading->Power;
  if (heading->Orders != Verb::None) context.Orders = heading->Orders;
  return length + 1;
}

void LeaveInContext(const WrittenOrder& order, Context& context) {
  if (order.Power != 0) context.Power = order.Power;
  if (order.What == Verb::Build || order.What == Verb::Disband) context.Orders = order.What;
}

}  // namespace

PartRead ReadPart(Tokens tokens, const Situation& situation, Context& context) {
  PartRead part;
  const std::size_t start = PastHeading(tokens, situation.Names, context);
  const Verb verb = situation.Stage == OrderStage::Adjustments ? context.Orders : Verb::None;
  const Parse parse = ParseWrittenOrder(tokens.subspan(start), situation.Names, *situation.Game.Map,
                                        situation.Stage, verb);
  if (!parse.Orders.empty() && parse.Orders[0].What == Verb::Waive) {
    LeaveInContext(parse.Orders[0], context);
    part.Power = context.Power;
    part.Kind = LineKind::Waive;
    return part;
  }
  part.Meant = FindMeanings(parse.Orders, situation, context.Power);
  if (!part.Meant.All.empty()) {
    LeaveInContext(parse.Orders.back(), context);
    part.Kind = part.Meant.All.size() == 1 ? LineKind::Order : LineKind::Ambiguous;
    return part;
  }
  const auto& problem = part.Meant.Problem ? part.Meant.Problem : parse.Problem;
  part.Problem = problem.value_or(Fault{"it is not understood", {0, tokens.size() - start}});
  part.Problem.At.Begin += start;
  part.Problem.At.End += start;
  return part;
}

std::string AmbiguityText(const Meanings& meanings) {
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
