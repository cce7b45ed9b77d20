#pragma once

#include "model/table.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace orb::model {

/// A 32-bit colour, 0x00BBGGRR.
using Colour = std::uint32_t;

/// The colour number of red, green and blue parts 0..255.
constexpr Colour Rgb(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8 | blue << 16;
}

/// One of the seven powers.
struct Country {
  std::string Abbreviation;
  std::string Name;
  model::Colour Colour = 0;      ///< fill colour of its units and centres
  model::Colour TextColour = 0;  ///< outline of its colour sample; its count is written in it
  std::string PlayerName;

  bool operator==(const Country&) const = default;
};

constexpr int CountryCount = 7;

using CountryTable = Table<Country, CountryCount>;

/// The seven powers in their fixed order with their default colours and no player names.
CountryTable FixedCountries();

/// The abbreviation of the power in row 1..7; empty for row 0.
std::string_view PowerName(int row);

/// Row 1..7 of the power with this abbreviation (exact, case-sensitive), or 0.
int FindCountry(std::string_view abbreviation);

}  // namespace orb::model
