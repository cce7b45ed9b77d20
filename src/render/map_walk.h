#pragma once

#include "model/map.h"
#include "render/surface.h"

#include <string_view>

// How the keyboard leads over the map: from place to place, and by name.

namespace orb::render {

/// Where an arrow key points.
enum class Direction { Left, Right, Up, Down };

/// Whether a unit could ever stand in the location of that row: the walk stops there.
bool IsStop(const model::Map& map, int row);

/// The stop nearest to a point, in fractions of the map's width and height; 0 for a map without
/// any.
int StopNearest(const model::Map& map, Point point, double aspect);

/// The row to go on to from a location: the neighbour or other coast of its own province that lies
/// best in that direction, else the nearest location that way; the row itself where nothing lies
/// there. From row 0 to the first stop of the table. The aspect is the map's width divided by its
/// height.
int StopTowards(const model::Map& map, int row, Direction direction, double aspect);

/// The next stop after the row whose abbreviation or full name, or a word of it, begins with the
/// text in letters of either case; the row itself is looked at last, `fromHere` first, but after
/// what has the text as its abbreviation. 0: none.
int StopNamed(const model::Map& map, std::string_view beginning, int row, bool fromHere);

}  // namespace orb::render
