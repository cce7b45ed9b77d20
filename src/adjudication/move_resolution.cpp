#include "adjudication/move_resolution.h"

#include "adjudication/battlefield.h"
#include "model/text.h"

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

bool GoesTheOppositeWay(const OrderLine& other, const OrderLine& move) {
  return other.Active && IsMove(other) && model::SamePlace(other.Target, move.Location) &&
         !move.ViaConvoy && !other.ViaConvoy;
}

Encounter MeetOpposite(Battlefield& field, int m) {
  Encounter met;
  for (int u = field.FirstUnitAt(m); u != 0; u = field.NextUnit(u)) {
    const OrderLine& order = field.Order(field.OrderOf(u));
    if (!IsMove(order) || order.Failed) met = {u, false};
    if (GoesTheOppositeWay(order, field.Order(m))) met = {u, true};
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

int LastUnitAt(Battlefield& field, int m) {
  int last = 0;
  for (int u = field.FirstUnitAt(m); u != 0; u = field.NextUnit(u))
    last = u;
  return last;
}

/// Decides move m against the occupant by force; `defence` is what the occupant itself brings.
void Attack(Battlefield& field, int m, int occupant, int defence, Ruling ruling) {
  const Opposition best = field.RaisedByRivals(m, {defence, field.OrderOf(occupant)});
  const int strength = field.AttackStrength(m, occupant);
  field.Record(m, ruling, strength, best, occupant, occupant);
  OrderLine& move = field.Order(m);
  if (strength <= best.Strength) {
    Fail(move);
  } else {
    move.Pending = false;
    field.Dislodge(occupant, m);
  }
}

void RefuseOwnUnit(Battlefield& field, int m, int occupant, Ruling ruling) {
  field.Record(m, ruling, 0, {}, occupant, 0);
  Fail(field.Order(m));
}

bool OppositeMovesPass(Battlefield& field) {
  bool changed = false;
  for (int m = 1; m <= field.Orders().Count(); ++m) {
    if (!InPlay(field.Order(m))) continue;
    const Encounter met = MeetOpposite(field, m);
    if (!met.HeadToHead) continue;
    changed = true;
    if (field.UnitOf(field.Order(m)).Power == field.Unit(met.Occupant).Power) {
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

bool StayingUnitsPass(Battlefield& field) {
  bool changed = false;
  for (int m = 1; m <= field.Orders().Count(); ++m) {
    if (!InPlay(field.Order(m))) continue;
    const int occupant = StayingOccupant(field, m);
    if (occupant == 0) continue;
    changed = true;
    if (field.UnitOf(field.Order(m)).Power == field.Unit(occupant).Power) {
      RefuseOwnUnit(field, m, occupant, Ruling::OccupantOwn);
    } else {
      Attack(field, m, occupant, Defence(field, occupant), Ruling::Occupant);
    }
  }
  return changed;
}

void MoveIntoEmptyPlace(Battlefield& field, int m) {
  const Opposition best = field.RaisedByRivals(m, {});
  const int force = field.Force(field.Order(m).UnitIndex);
  field.Record(m, Ruling::EmptyPlace, force, best, 0, 0);
  field.Order(m).Pending = false;
  if (force <= best.Strength) field.Order(m).Failed = true;
}

/// The occupant may still leave: only a move that cannot win is decided now.
void MoveBehindUndecidedUnit(Battlefield& field, int m, int occupant) {
  const Opposition best = field.RaisedByRivals(m, {});
  const int force = field.Force(field.Order(m).UnitIndex);
  if (force > best.Strength) return;
  field.Record(m, Ruling::LeavingUnit, force, best, occupant, 0);
  Fail(field.Order(m));
}

/// Unlike in the passes before, one's own unit may be dislodged here, it keeps its force, and a
/// support that it gives is not withdrawn.
void MoveBehindDecidedUnit(Battlefield& field, int m, int occupant) {
  const int occupantOrder = field.OrderOf(occupant);
  const bool stays = field.Order(occupantOrder).Failed;
  const Opposition best =
      field.RaisedByRivals(m, stays ? Opposition{1, occupantOrder} : Opposition{});
  const int strength =
      stays ? field.AttackStrength(m, occupant) : field.Force(field.Order(m).UnitIndex);
  field.Record(m, stays ? Ruling::BouncedUnit : Ruling::LeftPlace, strength, best, occupant,
               stays ? occupant : 0);
  field.Order(m).Pending = false;
  if (strength <= best.Strength) {
    field.Order(m).Failed = true;
  } else if (stays) {
    field.MarkDislodged(occupant, m);
  }
}

bool RemainingMovesPass(Battlefield& field) {
  bool found = false;
  for (int m = 1; m <= field.Orders().Count(); ++m) {
    if (!InPlay(field.Order(m))) continue;
    found = true;
    const int occupant = LastUnitAt(field, m);
    if (occupant == 0) {
      MoveIntoEmptyPlace(field, m);
    } else if (field.Order(field.OrderOf(occupant)).Pending) {
      MoveBehindUndecidedUnit(field, m, occupant);
    } else {
      MoveBehindDecidedUnit(field, m, occupant);
    }
  }
  return found;
}

/// What is still undecided after so many passes moves in a ring, and succeeds.
void LetRingsMove(Battlefield& field) {
  for (int m = 1; m <= field.Orders().Count(); ++m) {
    OrderLine& move = field.Order(m);
    if (!InPlay(move)) continue;
    field.Record(m, Ruling::Ring, field.Force(move.UnitIndex), {}, LastUnitAt(field, m), 0);
    move.Pending = false;
  }
}

}  // namespace

void ResolveMoves(model::GameState& game, Resolution& resolution) {
  Battlefield field(game, resolution);
  while (OppositeMovesPass(field)) {
  }
  while (StayingUnitsPass(field)) {
  }
  const int passLimit = field.Orders().Count() + 1;
  for (int pass = 0; pass < passLimit && RemainingMovesPass(field); ++pass) {
  }
  LetRingsMove(field);
}

}  // namespace orb::adjudication
