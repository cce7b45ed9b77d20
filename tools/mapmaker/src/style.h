#pragma once

#include <QColor>
#include <QJsonObject>

#include <map>
#include <string>
#include <vector>

namespace mapmaker {

/// A line: its colour, its width in map pixels, and the dashes and gaps it is broken into.
struct Pen {
  QColor Colour;
  double Width = 0;
  std::vector<double> Dashes;
};

/// Parallel strokes over an area.
struct Hatch {
  Pen Stroke;
  double Distance = 0;  ///< from stroke to stroke in map pixels; 0 for no hatching
};

/// A belt of the sea along all shores, and the line that ends it (width 0 for none).
struct ShoreBelt {
  double Distance = 0;
  QColor Fill;
  Pen Edge;
};

/// How one kind of land is coloured.
struct LandTint {
  QColor Fill;
  QColor Rim;  ///< of the belt along the inside of its outer border
};

/// The look of one picture; an entry of styles.json.
struct Style {
  std::string File;
  std::size_t Colours = 0;  ///< size of the palette, 17 to 256: fewer would not be 8 bits deep
  QColor Sea;
  std::vector<ShoreBelt> ShoreBelts;  ///< the widest first
  Pen SeaBorder;
  QColor InlandWater;
  std::map<std::string, LandTint> Homes;  ///< by power; "" is land that is nobody's home
  double RimWidth = 0;
  LandTint OutOfPlay;
  Hatch OutOfPlayHatch;
  Pen Coast;
  Pen ProvinceBorder;
  Pen HomeBorder;
  Pen StraitBank;
  Pen StraitWater;
  Pen Neatline;
};

/// The styles of a styles.json; throws std::runtime_error where it cannot be read.
std::vector<Style> ReadStyles(const QString& path);

}  // namespace mapmaker
