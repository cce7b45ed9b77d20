#include "adjudication/explain.h"
#include "adjudication/explain_parts.h"
#include "model/place.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;
using orders::OrderTable;

bool InSet(const OrderSet& set, int order) {
  return set.test(static_cast<std::size_t>(order));
}

std::string JoinUnits(const OrderTable& table, const OrderSet& set) {
  std::string names;
  for (int k = 1; k <= table.Count(); ++k) {
    if (InSet(set, k)) names += (names.empty() ? "" : ", ") + UnitName(table[k]);
  }
  return names;
}

std::string Strength(const OrderTable& table, int strength, const OrderSet& behind) {
  std::string text = "strength " + std::to_string(strength);
  if (behind.any() && strength > 1) text += " (supported by " + JoinUnits(table, behind) + ")";
  return text;
}

std::string OwnStrength(const OrderTable& table, const Reason& reason) {
  return Strength(table, reason.Strength, reason.Behind);
}

std::string OpponentStrength(const OrderTable& table, const Reason& reason) {
  return Strength(table, reason.Against, reason.BehindOpponent);
}

/// Whether the order's unit defends with less than the supports for its failed move would give.
bool LostSupports(const OrderTable& table, int order, int strength) {
  const OrderLine& move = table[order];
  if (strength != 1 || !orders::IsMove(move) || !move.Active) return false;
  for (const OrderLine& support : table) {
    if (support.Active && orders::IsSupport(support) && support.LinkedOrder == order) return true;
  }
  return false;
}

/// Whose strength the move had to exceed, and why it stood in the way.
std::string OpponentText(const OrderTable& table, const Reason& reason) {
  const OrderLine& opponent = table[reason.Opponent];
  if (reason.Opponent != reason.Occupant) return "the rival move " + Quoted(opponent);
  if (reason.Ruling == Ruling::HeadToHead) {
    return UnitName(opponent) + ", which came the opposite way";
  }
  if (!orders::IsMove(opponent)) return UnitName(opponent) + ", which stayed there";
  const bool weakened = LostSupports(table, reason.Opponent, reason.Against);
  return UnitName(opponent) + ", whose own move failed" +
         (weakened ? ", so that it defends with 1 only" : "");
}

std::string Comparison(const OrderTable& table, const Reason& reason) {
  std::string text = OwnStrength(table, reason);
  text += reason.Strength > reason.Against    ? " beats "
          : reason.Strength == reason.Against ? " is not more than "
                                              : " is less than ";
  text += OpponentStrength(table, reason) + " of " + OpponentText(table, reason);
  if (reason.Discounted.any()) {
    text += "; the support of " + JoinUnits(table, reason.Discounted) + " did not count, because " +
            table[reason.Occupant].Power + " is the power attacked";
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

/// The fleets that carried the move; empty for none.
std::string CarriersOf(const OrderTable& table, int order) {
  OrderSet fleets;
  for (int k = 1; k <= table.Count(); ++k) {
    fleets.set(static_cast<std::size_t>(k),
               table[k].Active && orders::IsConvoy(table[k]) && table[k].LinkedOrder == order);
  }
  return JoinUnits(table, fleets);
}

/// Says that nobody else went for the place. A move can still have aimed there without strength.
std::string NoRivalText(const OrderTable& table, int order) {
  for (int k = 1; k <= table.Count(); ++k) {
    if (k != order && table[k].Active && orders::IsMove(table[k]) &&
        model::SamePlace(table[k].Target, table[order].Target)) {
      return "the rival move " + Quoted(table[k]) + " had no strength left";
    }
  }
  return "no other move aimed there";
}

}  // namespace

std::string MoveText(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const bool failed = table[order].Failed;
  const Reason& reason = resolution.Reasons[order];
  const std::string fleets = CarriersOf(table, order);
  std::string verdict = failed ? "It failed" : "It moved";
  if (!fleets.empty()) verdict += (failed ? ", though carried by " : ", carried by ") + fleets;
  verdict += ": ";
  switch (reason.Ruling) {
    case Ruling::HeadToHeadOwn:
      return verdict + UnitName(table[reason.Occupant]) +
             ", of the same power, came the opposite way";
    case Ruling::OccupantOwn:
      return verdict + UnitName(table[reason.Occupant]) + ", of the same power, was still there";
    case Ruling::Ring:
      return RingText(resolution, order);
    default:
      break;
  }
  if (reason.Opponent != 0) return verdict + Comparison(table, reason);
  if (failed) return verdict + "no strength was left to it when it was decided";
  if (reason.Ruling == Ruling::LeftPlace) {
    return verdict + UnitName(table[reason.Occupant]) + " left and " + NoRivalText(table, order);
  }
  return verdict + "the place was empty and " + NoRivalText(table, order);
}

std::string HeldAgainst(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  std::string text;
  int held = -1;
  for (int m = 1; m <= table.Count(); ++m) {
    const Reason& reason = resolution.Reasons[m];
    if (reason.Occupant != order || !table[m].Failed || reason.Ruling != Ruling::Occupant) continue;
    if (reason.Opponent != order) {
      text += (text.empty() ? ": " : "; ") + Quoted(table[m]) + " failed against the rival " +
              Quoted(table[reason.Opponent]) + ", " + OpponentStrength(table, reason);
      held = -1;
      continue;
    }
    if (held == reason.Against) {
      text += " and ";
    } else {
      text += (text.empty() ? " with " : "; it held with ") + OpponentStrength(table, reason) +
              " against ";
    }
    text += OwnStrength(table, reason) + " of " + Quoted(table[m]);
    held = reason.Against;
  }
  return text;
}

std::string DislodgingStrengths(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const Reason& attack = resolution.Reasons[resolution.Reasons[order].Dislodger];
  std::string text = OwnStrength(table, attack) + " beats ";
  if (attack.Opponent != order) {
    return text + OpponentStrength(table, attack) + " of " + OpponentText(table, attack);
  }
  text += "its " + OpponentStrength(table, attack);
  return LostSupports(table, order, attack.Against)
             ? text + ", all that it defends with after its own move failed"
             : text;
}

std::string DislodgedBy(const Resolution& resolution, int order) {
  return "was dislodged by " + Quoted(resolution.Orders[resolution.Reasons[order].Dislodger]) +
         ": " + DislodgingStrengths(resolution, order);
}

}  // namespace orb::adjudication
