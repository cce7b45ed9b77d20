#pragma once

#include "model/game_state.h"
#include "render/hit_map.h"

#include <Qt>

#include <string_view>

namespace orb::ui {

/// A place on the map at which the mouse, or a key, did something.
struct MapSpot {
  const model::GameState& game;
  const render::HitMap& hitMap;
  render::Point point;  ///< in fractions of the map's width and height
  Qt::KeyboardModifiers modifiers;
  int chosen = 0;  ///< row of the location that was chosen itself, whatever lies at the point

  /// Row of the location there, as a unit of this type sees it (a fleet stands on a coast); 0:
  /// none.
  int locationFor(std::string_view unitType) const {
    if (chosen != 0) return hitMap.AsSeenBy(*game.Map, chosen, point, unitType);
    return hitMap.LocationAt(game, point, unitType);
  }
};

/// What the left mouse button means on the map while a panel is in front. A tool implements only
/// what it has a use for; by default nothing happens.
class MapTool {
 public:
  MapTool() = default;
  MapTool(const MapTool&) = delete;
  MapTool& operator=(const MapTool&) = delete;
  virtual ~MapTool() = default;

  /// Pressed and let go at one place.
  virtual void mapClicked(const MapSpot& /*at*/) {}

  /// False when it is a second click like the first.
  virtual bool mapDoubleClicked(const MapSpot& /*at*/) { return false; }

  /// True when something is taken along from this place; the next two follow then.
  virtual bool mapDragStarted(const MapSpot& /*from*/) { return false; }
  virtual void mapDragMoved(const MapSpot& /*over*/) {}
  virtual void mapDropped(const MapSpot& /*at*/) {}
};

}  // namespace orb::ui
