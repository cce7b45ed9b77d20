#pragma once

#include "coverage.h"
#include "shape.h"

namespace mapmaker {

/// How strongly lines are generalised, in map pixels.
struct Smoothing {
  double Coast = 0;
  double LandBorder = 0;
  double SeaBorder = 0;
  double Tolerance = 0;  ///< by how much points may be off that are left out afterwards
};

/// `line` drawn with a calmer hand: detail shorter than about `reach` goes; open ends stay put.
[[nodiscard]] Line Smoothed(const Line& line, double reach, double tolerance);

/// All areas with calmer borders; neighbours keep sharing them.
Coverage WithSmoothBorders(const Coverage& coverage, const Smoothing& smoothing);

}  // namespace mapmaker
