#pragma once

#include "model/file_mark.h"
#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "orders/order_result.h"
#include "session/comparison.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orb::session {

/// What is known about a line of the report apart from its text.
struct ReportNote {
  bool Failed = false;
  std::string Reason;                  ///< why it came out so, in sentences
  std::vector<std::string> Locations;  ///< of the units that had a part in it; its own one first
  std::string Otherwise = {};          ///< what the other rules would have brought; empty: the same
  std::string Order = {};              ///< of the moves that it tells of; empty: of none

  bool operator==(const ReportNote&) const = default;
};

/// The line of the stage's list at which a resolution was abandoned.
struct StoppedLine {
  int Row = 0;  ///< counted from 0
  orders::OrderResult Result = orders::OrderResult::None;

  bool operator==(const StoppedLine&) const = default;
};

/// What is edited by hand, in place of entering orders.
enum class Editing : std::uint8_t { None, Units, Provinces };

/// One game as a program works on it: all that it knows of the game, and nothing of how it is
/// shown. A value: whoever wants to try something out works on a copy.
struct Situation {
  model::GameState Game;
  std::vector<ReportNote> Notes = {};                 ///< one for each line of the report
  std::vector<orders::OrderOutcome> Outcomes = {};    ///< of the season's orders resolved so far
  std::vector<Difference> Differences = {};           ///< of those from the other rules' outcomes
  std::shared_ptr<const Situation> BeforeMoves = {};  ///< of the report; nothing: it is unknown
  std::optional<StoppedLine> Stopped = {};            ///< until the lists change
  session::Rules Rules = Rules::Orb;                  ///< in force for what is resolved next
  session::Rules ResolvedBy = Rules::Orb;             ///< the last of them
  bool ByUsualRules = false;                          ///< some stage of the season was resolved so
  session::Editing Editing = session::Editing::None;
  /// Another number: another game, or another season of it, with a file of its own.
  int GameNumber = 0;
  std::string EarlierFile = {};  ///< of the season before, as long as it has none of its own
  bool ReadOnly = false;         ///< the game's file was opened for reading only
  std::optional<model::FileMark> OwnFile = {};  ///< what was read of it, or written to it last
  /// What the file holds, or the new game that this one began as; null: no file holds any of it.
  std::shared_ptr<const model::GameState> Saved = {};
};

}  // namespace orb::session
