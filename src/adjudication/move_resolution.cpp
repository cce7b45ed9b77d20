#include "adjudication/move_resolution.h"

#include <array>

namespace orb::adjudication {
namespace {

using orders::IsMove;
using orders::OrderLine;

bool InPlay(const OrderLine& order) {
  return order.Pending && IsMove(order) && order.Active;
}

void Fail(OrderLine& move) {
  move.Failed = true;
  move.Pending = false;
}

/// The unit that a move meets, 0 for none, and whether it comes the opposite way.
struct Encounter {
  int Occupant = 0;
  bool HeadToHead = false;
};

/// Whether the two moves meet head to head. Units can change places if one of them goes by convoy.
bool GoesTheOppositeWay(const Battlefield& field, const OrderLine& other, const OrderLine& move) {
  return other.Active && IsMove(other) && field.IsSamePlace(other.Target, move.Location) &&
         !move.ViaConvoy && !other.ViaConvoy;
}

/// What move m meets in its place; of several units that stand there, the last one that opposes it.
Encounter MeetOpposite(Battlefield& field, int m) {
  Encounter met;
  for (int u = field.FirstUnitAt(m); u != 0; u = field.NextUnit(u)) {
    const OrderLine& order = field.Order(field.OrderOf(u));
    if (!IsMove(order) || order.Failed) met = {u, false};
    if (GoesTheOppositeWay(field, order, field.Order(m))) met = {u, true};
  }
  return met;
}

/// The last unit in the place aimed at that does not move, or whose move has failed.
int StayingOccupant(Battlefield& field, int m) {
  int occupant = 0;
  for (int u = field.FirstUnitAt(m); u != 0; u = field.NextUnit(u)) {
    const OrderLine& order = field.Order(field.OrderOf(u));
    if (!IsMove(order) || order.Failed) occupant = u;
  }
  return occupant;
}

/// Decides move m against the occupant by force; `defence` is what the occupant itself brings.
void Attack(Battlefield& field, int m, int occupant, int defence, Ruling ruling) {
  const Opposition best = field.RaisedByRivals(m, {defence, field.OrderOf(occupant)});
  const int strength = field.AttackStrength(m, occupant);
  field.Record(m, ruling, strength, best, occupant, occupant);
  OrderLine& move = field.Order(m);
  // Being as strong is not enough: the unit that is there stays.
  if (strength <= best.Strength) {
    Fail(move);
  } else {
    move.Pending = false;
    field.Dislodge(occupant, m);
  }
}

/// No unit dislodges another of its own power in the first two phases, however well supported.
void RefuseOwnUnit(Battlefield& field, int m, int occupant, Ruling ruling) {
  field.Record(m, ruling, 0, {}, occupant, 0);
  Fail(field.Order(m));
}

/// Decides the head-to-head battles that there are now. Whoever comes the opposite way defends with
/// its whole force: against an attack head on, the supports for its own move count.
bool OppositeMovesPass(Battlefield& field) {
  bool changed = false;
  for (int m = 1; m <= field.Orders().Count(); ++m) {
    if (!InPlay(field.Order(m))) continue;
    const Encounter met = MeetOpposite(field, m);
    if (!met.HeadToHead) continue;
    changed = true;
    if (field.PowerOf(field.Order(m).UnitIndex) == field.PowerOf(met.Occupant)) {
      RefuseOwnUnit(field, m, met.Occupant, Ruling::HeadToHeadOwn);
    } else {
      Attack(field, m, met.Occupant, field.Force(met.Occupant), Ruling::HeadToHead);
    }
  }
  return changed;
}

/// A unit that bounced defends with 1 only: the supports for its move do not defend it.
int Defence(Battlefield& field, int occupant) {
  const OrderLine& order = field.Order(field.OrderOf(occupant));
  const bool bounced = order.Failed && IsMove(order) && !order.Pending && order.Active;
  return bounced ? 1 : field.Force(occupant);
}

/// Decides the moves against units that do not move or whose moves have failed by now.
bool StayingUnitsPass(Battlefield& field) {
  bool changed = false;
  for (int m = 1; m <= field.Orders().Count(); ++m) {
    if (!InPlay(field.Order(m))) continue;
    const int occupant = StayingOccupant(field, m);
    if (occupant == 0) continue;
    changed = true;
    if (field.PowerOf(field.Order(m).UnitIndex) == field.PowerOf(occupant)) {
      RefuseOwnUnit(field, m, occupant, Ruling::OccupantOwn);
    } else {
      Attack(field, m, occupant, Defence(field, occupant), Ruling::Occupant);
    }
  }
  return changed;
}

/// What a move meets in the last phase. Nothing changes the forces there and nobody moves yet, so
/// it is looked up once for all passes.
struct Contest {
  int Move = 0;
  OrderLine* Order = nullptr;
  int Occupant = 0;  ///< the last unit in the place aimed at, whatever its order; 0: none
  const OrderLine* OccupantOrder = nullptr;
  int Force = 0;
  Opposition Rivals;
};

class Contests {
 public:
  explicit Contests(Battlefield& field) {
    for (int m = 1; m <= field.Orders().Count(); ++m) {
      OrderLine& order = field.Order(m);
      if (!InPlay(order)) continue;
      const int occupant = field.LastUnitAt(m);
      list_[count_++] = {m,
                         &order,
                         occupant,
                         occupant == 0 ? nullptr : &field.Order(field.OrderOf(occupant)),
                         field.Force(order.UnitIndex),
                         field.RaisedByRivals(m, {})};
    }
  }
  const Contest* begin() const { return list_.data(); }
  const Contest* end() const { return list_.data() + count_; }

 private:
  std::array<Contest, orders::OrderBound> list_;
  std::size_t count_ = 0;
};

/// The strongest move gets the place. Equally strong ones keep each other out: a standoff.
void MoveIntoEmptyPlace(Battlefield& field, const Contest& contest) {
  field.Record(contest.Move, Ruling::EmptyPlace, contest.Force, contest.Rivals, 0, 0);
  contest.Order->Pending = false;
  if (contest.Force <= contest.Rivals.Strength) contest.Order->Failed = true;
}

/// The occupant may still leave: only a move that cannot win is decided now.
void MoveBehindUndecidedUnit(Battlefield& field, const Contest& contest) {
  if (contest.Force > contest.Rivals.Strength) return;
  field.Record(contest.Move, Ruling::LeavingUnit, contest.Force, contest.Rivals, contest.Occupant,
               0);
  Fail(*contest.Order);
}

/// Unlike in the passes before, one's own unit may be dislodged here, it keeps its force, and a
/// support that it gives is not withdrawn.
void MoveBehindDecidedUnit(Battlefield& field, const Contest& contest) {
  const int m = contest.Move;
  const int occupant = contest.Occupant;
  const bool stays = contest.OccupantOrder->Failed;
  const Opposition best =
      stays ? field.RaisedByRivals(m, {1, field.OrderOf(occupant)}) : contest.Rivals;
  const int strength = stays ? field.AttackStrength(m, occupant) : contest.Force;
  field.Record(m, stays ? Ruling::BouncedUnit : Ruling::LeftPlace, strength, best, occupant,
               stays ? occupant : 0);
  contest.Order->Pending = false;
  if (strength <= best.Strength) {
    contest.Order->Failed = true;
  } else if (stays) {
    field.MarkDislodged(occupant, m);
  }
}

/// Whether any move was decided. A pass that decides none leaves all as it was: so would the next.
bool RemainingMovesPass(Battlefield& field, const Contests& contests) {
  bool decided = false;
  for (const Contest& contest : contests) {
    if (!contest.Order->Pending) continue;
    if (contest.Occupant == 0) {
      MoveIntoEmptyPlace(field, contest);
    } else if (contest.OccupantOrder->Pending) {
      MoveBehindUndecidedUnit(field, contest);
    } else {
      MoveBehindDecidedUnit(field, contest);
    }
    if (!contest.Order->Pending) decided = true;
  }
  return decided;
}

/// What is still undecided then moves in a ring, and succeeds.
void LetRingsMove(Battlefield& field, const Contests& contests) {
  for (const Contest& contest : contests) {
    if (!contest.Order->Pending) continue;
    field.Record(contest.Move, Ruling::Ring, contest.Force, {}, contest.Occupant, 0);
    contest.Order->Pending = false;
  }
}

}  // namespace

// The order of the phases is a rule of the game. Head-to-head battles come first, since their
// losers stay and stand in the way of others. A move that fails against a unit that stays makes one
// more unit that stays, so the passes go on until one decides nothing. What is left are moves into
// empty places and behind units that may leave; they wait for the unit before them, and those that
// wait for each other all round, with all that follow them, succeed together.
void DecideMoves(Battlefield& field) {
  field.CountForces();
  while (OppositeMovesPass(field)) {
  }
  while (StayingUnitsPass(field)) {
  }
  const Contests contests(field);
  while (RemainingMovesPass(field, contests)) {
  }
  LetRingsMove(field, contests);
}

}  // namespace orb::adjudication
