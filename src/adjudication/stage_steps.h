#pragma once

#include "adjudication/resolution.h"
#include "model/game_state.h"

#include <string>
#include <vector>

// What the resolutions of several stages, and by different rules, have in common: the beginning,
// the report, and what becomes of the board when all is decided.

namespace orb::adjudication {

/// Throws FatalError for a game in a stage without orders.
[[noreturn]] void ThrowNothingToResolve(const model::GameState& game);

/// Starts a resolution: takes over the list's lines as orders and the units as they stand.
Resolution StartResolution(model::Stage stage, const model::GameState& game,
                           std::vector<std::string> lines);

// The moves.

/// Keeps where everybody stood and who owned what: undoing the season goes back to it, and its
/// replay starts from it.
void SavePreviousPositions(model::GameState& game);

/// Puts the units where their successful moves took them, and gives the orders of dislodged units
/// their result.
void CarryOutMoves(model::GameState& game, Resolution& resolution);

/// The report begins anew, with a line for each order; the list is emptied.
void WriteMoveReport(model::GameState& game, Resolution& resolution);

/// The stage that follows the moves: "retreats" where units have been dislodged; else as
/// EndMovement.
void AdvanceAfterMoves(model::GameState& game);

/// The stage that follows moves or retreats: "finished" in Spring; otherwise "adjustments", with
/// the centres now owned by the units that stand in them.
void EndMovement(model::GameState& game);

// The retreats.

/// Adds what became of each dislodged unit to its line of the report. Before the units move, since
/// their lines are found by where they were dislodged.
void WriteRetreatReport(model::GameState& game, Resolution& resolution);

/// Moves the units whose retreats succeeded and removes all others that are dislodged.
void CarryOutRetreats(model::GameState& game, const orders::OrderTable& table);

// The adjustments.

/// Adds the heading and a line for each order to the report.
void WriteAdjustmentReport(model::GameState& game, Resolution& resolution);

/// Builds and removes units. False when a build found no room on the board, which ends it: what
/// follows, removals too, is not carried out.
bool CarryOutAdjustments(model::GameState& game, const orders::OrderTable& table);

}  // namespace orb::adjudication
