#pragma once

#include "render/hit_map.h"
#include "render/surface.h"

#include <vector>

namespace orb::render {

/// A closed line; its last corner is followed by its first.
using Outline = std::vector<Point>;

/// The outlines of each location of a hit-test picture, by row (0: of what is none), in fractions
/// of the map's width and height. Islands and holes have outlines of their own, those of fewer
/// pixels than a finger or a pointer could meet none. Corners are left out as long as the lines
/// stay within so many pixels of the picture. Without a picture there is none at all.
std::vector<std::vector<Outline>> OutlinesOf(const HitMap& picture, double tolerance);

}  // namespace orb::render
