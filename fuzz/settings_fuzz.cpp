#include "settings/settings_file.h"
#include "support/fuzzing.h"

// The input is a settings file.

namespace orb::fuzz {
namespace {

struct Read {
  settings::Settings Settings;
  model::CountryTable Countries = model::FixedCountries();
};

std::string ReadAndWrite(std::string_view bytes) {
  Read read;
  settings::ReadSettings(bytes, read.Settings, read.Countries);
  Require(!read.Settings.Map.ShowCentreOwners, "a toggle that is never kept");
  for (const model::Country& country : read.Countries) {
    Require(country.Colour <= 0xFFFFFF && country.TextColour <= 0xFFFFFF, "no colour");
  }
  return settings::FormatSettings(read.Settings, read.Countries);
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string written = orb::fuzz::ReadAndWrite(orb::fuzz::Text(data, size));
  const std::string again = orb::fuzz::ReadAndWrite(written);
  orb::fuzz::Require(again == written, "reads back otherwise", written + "---\n" + again);
  return 0;
}
