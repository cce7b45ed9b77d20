#include "adjudication/participants.h"

#include "adjudication/explain_parts.h"
#include "model/lookups.h"
#include "orders/binding.h"

#include <algorithm>

namespace orb::adjudication {
namespace {

using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;

using Locations = std::vector<std::string>;

/// The orders of the moves stage that had a part in the outcome of one of them.
class Parties {
 public:
  Parties(const Resolution& resolution, int order) : resolution_(resolution), order_(order) {
    const Reason& reason = resolution_.Reasons[order_];
    AddContest(order_);
    AddRivals();
    Add(reason.Cutter);
    AddLostFleet(order_);
    if (const int dislodger = DislodgerOfUnit(resolution_, order_); dislodger != 0) {
      AddContest(dislodger);
    }
    AddRing();
    AddServedOrder();
    for (int k = 1; k <= resolution_.Orders.Count(); ++k) {
      AddFailedAttack(k);
      AddHelp(k);
    }
  }

  bool Has(int order) const { return set_.test(static_cast<std::size_t>(order)); }

 private:
  const OrderLine& Order(int k) const { return resolution_.Orders[k]; }

  void Add(int order) {
    if (order != 0) set_.set(static_cast<std::size_t>(order));
  }

  /// The move with all whose strengths were compared for it.
  void AddContest(int move) {
    const Reason& reason = resolution_.Reasons[move];
    Add(move);
    Add(reason.Occupant);
    Add(reason.Opponent);
    set_ |= reason.Behind | reason.Discounted | reason.BehindOpponent;
  }

  bool AimsAt(int move, int place) const {
    return orders::IsMove(Order(move)) &&
           model::IsSamePlace(*resolution_.Map, Order(move).Target, place);
  }

  /// Also those that had lost all strength.
  void AddRivals() {
    const OrderLine& own = Order(order_);
    if (!own.Active || !orders::IsMove(own)) return;
    for (int k = 1; k <= resolution_.Orders.Count(); ++k) {
      if (Order(k).Active && AimsAt(k, own.Target)) Add(k);
    }
  }

  /// The fleet whose loss broke the move's convoy, and who dislodged it.
  void AddLostFleet(int move) {
    const int fleet = resolution_.Reasons[move].LostFleet;
    if (fleet == 0) return;
    Add(fleet);
    Add(DislodgerOfUnit(resolution_, fleet));
  }

  // The same bound as for the sentence about the ring: moves that follow it never come back.
  void AddRing() {
    if (resolution_.Reasons[order_].Ruling != Ruling::Ring) return;
    int k = order_;
    for (int steps = 0; k != 0 && steps < resolution_.Orders.Count(); ++steps) {
      Add(k);
      k = resolution_.Reasons[k].Occupant;
    }
  }

  /// The order that a support or convoy is for; also one that it does not describe.
  void AddServedOrder() {
    const OrderLine& own = Order(order_);
    if (own.UnitIndex == 0 || (!orders::IsSupport(own) && !orders::IsConvoy(own))) return;
    Add(own.LinkedOrder);
    if (own.LinkedOrder != 0) {
      const Reason& served = resolution_.Reasons[own.LinkedOrder];
      AddLostFleet(own.LinkedOrder);
      if (served.Discounted.test(static_cast<std::size_t>(order_))) Add(served.Occupant);
      return;
    }
    for (int k = 1; k <= resolution_.Orders.Count(); ++k) {
      if (orders::RefersTo(own, Order(k))) Add(k);
    }
  }

  /// An attack that the order's unit held against, or that did not cut its support.
  void AddFailedAttack(int move) {
    const OrderLine& own = Order(order_);
    if (!own.Active || orders::IsMove(own)) return;
    const Reason& reason = resolution_.Reasons[move];
    if (orders::IsSupport(own)) {
      const bool inPlay = Order(move).Active || reason.LostFleet != 0;
      if (inPlay && AimsAt(move, own.Location)) Add(move);
    } else if (reason.Occupant == order_ && reason.Ruling == Ruling::Occupant) {
      AddContest(move);
    }
  }

  /// A fleet that carried the move, or a support that was lost, with who took it away.
  void AddHelp(int helper) {
    const OrderLine& help = Order(helper);
    const Reason& reason = resolution_.Reasons[helper];
    if (help.LinkedOrder != order_) return;
    if (help.Active && orders::IsConvoy(help)) Add(helper);
    if (reason.Cutter == 0 && !reason.SupportWithdrawn) return;
    Add(helper);
    Add(reason.Cutter);
    if (reason.SupportWithdrawn) Add(reason.Dislodger);
  }

  const Resolution& resolution_;
  int order_;
  OrderSet set_;
};

void AddTo(Locations& locations, const std::string& location) {
  if (std::ranges::find(locations, location) == locations.end()) locations.push_back(location);
}

/// Adds where the unit stands after the resolution, or stood last.
void AddUnit(const Resolution& resolution, int unit, Locations& locations) {
  const std::string* location = &resolution.UnitsBefore[unit].Location;
  for (const OrderLine& order : resolution.Orders) {
    const bool moves = orders::IsMove(order) || order.Kind == OrderKind::Retreat;
    if (order.UnitIndex == unit && moves && order.Active && !order.Failed) {
      location = &NameOf(resolution, order.Target);
    }
  }
  AddTo(locations, *location);
}

/// Also the unit that a faulty order was meant for.
void AddUnitOf(const Resolution& resolution, int order, Locations& locations) {
  const OrderLine& line = resolution.Orders[order];
  if (line.UnitIndex != 0) {
    AddUnit(resolution, line.UnitIndex, locations);
    return;
  }
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    if (resolution.Pieces[u] == orders::OrderedPiece(line)) AddUnit(resolution, u, locations);
  }
}

/// The units that stood in the place; of a place with a dislodged unit also the one that came.
void AddUnitsIn(const Resolution& resolution, int place, Locations& locations) {
  for (int u = 1; u <= resolution.Pieces.Count(); ++u) {
    if (model::IsSamePlace(*resolution.Map, resolution.Pieces[u].Location, place)) {
      AddUnit(resolution, u, locations);
    }
  }
}

void AddToMove(const Resolution& resolution, int order, Locations& locations) {
  const OrderLine& own = resolution.Orders[order];
  const Parties parties(resolution, order);
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    if (parties.Has(k)) AddUnitOf(resolution, k, locations);
  }
  if (own.UnitIndex == 0) AddUnitsIn(resolution, own.Location, locations);
  if (own.Rejection == OrderResult::NotUsed) AddUnitsIn(resolution, own.Target, locations);
}

void AddToRetreat(const Resolution& resolution, int order, Locations& locations) {
  const OrderLine& own = resolution.Orders[order];
  const Reason& reason = resolution.Reasons[order];
  if (reason.Ruling == Ruling::RetreatsCollide) AddUnitOf(resolution, reason.Blocker, locations);
  if (reason.Ruling == Ruling::PlaceTaken) AddUnit(resolution, reason.Blocker, locations);
  if (reason.Ruling == Ruling::BackToAttacker || own.UnitIndex == 0) {
    AddUnitsIn(resolution, own.Location, locations);
  }
}

void AddToAdjustment(const Resolution& resolution, int order, Locations& locations) {
  const OrderLine& own = resolution.Orders[order];
  if (own.Location == 0) return;
  AddTo(locations, NameOf(resolution, own.Location));
  if (!own.Active) AddUnitsIn(resolution, own.Location, locations);
  const int other = resolution.Reasons[order].Blocker;
  if (other != 0) AddTo(locations, NameOf(resolution, resolution.Orders[other].Location));
}

void AddParticipants(const Resolution& resolution, int order, Locations& locations) {
  if (order == 0) return;
  AddUnitOf(resolution, order, locations);
  if (resolution.Stage == model::Stage::Moves) AddToMove(resolution, order, locations);
  if (resolution.Stage == model::Stage::Retreats) AddToRetreat(resolution, order, locations);
  if (resolution.Stage == model::Stage::Adjustments) {
    AddToAdjustment(resolution, order, locations);
  }
}

}  // namespace

std::vector<std::vector<std::string>> ReportParticipants(const model::GameState& after,
                                                         const Resolution& resolution) {
  std::vector<Locations> lines(static_cast<std::size_t>(after.ReportLines.Count()));
  for (const ReportEntry& entry : resolution.Entries) {
    AddParticipants(resolution, entry.Order, lines.at(static_cast<std::size_t>(entry.Line - 1)));
  }
  return lines;
}

}  // namespace orb::adjudication
