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
  // The orders do not say in which order the fleets pass the army on. Going to a neighbour each
  // time, or else to the nearest one, looks right on the map.
  std::string from = move.Location;
  for (auto fleet = fleets.begin(); fleet != fleets.end(); ++fleet) {
    const model::Province& last = at(from);
    const int lastRow = model::FindProvince(map, from);
    const auto detour = [&](const std::string& name) {
      const int row = model::FindProvince(map, name);
      const bool far = !model::CanSupportInto(map, model::UnitType::Fleet, row, lastRow);
      return std::pair(far, model::UnitDistance(last, at(name)));
    };
    const auto next = std::min_element(
        fleet, fleets.end(), [&](const auto& a, const auto& b) { return detour(a) < detour(b); });
    std::swap(*fleet, *next);
    from = *fleet;
  }
  return fleets;
}

}  // namespace orb::history
