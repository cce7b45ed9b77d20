#include "history/timeline.h"

#include "model/game_file.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace orb::history {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TimelineTest : public testing::Test {
 protected:
  /// A game in which France owns so many centres.
  void Write(const char* name, const char* title, int year, const char* season, const char* stage,
             int centres = 0) const {
    model::GameState game = tests::EmptyBoard(season, stage);
    game.Title = title;
    game.Year = static_cast<std::int16_t>(year);
    for (int p = 1; p <= game.Provinces.Count() && centres > 0; ++p) {
      if (game.Map->Provinces[p].IsSupplyCentre == 0) continue;
      game.Provinces[p].Owner = "FRA";
      --centres;
    }
    const auto file = directory_.Write(name, model::FormatGameFile(game));
    std::filesystem::last_write_time(file, at_ += std::chrono::seconds(1));
  }

  std::vector<Moment> Read(const std::vector<std::filesystem::path>& files) const {
    std::vector<Moment> moments;
    for (const auto& file : files) {
      if (auto moment = ReadMoment(file, tests::RealMap())) moments.push_back(std::move(*moment));
    }
    return moments;
  }

  std::vector<std::string> Alike(const char* name) const {
    std::vector<std::string> names;
    for (const auto& file : FilesNamedAlike(directory_.Path() / name))
      names.push_back(file.filename().string());
    return names;
  }

  tests::TemporaryDirectory directory_;
  mutable std::filesystem::file_time_type at_ = std::filesystem::file_time_type::clock::now();
};

TEST_F(TimelineTest, FilesOfAGameAreKnownByTheirNamesAndTitles) {
  Write("con_a01 built.orb", "C", 1901, "Autumn", "adjustments", 5);
  Write("con_a01.ORB", "C", 1901, "Autumn", "finished", 6);
  Write("con_s02.orb", "C", 1902, "Spring", "moves", 6);
  Write("con_s01.orb", "C", 1901, "Spring", "retreats", 3);
  Write("Con_S01 old.orb", "C", 1901, "Spring", "moves", 3);
  Write("con_s02 again.orb", "C", 1902, "Spring", "moves", 7);
  Write("con_s03.orb", "Another", 1903, "Spring", "moves");
  Write("two_s01.orb", "C", 1901, "Spring", "finished");
  Write("start.orb", "C", 1901, "Spring", "finished");
  Write("con_s01.dat", "C", 1901, "Spring", "finished");
  directory_.Write("con_s04.orb", "no game");
  std::filesystem::create_symlink("nowhere", directory_.Path() / "con_s05.orb");
  EXPECT_THAT(Alike("con_a09.orb"),
              UnorderedElementsAre("con_a01 built.orb", "con_a01.ORB", "con_s02.orb", "con_s01.orb",
                                   "Con_S01 old.orb", "con_s02 again.orb", "con_s03.orb",
                                   "con_s04.orb", "con_s05.orb"));
  EXPECT_THAT(Alike("new.orb"), ElementsAre("start.orb"));
  EXPECT_THAT(FilesNamedAlike("/no/such/folder/con_s01.orb"), IsEmpty());

  model::GameState now = tests::EmptyBoard("Autumn", "moves");
  now.Title = "C";
  now.Year = 1901;
  const auto line =
      Timeline(Read(FilesNamedAlike(directory_.Path() / "con_a01.orb")), MomentOf(now));
  std::vector<std::string> names;
  names.reserve(line.size());
  for (const Moment& moment : line)
    names.push_back(moment.File.filename().string());
  EXPECT_THAT(names, ElementsAre("Con_S01 old.orb", "con_s01.orb", "", "con_a01 built.orb",
                                 "con_a01.ORB", "con_s02 again.orb"));
  now.Stage = model::Stage::Finished;
  EXPECT_EQ(Timeline(line, MomentOf(now))[4].File, "") << "the present one, not its file";

  std::vector<std::string> centres;
  for (const SeasonCentres& season : CentresOverTime(line))
    centres.push_back(season.Season + ": " + std::to_string(season.Centres[1]));
  EXPECT_THAT(centres, ElementsAre("Spring 1901: 3", "Autumn 1901: 6", "Spring 1902: 7"));
}

}  // namespace
}  // namespace orb::history
