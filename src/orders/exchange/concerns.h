#pragma once

#include "orders/exchange/known_game.h"
#include "orders/exchange/place_names.h"
#include "orders/exchange/read_line.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// Which orders of a text a line that is not understood may be about.
struct Concern {
  std::vector<std::string> Provinces;  ///< of their units, in capitals: "PAR"
  bool OfTargets = false;              ///< and of those that are to go or to help there
  bool OnlyAbove = false;              ///< it may be about no orders below
  bool IsOwn = false;     ///< the line begins as an order of its unit, and is about no other
  bool MayBeAll = false;  ///< all, if none of them is for a unit in one of the provinces
};

/// The province of an order's unit, in capitals.
std::string ProvinceOf(std::string_view order);

/// The province that an order is directed to, in capitals; empty for those that hold or disband.
std::string TargetOf(std::string_view order);

/// Whether an order is for a unit in one of the provinces.
bool Concerns(const Concern& concern, std::string_view order);

/// The provinces that words name, "BUR".
std::vector<std::string> PlacesIn(Tokens tokens, const PlaceNames& names, const model::Map& map);

/// What a line that is not understood may be about: one that begins as an order about its own unit,
/// prose about every place that it names, and where it makes a condition about all.
Concern ConcernOf(Tokens tokens, const PlaceNames& names, const model::Map& map);

/// Whether words begin with a unit of the power: what they say is said of that one.
bool BeginsWithUnit(Tokens words, std::string_view power, const KnownGame& known);

/// Whether a line names places, and none where a unit is ordered something right above it: then it
/// may be about any of those.
bool NamesOtherPlaces(Tokens line, const std::vector<ReadLine>& lines, const KnownGame& known);

}  // namespace orb::exchange
