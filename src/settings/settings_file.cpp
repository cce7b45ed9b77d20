#include "settings/settings_file.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/record_file.h"
#include "settings/map_options.h"

#include <algorithm>
#include <array>
#include <system_error>

namespace orb::settings {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view FileName = "orb.ini";
constexpr std::string_view CentreCount = "Show centre count";
constexpr std::string_view NoCentreCount = "Don't show centre count";
constexpr std::string_view BordersByOwner = "Show centre owners";
constexpr std::string_view NoBordersByOwner = "Don't show centre owners";
constexpr std::string_view ViewOnly = "View only";
constexpr std::string_view Edit = "Edit";

constexpr int HighestColour = 0xFFFFFF;

/// In the order of MapMode.
constexpr std::array<std::string_view, 4> ModeNames = {"Colour 3D", "Colour", "Grey",
                                                       "Black/white"};

MapMode ModeNamed(std::string_view name) {
  const auto* const found = std::find(ModeNames.begin(), ModeNames.end() - 1, name);
  return static_cast<MapMode>(found - ModeNames.begin());
}

void ReadRecords(model::RecordReader& reader, Settings& settings, model::CountryTable& countries) {
  settings.Map.Mode = ModeNamed(reader.Text("a map mode"));
  settings.Map.ShowCentreCount = reader.Text("the centre count") == CentreCount;
  settings.Map.ColourBordersByOwner = reader.Text("the centre owners") == BordersByOwner;
  settings.ViewOnly = !reader.AtEnd() && reader.Text("view only") == ViewOnly;
  for (model::Country& country : countries) {
    if (reader.AtEnd()) return;
    const int colour = reader.NumberUpTo(HighestColour, "a colour");
    const int textColour = reader.NumberUpTo(HighestColour, "a text colour");
    country.Colour = static_cast<model::Colour>(colour);
    country.TextColour = static_cast<model::Colour>(textColour);
  }
}

}  // namespace

void ReadSettings(std::string_view bytes, Settings& settings, model::CountryTable& countries) {
  settings.Map.ShowCentreOwners = false;
  model::RecordReader reader(bytes, std::string(FileName));
  try {
    ReadRecords(reader, settings, countries);
  } catch (const model::FileError&) {
    // Nobody would give up a start for the sake of settings.
  }
}

std::string FormatSettings(const Settings& settings, const model::CountryTable& countries) {
  const MapOptions& map = settings.Map;
  model::RecordWriter writer;
  const auto writeText = [&](std::string_view text) { writer.Text(text).EndRecord(); };
  writeText(ModeNames.at(static_cast<std::size_t>(map.Mode)));
  writeText(map.ShowCentreCount ? CentreCount : NoCentreCount);
  writeText(map.ColourBordersByOwner ? BordersByOwner : NoBordersByOwner);
  writeText(settings.ViewOnly ? ViewOnly : Edit);
  for (const model::Country& country : countries) {
    writer.Number(static_cast<int>(country.Colour)).Number(static_cast<int>(country.TextColour));
    writer.EndRecord();
  }
  return writer.Take();
}

void ReadSettingsFile(const fs::path& file, Settings& settings, model::CountryTable& countries) {
  std::string bytes;
  try {
    bytes = model::ReadFile(file);
  } catch (const model::FileError&) {
    return;
  }
  ReadSettings(bytes, settings, countries);
}

void WriteSettingsFile(const fs::path& file, const Settings& settings,
                       const model::CountryTable& countries) {
  // Where the directory cannot be made, writing says why.
  std::error_code ignored;
  fs::create_directories(file.parent_path(), ignored);
  model::ReplaceFile(file, FormatSettings(settings, countries));
}

fs::path SettingsFileForWriting(const fs::path& programDirectory, const fs::path& userDirectory) {
  const fs::path beside = programDirectory / FileName;
  return model::CanReplaceFile(beside) ? beside : userDirectory / FileName;
}

fs::path SettingsFileForReading(const fs::path& programDirectory, const fs::path& userDirectory) {
  fs::path written = SettingsFileForWriting(programDirectory, userDirectory);
  std::error_code ignored;
  return fs::exists(written, ignored) ? written : programDirectory / FileName;
}

}  // namespace orb::settings
