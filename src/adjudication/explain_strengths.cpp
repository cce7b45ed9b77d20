#include "adjudication/explain_parts.h"
#include "model/lookups.h"

namespace orb::adjudication {
namespace {

using orders::OrderLine;
using orders::OrderTable;

bool InSet(const OrderSet& set, int order) {
  return set.test(static_cast<std::size_t>(order));
}

std::string JoinUnits(const Resolution& resolution, const OrderSet& set) {
  const OrderTable& table = resolution.Orders;
  std::string names;
  for (int k = 1; k <= table.Count(); ++k) {
    if (InSet(set, k)) names += (names.empty() ? "" : ", ") + UnitName(resolution, table[k]);
  }
  return names;
}

/// "strength 2 (supported by ...)"; a strength of 1 has no supports to name.
std::string Strength(const Resolution& resolution, int strength, const OrderSet& behind) {
  std::string text = "strength " + std::to_string(strength);
  if (behind.any() && strength > 1) text += " (supported by " + JoinUnits(resolution, behind) + ")";
  return text;
}

std::string OwnStrength(const Resolution& resolution, const Reason& reason) {
  return Strength(resolution, reason.Strength, reason.Behind);
}

std::string OpponentStrength(const Resolution& resolution, const Reason& reason) {
  return Strength(resolution, reason.Against, reason.BehindOpponent);
}

/// Whether the order's unit defends with less than the supports for its failed move would give.
bool LostSupports(const Resolution& resolution, int order, int strength) {
  const OrderTable& table = resolution.Orders;
  const OrderLine& move = table[order];
  if (strength != 1 || !orders::IsMove(move) || !move.Active) return false;
  for (const OrderLine& support : table) {
    if (support.Active && orders::IsSupport(support) && support.LinkedOrder == order) return true;
  }
  return false;
}

/// Whose strength the move had to exceed, and why it stood in the way.
std::string OpponentText(const Resolution& resolution, const Reason& reason) {
  const OrderTable& table = resolution.Orders;
  const OrderLine& opponent = table[reason.Opponent];
  if (reason.Opponent != reason.Occupant) return "the rival move " + Quoted(opponent);
  if (reason.Ruling == Ruling::HeadToHead) {
    return UnitName(resolution, opponent) + ", which came the opposite way";
  }
  if (!orders::IsMove(opponent)) return UnitName(resolution, opponent) + ", which stayed there";
  const bool weakened = LostSupports(resolution, reason.Opponent, reason.Against);
  return UnitName(resolution, opponent) + ", whose own move failed" +
         (weakened ? ", so that it defends with 1 only" : "");
}

/// "strength 2 (supported by X) beats strength 1 of Y, which stayed there".
std::string Comparison(const Resolution& resolution, const Reason& reason) {
  const OrderTable& table = resolution.Orders;
  std::string text = OwnStrength(resolution, reason);
  text += reason.Strength > reason.Against    ? " beats "
          : reason.Strength == reason.Against ? " is not more than "
                                              : " is less than ";
  text += OpponentStrength(resolution, reason) + " of " + OpponentText(resolution, reason);
  if (reason.Discounted.any()) {
    text += "; the support of " + JoinUnits(resolution, reason.Discounted) +
            " did not count, because " + PowerOf(table[reason.Occupant]) + " is the power attacked";
  }
  return text;
}

/// Moves that follow a ring succeed with it, but do not come back to themselves: hence the bound.
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
std::string CarriersOf(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  OrderSet fleets;
  for (int k = 1; k <= table.Count(); ++k) {
    fleets.set(static_cast<std::size_t>(k),
               table[k].Active && orders::IsConvoy(table[k]) && table[k].LinkedOrder == order);
  }
  return JoinUnits(resolution, fleets);
}

/// Says that nobody else went for the place. A move can still have aimed there without strength.
std::string NoRivalText(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  for (int k = 1; k <= table.Count(); ++k) {
    if (k != order && table[k].Active && orders::IsMove(table[k]) &&
        model::IsSamePlace(*resolution.Map, table[k].Target, table[order].Target)) {
      return "the rival move " + Quoted(table[k]) + " had no strength left";
    }
  }
  return "no other move aimed there";
}

}  // namespace

Explanation ExplainMovement(const Resolution& resolution, int order) {
  const OrderTable& table = resolution.Orders;
  const bool failed = table[order].Failed;
  const Reason& reason = resolution.Reasons[order];
  if (reason.Ruling == Ruling::Ring) return {RingText(resolution, order)};
  Explanation told{failed ? "It failed" : "It moved"};
  const std::string fleets = CarriersOf(resolution, order);
  if (!fleets.empty()) told.Verdict += (failed ? ", though carried by " : ", carried by ") + fleets;
  const auto occupant = [&] { return UnitName(resolution, table[reason.Occupant]); };
  if (reason.Ruling == Ruling::HeadToHeadOwn) {
    told.Why = occupant() + ", of the same power, came the opposite way";
  } else if (reason.Ruling == Ruling::OccupantOwn) {
    told.Why = occupant() + ", of the same power, was still there";
  } else if (reason.Opponent != 0) {
    told.Why = Comparison(resolution, reason);
  } else if (failed) {
    told.Why = "no strength was left to it when it was decided";
  } else if (reason.Ruling == Ruling::LeftPlace) {
    told.Why = occupant() + " left and " + NoRivalText(resolution, order);
  } else {
    told.Why = "the place was empty and " + NoRivalText(resolution, order);
  }
  return told;
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
              Quoted(table[reason.Opponent]) + ", " + OpponentStrength(resolution, reason);
      held = -1;
      continue;
    }
    if (held == reason.Against) {
      text += " and ";
    } else {
      text += (text.empty() ? " with " : "; it held with ") + OpponentStrength(resolution, reason) +
              " against ";
    }
    text += OwnStrength(resolution, reason) + " of " + Quoted(table[m]);
    held = reason.Against;
  }
  return text;
}

std::string DislodgingStrengths(const Resolution& resolution, int order) {
  const Reason& attack = resolution.Reasons[resolution.Reasons[order].Dislodger];
  std::string text = OwnStrength(resolution, attack) + " beats ";
  if (attack.Opponent != order) {
    return text + OpponentStrength(resolution, attack) + " of " + OpponentText(resolution, attack);
  }
  text += "its " + OpponentStrength(resolution, attack);
  return LostSupports(resolution, order, attack.Against)
             ? text + ", all that it defends with after its own move failed"
             : text;
}

std::string DislodgedBy(const Resolution& resolution, int order) {
  return "was dislodged by " + Quoted(resolution.Orders[resolution.Reasons[order].Dislodger]);
}

}  // namespace orb::adjudication
