#include "adjudication/possible_orders.h"

#include "adjudication/adjustments.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/waters.h"

#include <array>
#include <bitset>

namespace orb::adjudication {
namespace {

using model::GameState;
using model::Map;
using model::UnitType;
using orders::Piece;

using Rows = std::bitset<model::ProvinceBound + 1>;
using Lines = std::vector<std::string>;

std::string PieceText(const Map& map, const Piece& piece) {
  std::string text(model::UnitTypeName(piece.UnitType));
  return text.append("(").append(model::LocationName(map, piece.Location)).append(")");
}

}  // namespace

/// What is asked for again and again: where every unit could move to.
class PossibleOrders::Look {
 public:
  explicit Look(const GameState& game)
      : game_(game),
        map_(*game.Map),
        pieces_(orders::PiecesOf(game)),
        waters_(orders::FindWaters(map_, pieces_)) {
    for (int u = 1; u <= pieces_.Count(); ++u) {
      Rows& aims = aims_[static_cast<std::size_t>(u)];
      for (int row = 1; row <= map_.Provinces.Count(); ++row)
        aims.set(static_cast<std::size_t>(row), CanMove(u, row));
    }
  }

  Lines OfUnit(int unit) const {
    Lines lines;
    if (game_.Stage == model::Stage::Moves) AddMoves(unit, lines);
    if (game_.Stage == model::Stage::Retreats) AddRetreats(unit, lines);
    return lines;
  }

  Lines OfPower(int power) const {
    Lines lines;
    if (game_.Stage == model::Stage::Adjustments) AddAdjustments(power, lines);
    return lines;
  }

 private:
  int Place(int row) const { return row == 0 ? 0 : map_.Places[row]; }
  int PlaceOf(int unit) const { return Place(pieces_[unit].Location); }
  bool Aims(int unit, int row) const {
    return aims_[static_cast<std::size_t>(unit)].test(static_cast<std::size_t>(row));
  }

  bool CanMove(int unit, int row) const {
    const Piece& piece = pieces_[unit];
    if (Place(row) == PlaceOf(unit) || !model::CanStandIn(map_, piece.UnitType, row)) return false;
    if (model::IsAdjacent(map_, piece.UnitType, piece.Location, row)) return true;
    return piece.UnitType == UnitType::Army &&
           orders::HasChain(waters_, waters_.Fleets, PlaceOf(unit), Place(row));
  }

  std::string Begin(int unit, std::string_view verb) const {
    std::string line(model::PowerName(pieces_[unit].Power));
    return line.append(" ").append(PieceText(map_, pieces_[unit])).append(" ").append(verb);
  }

  /// The unit that another one's order is about; its power is named where it is another.
  std::string About(int unit, int other) const {
    std::string text;
    if (pieces_[unit].Power != pieces_[other].Power)
      text.append(model::PowerName(pieces_[other].Power)).append(" ");
    return text.append(PieceText(map_, pieces_[other]));
  }

  void AddMoves(int unit, Lines& lines) const {
    lines.push_back(Begin(unit, "hold"));
    AddAims(unit, Begin(unit, "- "), lines, [](int /*row*/) { return true; });
    const Piece& piece = pieces_[unit];
    for (int other = 1; other <= pieces_.Count(); ++other) {
      if (other != unit && PlaceOf(other) != PlaceOf(unit) && Reaches(piece, PlaceOf(other)))
        lines.push_back(Begin(unit, "S ") + About(unit, other) + " hold");
    }
    for (int other = 1; other <= pieces_.Count(); ++other) {
      if (other == unit) continue;
      AddAims(other, Begin(unit, "S ") + About(unit, other) + " - ", lines,
              [&](int row) { return Place(row) != PlaceOf(unit) && Reaches(piece, Place(row)); });
    }
    if (waters_.Fleets.Has(unit)) AddConvoys(unit, lines);
  }

  bool Reaches(const Piece& piece, int place) const {
    return model::CanSupportInto(map_, piece.UnitType, piece.Location, place);
  }

  void AddConvoys(int fleet, Lines& lines) const {
    for (int army = 1; army <= pieces_.Count(); ++army) {
      if (pieces_[army].UnitType != UnitType::Army ||
          !orders::FleetsWithin(waters_, waters_.Fleets, PlaceOf(army)).Has(fleet)) {
        continue;
      }
      AddAims(army, Begin(fleet, "C ") + About(fleet, army) + " - ", lines, [&](int row) {
        return orders::HasChainThrough(waters_, waters_.Fleets, fleet, PlaceOf(army), Place(row));
      });
    }
  }

  /// A line for each of the unit's moves that is wanted.
  template <class Wanted>
  void AddAims(int unit, const std::string& begin, Lines& lines, Wanted wanted) const {
    for (int row = 1; row <= map_.Provinces.Count(); ++row) {
      if (Aims(unit, row) && wanted(row)) lines.push_back(begin + map_.Provinces[row].Name);
    }
  }

  void AddRetreats(int unit, Lines& lines) const {
    const model::Unit& dislodged = game_.Units[unit];
    if (dislodged.Status != model::Dislodged) return;
    for (int row = 1; row <= map_.Provinces.Count(); ++row) {
      if (MayRetreatTo(game_, dislodged, row))
        lines.push_back(Begin(unit, "retreat ") + map_.Provinces[row].Name);
    }
    lines.push_back(Begin(unit, "disband"));
  }

  void AddAdjustments(int power, Lines& lines) const {
    const std::string name(model::PowerName(power));
    for (int row = 1; row <= map_.Provinces.Count(); ++row) {
      for (const UnitType type : {UnitType::Army, UnitType::Fleet}) {
        orders::OrderLine order;
        order.Power = static_cast<std::int8_t>(power);
        order.UnitType = type;
        order.Location = static_cast<std::int16_t>(row);
        if (BuildFault(game_, order) == orders::OrderResult::None) {
          lines.push_back(name + " build " +
                          PieceText(map_, orders::Piece{0, type, order.Location}));
        }
      }
    }
    for (const Piece& piece : pieces_) {
      if (piece.Power == power) lines.push_back(name + " disband " + PieceText(map_, piece));
    }
  }

  const GameState& game_;
  const Map& map_;
  orders::Pieces pieces_;
  orders::Waters waters_;
  std::array<Rows, model::UnitBound + 1> aims_;
};

bool MayRetreatTo(const GameState& game, const model::Unit& unit, int row) {
  const Map& map = *game.Map;
  const UnitType type = model::UnitTypeOf(unit.UnitType);
  return model::CanStandIn(map, type, row) &&
         model::IsAdjacent(map, type, model::FindProvince(map, unit.Location), row) &&
         game.Provinces[row].Uncontested && model::FindUnitAt(game, row) == 0 &&
         !model::SamePlace(model::LocationName(map, row), unit.DislodgedFrom);
}

PossibleOrders::PossibleOrders(const GameState& game) : look_(std::make_shared<Look>(game)) {}

std::vector<std::string> PossibleOrders::OfUnit(int unit) const {
  return look_->OfUnit(unit);
}

std::vector<std::string> PossibleOrders::OfPower(int power) const {
  return look_->OfPower(power);
}

}  // namespace orb::adjudication
