#include "history/replay_sequence.h"
#include "model/errors.h"
#include "support/boards.h"
#include "support/drawn_cases.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using history::Journey;
using history::Replay;
using model::GameState;
using orders::OrderOutcome;
using orders::Outcome;

using Texts = std::vector<std::string>;

/// A situation; a unit is written "FRA A(Bur) Par": it came from Paris; "~" stands for no place.
/// "GER A(Pic) Bur Par" was dislodged from Burgundy by a move out of Paris.
GameState BoardOf(std::string_view stage, const Texts& units, std::string_view contested = {},
                  std::string_view season = "Spring") {
  GameState game = EmptyBoard(season, stage);
  for (const std::string& text : units) {
    std::string_view rest = text;
    model::Unit unit;
    EXPECT_TRUE(ReadUnit(rest, unit)) << text;
    const Texts places = Words(rest);
    if (!places.empty() && places[0] != "~") unit.PreviousLocation = places[0];
    if (places.size() > 1) unit.DislodgedFrom = places[1];
    game.Units.Append(unit);
  }
  for (const std::string& place : Words(contested))
    Live(game, place).Uncontested = false;
  return game;
}

orders::OrderKind KindOf(std::string_view word) {
  for (const auto stage :
       {model::Stage::Moves, model::Stage::Retreats, model::Stage::Adjustments}) {
    const auto kind = orders::KindOf(word, stage);
    if (kind != orders::OrderKind::None) return kind;
  }
  return orders::OrderKind::None;
}

/// "+ENG A(Yor) - Nwy" succeeded, "!" failed, "?" was void; a convoy is "C Yor Nwy", a support
/// "S Yor Nwy", a convoyed move "- Nwy ~".
std::vector<OrderOutcome> Outcomes(const Texts& lines) {
  std::vector<OrderOutcome> outcomes;
  for (const std::string& line : lines) {
    std::string_view rest = std::string_view(line).substr(1);
    model::Unit unit;
    EXPECT_TRUE(ReadUnit(rest, unit)) << line;
    const Texts words = Words(rest);
    OrderOutcome outcome{unit.Power, unit.UnitType, unit.Location, KindOf(words[0]), {}, {}, false,
                         {}};
    const bool isForOther = words[0] == "C" || words[0] == "S";
    if (words.size() > 1) outcome.Destination = words[isForOther ? 2 : 1];
    if (isForOther) outcome.OtherLocation = words[1];
    outcome.ViaConvoy = words.back() == "~";
    outcome.Outcome = line[0] == '+'   ? Outcome::Succeeded
                      : line[0] == '!' ? Outcome::Failed
                                       : Outcome::Void;
    outcomes.push_back(outcome);
  }
  return outcomes;
}

std::string Text(const Journey& journey) {
  std::string text = journey.Power + " " + journey.UnitType + "(" + journey.From + ")";
  if (journey.DislodgedAtFirst) text += " aside";
  if (!journey.Aim.empty()) text += (journey.Bounces ? " -x " : " - ") + journey.Aim;
  for (const std::string& fleet : journey.Fleets)
    text += " via " + fleet;
  if (journey.Dislodged) text += " pushed";
  if (!journey.Retreat.empty()) text += " to " + journey.Retreat;
  if (journey.Appears) text += " appears";
  if (journey.Vanishes) text += " vanishes";
  return text;
}

Texts Journeys(const Replay& replay) {
  Texts texts;
  std::transform(replay.Journeys.begin(), replay.Journeys.end(), std::back_inserter(texts), Text);
  return texts;
}

TEST(SeasonReplay, JourneysFollowPositionsAndOutcomes) {
  for (const DrawnCase& drawn : LoadDrawnCases("history/journeys.txt")) {
    SCOPED_TRACE(drawn.Name);
    const GameState game = BoardOf("finished", drawn.Drawing, drawn.Note("contested"), "Autumn");
    const Replay replay = history::SeasonReplay(game, Outcomes(drawn.Texts("order")));
    EXPECT_EQ(Journeys(replay), drawn.Texts("way"));
    EXPECT_EQ(
        replay.Start.Units.Count() + std::count_if(replay.Journeys.begin(), replay.Journeys.end(),
                                                   [](auto& j) { return j.Appears; }),
        static_cast<int>(replay.Journeys.size()));
  }
}

TEST(SeasonReplay, StartsBeforeTheMovesWithTheOwnersOfThen) {
  GameState game = BoardOf("finished", {"FRA A(Bel) Bur"}, "Bel", "Autumn");
  Own(game, "FRA Bel");
  Replay replay = history::SeasonReplay(game);
  EXPECT_EQ(replay.Start.Stage, model::Stage::Moves);
  EXPECT_EQ(DrawUnits(replay.Start), "FRA A(Bur)\n");
  EXPECT_EQ(Live(replay.Start, "Bel").Owner, "");
  EXPECT_EQ(Describe(replay.End), Describe(game));
  Live(game, "Bre").PreviousOwner = model::Unknown;
  replay = history::SeasonReplay(game);
  EXPECT_EQ(Live(replay.Start, "Bel").Owner, "FRA");
  game.Stage = model::Stage::Moves;
  EXPECT_EQ(Journeys(history::SeasonReplay(game)), Texts{"FRA A(Bel)"})
      << "its moves are still to come";
  game.Units[1].Location = "Xyz";
  EXPECT_THROW(history::SeasonReplay(game), model::IndexOutOfRange);
}

TEST(ReplayBetween, MatchesUnits) {
  for (const DrawnCase& drawn : LoadDrawnCases("history/matches.txt")) {
    SCOPED_TRACE(drawn.Name);
    const Texts stages = Parts(drawn.Note("stages"));
    GameState earlier = BoardOf(stages[0], drawn.Drawing, {}, drawn.Note("season", "Spring"));
    earlier.OrdersList = drawn.Texts("order");
    // More orders than can be resolved, too.
    if (drawn.Has("order")) earlier.OrdersList.resize(200, "FRA A(Par) - Gas");
    GameState later = BoardOf(stages[1], drawn.Texts("later"), drawn.Note("contested"),
                              drawn.Note("next", earlier.Season));
    later.Year = static_cast<std::int16_t>(std::stoi(drawn.Note("year", "1901")));
    EXPECT_EQ(Journeys(history::ReplayBetween(earlier, later)), drawn.Texts("way"));
  }
}

TEST(ReplaySequence, PartsAreNamedAfterTheSeasonsTheyShow) {
  const auto at = [](const char* season, std::int16_t year, const char* stage) {
    GameState game = BoardOf(stage, {"FRA A(Par)"}, "", season);
    game.Year = year;
    return game;
  };
  const GameState start = at("Spring", 1901, "moves");
  const GameState played = at("Spring", 1901, "finished");
  const GameState autumn = at("Autumn", 1901, "moves");
  const GameState nextYear = at("Spring", 1902, "moves");
  const std::vector<std::pair<std::vector<GameState>, Texts>> cases = {
      {{}, {}},
      {{start}, {}},
      {{played}, {"Spring 1901"}},
      {{start, played}, {"Spring 1901"}},
      {{played, autumn}, {"Spring 1901"}},
      {{start, autumn, nextYear}, {"Spring 1901", "Autumn 1901"}},
      {{start, nextYear}, {"Spring 1901 - Autumn 1901"}},
      {{played, at("Spring", 1902, "finished")}, {"Spring 1901", "Autumn 1901 - Spring 1902"}}};
  for (const auto& [games, names] : cases) {
    Texts seen;
    for (const history::ReplayPart& part : history::ReplaySequence(games))
      seen.push_back(part.Name);
    EXPECT_EQ(seen, names);
  }
}

}  // namespace
}  // namespace orb::tests
