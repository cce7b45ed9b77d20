#include "model/country.h"

#include <array>

namespace orb::model {
namespace {

struct Power {
  std::string_view Abbreviation;
  std::string_view Name;
  model::Colour Colour;
  model::Colour TextColour;
};

// Chosen so that every two fill colours differ by at least 17 (CIEDE2000) in the eyes of everybody,
// also of people without the red, the green or the blue cone.
constexpr std::array<Power, CountryCount> Powers = {{
    {"ENG", "England", Rgb(178, 50, 99), Rgb(112, 18, 56)},
    {"FRA", "France", Rgb(40, 109, 204), Rgb(12, 52, 122)},
    {"GER", "Germany", Rgb(46, 45, 41), Rgb(16, 16, 16)},
    {"RUS", "Russia", Rgb(246, 244, 236), Rgb(84, 78, 64)},
    {"TUR", "Turkey", Rgb(255, 216, 30), Rgb(100, 74, 0)},
    {"AUS", "Austria-Hungary", Rgb(220, 121, 31), Rgb(120, 52, 4)},
    {"ITA", "Italy", Rgb(85, 183, 136), Rgb(8, 80, 48)},
}};

}  // namespace

CountryTable FixedCountries() {
  CountryTable countries;
  for (const Power& power : Powers) {
    countries.Append({std::string(power.Abbreviation), std::string(power.Name), power.Colour,
                      power.TextColour, std::string()});
  }
  return countries;
}

std::string_view PowerName(int row) {
  return row == 0 ? std::string_view{} : Powers.at(static_cast<std::size_t>(row - 1)).Abbreviation;
}

int FindCountry(std::string_view abbreviation) {
  for (int i = 0; i < CountryCount; ++i) {
    if (Powers[static_cast<std::size_t>(i)].Abbreviation == abbreviation) return i + 1;
  }
  return 0;
}

}  // namespace orb::model
