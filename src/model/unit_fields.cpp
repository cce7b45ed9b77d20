#include "model/unit_fields.h"

#include "model/country.h"

namespace orb::model {

std::string ExpectedPower(std::string_view expected) {
  std::string text(expected);
  std::string_view before = " (one of ";
  for (const Country& country : FixedCountries()) {
    text.append(before).append(country.Abbreviation);
    before = ", ";
  }
  return text + ")";
}

std::string_view ReadPower(RecordReader& reader) {
  constexpr std::string_view expected = "a unit's power";
  const std::string_view power = reader.Text(expected);
  if (FindCountry(power) == 0) reader.Refuse(ExpectedPower(expected), power);
  return power;
}

std::string_view ReadUnitType(RecordReader& reader) {
  constexpr std::string_view expected = "a unit's type";
  const std::string_view type = reader.Text(expected);
  if (type != "A" && type != "F") reader.Refuse(std::string(expected) + " (A or F)", type);
  return type;
}

}  // namespace orb::model
