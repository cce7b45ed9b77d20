#pragma once

#include "adjudication/list_check.h"
#include "session/situation.h"

#include <filesystem>
#include <string>
#include <vector>

// What a front end asks about a situation without changing it.

namespace orb::session {

/// Whether the game is in a stage that has orders.
bool TakesOrders(const model::GameState& game);

/// Whether there is any line in the stage's list.
bool HasOrderLines(const model::GameState& game);

/// Whether the game may be written to its own file: one that was opened for reading only may not.
bool CanSave(const Situation& situation);

/// Whether the game differs from what its file holds, or from the new game that it began as.
bool IsModified(const Situation& situation);

/// Whether it holds orders that no game file has a place for: those of retreats and adjustments.
bool HasOrdersNoFileKeeps(const Situation& situation);

/// Whether there is anything in it that is in no file.
bool HasUnsavedWork(const Situation& situation);

/// Whether both names lead to the same file.
bool IsSameFile(const std::filesystem::path& a, const std::filesystem::path& b);

/// What became of the game's own file since the game was read from it or written to it; None where
/// it has no file.
model::FileChange OwnFileChange(const Situation& situation);

/// Whether anything of the season has been carried out that could be taken back.
bool CanUndoSeason(const Situation& situation);

/// Whether the season is finished: it is complete, so that it can be replayed and the next begin.
bool IsFinished(const Situation& situation);

/// "Resolved by the usual rules", where any stage of the season was; else empty. It belongs into
/// the heading of every report.
std::string_view RulesRemark(const Situation& situation);

/// Throws FatalError while the season is not finished.
void ExpectFinished(const Situation& situation);

/// Every problem of the stage's list by the rules in force: the marks of its lines, units without
/// orders, powers whose numbers do not fit. Throws FatalError in a stage without orders.
adjudication::ListCheck CheckOrders(const Situation& situation);

/// What a unit could be ordered, or a power in the adjustments.
struct Choices {
  std::string Power;
  std::string Unit;  ///< "ENG A(Lon)"; empty for a power
  std::vector<std::string> Orders;
  int Due = 0;  ///< in the adjustments: how many units to build, or below 0 to disband
};

/// Every order that is possible in the stage, as lines of its list
/// (adjudication/possible_orders.h): of the units that can be ordered, in the order of their table,
/// or of the powers. None in a stage without orders.
std::vector<Choices> PossibleOrders(const Situation& situation);

/// For each line of the stage's list how the other rules read it, where that is otherwise: "By the
/// usual rules: it is for F(Stp.s)". Empty where they read it the same, and for all lines where
/// there are too many. Throws FatalError in a stage without orders.
std::vector<std::string> OtherReadings(const Situation& situation);

/// Throws FatalError for a finished season: it has no orders to draw on the map.
void ExpectOrdersToDraw(const Situation& situation);

/// The orders in the stage's list, for drawing them on the map. Throws as ExpectOrdersToDraw does.
std::vector<orders::OrderOutcome> EnteredOrders(const Situation& situation);

/// How the orders of the season came out, then those entered since, for drawing them on the map.
std::vector<orders::OrderOutcome> SeasonOrders(const Situation& situation);

}  // namespace orb::session
