#pragma once

#include "projection.h"
#include "shape.h"
#include "tables.h"

#include <QString>

#include <map>
#include <string>

namespace mapmaker {

/// The land of every area of regions.csv in map coordinates, in the full detail of the source.
/// `geometry` is the directory with the GeoJSON files; throws std::runtime_error where one is
/// missing or lacks a subdivision.
std::map<std::string, Shape> ReadLand(const Tables& tables, const Projection& projection,
                                      const QString& geometry);

}  // namespace mapmaker
