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

constexpr std::array<Power, CountryCount> Powers = {{
    {"ENG", "England", Rgb(200, 50, 75), Rgb(120, 15, 40)},
    {"FRA", "France", Rgb(47, 111, 208), Rgb(16, 52, 120)},
    {"GER", "Germany", Rgb(74, 74, 74), Rgb(30, 30, 30)},
    {"RUS", "Russia", Rgb(244, 241, 228), Rgb(90, 84, 70)},
    {"TUR", "Turkey", Rgb(242, 195, 24), Rgb(112, 84, 0)},
    {"AUS", "Austria-Hungary", Rgb(224, 116, 42), Rgb(130, 56, 8)},
    {"ITA", "Italy", Rgb(46, 158, 87), Rgb(10, 84, 40)},
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

int FindCountry(std::string_view abbreviation) {
  for (int i = 0; i < CountryCount; ++i) {
    if (Powers[static_cast<std::size_t>(i)].Abbreviation == abbreviation) return i + 1;
  }
  return 0;
}

}  // namespace orb::model
