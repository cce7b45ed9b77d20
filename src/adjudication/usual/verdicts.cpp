#include "adjudication/usual/verdicts.h"

#include "orders/order_line.h"

namespace orb::adjudication::usual {
namespace {

using orders::OrderLine;
using orders::OrderResult;

/// Writes the reasons of one resolution into the rows of its orders.
class Recorder {
 public:
  Recorder(const Plans& plans, const Settlement& settlement, Resolution& resolution)
      : plans_(plans), settlement_(settlement), resolution_(resolution) {}

  void RecordMove(int unit) {
    OrderLine& order = OrderOf(unit);
    order.Failed = !settlement_.Known.Moves.Yes.Has(unit);
    Reason& reason = ReasonOf(unit);
    if (settlement_.Known.Paths.No.Has(unit)) {
      RecordLostPath(unit);
    } else if (settlement_.Circles.Has(unit)) {
      reason.Ruling = Ruling::Ring;
      reason.Occupant = RowOf(OccupantOf(unit));
    } else {
      RecordContest(unit, reason);
    }
  }

  /// The attack that cut the support, or whose success did.
  void RecordSupport(int unit) {
    if (settlement_.Known.Supports.Yes.Has(unit)) return;
    orders::Reject(OrderOf(unit), OrderResult::Cut);
    int cutter = 0;
    for (const int attack : plans_.MovesTo(plans_.Of(unit).Place)) {
      const bool arrives = !settlement_.Known.Paths.No.Has(attack);
      if (cutter == 0 && arrives && CouldCut(plans_, attack, unit)) cutter = attack;
    }
    const int dislodger = DislodgerOf(plans_, settlement_, unit);
    ReasonOf(unit).Cutter = RowOf(cutter == 0 ? dislodger : cutter);
  }

  void RecordDislodgement(int unit, int attack) {
    OrderOf(unit).Failed = true;
    ReasonOf(unit).Dislodger = RowOf(attack);
  }

 private:
  std::int16_t RowOf(int unit) const { return unit == 0 ? std::int16_t{0} : plans_.Of(unit).Order; }
  OrderLine& OrderOf(int unit) { return resolution_.Orders[RowOf(unit)]; }
  Reason& ReasonOf(int unit) { return resolution_.Reasons[RowOf(unit)]; }
  int OccupantOf(int move) const { return plans_.UnitAt(plans_.Of(move).Aim); }

  OrderSet RowsOf(UnitSet units) const {
    OrderSet rows;
    for (const int u : units)
      rows.set(static_cast<std::size_t>(RowOf(u)));
    return rows;
  }

  UnitSet Given(int unit) const { return plans_.Supporters(unit) & settlement_.Known.Supports.Yes; }

  /// It lost its path to a paradox, with a fleet, or never had one.
  void RecordLostPath(int unit) {
    OrderOf(unit).Result = OrderResult::ConvoyFailed;
    Reason& reason = ReasonOf(unit);
    reason.Ruling = settlement_.Paradoxes.Has(unit) ? Ruling::Paradox : Ruling::NoPath;
    if (settlement_.Paradoxes.Has(unit)) return;
    for (const int fleet : plans_.Carriers(unit)) {
      if (reason.LostFleet == 0 && DislodgerOf(plans_, settlement_, fleet) != 0)
        reason.LostFleet = RowOf(fleet);
    }
  }

  /// Who was in the place, and what became of it.
  Ruling RulingOf(int move, int occupant) const {
    if (occupant == 0) return Ruling::EmptyPlace;
    const bool own = plans_.Of(occupant).Power == plans_.Of(move).Power;
    if (IsHeadToHead(plans_, move, occupant))
      return own ? Ruling::HeadToHeadOwn : Ruling::HeadToHead;
    if (settlement_.Known.Moves.Yes.Has(occupant)) return Ruling::LeftPlace;
    if (own) return Ruling::OccupantOwn;
    return plans_.Moves.Has(occupant) ? Ruling::BouncedUnit : Ruling::Occupant;
  }

  void RecordContest(int move, Reason& reason) {
    const Known& known = settlement_.Known;
    const int occupant = OccupantOf(move);
    reason.Ruling = RulingOf(move, occupant);
    reason.Occupant = RowOf(occupant);
    if (reason.Ruling == Ruling::HeadToHeadOwn || reason.Ruling == Ruling::OccupantOwn) return;
    reason.Strength = static_cast<std::int16_t>(AttackStrength(plans_, known, move).Low);
    const bool opposed = reason.Ruling == Ruling::HeadToHead || reason.Ruling == Ruling::Occupant ||
                         reason.Ruling == Ruling::BouncedUnit;
    const UnitSet defender = opposed ? plans_.UnitsOf(plans_.Of(occupant).Power) : UnitSet();
    reason.Behind = RowsOf(Given(move) - defender);
    reason.Discounted = RowsOf(Given(move) & defender);
    if (reason.Ruling == Ruling::HeadToHead) {
      Oppose(reason, occupant, DefendStrength(plans_, known, occupant));
    } else if (opposed) {
      Oppose(reason, occupant, HoldStrength(plans_, known, plans_.Of(move).Aim));
    }
    for (const int rival : plans_.MovesTo(plans_.Of(move).Aim)) {
      if (rival != move) Oppose(reason, rival, PreventStrength(plans_, known, rival));
    }
  }

  /// Of all strengths that a move has to exceed, the first of the greatest is recorded.
  void Oppose(Reason& reason, int opponent, Bounds strength) const {
    if (strength.Low <= reason.Against) return;
    reason.Against = static_cast<std::int16_t>(strength.Low);
    reason.Opponent = RowOf(opponent);
    // A unit whose move failed defends its place with 1, whoever supported the move.
    const bool bounced = reason.Ruling == Ruling::BouncedUnit && reason.Opponent == reason.Occupant;
    reason.BehindOpponent = bounced ? OrderSet() : RowsOf(Given(opponent));
  }

  const Plans& plans_;
  const Settlement& settlement_;
  Resolution& resolution_;
};

}  // namespace

int DislodgerOf(const Plans& plans, const Settlement& settlement, int unit) {
  if (IsDislodged(plans, settlement.Known, unit) != Verdict::Yes) return 0;
  return (plans.MovesTo(plans.Of(unit).Place) & settlement.Known.Moves.Yes).First();
}

void RecordVerdicts(const Plans& plans, const Settlement& settlement, Resolution& resolution) {
  Recorder recorder(plans, settlement, resolution);
  for (const int u : plans.Moves)
    recorder.RecordMove(u);
  for (const int u : plans.Supports)
    recorder.RecordSupport(u);
  for (int u = 1; u <= plans.Count; ++u) {
    const int attack = DislodgerOf(plans, settlement, u);
    if (attack != 0) recorder.RecordDislodgement(u, attack);
  }
}

}  // namespace orb::adjudication::usual
