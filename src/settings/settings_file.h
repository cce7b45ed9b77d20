#pragma once

#include "model/country.h"
#include "settings/map_options.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace orb::settings {

/// How the window shows the game; kept in the settings file together with the powers' colours.
struct Settings {
  MapOptions Map;
  bool ViewOnly = false;  ///< only the map shows
};

// A settings file, one record a line: the map mode; whether centres are counted; whether borders
// are coloured by owner; view only or not; then seven lines with a power's two colours. Old files
// end after the third record. The third record is worded "Show centre owners", but that toggle is
// never kept: it is off at every start.

/// Takes over what the file's bytes hold. Reading stops without an error where the file is short
/// or broken: what was not read stays as it is, a pair of colours as a whole.
void ReadSettings(std::string_view bytes, Settings& settings, model::CountryTable& countries);

/// The bytes of the settings file.
std::string FormatSettings(const Settings& settings, const model::CountryTable& countries);

/// Reads the file as ReadSettings does; one that is missing or cannot be read changes nothing.
void ReadSettingsFile(const std::filesystem::path& file, Settings& settings,
                      model::CountryTable& countries);

/// Writes the file whole, and makes the directory that it lies in. Throws FileError.
void WriteSettingsFile(const std::filesystem::path& file, const Settings& settings,
                       const model::CountryTable& countries);

/// Where the settings are written: beside the program where that is allowed, else in the user's
/// own directory, which need not exist yet.
std::filesystem::path SettingsFileForWriting(const std::filesystem::path& programDirectory,
                                             const std::filesystem::path& userDirectory);

/// Where the settings are read from: where they would be written, else beside the program.
std::filesystem::path SettingsFileForReading(const std::filesystem::path& programDirectory,
                                             const std::filesystem::path& userDirectory);

}  // namespace orb::settings
