#pragma once

#include "projection.h"
#include "shape.h"
#include "tables.h"

#include <map>
#include <string>
#include <vector>

namespace mapmaker {

enum class AreaType { Land, Water, OutOfPlay, InlandWater };

/// An area of the map with all its parts.
struct Area {
  std::string Name;
  AreaType Type = AreaType::Land;
  std::string Home;
  Shape Extent;
};

/// The areas of the whole sheet: without gap and without overlap. The locations of provinces.csv
/// come first, by their rows; a coast is an empty area.
using Coverage = std::vector<Area>;

/// A border line with the areas on its two sides (indices; -1 is beyond the sheet).
struct Arc {
  Line Course;
  int First = -1;
  int Second = -1;
};

[[nodiscard]] bool IsLand(const Area& area);

/// The coverage in full detail, from the land, the seas and the rings that close straits.
Coverage MakeCoverage(const Tables& tables, const Projection& projection,
                      const std::map<std::string, Shape>& land);

/// The border lines of a coverage, each from one meeting of three areas to the next.
std::vector<Arc> ArcsOf(const Coverage& coverage);

/// The areas between changed arcs; each face goes to the area on whose old place it lies.
Coverage Rebuilt(const Coverage& old, const std::vector<Arc>& arcs);

/// Makes land of the water within `reach` of the same land area on both sides (fjords, creeks).
Coverage WithInletsClosed(const Coverage& old, double reach);

/// Gives every part of land or water smaller than so many square pixels to the neighbour it borders
/// longest on.
Coverage WithoutSmallParts(Coverage coverage, double leastLand, double leastWater);

}  // namespace mapmaker
