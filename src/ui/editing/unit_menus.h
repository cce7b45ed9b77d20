#pragma once

#include "model/game_state.h"

#include <QMenu>

#include <functional>
#include <string>
#include <vector>

namespace orb::ui {

/// Offers the units that can be added in that place, those of the first power before the others'.
/// Null when there is none. The menu goes away when it closes.
QMenu* newAddMenu(const model::GameState& game, const std::string& place,
                  const std::string& firstPower,
                  const std::function<void(const model::Unit&)>& choose, QWidget* parent);

/// Asks which of the locations, rows of the map, is meant. The menu goes away when it closes.
QMenu* newPlaceMenu(const model::Map& map, const std::vector<int>& locations,
                    const std::function<void(const std::string&)>& choose, QWidget* parent);

}  // namespace orb::ui
