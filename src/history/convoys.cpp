#include "history/convoys.h"

#include "model/lookups.h"
#include "model/place.h"

#include <algorithm>
#include <utility>

namespace orb::history {

using orders::OrderOutcome;

bool IsForMove(const OrderOutcome& order, const OrderOutcome& move) {
  return move.Kind == orders::OrderKind::Move && order.OtherLocation == move.Location &&
         model::SamePlace(order.Destination, move.Destination);
}

std::vector<std::string> FleetsOf(const model::Map& map, const OrderOutcome& move,
                                  std::span<const OrderOutcome> orders) {
  std::vector<std::string> fleets;
  if (!move.ViaConvoy) return fleets;
  for (const OrderOutcome& order : orders) {
    if (order.Kind == orders::OrderKind::Convoy && order.Outcome != orders::Outcome::Void &&
        IsForMove(order, move) && model::FindProvince(map, order.Location) != 0) {
      fleets.push_back(order.Location);
    }
  }
  const auto at = [&map](const std::string& location) -> const model::Province& {
    return model::PlaceOf(map, location);
  };
  // The orders do not say in which order the fleets pass the army on, and the chain is not traced.
  // Going to the nearest one each time looks right on the map.
  const model::Province* last = &at(move.Location);
  for (auto fleet = fleets.begin(); fleet != fleets.end(); ++fleet) {
    const auto next = std::min_element(fleet, fleets.end(), [&](const auto& a, const auto& b) {
      return model::UnitDistance(*last, at(a)) < model::UnitDistance(*last, at(b));
    });
    std::swap(*fleet, *next);
    last = &at(*fleet);
  }
  return fleets;
}

}  // namespace orb::history
