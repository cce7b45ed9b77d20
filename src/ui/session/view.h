#pragma once

#include "session/queries.h"
#include "settings/map_options.h"

#include <vector>

namespace orb::ui {

/// How the window shows its game. None of it is part of the game or of its file.
struct View {
  settings::MapOptions mapOptions = {};
  bool viewOnly = false;    ///< only the map is shown
  bool showOrders = false;  ///< orders are drawn on the map
  bool compare = true;      ///< what the other rules would have brought is told
};

/// The orders to be drawn on the map: none while the view does not show them. The map on the
/// screen, its copies and its print ask for them in the same way.
inline std::vector<orders::OrderOutcome> shownOrders(const session::Situation& situation,
                                                     const View& view) {
  return view.showOrders ? session::SeasonOrders(situation) : std::vector<orders::OrderOutcome>();
}

}  // namespace orb::ui
