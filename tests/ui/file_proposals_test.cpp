#include "ui/output/file_proposals.h"

#include "support/boards.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace orb::tests {
namespace {

TEST(FileProposals, NameOfASavedGame) {
  const std::vector<std::tuple<std::string, std::string, std::int16_t, std::string>> cases{
      {"CONCORDAT", "Spring", 1901, "con_s01.orb"},
      {"  My Game ", "Autumn", 1910, "my _a10.orb"},
      {"Q", "Spring", 7, "q_s7.orb"},
      {"", "", 1901, "_01.orb"},
      {"A/B", "/x", 1901, "a-b_-01.orb"},
      {".:?", "Spring", 1901, "---_s01.orb"},
      {"\tI\x01\x7f!", "Spring", 1901, "-i-_s01.orb"}};
  for (const auto& [title, season, year, proposed] : cases) {
    model::GameState game = EmptyBoard(season, "moves");
    game.Title = title;
    game.Year = year;
    EXPECT_EQ(ui::proposedGameFile(game), proposed);
  }
}

}  // namespace
}  // namespace orb::tests
