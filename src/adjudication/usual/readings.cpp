#include "adjudication/usual/readings.h"

#include "model/lookups.h"
#include "model/place.h"
#include "orders/binding.h"
#include "orders/parser.h"

#include <algorithm>

namespace orb::adjudication::usual {
namespace {

using model::Map;
using model::UnitType;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;
using orders::OrderTable;
using orders::Piece;
using orders::Pieces;

/// The row of the province itself where it is on the map; else the row as it is.
int WithoutCoast(const Map& map, int row) {
  const int province = model::ProvinceOf(map, row);
  return province == 0 ? row : province;
}

/// Puts the unit that is meant in place of the one that is named; its index, 0 for none.
int FindUnit(const Resolution& resolution, const Piece& named, std::int16_t& location) {
  const int unit = UnitMeant(resolution, named);
  if (unit != 0) location = resolution.Pieces[unit].Location;
  return unit;
}

/// The destination of the supported or convoyed move: a coast counts for a fleet alone.
void ReadOtherUnit(const Resolution& resolution, OrderLine& order) {
  const Map& map = *resolution.Map;
  FindUnit(resolution, orders::OtherPiece(order), order.Target);
  if (order.Kind2 != OrderKind::Move || order.UnitType2 != UnitType::Army) return;
  order.Target2 = static_cast<std::int16_t>(WithoutCoast(map, order.Target2));
}

void ReadMeaning(const Resolution& resolution, OrderLine& order) {
  const Map& map = *resolution.Map;
  const Piece& unit = resolution.Pieces[order.UnitIndex];
  if (order.Kind == OrderKind::Move || order.Kind == OrderKind::Retreat) {
    order.Target = static_cast<std::int16_t>(
        DestinationMeant(map, order.UnitType, StandingPlace(map, unit), order.Target));
  } else if (IsSupport(order) || IsConvoy(order)) {
    ReadOtherUnit(resolution, order);
  }
}

bool MeanTheSame(const Map& map, const OrderLine& a, const OrderLine& b) {
  if (a.Kind != b.Kind) return false;
  switch (a.Kind) {
    case OrderKind::Move:
    case OrderKind::Retreat:
      return a.Target == b.Target;
    case OrderKind::Support:
    case OrderKind::Convoy:
      return a.Power2 == b.Power2 && a.UnitType2 == b.UnitType2 && a.Kind2 == b.Kind2 &&
             model::IsSamePlace(map, a.Target, b.Target) &&
             (a.Kind2 != OrderKind::Move || a.Target2 == b.Target2);
    default:
      return true;
  }
}

bool IsOrderOf(const OrderLine& order, int unit) {
  return order.UnitIndex == unit && order.Fault == orders::SyntaxFault::None;
}

/// The lines for one unit: which of them stands.
void WeighLinesOf(Resolution& resolution, int first) {
  OrderTable& table = resolution.Orders;
  const int unit = table[first].UnitIndex;
  int other = 0;
  for (int k = first + 1; k <= table.Count(); ++k) {
    if (!IsOrderOf(table[k], unit)) continue;
    if (!MeanTheSame(*resolution.Map, table[first], table[k])) other = k;
  }
  for (int k = first; k <= table.Count(); ++k) {
    if (!IsOrderOf(table[k], unit)) continue;
    if (other != 0) {
      orders::Reject(table[k], OrderResult::Contradicted);
      resolution.Reasons[k].Blocker = static_cast<std::int16_t>(k == other ? first : other);
    } else if (k != first) {
      orders::Reject(table[k], OrderResult::Repeated);
      resolution.Reasons[k].Blocker = static_cast<std::int16_t>(first);
    }
  }
}

/// Whether the line names the unit, even one that is no order.
bool Names(const Map& map, const OrderLine& order, const Piece& piece) {
  return order.Power == piece.Power && order.UnitType == piece.UnitType &&
         model::IsSamePlace(map, order.Location, piece.Location);
}

/// The row of the line that stands for the unit: the one that counts, else one that was no order.
int StandingOrder(const Resolution& resolution, int unit) {
  int standing = 0;
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    const OrderLine& order = resolution.Orders[k];
    if (order.UnitIndex == unit && order.Rejection != OrderResult::Repeated) return k;
    if (order.UnitIndex == 0 && Names(*resolution.Map, order, resolution.Pieces[unit]))
      standing = k;
  }
  return standing;
}

}  // namespace

int UnitMeant(const Resolution& resolution, const Piece& named) {
  const Map& map = *resolution.Map;
  const Pieces& pieces = resolution.Pieces;
  const bool retreats = resolution.Stage == model::Stage::Retreats;
  int meant = 0;
  for (int u = 1; u <= pieces.Count(); ++u) {
    if (retreats && resolution.UnitsBefore[u].Status != model::Dislodged) continue;
    if (pieces[u] == named) return u;
    if (pieces[u].Power == named.Power && pieces[u].UnitType == named.UnitType &&
        model::IsSamePlace(map, pieces[u].Location, named.Location)) {
      meant = u;
    }
  }
  return meant;
}

int DestinationMeant(const Map& map, UnitType type, int from, int named) {
  if (type == UnitType::Army) return WithoutCoast(map, named);
  if (model::CanStandIn(map, type, named)) return named;
  int meant = 0;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    if (!model::IsSamePlace(map, row, named) || !model::IsAdjacent(map, type, from, row)) continue;
    if (meant != 0) return named;
    meant = row;
  }
  return meant == 0 ? named : meant;
}

int StandingPlace(const Map& map, const Piece& piece) {
  return piece.UnitType == UnitType::Army ? WithoutCoast(map, piece.Location) : piece.Location;
}

void ReadAsMeant(Resolution& resolution) {
  OrderTable& table = resolution.Orders;
  orders::ParseOrders(*resolution.Map, resolution.Stage, table);
  resolution.Reasons.SetCount(table.Count());
  for (OrderLine& order : table) {
    order.UnitIndex = 0;
    if (order.Fault != orders::SyntaxFault::None) {
      orders::Reject(order, OrderResult::SyntaxError);
      continue;
    }
    order.UnitIndex = static_cast<std::int16_t>(
        FindUnit(resolution, orders::OrderedPiece(order), order.Location));
    if (order.UnitIndex == 0) {
      orders::Reject(order, OrderResult::NoSuchUnit);
    } else {
      ReadMeaning(resolution, order);
    }
  }
  for (int k = 1; k <= table.Count(); ++k) {
    if (table[k].Active) WeighLinesOf(resolution, k);
  }
}

void MirrorRepeats(Resolution& resolution) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    OrderLine& order = resolution.Orders[k];
    if (order.Rejection != OrderResult::Repeated) continue;
    const OrderLine& first = resolution.Orders[resolution.Reasons[k].Blocker];
    order.Result = first.Result;
    order.Failed = first.Failed;
  }
}

void FindStandingOrders(Resolution& resolution) {
  const Pieces& pieces = resolution.Pieces;
  resolution.OrdersOfUnits.SetCount(pieces.Count());
  for (int u = 1; u <= pieces.Count(); ++u) {
    int standing = StandingOrder(resolution, u);
    if (standing == 0) {
      orders::SupplyOrder(*resolution.Map, pieces[u], u, OrderKind::Hold, " unordered; hold",
                          resolution.Orders);
      standing = resolution.Orders.Count();
    }
    resolution.OrdersOfUnits[u] = static_cast<std::int16_t>(standing);
  }
  resolution.Reasons.SetCount(resolution.Orders.Count());
}

bool IsPossibleMove(const Map& map, const orders::Waters& waters, const OrderLine& order) {
  const int from = StandingPlace(map, orders::OrderedPiece(order));
  if (model::IsSamePlace(map, from, order.Target) ||
      !model::CanStandIn(map, order.UnitType, order.Target)) {
    return false;
  }
  if (model::IsAdjacent(map, order.UnitType, from, order.Target)) return true;
  return order.UnitType == UnitType::Army &&
         HasChain(waters, waters.Fleets, map.Places[from], map.Places[order.Target]);
}

bool IsPossibleSupport(const Map& map, const OrderLine& order) {
  const Piece unit = orders::OrderedPiece(order);
  const Piece other = orders::OtherPiece(order);
  const bool itself = unit.Power == other.Power && unit.UnitType == other.UnitType &&
                      model::IsSamePlace(map, unit.Location, other.Location);
  return !itself && model::CanSupportInto(map, unit.UnitType, StandingPlace(map, unit),
                                          orders::SupportedPlace(order));
}

bool IsPossibleConvoy(const Resolution& resolution, const OrderLine& order) {
  const Map& map = *resolution.Map;
  return orders::IsWater(map, order.Location) && model::IsCoastal(map, order.Target) &&
         model::IsCoastal(map, order.Target2) &&
         !model::IsSamePlace(map, order.Target, order.Target2) &&
         UnitMeant(resolution, orders::OtherPiece(order)) != 0;
}

}  // namespace orb::adjudication::usual
