#pragma once

#include "history/centre_counts.h"
#include "model/game_state.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orb::history {

/// A stage of a game that some file holds: what its heading tells, and who owns how much.
struct Moment {
  std::string Title;
  std::string Season;
  int Year = 0;
  model::Stage Stage;
  CentreCounts Centres{};
  std::filesystem::path File;  ///< empty: it is in no file as it stands
  std::filesystem::file_time_type Written{};
};

/// The moment of a situation; its file is left to the caller.
Moment MomentOf(const model::GameState& game);

/// The moment that a file holds; nothing for one that cannot be read as a game on this map.
std::optional<Moment> ReadMoment(const std::filesystem::path& file,
                                 const std::shared_ptr<const model::Map>& map);

/// The game files in a file's folder whose names say that they are of the same game: with the same
/// text before the season's code, or without a code where the file has none. The file itself is
/// one of them where it is there. In no order, no more than anybody plays.
std::vector<std::filesystem::path> FilesNamedAlike(const std::filesystem::path& file);

/// Whether both are the same stage of the same season.
bool IsSameStage(const Moment& a, const Moment& b);

/// The present moment and those of the same title, in the order of the game. Of several of one
/// stage there is the present one, else the one written last.
std::vector<Moment> Timeline(std::vector<Moment> moments, const Moment& present);

/// The last of the moments, in the order of the game, of each season.
std::vector<SeasonCentres> CentresOverTime(const std::vector<Moment>& moments);

}  // namespace orb::history
