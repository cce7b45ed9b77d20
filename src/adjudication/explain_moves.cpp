#include "adjudication/explain.h"
#include "model/text.h"
#include "orders/binding.h"
#include "orders/lookups.h"
#include "orders/parser.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;
using orders::OrderTable;

std::string Quoted(const OrderLine& order) {
  return "\"" + order.Text + "\"";
}

std::string JoinUnits(const OrderTable& table, const OrderSet& set) {
  std::string names;
  for (int k = 1; k <= table.Count(); ++k) {
    if (!set.test(static_cast<std::size_t>(k))) continue;
    names += (names.empty() ? "" : ", ") + UnitName(table[k]);
  }
  return names;
}

std::string Strength(const OrderTable& table, int strength, const OrderSet& behind) {
  std::string text = std::to_string(strength);
  if (behind.any()) text += " (supported by " + JoinUnits(table, behind) + ")";
  return text;
}

/// Whose strength the move had to exceed, and why it stood in the way.
std::string OpponentText(const OrderTable& table, const Reason& reason) {
  const OrderLine& opponent = table[reason.Opponent];
  if (reason.Opponent != reason.Occupant) return "the rival move " + Quoted(opponent);
  switch (reason.Ruling) {
    case Ruling::HeadToHead:
      return UnitName(opponent) + ", which came the opposite way";
    case Ruling::Occupant:
      return UnitName(opponent) +
             (orders::IsMove(opponent) ? ", whose own move failed" : ", which stayed there");
    default:
      return UnitName(opponent) + ", whose own move failed";
  }
}

std::string Comparison(const OrderTable& table, const Reason& reason) {
  std::string text = "strength " + Strength(table, reason.Strength, reason.Behind) + " against " +
                     Strength(table, reason.Against, reason.BehindOpponent);
  if (reason.Opponent != 0) text += " of " + OpponentText(table, reason);
  if (reason.Discounted.any()) {
    text += "; the support of " + JoinUnits(table, reason.Discounted) +
            " did not count, because it is of the power attacked";
  }
  return text;
}

std::string CutSupportsOf(const Resolution& resolution, int order) {
  std::string text;
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const int cutter = resolution.Reasons[k].Cutter;
    if (cutter == 0 || resolution.Orders[k].LinkedOrder != order) continue;
    text.append("; the support of ").append(UnitName(resolution.Orders[k]));
    text.append(" was cut by ").append(Quoted(resolution.Orders[cutter]));
  }
  return text;
}

std::string RingText(const Resolution& resolution, int order) {
  std::string text = "It moved together with";
  int k = resolution.Reasons[order].Occupant;
  for (int steps = 0; k != 0 && k != order && steps < resolution.Orders.Count(); ++steps) {
    text += (steps == 0 ? " " : ", ") + Quoted(resolution.Orders[k]);
    k = resolution.Reasons[k].Occupant;
  }
  return text + ", each leaving its place to the next";
}

std::string MoveText(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const OrderLine& move = table[order];
  const Reason& reason = resolution.Reasons[order];
  const std::string verdict = move.Failed ? "It failed: " : "It moved: ";
  switch (reason.Ruling) {
    case Ruling::HeadToHeadOwn:
      return verdict + UnitName(table[reason.Occupant]) +
             ", of the same power, came the opposite way";
    case Ruling::OccupantOwn:
      return verdict + UnitName(table[reason.Occupant]) + ", of the same power, was still there";
    case Ruling::Ring:
      return RingText(resolution, order);
    case Ruling::None:
      return "It was not decided";
    default:
      break;
  }
  if (reason.Opponent != 0) return verdict + Comparison(table, reason);
  if (move.Failed) return verdict + "its own strength was gone when it was decided";
  if (reason.Ruling == Ruling::LeftPlace) {
    return verdict + UnitName(table[reason.Occupant]) + " left and no other move aimed there";
  }
  return verdict + "the place was empty and no other move aimed there";
}

std::string ImpossibleMoveText(const model::Map& map, const OrderLine& move) {
  const std::string unit = std::string(TypeName(move));
  if (!orders::CanStandIn(map, move.UnitType, move.Target)) {
    return "It is impossible: no " + unit + " can stand in " + move.Target;
  }
  return "It is impossible: no " + unit + " can move from " + move.Location + " to " + move.Target;
}

std::string ActionText(const OrderLine& order) {
  return orders::IsMove(order) ? "to move to " + order.Target : "not to move";
}

/// Why a support or convoy found no order that it describes.
std::string NotUsedText(const OrderTable& table, const OrderLine& order) {
  const std::string other = order.Power2 + " " + order.UnitType2 + "(" + order.Target + ")";
  const std::string wanted = order.Kind2 == "-" ? "to move to " + order.Target2 : "to hold";
  for (int t = table.Count(); t >= 1; --t) {
    if (!orders::RefersTo(order, table[t])) continue;
    return "It is void: " + other + " was ordered " + ActionText(table[t]) + ", not " + wanted;
  }
  return "It is void: there is no order for " + other;
}

std::string RejectionText(const model::Map& map, const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  if (line.UnitIndex == 0) {
    if (const auto fault = orders::SyntaxFault(map, line); !fault.empty()) {
      return "It was not understood: " + std::string(fault);
    }
    return "It is void: " + line.Power + " has no " + std::string(TypeName(line)) + " in " +
           line.Location;
  }
  if (reason.LostFleet != 0) {
    const int attack = resolution.Reasons[reason.LostFleet].Dislodger;
    return "Its convoy failed: " + UnitName(resolution.Orders[reason.LostFleet]) +
           " was dislodged" + (attack == 0 ? "" : " by " + Quoted(resolution.Orders[attack]));
  }
  if (reason.Cutter != 0) return "It was cut by " + Quoted(resolution.Orders[reason.Cutter]);
  if (orders::IsMove(line)) return ImpossibleMoveText(map, line);
  if (line.LinkedOrder == 0) return NotUsedText(resolution.Orders, line);
  return "It is impossible: the " + std::string(TypeName(line)) + " cannot itself move to " +
         orders::SupportedPlace(line);
}

std::string LinkedText(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const OrderLine& linked = resolution.Orders[line.LinkedOrder];
  if (orders::IsConvoy(line)) {
    const bool broken = resolution.Reasons[order].Dislodger != 0;
    return (broken ? "It could not convoy " : "It convoyed ") + Quoted(linked);
  }
  if (resolution.Reasons[order].SupportWithdrawn) {
    return "Its support of " + Quoted(linked) +
           " was withdrawn: the attack that dislodged it came from the place supported into";
  }
  return "It supported " + Quoted(linked);
}

std::string HoldText(const Resolution& resolution, int order) {
  if (resolution.Reasons[order].Dislodger != 0) return "It did not hold";
  const OrderTable& table = resolution.Orders;
  for (int m = 1; m <= table.Count(); ++m) {
    const Reason& reason = resolution.Reasons[m];
    if (reason.Occupant != order || !table[m].Failed || reason.Ruling != Ruling::Occupant) continue;
    return "It held against " + Quoted(table[m]) + ": strength " +
           Strength(table, reason.Strength, reason.Behind) + " against " +
           Strength(table, reason.Against, reason.BehindOpponent);
  }
  return "It held";
}

std::string OwnText(const model::Map& map, const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  if (!line.Active) return RejectionText(map, resolution, order);
  if (orders::IsMove(line)) return MoveText(resolution, order);
  return line.LinkedOrder != 0 ? LinkedText(resolution, order) : HoldText(resolution, order);
}

std::string DislodgedText(const Resolution& resolution, int order) {
  const int m = resolution.Reasons[order].Dislodger;
  if (m == 0) return {};
  const Reason& attack = resolution.Reasons[m];
  return "; it was dislodged by " + Quoted(resolution.Orders[m]) + ", strength " +
         Strength(resolution.Orders, attack.Strength, attack.Behind) + " against " +
         Strength(resolution.Orders, attack.Against, attack.BehindOpponent);
}

}  // namespace

std::string ExplainMove(const model::GameState& after, const Resolution& resolution, int order) {
  return OwnText(*after.Map, resolution, order) + DislodgedText(resolution, order) +
         CutSupportsOf(resolution, order) + ".";
}

}  // namespace orb::adjudication
