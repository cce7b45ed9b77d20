#pragma once

#include "model/map.h"
#include "render/paths.h"

#include <vector>

namespace orb::render {

/// What the name of a place covers on the map.
struct LabelBoxes {
  Rectangle Text;
  Rectangle Dot;  ///< of a supply centre; empty for other places

  /// Whether a line comes nearer than this.
  bool AreTouched(const Path& path, double reach) const {
    return Touches(path, Text, reach) || Touches(path, Dot, reach);
  }
};

/// Of every place, in map order. The surface's font must be that of the labels.
std::vector<LabelBoxes> LabelBoxesOf(const Surface& surface, const model::Map& map);

}  // namespace orb::render
