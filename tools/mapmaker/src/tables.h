#pragma once

#include "shape.h"

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace mapmaker {

enum class Kind { Land, Water, Coast };

/// A location of the map: a row of provinces.csv.
struct Location {
  std::string Abbreviation;
  std::string FullName;
  Kind Type = Kind::Land;
  std::string Home;  ///< a power's abbreviation, or empty
  bool IsSupplyCentre = false;
};

/// Where the label and the unit of a location stand, in fractions of the map's width and height.
struct Placement {
  Point Label;
  Point Unit;
};

/// One subdivision of a country, or the part of it that belongs to one area.
struct Piece {
  std::string Area;
  std::string Country;  ///< name of the file without its ending
  std::string Code;     ///< adm1_code; "*" for all of the file
  std::string Rule;     ///< empty, "in:RING" or "out:RING+RING"
};

/// A ring in longitude and latitude, not closed, and the area it concerns.
struct NamedRing {
  std::string Name;
  std::string Area;
  Line Ring;
};

/// A place where the map is drawn larger, so that small provinces have room.
struct Magnifier {
  Point Centre;         ///< in fractions of the frame
  double Radius = 0;    ///< standard deviation of the effect, in fractions of the frame's width
  double Strength = 0;  ///< 0.2 enlarges the centre to 1.2 times its length
};

/// The projection and the part of its plane that is shown.
struct Frame {
  std::string Projection;
  double Left = 0, Bottom = 0, Right = 0, Top = 0;                  ///< in metres
  double ClipWest = 0, ClipEast = 0, ClipSouth = 0, ClipNorth = 0;  ///< in degrees
  std::vector<Magnifier> Magnifiers;
};

/// All the tables of the input directory but the style.
struct Tables {
  std::vector<Location> Locations;
  std::vector<Placement> Placements;
  std::vector<Piece> Pieces;
  std::map<std::string, Line> Cuts;
  std::vector<NamedRing> Bridges;
  std::vector<NamedRing> InlandWater;
  std::map<std::string, Line> Seas;
  std::vector<NamedRing> Straits;
  mapmaker::Frame Frame;
};

/// Reads the tables of `directory`; throws std::runtime_error naming the file that is wrong.
Tables ReadTables(const QString& directory);

}  // namespace mapmaker
