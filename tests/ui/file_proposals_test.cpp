#include "ui/file_proposals.h"

#include "support/situation.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

TEST(FileProposals, NameOfASavedGame) {
  struct Case {
    std::string Title, Season;
    std::int16_t Year;
    std::string Proposed;
  };
  const std::vector<Case> cases{{"CONCORDAT", "Spring", 1901, "con_s01.orb"},
                                {"  My Game ", "Autumn", 1910, "my _a10.orb"},
                                {"Q", "Spring", 7, "q_s7.orb"},
                                {"", "", 1901, "_01.orb"}};
  for (const auto& given : cases) {
    model::GameState game = EmptyBoard(given.Season, "moves");
    game.Title = given.Title;
    game.Year = given.Year;
    EXPECT_EQ(ui::proposedGameFile(game), given.Proposed);
  }
}

TEST(FileProposals, FilterByTheCurrentFileName) {
  struct Case {
    std::string FileName;
    ui::GameFilter Filter;
  };
  const std::vector<Case> cases{{"", ui::GameFilter::Games},
                                {"/a/GAME.ORB", ui::GameFilter::Games},
                                {"/a/old.dat", ui::GameFilter::Data},
                                {"/a/old.dat.orb", ui::GameFilter::Games},
                                {"/a/notes.txt", ui::GameFilter::All}};
  for (const auto& given : cases)
    EXPECT_EQ(ui::gameFilterFor(given.FileName), given.Filter) << given.FileName;
}

}  // namespace
}  // namespace orb::tests
