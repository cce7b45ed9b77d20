#include "adjudication/participants.h"

#include "adjudication/stages.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

#include <gtest/gtest.h>

namespace orb::tests {
namespace {

TEST(Participants, StandWhereTheMapShowsThem) {
  struct Case {
    std::string Stage;
    std::vector<std::string> Lines, Expected;
  };
  const std::vector<Case> cases = {
      {"moves",
       {"GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "FRA A(Bur) hold", "ITA A(Mar) - Bur",
        "FRA A(Bel) - Ruh", "RUS F(Stp.n) hold", "> RUS A(Stp) hold"},
       {"Mun Ruh Bur Mar Bel", "Ruh Mun Bel", "Bur Mun Mar", "Mar Mun Bur", "Bel Ruh", "Stp.n",
        "Stp.n"}},
      {"moves",
       {"ENG A(Lon) - Bel", "ENG F(ECH) C A(Lon) - Bel", "FRA F(Bre) - ECH",
        "FRA F(MAO) S F(Bre) - ECH", "TUR A(Smy) - Ank", "TUR A(Ank) - Con", "TUR A(Con) - Smy",
        "GER A(Kie) S A(Mun) - Ber", "GER A(Mun)"},
       {"Lon ECH", "ECH Lon MAO", "ECH MAO", "MAO ECH", "Ank Con Smy", "Con Ank Smy", "Smy Ank Con",
        "Kie Mun", "Mun"}},
      {"retreats",
       {"FRA A(Bur) <Mun retreat Gas", "FRA A(Par) <Bre retreat Gas", "GER A(Bur)",
        "ITA A(Pie) <Ven retreat Ven", "AUS A(Pie)", "TUR A(Con) <Bul retreat Smy",
        "RUS A(Kie) hold"},
       {"Bur Par", "Par Bur", "Pie", "Smy"}},
      {"adjustments",
       {"FRA A(Par)", "> FRA BUILD A(Par)", "> FRA DISBAND A(Par)", "> GER BUILD F(Kie)",
        "> GER BUILD A(Kie)", "> ITA BUILD A(Xxx)"},
       {"", "Par", "Par", "Kie", "Kie", ""}}};
  for (const Case& c : cases) {
    model::GameState game = Board("Spring", c.Stage, c.Lines);
    Own(game, "GER Kie");
    ScriptedMessages messages;
    const auto resolution = adjudication::ResolveStage(game, messages);
    const auto lines = adjudication::ReportParticipants(game, resolution);
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(game.ReportLines.Count()));
    std::vector<std::string> seen;
    for (const auto& locations : lines) {
      std::string text;
      for (const std::string& location : locations)
        text.append(text.empty() ? "" : " ").append(location);
      seen.push_back(text);
    }
    EXPECT_EQ(testing::PrintToString(seen), testing::PrintToString(c.Expected));
  }
}

}  // namespace
}  // namespace orb::tests
