#include "adjudication/outcomes.h"

#include "adjudication/stages.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using orders::OrderOutcome;

/// "Yes", "failed", "cut" or "void" for each order, with a "*" behind those that nobody wrote.
std::string Words(const std::vector<OrderOutcome>& outcomes) {
  constexpr std::array<const char*, 5> words = {"entered", "yes", "failed", "cut", "void"};
  std::string text;
  for (const OrderOutcome& order : outcomes) {
    text += text.empty() ? "" : " ";
    text += words.at(static_cast<std::size_t>(order.Outcome));
    text += order.Unordered ? "*" : "";
  }
  return text;
}

std::vector<OrderOutcome> Resolved(model::GameState game) {
  ScriptedMessages messages;
  return adjudication::Outcomes(adjudication::ResolveStage(game, messages));
}

TEST(Outcomes, OfEveryStage) {
  struct Case {
    std::string Stage;
    std::vector<std::string> Lines;
    std::string Outcomes;
  };
  const std::vector<Case> cases = {
      {"moves", {"FRA A(Par) - Bur", "FRA A(Mar) hold", "ENG F(Lon)"}, "yes yes yes*"},
      {"moves", {"FRA A(Par) - Bur", "GER A(Mun) - Bur"}, "failed failed"},
      {"moves", {"FRA A(Par) - Xyz", "FRA A(Mar) - NTH", "> FRA A(Bur) hold"}, "void void void"},
      {"moves",
       {"FRA A(Par) S A(Mar) - Bur", "FRA A(Mar) hold", "ENG A(Lon) S FRA A(Mar) hold"},
       "void yes void"},
      {"moves",
       {"GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "FRA A(Bur) hold"},
       "yes yes failed"},
      {"moves",
       {"GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "FRA A(Bur) S A(Mar) hold",
        "FRA A(Mar) hold"},
       "yes yes cut yes"},
      {"moves",
       {"GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "FRA A(Bur) - NTH"},
       "yes yes void"},
      {"moves",
       {"ENG A(Lon) - Nwy", "ENG F(NTH) C A(Lon) - Nwy", "GER F(SKA) - NTH",
        "GER F(HEL) S F(SKA) - NTH"},
       "failed failed yes yes"},
      {"retreats",
       {"FRA A(Par) <Bur retreat Gas", "GER A(Par)", "FRA A(Pic) <Bel retreat Bur", "GER A(Pic)",
        "RUS F(BLA) <Con", "TUR F(BLA)", "AUS A(Vie) retreat Bud"},
       "yes yes void yes*"},
      {"adjustments",
       {"> FRA build A(Par)", "> FRA build A(Par)", "> FRA build A(Bre)"},
       "void void yes"}};
  for (const Case& test : cases) {
    model::GameState game = Board("Autumn", test.Stage, test.Lines);
    Own(game, "FRA Par Bre Mar Spa Por");
    if (test.Stage == "retreats") Own(game, "FRA");
    EXPECT_EQ(Words(Resolved(game)), test.Outcomes) << test.Lines[0];
  }
}

TEST(Outcomes, TellWhatWasOrdered) {
  const auto outcomes = Resolved(Board(
      "Spring", "moves", {"ENG A(Lon) - Nwy", "ENG F(NTH) C A(Lon) - Nwy", "ENG F(Edi) - NWG"}));
  ASSERT_EQ(outcomes.size(), 3U);
  EXPECT_TRUE(outcomes[0].ViaConvoy && !outcomes[2].ViaConvoy);
  EXPECT_EQ(outcomes[1].OtherLocation + outcomes[1].Destination, "LonNwy");
  EXPECT_EQ(outcomes[2].Power + outcomes[2].UnitType + outcomes[2].Location, "ENGFEdi");
}

TEST(Outcomes, BuildsBeyondTheLastUnitFail) {
  model::GameState game = EmptyBoard("Autumn", "adjustments");
  for (int i = 1; i < model::UnitBound; ++i)
    game.Units.Append().Location = "NTH";
  Own(game, "ENG Edi Lon");
  game.AdjustmentsList = {"ENG build A(Edi)", "ENG build A(Lon)"};
  EXPECT_EQ(Words(Resolved(game)), "yes failed");
}

TEST(Outcomes, AreNoneWhenNothingWasResolved) {
  model::GameState game = Board("Spring", "moves", {"FRA A(Par)"});
  ScriptedMessages no({model::Answer::No});
  EXPECT_TRUE(adjudication::Outcomes(adjudication::ResolveStage(game, no)).empty());
}

}  // namespace
}  // namespace orb::tests
