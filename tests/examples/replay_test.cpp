#include "cli/run.h"
#include "model/files.h"
#include "support/directories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using orb::tests::TemporaryDirectory;

fs::path Examples() {
  return fs::path(ORB_SOURCE_DIR) / "examples";
}

/// The stage that a game file is in: the fourth field of its second line.
std::string StageOf(const fs::path& game) {
  const std::string bytes = orb::model::ReadFile(game);
  const std::size_t lineEnd = bytes.find("\"\r\n", bytes.find('\n'));
  const std::size_t quote = bytes.rfind('"', lineEnd - 1);
  return bytes.substr(quote + 1, lineEnd - quote - 1);
}

/// Plays the example game in a directory of its own, as examples/replay does.
class Replay {
 public:
  const fs::path& Directory() const { return directory_.Path(); }
  const std::vector<std::string>& Resolved() const { return resolved_; }

  void Play() {
    for (int year = 1901; year <= 1903 && !HasFailed(); ++year) {
      PlaySeason(std::to_string(year) + "-1-spring");
      PlaySeason(std::to_string(year) + "-2-autumn");
    }
  }

 private:
  static bool HasFailed() { return testing::Test::HasFatalFailure(); }

  std::string Made(const std::string& name) const { return (directory_.Path() / name).string(); }

  void Run(std::vector<std::string> arguments, const std::string& output) {
    arguments.insert(arguments.end(), {"-o", Made(output)});
    if (!game_.empty()) arguments.push_back(game_);
    arguments.insert(arguments.begin(), {"--data", orb::tests::DataDirectory().string()});
    std::ostringstream out;
    std::ostringstream err;
    ASSERT_EQ(orb::cli::Run(arguments, out, err), 0) << output << ": " << err.str();
    EXPECT_EQ(out.str(), "") << output;
    game_ = Made(output);
  }

  void PlaySeason(const std::string& season) {
    Run({game_.empty() ? "new" : "next"}, season + "-0-start.orb");
    if (HasFailed()) return;
    const std::map<std::string, std::string> numbers{
        {"moves", "1"}, {"retreats", "2"}, {"adjustments", "3"}};
    std::string stage = StageOf(game_);
    while (stage != "finished") {
      std::string name = season;
      name.append("-").append(numbers.at(stage)).append("-").append(stage);
      const fs::path orders = Examples() / (name + ".txt");
      ASSERT_TRUE(fs::exists(orders)) << orders;
      Run({"resolve", "--yes", "--orders", orders.string(), "--report", Made(name + ".report.txt"),
           "--reasons", Made(name + ".reasons.txt")},
          name + ".orb");
      if (HasFailed()) return;
      resolved_.push_back(name);
      stage = StageOf(game_);
    }
  }

  TemporaryDirectory directory_;
  std::string game_;
  std::vector<std::string> resolved_;
};

void ExpectSame(const Replay& replay, const std::string& name) {
  ASSERT_TRUE(fs::exists(Examples() / name)) << "examples/" << name << " is missing";
  EXPECT_EQ(orb::model::ReadFile(replay.Directory() / name),
            orb::model::ReadFile(Examples() / name))
      << "examples/" << name;
}

std::set<std::string> FileNames(const fs::path& directory) {
  std::set<std::string> names;
  for (const fs::directory_entry& entry : fs::directory_iterator(directory)) {
    names.insert(entry.path().filename().string());
  }
  return names;
}

class ExampleGame : public testing::Test {
 protected:
  void SetUp() override { replay_.Play(); }

  Replay replay_;
};

TEST_F(ExampleGame, GivesTheGameFilesAndReportsThatLieBesideTheOrders) {
  ASSERT_EQ(replay_.Resolved().size(), 13U);
  for (const std::string& name : FileNames(replay_.Directory())) {
    if (!name.ends_with(".reasons.txt")) ExpectSame(replay_, name);
  }
}

TEST_F(ExampleGame, GivesTheReasonsThatLieBesideTheOrders) {
  for (const std::string& stage : replay_.Resolved()) {
    ExpectSame(replay_, stage + ".reasons.txt");
  }
}

TEST_F(ExampleGame, HasNoFileThatThePlayDoesNotUse) {
  std::set<std::string> expected = FileNames(replay_.Directory());
  expected.insert({"README.md", "replay"});
  for (const std::string& stage : replay_.Resolved())
    expected.insert(stage + ".txt");
  EXPECT_EQ(FileNames(Examples()), expected);
}

std::string AllReports() {
  std::string text;
  for (const std::string& name : FileNames(Examples())) {
    if (name.ends_with(".report.txt")) text += orb::model::ReadFile(Examples() / name);
  }
  return text;
}

TEST(ExampleReports, ShowEveryResultWord) {
  const std::string reports = AllReports();
  for (const std::string word : {"syntax error", "no such unit", "not used", "impossible move",
                                 "impossible support", "cut", "convoy failed", "dislodged", "clash",
                                 "not a home centre", "centre not owned", "centre not empty1"}) {
    EXPECT_NE(reports.find(" ]  " + word + "\n"), std::string::npos) << word;
  }
  for (const std::string text :
       {" unordered; hold  \n", " !  retreat HEL\n", " !  disband\n", " failed disband\n"}) {
    EXPECT_NE(reports.find(text), std::string::npos) << text;
  }
}

/// Result words that no report of the example can or does show, and where they are tested.
TEST(ExampleReports, LeaveTheOtherResultWordsToTheDrawnCases) {
  const std::map<std::string, std::string> elsewhere{
      {" ]  impossible unit\n", "adjudication/adjustments.txt"},
      {", occupied\n", "adjudication/retreats.txt"},
      {", impossible move\n", "adjudication/retreats.txt"},
      {", impossible (standoff)\n", "adjudication/retreats.txt"},
      {", unordered\n", "adjudication/retreats.txt"},
  };
  for (const auto& [ending, file] : elsewhere) {
    const std::string cases = orb::model::ReadFile(orb::tests::TestFile(file));
    EXPECT_NE(cases.find(ending), std::string::npos) << ending << " in " << file;
  }
}

}  // namespace
