#include "cli/run.h"
#include "model/files.h"
#include "session/commands.h"
#include "session/files_beside.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

fs::path Examples() {
  return fs::path(ORB_SOURCE_DIR) / "examples";
}

/// The stage that a game file is in: the fourth field of its second line.
std::string StageOf(const fs::path& game) {
  const std::string bytes = model::ReadFile(game);
  const std::size_t lineEnd = bytes.find("\"\r\n", bytes.find('\n'));
  const std::size_t quote = bytes.rfind('"', lineEnd - 1);
  return bytes.substr(quote + 1, lineEnd - quote - 1);
}

std::set<std::string> FileNames(const fs::path& directory) {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(directory))
    names.insert(entry.path().filename().string());
  return names;
}

/// Plays the example game in a directory of its own, as examples/replay does.
class ExampleGame : public testing::Test {
 protected:
  void Play() {
    for (int year = 1901; year <= 1903; ++year) {
      for (const char* season : {"-1-spring", "-2-autumn"}) {
        PlaySeason(std::to_string(year) + season);
        if (HasFatalFailure()) return;
      }
    }
  }

  TemporaryDirectory directory_;
  std::string game_;
  std::set<std::string> orders_;  ///< names of the order files that were used

 private:
  std::string Made(const std::string& name) const { return (directory_.Path() / name).string(); }

  void Run(std::vector<std::string> arguments, const std::string& output) {
    arguments.insert(arguments.end(), {"--data", DataDirectory().string(), "-o", Made(output)});
    if (!game_.empty()) arguments.push_back(game_);
    std::ostringstream out;
    std::ostringstream err;
    ASSERT_EQ(cli::Run(arguments, out, err), 0) << output << ": " << err.str();
    EXPECT_EQ(out.str(), "") << output;
    game_ = Made(output);
  }

  void PlaySeason(const std::string& season) {
    Run({game_.empty() ? "new" : "next"}, season + "-0-start.orb");
    const std::map<std::string, std::string> names{
        {"moves", "-1-moves"}, {"retreats", "-2-retreats"}, {"adjustments", "-3-adjustments"}};
    while (!HasFatalFailure() && StageOf(game_) != "finished") {
      const std::string name = season + names.at(StageOf(game_));
      orders_.insert(name + ".txt");
      Run({"resolve", "--yes", "--orders", (Examples() / (name + ".txt")).string(), "--report",
           Made(name + ".report.txt"), "--reasons", Made(name + ".reasons.txt")},
          name + ".orb");
    }
  }
};

TEST_F(ExampleGame, GivesTheFilesThatLieBesideTheOrders) {
  ASSERT_NO_FATAL_FAILURE(Play());
  const std::set<std::string> expected = FileNames(directory_.Path());
  for (const std::string& name : expected) {
    EXPECT_EQ(model::ReadFile(directory_.Path() / name), model::ReadFile(Examples() / name))
        << "examples/" << name;
  }
  EXPECT_EQ(orders_.size(), 13U);
  // What somebody who tries the program out leaves in the folder is none of the game's files.
  const std::set<std::string> there = FileNames(Examples());
  for (const std::string& name : orders_)
    EXPECT_TRUE(there.contains(name)) << name;
}

/// What no report of the example can or does show is left to the drawn cases.
TEST(ExampleReports, ShowEveryResultWord) {
  std::string reports;
  for (const std::string& name : FileNames(Examples())) {
    if (name.ends_with(".report.txt")) reports += model::ReadFile(Examples() / name);
  }
  for (const std::string text :
       {" ]  syntax error\n", " ]  no such unit\n", " ]  not used\n", " ]  impossible move\n",
        " ]  impossible support\n", " ]  cut\n", " ]  convoy failed\n", " ]  dislodged\n",
        " ]  clash\n", " ]  not a home centre\n", " ]  centre not owned\n",
        " ]  centre not empty1\n", " unordered; hold  \n", " !  retreat HEL\n", " !  disband\n",
        " failed disband\n"}) {
    EXPECT_NE(reports.find(text), std::string::npos) << text;
  }
}

/// The names of the example's files follow the order of time.
TEST(ExampleFiles, BesideAGameAreThoseOfUntilThen) {
  std::size_t earlier = 0;
  for (const std::string& name : FileNames(Examples())) {
    if (!name.ends_with(".orb")) continue;
    session::Situation situation{model::EmptyGame(RealMap())};
    model::Consent messages;
    ASSERT_TRUE(session::ReadGame(situation, Examples() / name, messages));
    EXPECT_EQ(session::FilesBeside(situation).size(), earlier++) << name;
  }
}

}  // namespace
}  // namespace orb::tests
