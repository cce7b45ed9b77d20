#include "adjudication/usual/strengths.h"

namespace orb::adjudication::usual {
namespace {

Verdict VerdictOf(const Fates& fates, int unit) {
  if (fates.Yes.Has(unit)) return Verdict::Yes;
  return fates.No.Has(unit) ? Verdict::No : Verdict::Open;
}

Bounds OnePlus(Bounds supports) {
  return {1 + supports.Low, 1 + supports.High};
}

/// The bounds of what is 0 unless the condition holds.
Bounds If(Verdict condition, Bounds strength) {
  return {condition == Verdict::Yes ? strength.Low : 0,
          condition == Verdict::No ? 0 : strength.High};
}

/// What a convoyed move is known to have; whoever decides the paths has the last word on them.
Verdict PathOf(const Plans& plans, const Known& known, int move) {
  return plans.Of(move).ByConvoy ? VerdictOf(known.Paths, move) : Verdict::Yes;
}

Verdict Not(Verdict verdict) {
  if (verdict == Verdict::Open) return verdict;
  return verdict == Verdict::Yes ? Verdict::No : Verdict::Yes;
}

/// What a move has to overcome in the place itself.
Bounds Resistance(const Plans& plans, const Known& known, int move) {
  const int occupant = plans.UnitAt(plans.Of(move).Aim);
  return occupant != 0 && IsHeadToHead(plans, move, occupant)
             ? DefendStrength(plans, known, occupant)
             : HoldStrength(plans, known, plans.Of(move).Aim);
}

}  // namespace

Bounds GivenSupports(const Plans& plans, const Known& known, int unit, int exceptPower) {
  UnitSet supporters = plans.Supporters(unit);
  if (exceptPower != 0) supporters = supporters - plans.UnitsOf(exceptPower);
  return {(supporters & known.Supports.Yes).Count(), (supporters - known.Supports.No).Count()};
}

Bounds HoldStrength(const Plans& plans, const Known& known, int place) {
  const int unit = plans.UnitAt(place);
  if (unit == 0) return {};
  if (plans.Moves.Has(unit)) return If(Not(VerdictOf(known.Moves, unit)), {1, 1});
  return OnePlus(GivenSupports(plans, known, unit));
}

Bounds AttackStrength(const Plans& plans, const Known& known, int move) {
  const Verdict path = PathOf(plans, known, move);
  const Bounds unopposed = OnePlus(GivenSupports(plans, known, move));
  const int occupant = plans.UnitAt(plans.Of(move).Aim);
  if (occupant == 0) return If(path, unopposed);
  const int defender = plans.Of(occupant).Power;
  const Bounds opposed = defender == plans.Of(move).Power
                             ? Bounds{}
                             : OnePlus(GivenSupports(plans, known, move, defender));
  const bool mayLeave = plans.Moves.Has(occupant) && !IsHeadToHead(plans, move, occupant);
  const Verdict leaves = mayLeave ? VerdictOf(known.Moves, occupant) : Verdict::No;
  return If(path, {leaves == Verdict::Yes ? unopposed.Low : opposed.Low,
                   leaves == Verdict::No ? opposed.High : unopposed.High});
}

Bounds DefendStrength(const Plans& plans, const Known& known, int move) {
  return OnePlus(GivenSupports(plans, known, move));
}

Bounds PreventStrength(const Plans& plans, const Known& known, int move) {
  const Bounds strength =
      If(PathOf(plans, known, move), OnePlus(GivenSupports(plans, known, move)));
  const int opponent = plans.UnitAt(plans.Of(move).Aim);
  if (opponent == 0 || !IsHeadToHead(plans, move, opponent)) return strength;
  return If(Not(VerdictOf(known.Moves, opponent)), strength);
}

Verdict Succeeds(const Plans& plans, const Known& known, int move) {
  const Bounds attack = AttackStrength(plans, known, move);
  const Bounds resistance = Resistance(plans, known, move);
  if (attack.High <= resistance.Low) return Verdict::No;
  bool wins = attack.Low > resistance.High;
  for (const int rival : plans.MovesTo(plans.Of(move).Aim)) {
    if (rival == move) continue;
    const Bounds prevent = PreventStrength(plans, known, rival);
    if (attack.High <= prevent.Low) return Verdict::No;
    wins = wins && attack.Low > prevent.High;
  }
  return wins ? Verdict::Yes : Verdict::Open;
}

Verdict IsDislodged(const Plans& plans, const Known& known, int unit) {
  const Verdict leaves = plans.Moves.Has(unit) ? VerdictOf(known.Moves, unit) : Verdict::No;
  if (leaves == Verdict::Yes) return Verdict::No;
  const UnitSet attacks = plans.MovesTo(plans.Of(unit).Place);
  if ((attacks - known.Moves.No).IsEmpty()) return Verdict::No;
  const bool entered = !(attacks & known.Moves.Yes).IsEmpty();
  return entered && leaves == Verdict::No ? Verdict::Yes : Verdict::Open;
}

Verdict HasPath(const Plans& plans, const Known& known, int move) {
  const Plan& plan = plans.Of(move);
  if (!plan.ByConvoy) return Verdict::Yes;
  UnitSet safe;
  UnitSet lost;
  for (const int fleet : plans.Carriers(move)) {
    const Verdict dislodged = IsDislodged(plans, known, fleet);
    if (dislodged == Verdict::No) safe.Add(fleet);
    if (dislodged == Verdict::Yes) lost.Add(fleet);
  }
  if (HasChain(plans.Waters, safe, plan.Place, plan.Aim)) return Verdict::Yes;
  return HasChain(plans.Waters, plans.Carriers(move) - lost, plan.Place, plan.Aim) ? Verdict::Open
                                                                                   : Verdict::No;
}

bool CouldCut(const Plans& plans, int attack, int support) {
  return plans.Of(attack).Power != plans.Of(support).Power &&
         plans.Of(attack).Place != plans.Of(support).Aim;
}

Verdict IsGiven(const Plans& plans, const Known& known, int support) {
  const Verdict dislodged = IsDislodged(plans, known, support);
  if (dislodged == Verdict::Yes) return Verdict::No;
  bool open = dislodged == Verdict::Open;
  for (const int attack : plans.MovesTo(plans.Of(support).Place)) {
    if (!CouldCut(plans, attack, support)) continue;
    const Verdict path = PathOf(plans, known, attack);
    if (path == Verdict::Yes) return Verdict::No;
    open = open || path == Verdict::Open;
  }
  return open ? Verdict::Open : Verdict::Yes;
}

}  // namespace orb::adjudication::usual
