#include "orders/exchange/supports.h"

#include "model/lookups.h"
#include "model/place.h"

#include <algorithm>
#include <utility>

namespace orb::exchange {
namespace {

using model::Unit;
using orders::OrderKind;

/// Completes the orders of one unit that supports or convoys.
class Helper {
 public:
  Helper(orders::OrderKind kind, const WrittenOrder& written, const UnitMeant& unit,
         const KnownGame& known)
      : kind_(kind), written_(written), unit_(unit), known_(known) {}

  std::vector<Completed> Supports(Fault& fault) {
    if (written_.Other.Place.Rows.empty()) {
      AddMoversInto(written_.Destination);
      if (orders_.empty()) fault = {"no unit can move there", written_.Destination.At};
      return std::move(orders_);
    }
    const auto others = Others(written_.Other, fault);
    for (const UnitMeant& other : others)
      AddSupport(other);
    if (others.empty() && IsPlaceAlone()) AddMoversInto(written_.Other.Place);
    return std::move(orders_);
  }

  std::vector<Completed> Convoys(Fault& fault) {
    WrittenUnit army = written_.Other;
    if (army.Type == 0) army.Type = 'A';
    for (const UnitMeant& other : Others(army, fault)) {
      if (written_.OtherWhat == Verb::Move) {
        AddMoves(other);
      } else if (const std::string* move = known_.OrderedMove(other.Unit); move != nullptr) {
        Add(other, *move);
      } else {
        fault = {"the destination is missing", {army.Place.At.End, army.Place.At.End}};
      }
    }
    return std::move(orders_);
  }

 private:
  std::vector<UnitMeant> Others(const WrittenUnit& other, Fault& fault) const {
    // A unit that stands nowhere and is written without a power is taken for one of the supporter's
    // own.
    const int own = model::FindCountry(unit_.Unit.Power);
    return known_.UnitsMeant(other, other.Power, other.Power == 0 ? own : other.Power, fault);
  }

  /// The other unit holds where no destination is given.
  void Add(const UnitMeant& other, const std::string& destination = {}) {
    PlainOrder order = OrderOf(unit_.Unit, kind_);
    order.Power2 = other.Unit.Power;
    order.UnitType2 = other.Unit.UnitType;
    order.Target = other.Unit.Location;
    order.Kind2 = destination.empty() ? OrderKind::Hold : OrderKind::Move;
    order.Target2 = destination;
    orders_.push_back(
        {std::move(order), unit_.Objection.empty() ? other.Objection : unit_.Objection});
  }

  /// One for each destination that is meant; that of the unit's own order where it is among them.
  void AddMoves(const UnitMeant& other) {
    const auto destinations =
        known_.DestinationsMeant(written_.Destination, other.Unit, written_.ByConvoy);
    const std::string* ordered = known_.OrderedMove(other.Unit);
    if (ordered != nullptr && std::ranges::find(destinations, *ordered) != destinations.end()) {
      return Add(other, *ordered);
    }
    for (const std::string& destination : destinations)
      Add(other, destination);
  }

  bool IsPlaceAlone() const {
    return written_.OtherWhat == Verb::None && written_.Other.Type == 0 &&
           written_.Other.Power == 0;
  }

  void AddSupport(const UnitMeant& other) {
    if (written_.OtherWhat == Verb::Move) return AddMoves(other);
    if (written_.OtherWhat == Verb::Hold) return Add(other);
    const auto reaches = [&](const std::string& place) {
      return model::CanSupportInto(*known_.Game.Map, unit_.Unit, place);
    };
    if (const std::string* move = known_.OrderedMove(other.Unit); move != nullptr) {
      // The other unit moves in this text. Holding it in place may be meant if the supporter
      // reaches that place, or reaches neither.
      if (reaches(other.Unit.Location) || !reaches(*move)) Add(other);
      Add(other, *move);
      if (IsPlaceAlone()) AddOrderedMovesInto(written_.Other.Place);
      return;
    }
    Add(other);
    // Beside a foreign unit, "S Bur" may as well mean an attack on it.
    if (IsPlaceAlone() && other.Unit.Power != unit_.Unit.Power) AddMoversInto(written_.Other.Place);
  }

  void AddOrderedMovesInto(const WrittenPlace& place) {
    known_.IsAsked = true;
    for (const PlainOrder& move : known_.Moves) {
      const Unit mover{move.Power, move.UnitType, move.Location, {}, {}, {}};
      if (IsAt(place, move.Target) && !IsSupporter(mover)) Add({mover, {}}, move.Target);
    }
  }

  /// The moves into a place: those that the same text orders; if none, all that are possible.
  void AddMoversInto(const WrittenPlace& place) {
    const std::size_t before = orders_.size();
    AddOrderedMovesInto(place);
    if (orders_.size() > before) return;
    for (const Unit& mover : known_.Game.Units) {
      if (IsSupporter(mover) || IsAt(place, mover.Location)) continue;
      for (const std::string& destination : known_.DestinationsMeant(place, mover, false)) {
        if (model::IsAdjacent(*known_.Game.Map, mover.UnitType, mover.Location, destination)) {
          Add({mover, {}}, destination);
        }
      }
    }
  }

  bool IsSupporter(const Unit& unit) const { return unit.Location == unit_.Unit.Location; }

  bool IsAt(const WrittenPlace& place, const std::string& location) const {
    return std::ranges::any_of(
        place.Rows, [&](int row) { return model::SamePlace(known_.NameOf(row), location); });
  }

  orders::OrderKind kind_;
  const WrittenOrder& written_;
  const UnitMeant& unit_;
  const KnownGame& known_;
  std::vector<Completed> orders_;
};

}  // namespace

PlainOrder OrderOf(const Unit& unit, orders::OrderKind kind) {
  PlainOrder order;
  order.Power = unit.Power;
  order.UnitType = unit.UnitType;
  order.Location = unit.Location;
  order.Kind = kind;
  return order;
}

std::vector<Completed> SupportsMeant(const WrittenOrder& written, const UnitMeant& unit,
                                     const KnownGame& known, Fault& fault) {
  return Helper(OrderKind::Support, written, unit, known).Supports(fault);
}

std::vector<Completed> ConvoysMeant(const WrittenOrder& written, const UnitMeant& unit,
                                    const KnownGame& known, Fault& fault) {
  return Helper(OrderKind::Convoy, written, unit, known).Convoys(fault);
}

}  // namespace orb::exchange
