#include "letters/letter.h"

#include "adjudication/possible_orders.h"
#include "model/game_file.h"
#include "orders/order_list.h"
#include "session/commands.h"
#include "session/files_beside.h"
#include "session/trial.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using letters::Letter;
using session::Situation;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr int France = 2;

/// The letter's text without what stands in front of its parts, each line on its own.
std::string PartsOf(const Letter& letter) {
  return letter.Text.substr(letter.Text.find("\n\n") + 2);
}

struct Case {
  const char* Stage;
  std::vector<std::string> Lines;
  std::string Own;
  std::string Parts;  ///< of the letter to France
  session::Rules Rules = session::Rules::Orb;
};

const std::vector<Case> Cases = {
    {"moves",
     {"FRA A(Par) - Bur", "FRA A(Mar)", "GER A(Mun) - Bur", "> nonsense"},
     "",
     "France: 1 of 2 orders.\n\n"
     "Received, as understood\n-----------------------\n  FRA A(Par) - Bur\n\n"
     "Still to be ordered\n-------------------\n  FRA A(Mar)\n"
     "A unit without an order holds.\n"},
    // A support and a convoy of others are neither right nor wrong, whatever the others ordered.
    {"moves",
     {"FRA F(ECH) C ENG A(Lon) - Bel", "FRA A(Pic) S ENG A(Lon) - Bel",
      "FRA A(Bur) S GER A(Mun) hold", "ENG A(Lon) - Nwy", "GER A(Mun) - Tyr"},
     "",
     "France: 3 of 3 orders.\n\n"
     "Received, as understood\n-----------------------\n  FRA F(ECH) C ENG A(Lon) - Bel\n"
     "  FRA A(Pic) S ENG A(Lon) - Bel\n  FRA A(Bur) S GER A(Mun) hold\n\n"
     "Depends on others\n-----------------\n"
     "  FRA F(ECH) C ENG A(Lon) - Bel\n"
     "      It counts only if there is this order: ENG A(Lon) - Bel.\n"
     "  FRA A(Pic) S ENG A(Lon) - Bel\n"
     "      It counts only if there is this order: ENG A(Lon) - Bel.\n"
     "  FRA A(Bur) S GER A(Mun) hold\n"
     "      It counts only if there is this order: GER A(Mun) hold.\n"},
    // What everybody can see on the board, or in the power's own orders, is said.
    {"moves",
     {"FRA A(Par) S ENG A(Lon) - Bel", "FRA A(Mar) S A(Gas) - Bur", "FRA A(Gas) hold",
      "FRA A(Bre) S GER A(Pic) - Par", "ENG A(Lon) - Bel", "ENG A(Pic)"},
     "",
     "France: 4 of 4 orders, 3 doubtful.\n\n"
     "Received, as understood\n-----------------------\n  FRA A(Par) S ENG A(Lon) - Bel\n"
     "  FRA A(Mar) S A(Gas) - Bur\n  FRA A(Gas) hold\n  FRA A(Bre) S GER A(Pic) - Par\n\n"
     "Cannot be carried out\n---------------------\n"
     "  FRA A(Par) S ENG A(Lon) - Bel\n"
     "      impossible support: the army in Par cannot move to Bel, so it cannot\n"
     "      support there.\n"
     "  FRA A(Bre) S GER A(Pic) - Par\n"
     "      not used: there is no GER A(Pic); the unit there is ENG A(Pic).\n\n"
     "Matches none of your orders\n---------------------------\n"
     "  FRA A(Mar) S A(Gas) - Bur\n"
     "      not used: FRA A(Gas) was not ordered to move. It would take FRA A(Gas) -\n"
     "      Bur.\n"},
    // An army may wait for the fleet of another, as long as there is one.
    {"moves",
     {"FRA A(Bre) - Lon", "ENG F(ECH) C FRA A(Bre) - Lon"},
     "",
     "France: 1 of 1 order.\n\n"
     "Received, as understood\n-----------------------\n  FRA A(Bre) - Lon\n\n"
     "Depends on others\n-----------------\n  FRA A(Bre) - Lon\n"
     "      It needs a convoy, and none of your own fleets has the order to give it.\n"},
    {"moves",
     {"FRA A(Bre) - Lon"},
     "",
     "France: 1 of 1 order, 1 doubtful.\n\n"
     "Received, as understood\n-----------------------\n  FRA A(Bre) - Lon\n\n"
     "Cannot be carried out\n---------------------\n  FRA A(Bre) - Lon\n"
     "      impossible move: no army can move from Bre to Lon by land, and no order\n"
     "      convoys it.\n"},
    {"retreats",
     {"FRA A(Bur) <Mun", "FRA A(Bel) <Hol retreat Pic", "GER A(Mar)",
      "GER A(Par) <Pic retreat Gas"},
     "",
     "France: 1 of 2 retreats.\n\n"
     "Received, as understood\n-----------------------\n  FRA A(Bel) retreat Pic\n\n"
     "Still to be ordered\n-------------------\n"
     "  FRA A(Bur) retreat Gas, Pic, Ruh or disband\n"
     "A unit without an order is disbanded.\n"},
    {"adjustments",
     {"FRA A(Bur)", "> FRA build A(Par)", "> FRA build F(Mun)", "> GER build A(Mun)"},
     "FRA Par Mar Bur Bre",
     "France: 1 of 2 builds, 1 doubtful.\n\n"
     "Received, as understood\n-----------------------\n  FRA build A(Par)\n  FRA build F(Mun)\n\n"
     "Cannot be carried out\n---------------------\n  FRA build F(Mun)\n"
     "      not a home centre: Mun is no home centre of FRA.\n\n"
     "Still to be ordered\n-------------------\n  FRA may build 1: Bre, Mar\n"},
};

TEST(Letter, SaysWhatThePowerItselfCanKnow) {
  for (const Case& row : Cases) {
    Situation situation{Board("Spring", row.Stage, row.Lines)};
    situation.Rules = row.Rules;
    if (!row.Own.empty()) Own(situation.Game, row.Own);
    EXPECT_EQ(PartsOf(letters::LetterTo(situation, France)), row.Parts) << row.Lines[0];
  }
}

/// Orders of all units and powers, drawn from those that are possible and some that are not.
std::vector<std::string> AnyOrders(const model::GameState& game, std::mt19937& random) {
  const adjudication::PossibleOrders possible(game);
  std::vector<std::string> list;
  const auto add = [&](const std::vector<std::string>& lines) {
    if (lines.empty() || random() % 8 == 0) return;
    std::string line = lines[random() % lines.size()];
    if (random() % 6 == 0) line.erase(line.size() - 1);
    list.push_back(std::move(line));
  };
  for (int u = 1; u <= game.Units.Count(); ++u)
    add(possible.OfUnit(u));
  for (int power = 1; power <= model::CountryCount; ++power) {
    for (int i = 0; i < 3; ++i)
      add(possible.OfPower(power));
  }
  return list;
}

/// Secrecy, as it is meant: a power's letter is the same whatever the others have ordered.
TEST(Letter, DoesNotDependOnTheOrdersOfOthers) {
  std::mt19937 random(1);
  int told = 0;
  for (const char* file : {"1903-2-autumn-0-start.orb", "1903-2-autumn-1-moves.orb",
                           "1903-2-autumn-2-retreats.orb", "1902-1-spring-0-start.orb"}) {
    Situation situation{model::EmptyGame(RealMap())};
    model::Consent messages;
    ASSERT_TRUE(session::ReadGame(
        situation, std::filesystem::path(ORB_SOURCE_DIR) / "examples" / file, messages));
    for (int round = 0; round < 8; ++round) {
      situation.Rules = round % 2 == 0 ? session::Rules::Orb : session::Rules::Usual;
      std::vector<std::string>& list = orders::StageList(situation.Game);
      list = AnyOrders(situation.Game, random);
      const std::vector<Letter> before = letters::Letters(situation);
      for (const Letter& letter : before) {
        Situation other = situation;
        std::vector<std::string>& others = orders::StageList(other.Game);
        others = AnyOrders(situation.Game, random);
        std::erase_if(others, [&](const auto& line) { return line.starts_with(letter.Power); });
        // Lines keep their order within a power, and stand anywhere among those of the others.
        std::size_t at = 0;
        for (const std::string& line : list) {
          if (!line.starts_with(letter.Power)) continue;
          at += random() % (others.size() - at + 1);
          others.insert(others.begin() + static_cast<std::ptrdiff_t>(at++), line);
        }
        const Letter after = letters::LetterTo(other, model::FindCountry(letter.Power));
        ASSERT_EQ(after.Text, letter.Text) << file;
        ASSERT_EQ(after.Orders, letter.Orders) << file;
        told += letter.Text.find("Depends on others") == std::string::npos ? 0 : 1;
      }
    }
  }
  EXPECT_GT(told, 30) << "the positions try nothing";
}

TEST(Letter, TellsResultsWithReasonsAndWhatIsDue) {
  const Situation situation{Board(
      "Spring", "moves",
      {"FRA A(Bur) - Ruh", "GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "ENG F(NTH) hold"})};
  const Situation after = session::TryOut(situation);
  const std::string text = letters::LetterTo(after, France).Text;
  EXPECT_THAT(text, HasSubstr("[ FRA A(Bur) - Ruh ]  dislodged\n      It "));
  EXPECT_THAT(text, HasSubstr("  FRA A(Bur) retreat "));
  EXPECT_THAT(text, Not(HasSubstr("ENG")));
  EXPECT_EQ(letters::Letters(after).size(), 3U);
}

/// Game files hold no report: it is found again by the orders that led to them.
TEST(Letter, TellsWhatTheFilesBesideAGameShow) {
  const TemporaryDirectory directory;
  const auto write = [&](const char* name, const model::GameState& game) {
    return directory.Write(name, model::FormatGameFile(game));
  };
  const auto read = [](const std::filesystem::path& file) {
    Situation situation{model::EmptyGame(RealMap())};
    model::Consent messages;
    EXPECT_TRUE(session::ReadGame(situation, file, messages));
    return situation;
  };
  const auto textOf = [&](const std::filesystem::path& file) {
    return letters::LetterTo(session::ToldByFilesBeside(read(file)), France).Text;
  };
  const std::vector<std::string> lines = {"FRA A(Bur) - Bel",          "FRA A(Par) - Pic",
                                          "GER A(Mun) - Bur",          "GER A(Ruh) S A(Mun) - Bur",
                                          "ENG F(NTH) C A(Yor) - Bel", "ENG A(Yor) - Bel"};
  Situation start{Board("Autumn", "moves", lines)};
  Own(start.Game, "FRA Par Mar");
  Own(start.Game, "GER Mun Ber Kie");
  Situation moved = session::TryOut(start);
  const auto before = write("start.orb", start.Game);
  const auto after = write("moved.orb", moved.Game);
  // Orders that led elsewhere, and another stage of what they led to, are not its story.
  Situation other = start;
  other.Game.OrdersList[1] = "FRA A(Par) - Gas";
  write("a.orb", other.Game);
  write("b.orb", session::TryOut(other).Game);
  const std::string results =
      "What became of your orders\n--------------------------\n  [ FRA A(Bur) - Bel ]  dislodged\n";
  const std::string pic = "  FRA A(Par) - Pic\n      It moved";
  EXPECT_THAT(textOf(after), AllOf(HasSubstr(results), HasSubstr(pic), HasSubstr("0 of 1 retreat"),
                                   HasSubstr("  FRA A(Bur), dislodged by an attack from Mun\n"
                                             "  FRA A(Pic), from Par\n"),
                                   Not(HasSubstr("ENG A(Yor)\n"))));
  for (const bool isDisbanded : {false, true}) {
    orders::StageList(moved.Game) = {isDisbanded ? "FRA A(Bur) disband" : "FRA A(Bur) retreat Gas"};
    const Situation retreated = session::TryOut(moved);
    EXPECT_THAT(textOf(write("retreated.orb", retreated.Game)),
                AllOf(HasSubstr(results), HasSubstr(pic),
                      HasSubstr(isDisbanded ? "FRA A(Bur), no longer on the board\n"
                                            : "FRA A(Gas), retreated from Bur\n")));
  }
  // Without the file that the season began with only the positions speak; and what waits is secret.
  std::filesystem::remove(before);
  EXPECT_THAT(textOf(after), AllOf(Not(HasSubstr("became of")), HasSubstr("FRA A(Pic), from Par")));
  EXPECT_THAT(
      textOf(directory.Path() / "a.orb"),
      AllOf(Not(HasSubstr("became of")), Not(HasSubstr("GER")), Not(HasSubstr("Your units"))));
}

TEST(Letter, OpensInAMailProgram) {
  const Letter letter{"FRA", "A & B: 50 %", "F\xFCr dich\n= 1\n", {}};
  EXPECT_EQ(letters::MailLink(letter, "a+b@example.org"),
            "mailto:a%2Bb@example.org?subject=A%20%26%20B%3A%2050%20%25"
            "&body=F%C3%BCr%20dich%0D%0A%3D%201%0D%0A");
}

}  // namespace
}  // namespace orb::tests
