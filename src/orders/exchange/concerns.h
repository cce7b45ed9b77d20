#pragma once

#include "orders/exchange/place_names.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

/// Which orders of a text a line that is not understood may be about.
struct Concern {
  std::vector<std::string> Provinces;  ///< of their units, in capitals: "PAR"
  bool OfTargets = false;              ///< and of those that are to go or to help there
  bool IsOwn = false;     ///< the line begins as an order of its unit, and is about no other
  bool MayBeAll = false;  ///< all, if none of them is for a unit in one of the provinces
};

/// The province of an order's unit, in capitals.
std::string ProvinceOf(std::string_view order);

/// The province that an order is directed to, in capitals; empty for those that hold or disband.
std::string TargetOf(std::string_view order);

/// Whether an order is for a unit in one of the provinces.
bool Concerns(const Concern& concern, std::string_view order);

/// What a line that is not understood may be about: one that begins as an order about its own unit,
/// prose about every place that it names, and where it makes a condition about all.
Concern ConcernOf(Tokens tokens, const PlaceNames& names, const model::Map& map);

}  // namespace orb::exchange
