#include "support/drawn_cases.h"

#include "adjudication/stages.h"
#include "adjudication/usual/stages.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using testing::ElementsAreArray;
using testing::UnorderedElementsAreArray;

/// A report line as it is drawn: brackets, the order, the result word, the attacker's place.
struct DrawnOrder {
  std::string Text;
  std::string Result;
  std::string DislodgedFrom;
  bool Failed = false;
};

DrawnOrder ReadReportLine(std::string_view line) {
  DrawnOrder drawn;
  drawn.Failed = line.starts_with("[ ");
  if (drawn.Failed || line.starts_with("  ")) line.remove_prefix(2);
  const auto end = drawn.Failed ? line.find(" ]") : line.find("  ");
  drawn.Text = line.substr(0, end);
  if (const auto result = line.find("  "); result != std::string_view::npos) {
    line.remove_prefix(result + 2);
    const auto from = line.find(" <");
    drawn.Result = line.substr(0, from);
    if (from != std::string_view::npos) drawn.DislodgedFrom = line.substr(from + 2);
  }
  return drawn;
}

std::string MoveReportLine(const DrawnOrder& drawn) {
  return (drawn.Failed ? "[ " : "  ") + drawn.Text + (drawn.Failed ? " ]" : "") + "  " +
         drawn.Result;
}

std::string OwnedCentres(const GameState& game) {
  std::string text;
  for (int p = 1; p <= game.Provinces.Count(); ++p) {
    if (game.Provinces[p].Owner.empty()) continue;
    text +=
        (text.empty() ? "" : ", ") + game.Map->Provinces[p].Name + " " + game.Provinces[p].Owner;
  }
  return text.empty() ? "none" : text;
}

/// What a drawn case sets up and what it expects.
struct Trial {
  GameState Before;
  GameState After;
  std::vector<std::string> Report;
  std::vector<std::string> Results;  ///< result words, where the report does not show them
};

/// The rules that a file of cases is about.
using Rules = adjudication::Resolution (*)(GameState&, model::Messages&);

adjudication::Resolution ByUsualRules(GameState& game, model::Messages& /*asks nothing*/) {
  return adjudication::usual::ResolveStage(game);
}

/// Resolves the case's stage and compares what every kind of case is about.
void RunCase(const DrawnCase& drawn, Rules resolve, Trial& trial) {
  GameState game = trial.Before;
  ScriptedMessages messages(drawn.Answers());
  const adjudication::Resolution resolution = resolve(game, messages);
  if (drawn.Has("asks")) {
    EXPECT_THAT(messages.Questions, ElementsAreArray(drawn.Texts("asks")));
  }
  std::vector<std::string> shown;
  for (const auto& [text, icon] : messages.Shown)
    shown.push_back(text);
  if (drawn.Has("shows") || drawn.Has("silent")) {
    EXPECT_THAT(shown, ElementsAreArray(drawn.Texts("shows")));
  }
  EXPECT_EQ(resolution.Completed, !drawn.Has("abandoned"));
  if (drawn.Has("abandoned")) return;
  if (drawn.Has("report") || !trial.Report.empty()) {
    EXPECT_THAT(Lines(game.ReportLines), ElementsAreArray(trial.Report));
  }
  EXPECT_EQ(DrawUnits(game), DrawUnits(trial.After));
  EXPECT_EQ(StageText(game), drawn.Note("stage", std::string(StageText(trial.After))));
  for (int u = 1; u <= game.Units.Count() && trial.Before.Stage == model::Stage::Moves; ++u)
    EXPECT_EQ(game.Units[u].PreviousLocation, trial.Before.Units[u].Location);
  const bool isByUsualMoves = resolve == ByUsualRules && trial.Before.Stage == model::Stage::Moves;
  if (drawn.Has("contested") || isByUsualMoves) {
    EXPECT_THAT(Words(ContestedPlaces(game)),
                UnorderedElementsAreArray(Words(drawn.Note("contested"))));
  }
  if (drawn.Has("owners")) {
    EXPECT_EQ(OwnedCentres(game), drawn.Note("owners"));
  }
  for (std::size_t k = 0; k < trial.Results.size(); ++k) {
    EXPECT_EQ(ResultWord(resolution.Orders[static_cast<int>(k) + 1].Result), trial.Results[k])
        << resolution.Orders[static_cast<int>(k) + 1].Text;
  }
}

/// Adds the unit to both boards, or finds it there, and puts it where the drawn order leaves it.
void PlaceUnit(Trial& trial, const DrawnOrder& drawn) {
  std::string_view action = drawn.Text;
  model::Unit unit;
  if (drawn.Result == "no such unit" || !ReadUnit(action, unit)) return;
  const int count = trial.Before.Units.Count();
  AddDrawnUnit(trial.Before, drawn.Text);
  if (trial.Before.Units.Count() == count) return;
  if (!drawn.Failed && action.starts_with("- ")) unit.Location = action.substr(2);
  if (drawn.Result == model::Dislodged) unit.Status = model::Dislodged;
  unit.DislodgedFrom = drawn.DislodgedFrom;
  trial.After.Units.Append(unit);
}

Trial DrawMoves(const DrawnCase& drawn) {
  Trial trial;
  trial.Before = EmptyBoard(drawn.Note("season", "Spring"), "moves");
  trial.After = EmptyBoard("", trial.Before.Season == "Spring" ? "finished" : "adjustments");
  for (const std::string& unit : drawn.Texts("units"))
    AddDrawnUnit(trial.Before, unit);
  for (const std::string& line : drawn.Drawing) {
    const DrawnOrder order = ReadReportLine(line);
    trial.Report.push_back(MoveReportLine(order));
    if (!drawn.Has("units")) PlaceUnit(trial, order);
    if (order.Result == model::Dislodged) trial.After.Stage = model::Stage::Retreats;
    if (!order.Text.ends_with(" unordered; hold")) trial.Before.OrdersList.push_back(order.Text);
  }
  if (drawn.Has("board")) trial.After.Units.SetCount(0);
  for (const std::string& unit : drawn.Texts(drawn.Has("board") ? "board" : "units"))
    AddDrawnUnit(trial.After, unit);
  return trial;
}

/// "ENG F(NTH) <SKA retreat NWG => NWG": the order, then where the unit ends ("gone" for nowhere)
/// and, behind a comma, the result word. "> " begins an order for no unit of its own.
Trial DrawRetreats(const DrawnCase& drawn) {
  Trial trial;
  trial.Before = EmptyBoard(drawn.Note("season", "Spring"), "retreats");
  trial.After = EmptyBoard("", trial.Before.Season == "Spring" ? "finished" : "adjustments");
  trial.Report = drawn.Texts("report");
  const std::vector<std::string> contested = Words(drawn.Note("contested"));
  for (int p = 1; p <= trial.Before.Provinces.Count(); ++p) {
    trial.Before.Provinces[p].Uncontested =
        std::find(contested.begin(), contested.end(), RealMap()->Provinces[p].Name.substr(0, 3)) ==
        contested.end();
  }
  for (std::string_view line : drawn.Drawing) {
    const auto arrow = line.find(" => ");
    std::string_view end = arrow == std::string_view::npos ? "stays" : line.substr(arrow + 4);
    line = line.substr(0, arrow);
    const auto comma = end.find(", ");
    const bool orderAlone = line.starts_with("> ");
    if (orderAlone) line.remove_prefix(2);
    const std::string order = orderAlone ? std::string(line) : AddDrawnUnit(trial.Before, line);
    if (!order.empty()) trial.Before.RetreatsList.push_back(order);
    if (arrow != std::string_view::npos) {
      trial.Results.emplace_back(comma == std::string_view::npos ? "" : end.substr(comma + 2));
    }
    end = end.substr(0, comma);
    if (orderAlone || end == "gone") continue;
    model::Unit unit;
    ReadUnit(line, unit);
    if (end != "stays") unit.Location = end;
    unit.Status.clear();
    trial.After.Units.Append(unit);
  }
  return trial;
}

bool IsAdjustment(std::string_view line) {
  const std::vector<std::string> words = Words(line);
  return line.starts_with("[ ") || line.ends_with("  unordered") ||
         (words.size() == 3 && (words[1].size() == 5 || words[1].size() == 7));
}

/// Units one per line, "centres" notes of power and places, and orders as the report shows them.
Trial DrawAdjustments(const DrawnCase& drawn) {
  Trial trial;
  trial.Before = EmptyBoard("Autumn", "adjustments");
  trial.Report = {"ADJUSTMENTS"};
  for (const std::string& line : drawn.Drawing) {
    if (!IsAdjustment(line)) {
      AddDrawnUnit(trial.Before, line);
      continue;
    }
    const DrawnOrder order = ReadReportLine(line);
    if (order.Result != "unordered") trial.Before.AdjustmentsList.push_back(order.Text);
    trial.Results.push_back(order.Result);
    trial.Report.push_back(MoveReportLine(order).substr(order.Failed ? 0 : 2));
  }
  for (const std::string& note : drawn.Texts("centres"))
    Own(trial.Before, note);
  trial.After.Stage = model::Stage::Finished;
  for (const std::string& unit : drawn.Texts("after"))
    AddDrawnUnit(trial.After, unit);
  return trial;
}

TEST(DrawnCases, EndAsDrawn) {
  struct CaseFile {
    std::string_view Name;
    Trial (*Draw)(const DrawnCase&);
    Rules Resolve;
  };
  const std::vector<CaseFile> files = {
      {"moves.txt", DrawMoves, adjudication::ResolveStage},
      {"retreats.txt", DrawRetreats, adjudication::ResolveStage},
      {"adjustments.txt", DrawAdjustments, adjudication::ResolveStage},
      {"usual_moves.txt", DrawMoves, ByUsualRules},
      {"usual_retreats.txt", DrawRetreats, ByUsualRules},
      {"usual_adjustments.txt", DrawAdjustments, ByUsualRules}};
  for (const CaseFile& file : files) {
    for (const DrawnCase& drawn : LoadDrawnCases(std::string("adjudication/").append(file.Name))) {
      SCOPED_TRACE(std::string(file.Name).append(": ").append(drawn.Name));
      Trial trial = file.Draw(drawn);
      RunCase(drawn, file.Resolve, trial);
    }
  }
}

}  // namespace
}  // namespace orb::tests
