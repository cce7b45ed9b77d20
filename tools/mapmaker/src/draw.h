#pragma once

#include "coverage.h"
#include "style.h"

#include <QImage>

#include <vector>

namespace mapmaker {

/// The finished picture (MapWidth x MapHeight) of the coverage. `straits` are lines of open water
/// through land, in map coordinates.
QImage DrawMap(const Coverage& coverage, const std::vector<Line>& straits, const Style& style);

}  // namespace mapmaker
