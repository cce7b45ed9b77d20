#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orb::history {

/// Game files in the order of the seasons that their names tell.
struct FileSequence {
  std::vector<std::filesystem::path> Files;
  std::vector<std::filesystem::path> Unfit;  ///< names without a season, as they were given
};

/// Sorts game files by the "Snn" (spring) or "Ann" (autumn) that their names carry in any letter
/// case, nn being the last two digits of the year, as in "con_s01.orb". Files of one season are
/// sorted by their names. Where a name holds several seasons, one that begins a word counts before
/// others, then the last. Years count from 00 to 99; only where both 99 and 00 occur the century
/// turns within the sequence, at its longest run of missing years.
FileSequence SortBySeason(const std::vector<std::filesystem::path>& files);

/// What stands before the season in a file's name, in small letters: what the files of a game have
/// in common. Nothing where the name carries no season.
std::optional<std::string> SeriesName(const std::filesystem::path& file);

}  // namespace orb::history
