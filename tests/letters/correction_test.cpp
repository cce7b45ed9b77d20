#include "letters/correction.h"

#include "session/trial.h"
#include "support/boards.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using letters::Correction;
using model::GameState;

using session::Situation;

std::vector<std::string> Sentences(const Situation& before, const Situation& after) {
  std::vector<std::string> sentences;
  for (const Correction& correction : letters::Corrections(before, after))
    sentences.push_back(correction.Sentence);
  return sentences;
}

TEST(Correction, TellsTwoOutcomesOfOneSeason) {
  const Situation before = session::TryOut({Board(
      "Spring", "moves",
      {"FRA A(Par) - Bur", "FRA A(Mar) S A(Par) - Bur", "GER A(Bur) hold", "ITA A(Pie) - Mar"})});
  Situation after = session::TryOut({Board(
      "Spring", "moves",
      {"FRA A(Par) - Bur", "FRA A(Mar) S A(Par) - Bur", "GER A(Bur) hold", "ITA A(Pie) - Ven"})});
  std::vector<std::string> sentences = {
      "The season is Spring 1901, retreats instead of Spring 1901, finished.",
      // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): sentences of several lines
      "The result of FRA A(Par) - Bur is \"carried out\" instead of \"bounced\". It moved: "
      "strength 2 (supported by FRA A(Mar)) beats strength 1 of GER A(Bur), which stayed there.",
      "The result of FRA A(Mar) S A(Par) - Bur is \"carried out\" instead of \"cut\". It "
      "supported \"FRA A(Par) - Bur\".",
      "The result of GER A(Bur) hold is \"dislodged\" instead of \"carried out\". It was "
      "dislodged by \"FRA A(Par) - Bur\": strength 2 (supported by FRA A(Mar)) beats its strength "
      "1.",
      "ITA A(Pie) - Ven was ordered instead of ITA A(Pie) - Mar. It moved: the place was empty and "
      "no other move aimed there.",
      "GER A(Bur) is dislodged (attacked from Par).",
      "FRA A(Par) is in Bur.",
      "ITA A(Pie) is in Ven.",
  };
  std::vector<std::string> told = Sentences(before, after);
  for (const std::string& sentence : sentences)
    EXPECT_EQ(std::erase(told, sentence), 1U) << sentence;
  for (const std::string& sentence : told)
    ADD_FAILURE() << sentence;
  // Where one of them does not know its orders, or they are of two seasons, the positions speak.
  after.Game.Year = 1902;
  EXPECT_EQ(Sentences(before, after).size(), 4U);
  after.Game.Year = before.Game.Year;
  after.Notes.clear();
  EXPECT_EQ(Sentences(before, after).size(), 4U);
}

TEST(Correction, TellsWhatWasEditedAndNothingElse) {
  struct Case {
    std::function<void(GameState&)> Edit;
    std::vector<std::string> Sentences;
  };
  const std::vector<Case> cases = {
      {[](GameState&) {}, {}},
      // Orders that wait are secret.
      {[](GameState& game) { game.OrdersList = {"FRA A(Par) - Pic"}; }, {}},
      {[](GameState& game) { game.Title = "Spring games"; },
       {"The title is Spring games instead of CONCORDAT."}},
      {[](GameState& game) { game.Year = 1902; },
       {"The season is Spring 1902, moves instead of Spring 1901, moves."}},
      {[](GameState& game) { game.Countries[2].PlayerName = "Anna"; },
       {"France is played by Anna instead of nobody."}},
      {[](GameState& game) { Own(game, "GER Bel"); }, {"Bel belongs to GER instead of nobody."}},
      {[](GameState& game) { Own(game, "GER Bur"); }, {}},
      {[](GameState& game) { game.Units[1].UnitType = "F"; },
       {"There is no FRA A(Par).", "There is FRA F(Par), which was missing."}},
      {[](GameState& game) { game.Units[1].Status = model::Dislodged; },
       {"FRA A(Par) is dislodged."}},
      {[](GameState& game) { Live(game, "Bur").Uncontested = false; }, {}},
      {[](GameState& game) { game.TextLines.Append("Hello"); }, {"The free text is another one."}},
  };
  GameState before = Board("Spring", "moves", {"FRA A(Par) - Bur", "GER A(Mun)"});
  before.Title = "CONCORDAT";
  for (const auto& [edit, sentences] : cases) {
    GameState after = before;
    edit(after);
    EXPECT_EQ(Sentences({before}, {after}), sentences);
    EXPECT_EQ(letters::CorrectionNotice({before}, {after}).ends_with("nothing to correct.\n"),
              sentences.empty());
  }
  GameState contested = Board("Spring", "retreats", {"FRA A(Par) <Bur"});
  GameState open = contested;
  Live(contested, "Pic").Uncontested = false;
  EXPECT_EQ(
      Sentences({open}, {contested}),
      (std::vector<std::string>{"FRA A(Par) may retreat to Bre, Gas instead of Bre, Gas, Pic."}));
}

}  // namespace
}  // namespace orb::tests
