#include "adjudication/explain.h"
#include "adjudication/explain_parts.h"
#include "model/place.h"
#include "orders/binding.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;
using orders::OrderTable;

/// A sentence in the making, and whether it already tells how the unit was dislodged.
struct Account {
  std::string Text;
  bool ToldDislodged = false;
};

bool WasDislodged(const Resolution& resolution, int order) {
  return resolution.Reasons[order].Dislodger != 0;
}

/// Why a support or convoy found no order that it describes.
std::string NotUsedText(const Resolution& resolution, const OrderLine& order) {
  const OrderTable& table = resolution.Orders;
  const std::string other = order.Power2 + " " + order.UnitType2 + "(" + order.Target + ")";
  for (int t = table.Count(); t >= 1; --t) {
    if (!orders::RefersTo(order, table[t])) continue;
    if (!orders::IsMove(table[t])) return "It is void: " + other + " was not ordered to move";
    return "It is void: " + other + " was ordered to move to " + table[t].Target + ", not to " +
           (order.Kind2 == "-" ? "move to " + order.Target2 : "hold");
  }
  return "It is void: there is no " + other + UnitThere(resolution, order.Power2, order.Target);
}

std::string BrokenConvoy(const Resolution& resolution, int fleet) {
  const int attack = DislodgerOfUnit(resolution, fleet);
  return UnitName(resolution.Orders[fleet]) + " was dislodged" +
         (attack == 0 ? "" : " by " + Quoted(resolution.Orders[attack]));
}

Account CutText(const Resolution& resolution, int order) {
  const Reason& reason = resolution.Reasons[order];
  const std::string text = "Its support was cut by " + Quoted(resolution.Orders[reason.Cutter]);
  if (reason.Dislodger != reason.Cutter) return {text};
  return {text + ", which also dislodged it: " + DislodgingStrengths(resolution, order), true};
}

Account RejectionText(const model::Map& map, const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  if (line.UnitIndex == 0) {
    const std::string fault = ExplainSyntax(map, line, ResolvedStage::Moves);
    return {fault.empty() ? NoSuchUnit(resolution, line) : NotUnderstood(fault)};
  }
  if (reason.LostFleet != 0) {
    return {"Its convoy failed: " + BrokenConvoy(resolution, reason.LostFleet)};
  }
  if (reason.Cutter != 0) return CutText(resolution, order);
  if (orders::IsMove(line)) return {ImpossibleMoveText(map, line)};
  if (line.LinkedOrder == 0) return {NotUsedText(resolution, line)};
  return {"It is impossible: the " + std::string(TypeName(line)) + " in " + line.Location +
          " cannot move to " + orders::SupportedPlace(line) + ", so it cannot support there"};
}

Account ConvoyText(const Resolution& resolution, int order) {
  const int army = resolution.Orders[order].LinkedOrder;
  const std::string move = Quoted(resolution.Orders[army]);
  const int lost = resolution.Reasons[army].LostFleet;
  if (lost == 0 || WasDislodged(resolution, order)) {
    return {(lost == 0 ? "It convoyed " + move : "Its convoy of " + move + " failed")};
  }
  return {"Its convoy of " + move + " failed: " + BrokenConvoy(resolution, lost)};
}

/// The attacks that left the support uncut, and why.
std::string UncutText(const Resolution& resolution, const OrderLine& support) {
  const OrderTable& table = resolution.Orders;
  std::string text;
  for (int m = 1; m <= table.Count(); ++m) {
    const OrderLine& move = table[m];
    if (!orders::IsMove(move) || !model::SamePlace(move.Target, support.Location)) continue;
    const bool convoyFailed = resolution.Reasons[m].LostFleet != 0;
    const bool fromThere =
        move.Active && support.Kind2 == "-" && model::SamePlace(support.Target2, move.Location);
    if (!convoyFailed && !fromThere) continue;
    text += "; " + Quoted(move) + " did not cut it: ";
    text += convoyFailed ? "its convoy failed"
                         : "it came from " + move.Location + ", the place supported into";
  }
  return text;
}

Account SupportText(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const OrderLine& line = table[order];
  const OrderLine& linked = table[line.LinkedOrder];
  const Reason& outcome = resolution.Reasons[line.LinkedOrder];
  const auto row = static_cast<std::size_t>(order);
  if (!orders::IsMove(linked)) {
    return {"It supported " + UnitName(linked) + " where it stood" + UncutText(resolution, line)};
  }
  if (resolution.Reasons[order].SupportWithdrawn && !outcome.Behind.test(row)) {
    return {"Its support of " + Quoted(linked) +
            " was withdrawn: the attack that dislodged it came from the place supported into"};
  }
  std::string text = "It supported " + Quoted(linked);
  if (outcome.Discounted.test(row)) {
    text = "Its support of " + Quoted(linked) + " did not count against " +
           UnitName(table[outcome.Occupant]) + ", a unit of its own power";
  } else if (outcome.LostFleet != 0) {
    text += ", but that move's convoy failed";
  } else if (!linked.Active) {
    text += ", but that move was impossible";
  }
  return {text + UncutText(resolution, line)};
}

Account HoldText(const Resolution& resolution, int order) {
  const bool unordered = resolution.Orders[order].Text.ends_with(orders::UnorderedHold);
  if (WasDislodged(resolution, order)) {
    if (unordered) return {"It had no order"};
    return {"It " + DislodgedBy(resolution, order), true};
  }
  return {(unordered ? "It had no order, so it held" : "It held") + HeldAgainst(resolution, order)};
}

Account OwnText(const model::Map& map, const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  if (!line.Active) return RejectionText(map, resolution, order);
  if (orders::IsMove(line)) return {MoveText(resolution, order)};
  if (orders::IsSupport(line)) return SupportText(resolution, order);
  if (!orders::IsConvoy(line)) return HoldText(resolution, order);
  Account account = ConvoyText(resolution, order);
  const std::string held = HeldAgainst(resolution, order);
  if (!held.empty() && !WasDislodged(resolution, order)) account.Text += "; it held" + held;
  return account;
}

/// The supports for the order that came to nothing. One that was cut is still taken off the
/// strength when it is withdrawn.
std::string LostSupportsOf(const Resolution& resolution, int order) {
  const Reason& outcome = resolution.Reasons[order];
  const bool weakened = outcome.Strength < 1 + static_cast<int>(outcome.Behind.count());
  std::string text;
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const Reason& reason = resolution.Reasons[k];
    if (resolution.Orders[k].LinkedOrder != order) continue;
    const std::string support = "; the support of " + UnitName(resolution.Orders[k]);
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

/// Where another order for the same unit took it.
std::string OtherMoveText(const OrderTable& table, int order) {
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
         (movedItself ? "took the unit on to " : "moved the unit to ") + table[last].Target;
}

}  // namespace

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

std::string ExplainMove(const model::GameState& after, const Resolution& resolution, int order) {
  Account account = OwnText(*after.Map, resolution, order);
  if (WasDislodged(resolution, order) && !account.ToldDislodged) {
    account.Text += "; it " + DislodgedBy(resolution, order);
  } else if (!account.ToldDislodged && resolution.Orders[order].UnitIndex != 0) {
    const int attack = DislodgerOfUnit(resolution, order);
    if (attack != 0)
      account.Text += "; its unit was dislodged by " + Quoted(resolution.Orders[attack]);
  }
  account.Text += LostSupportsOf(resolution, order);
  if (resolution.Completed) account.Text += OtherMoveText(resolution.Orders, order);
  return account.Text + ".";
}

}  // namespace orb::adjudication
