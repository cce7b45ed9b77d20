#pragma once

#include "coverage.h"
#include "tables.h"

#include <QFont>

#include <string>
#include <vector>

namespace mapmaker {

/// The program shows the map at half the pixels of the pictures; its figures are that much larger
/// in map coordinates.
inline constexpr double FigureScale = 2;
/// Radius of a supply centre's dot, in pixels of the shown map.
inline constexpr double DotRadius = 3;
/// Half the extents of the figures of units, in pixels of the shown map.
inline constexpr double ArmyRadius = 7.7;
inline constexpr double FleetHalfWidth = 10.5;
inline constexpr double FleetHalfHeight = 7;
inline constexpr double DislodgedScale = 0.75;

/// Something the program draws over the map.
struct Figure {
  std::string Name;  ///< location and what it is: "Lon label"
  int Row = -1;      ///< of the location; -1 for the captions and the legend
  Shape Extent;
};

/// The font of the labels, sized for map coordinates.
QFont LabelFont();

/// A label's text: the abbreviation, or of a coast just its letter.
std::string LabelOf(const Location& location);

/// The middle of a supply centre's dot, in map coordinates.
Point DotOf(const Placement& placement);

/// Everything that may stand on the map at once. A province that is both on the sea and of land has
/// room to take either unit.
std::vector<Figure> FiguresOf(const Tables& tables, const Coverage& coverage);

/// Whether an area has a sea province for a neighbour; by rows of the locations.
std::vector<bool> OnTheSea(const Coverage& coverage);

}  // namespace mapmaker
