#include "adjudication/explain.h"
#include "adjudication/outcomes.h"
#include "adjudication/participants.h"
#include "adjudication/stages.h"
#include "support/boards.h"
#include "support/drawn_cases.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using adjudication::Resolution;
using testing::ElementsAre;
using testing::Pair;

/// "order = sentence", as the case writes it; of several orders with one text the last one's.
std::string Explained(const model::GameState& game, const Resolution& resolution,
                      const std::string& wanted) {
  const std::string order = wanted.substr(0, wanted.find(" = "));
  int k = resolution.Orders.Count();
  while (k > 0 && resolution.Orders[k].Text != order)
    --k;
  EXPECT_EQ(k == 0, order == "ADJUSTMENTS") << order;
  return order + " = " + Sentence(adjudication::ExplainOrder(game, resolution, k));
}

std::string Participants(const model::GameState& game, const Resolution& resolution) {
  std::string text;
  for (const auto& locations : adjudication::ReportParticipants(game, resolution)) {
    if (locations.empty()) text += '-';
    for (const std::string& location : locations)
      text.append(text.empty() || text.ends_with(' ') ? "" : " ").append(location);
    text += ", ";
  }
  return text.substr(0, text.size() - 2);
}

std::string OutcomeWords(const Resolution& resolution) {
  constexpr std::array<const char*, 5> words = {"entered", "yes", "failed", "cut", "void"};
  std::string text;
  for (const orders::OrderOutcome& order : adjudication::Outcomes(resolution)) {
    text.append(text.empty() ? "" : " ").append(words.at(static_cast<std::size_t>(order.Outcome)));
    text.append(order.Unordered ? "*" : "");
  }
  return text;
}

TEST(Resolution, TellsOfOrdersAsDrawn) {
  for (const DrawnCase& drawn : LoadDrawnCases("adjudication/facts.txt")) {
    SCOPED_TRACE(drawn.Name);
    model::GameState game = Board("Autumn", drawn.Note("stage"), drawn.Drawing);
    for (const std::string& note : drawn.Texts("owns"))
      Own(game, note);
    for (int i = std::stoi(drawn.Note("crowd", "0")); i > 0; --i)
      game.Units.Append().Location = "NTH";
    ScriptedMessages messages;
    const Resolution resolution = adjudication::ResolveStage(game, messages);
    EXPECT_TRUE(resolution.Completed);
    if (drawn.Has("stop")) {
      EXPECT_THAT(messages.Shown, ElementsAre(Pair(drawn.Note("stop"), model::Icon::Stop)));
      EXPECT_EQ(game.Units.Count(), model::UnitBound);
    }
    for (const std::string& wanted : drawn.Texts("why"))
      EXPECT_EQ(Explained(game, resolution, wanted), wanted);
    if (drawn.Has("parts")) {
      EXPECT_EQ(Participants(game, resolution), drawn.Note("parts"));
    }
    if (drawn.Has("outcomes")) {
      EXPECT_EQ(OutcomeWords(resolution), drawn.Note("outcomes"));
    }
  }
}

TEST(Resolution, TellsWhatWasOrdered) {
  model::GameState game = Board(
      "Spring", "moves", {"ENG A(Lon) - Nwy", "ENG F(NTH) C A(Lon) - Nwy", "ENG F(Edi) - NWG"});
  ScriptedMessages messages;
  const auto outcomes = adjudication::Outcomes(adjudication::ResolveStage(game, messages));
  ASSERT_EQ(outcomes.size(), 3U);
  EXPECT_TRUE(outcomes[0].ViaConvoy && !outcomes[2].ViaConvoy);
  EXPECT_EQ(outcomes[1].OtherLocation + outcomes[1].Destination, "LonNwy");
  EXPECT_EQ(outcomes[2].Power + outcomes[2].UnitType + outcomes[2].Location, "ENGFEdi");
}

TEST(Resolution, TellsNothingOfWhatWasNotResolved) {
  model::GameState game = Board("Spring", "moves", {"FRA A(Par)"});
  ScriptedMessages no({model::Answer::No});
  EXPECT_TRUE(adjudication::Outcomes(adjudication::ResolveStage(game, no)).empty());
}

}  // namespace
}  // namespace orb::tests
