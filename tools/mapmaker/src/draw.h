#pragma once

#include <QImage>
#include <vector>

#include "coverage.h"
#include "style.h"

namespace mapmaker {

/// The finished picture (MapWidth x MapHeight) of the coverage. `straits` are lines of open water
/// through land, in map coordinates.
QImage DrawMap(const Coverage& coverage, const std::vector<Line>& straits, const Style& style);

}  // namespace mapmaker
