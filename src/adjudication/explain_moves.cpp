#include "adjudication/explain_parts.h"
#include "model/lookups.h"
#include "orders/binding.h"

namespace orb::adjudication {
namespace {

using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;
using orders::OrderTable;

/// Where a move is aimed at; one that leads nowhere in the words of its writer.
std::string AimText(const Resolution& resolution, const OrderLine& move) {
  if (move.Target != 0) return NameOf(resolution, move.Target);
  std::string work;
  return std::string(orders::CutOrder(move.Text, resolution.Stage, work).Target);
}

Account ExplainRejection(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  // A convoy may fail for a move that was impossible anyway; the later fate is explained.
  if (line.UnitIndex != 0 && reason.LostFleet != 0) {
    return {{"Its convoy failed", BrokenConvoy(resolution, reason.LostFleet)}};
  }
  switch (line.Rejection) {
    case OrderResult::SyntaxError:
      return {NotUnderstood(resolution, line)};
    case OrderResult::NoSuchUnit:
      return {NoSuchUnit(resolution, line)};
    case OrderResult::Cut:
      return ExplainCut(resolution, order);
    case OrderResult::ImpossibleMove:
      return {ImpossibleMove(*resolution.Map, line)};
    case OrderResult::NotUsed:
      return {NotUsed(resolution, line)};
    default:
      return {{"It is impossible", "the " + std::string(TypeName(line.UnitType)) + " in " +
                                       NameOf(resolution, line.Location) + " cannot move to " +
                                       NameOf(resolution, orders::SupportedPlace(line)) +
                                       ", so it cannot support there"}};
  }
}

/// If this fleet itself was dislodged, the end of its sentence says so; here nothing is said of it.
Account ExplainConvoy(const Resolution& resolution, int order) {
  const int army = resolution.Orders[order].LinkedOrder;
  const std::string move = Quoted(resolution.Orders[army]);
  const int lost = resolution.Reasons[army].LostFleet;
  if (lost == 0) return {{"It convoyed " + move, {}}};
  const std::string verdict = "Its convoy of " + move + " failed";
  if (WasDislodged(resolution, order)) return {{verdict, {}}};
  return {{verdict, BrokenConvoy(resolution, lost)}};
}

/// The attacks that left the support uncut, and why.
std::string UncutText(const Resolution& resolution, const OrderLine& support) {
  const OrderTable& table = resolution.Orders;
  std::string text;
  for (int m = 1; m <= table.Count(); ++m) {
    const OrderLine& move = table[m];
    if (!orders::IsMove(move) ||
        !model::IsSamePlace(*resolution.Map, move.Target, support.Location))
      continue;
    const bool convoyFailed = resolution.Reasons[m].LostFleet != 0;
    const bool fromThere = move.Active && support.Kind2 == OrderKind::Move &&
                           model::IsSamePlace(*resolution.Map, support.Target2, move.Location);
    if (!convoyFailed && !fromThere) continue;
    text += "; " + Quoted(move) + " did not cut it: ";
    text += convoyFailed ? "its convoy failed"
                         : "it came from " + NameOf(resolution, move.Location) +
                               ", the place supported into";
  }
  return text;
}

Account ExplainSupport(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const OrderLine& line = table[order];
  const OrderLine& linked = table[line.LinkedOrder];
  const Reason& outcome = resolution.Reasons[line.LinkedOrder];
  const auto row = static_cast<std::size_t>(order);
  if (!orders::IsMove(linked)) {
    return {{"It supported " + UnitName(resolution, linked) + " where it stood" +
                 UncutText(resolution, line),
             {}}};
  }
  // A support that was withdrawn only after its move had been decided did count.
  if (resolution.Reasons[order].SupportWithdrawn && !outcome.Behind.test(row)) {
    return {{"Its support of " + Quoted(linked) + " was withdrawn",
             "the attack that dislodged it came from the place supported into"}};
  }
  std::string text = "It supported " + Quoted(linked);
  if (outcome.Discounted.test(row)) {
    text = "Its support of " + Quoted(linked) + " did not count against " +
           UnitName(resolution, table[outcome.Occupant]) + ", a unit of its own power";
  } else if (outcome.LostFleet != 0) {
    text += ", but that move's convoy failed";
  } else if (!linked.Active) {
    text += ", but that move was impossible";
  }
  return {{text + UncutText(resolution, line), {}}};
}

/// What came of the order itself; what else befell its unit is added by ExplainMove.
Account ExplainOwnFate(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  if (!line.Active) return ExplainRejection(resolution, order);
  if (orders::IsMove(line)) return {ExplainMovement(resolution, order)};
  if (orders::IsSupport(line)) return ExplainSupport(resolution, order);
  if (!orders::IsConvoy(line)) return ExplainHold(resolution, order);
  Account account = ExplainConvoy(resolution, order);
  const std::string held = HeldAgainst(resolution, order);
  if (!held.empty() && !WasDislodged(resolution, order)) account.Told.Also = "; it held" + held;
  return account;
}

/// Where another order for the same unit took it.
std::string OtherMoveText(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const OrderLine& line = table[order];
  int last = 0;
  for (int k = 1; k <= table.Count(); ++k) {
    const OrderLine& other = table[k];
    const bool moved = other.Active && orders::IsMove(other) && !other.Failed;
    if (moved && line.UnitIndex != 0 && other.UnitIndex == line.UnitIndex) last = k;
  }
  if (last == 0 || last == order) return {};
  const bool movedItself = line.Active && orders::IsMove(line) && !line.Failed;
  return std::string(", but ") + (last > order ? "a later" : "an earlier") + " order " +
         (movedItself ? "took the unit on to " : "moved the unit to ") +
         NameOf(resolution, table[last].Target);
}

}  // namespace

bool WasDislodged(const Resolution& resolution, int order) {
  return resolution.Reasons[order].Dislodger != 0;
}

Account ExplainCut(const Resolution& resolution, int order) {
  const Reason& reason = resolution.Reasons[order];
  const std::string text = "Its support was cut by " + Quoted(resolution.Orders[reason.Cutter]);
  if (reason.Dislodger != reason.Cutter) return {{text, {}}};
  return {{text + ", which also dislodged it", DislodgingStrengths(resolution, order)}, true};
}

Account ExplainHold(const Resolution& resolution, int order) {
  const bool unordered = resolution.Orders[order].Supplied;
  if (WasDislodged(resolution, order)) {
    if (unordered) return {{"It had no order", {}}};
    return {{"It " + DislodgedBy(resolution, order), DislodgingStrengths(resolution, order)}, true};
  }
  return {{(unordered ? "It had no order, so it held" : "It held") + HeldAgainst(resolution, order),
           {}}};
}

Explanation NotUsed(const Resolution& resolution, const OrderLine& order) {
  const OrderTable& table = resolution.Orders;
  const std::string verdict = "It is void";
  const std::string other = std::string(model::PowerName(order.Power2)) + " " +
                            std::string(UnitTypeName(order.UnitType2)) + "(" +
                            NameOf(resolution, order.Target) + ")";
  // The last of several orders for a unit is the one that counts.
  for (int t = table.Count(); t >= 1; --t) {
    if (!orders::RefersTo(order, table[t])) continue;
    if (!orders::IsMove(table[t])) return {verdict, other + " was not ordered to move"};
    return {verdict,
            other + " was ordered to move to " + AimText(resolution, table[t]) + ", not to " +
                (order.Kind2 == OrderKind::Move ? "move to " + NameOf(resolution, order.Target2)
                                                : "hold")};
  }
  return {verdict, "there is no " + other + UnitThere(resolution, order.Power2, order.Target)};
}

std::string BrokenConvoy(const Resolution& resolution, int fleet) {
  const int attack = DislodgerOfUnit(resolution, fleet);
  return UnitName(resolution, resolution.Orders[fleet]) + " was dislodged" +
         (attack == 0 ? "" : " by " + Quoted(resolution.Orders[attack]));
}

std::string LostSupportsOf(const Resolution& resolution, int order) {
  // One that was cut is still taken off the strength when it is withdrawn.
  const Reason& outcome = resolution.Reasons[order];
  const bool weakened = outcome.Strength < 1 + static_cast<int>(outcome.Behind.count());
  std::string text;
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const Reason& reason = resolution.Reasons[k];
    if (resolution.Orders[k].LinkedOrder != order) continue;
    const std::string support = "; the support of " + UnitName(resolution, resolution.Orders[k]);
    const bool withdrawn =
        reason.SupportWithdrawn && !outcome.Behind.test(static_cast<std::size_t>(k));
    if (reason.Cutter != 0) {
      text += support + " was cut by " + Quoted(resolution.Orders[reason.Cutter]);
      if (withdrawn && weakened && orders::IsMove(resolution.Orders[order])) {
        text += " and taken off once more when it was dislodged from the place supported into";
      }
    } else if (withdrawn) {
      text += support + " was withdrawn: it was dislodged from the place supported into";
    }
  }
  return text;
}

int DislodgerOfUnit(const Resolution& resolution, int order) {
  const int unit = resolution.Orders[order].UnitIndex;
  if (unit == 0) return resolution.Reasons[order].Dislodger;
  int dislodger = 0;
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const bool same = resolution.Orders[k].UnitIndex == unit;
    if (same && WasDislodged(resolution, k)) dislodger = resolution.Reasons[k].Dislodger;
  }
  return dislodger;
}

Explanation ExplainMove(const Resolution& resolution, int order) {
  Account account = ExplainOwnFate(resolution, order);
  Explanation& told = account.Told;
  if (WasDislodged(resolution, order) && !account.ToldDislodged) {
    told.Also +=
        "; it " + DislodgedBy(resolution, order) + ": " + DislodgingStrengths(resolution, order);
  } else if (!account.ToldDislodged && resolution.Orders[order].UnitIndex != 0) {
    const int attack = DislodgerOfUnit(resolution, order);
    if (attack != 0)
      told.Also += "; its unit was dislodged by " + Quoted(resolution.Orders[attack]);
  }
  told.Also += LostSupportsOf(resolution, order);
  if (resolution.Completed) told.Also += OtherMoveText(resolution, order);
  return told;
}

}  // namespace orb::adjudication
