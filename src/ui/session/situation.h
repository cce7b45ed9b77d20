#pragma once

#include "adjudication/resolution.h"
#include "model/edit_history.h"
#include "model/game_state.h"
#include "model/messages.h"
#include "orders/order_outcome.h"
#include "render/map_view.h"
#include "settings/map_options.h"
#include "ui/session/places.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orb::ui {

/// What is known about a line of the report beside its text.
struct ReportNote {
  bool failed = false;
  std::string reason;  ///< why it came out so, in sentences
  std::vector<std::string>
      locations;  ///< where the units that had a part in it stand or stood last
};

/// What the mouse edits on the map, in place of entering orders.
enum class Editing { None, Units, Provinces };

/// The line of the stage's list at which a resolution was abandoned.
struct StoppedLine {
  int row = 0;         ///< counted from 0
  std::string result;  ///< the order's result words
};

/// All that the window shows. A command makes a new one, which takes the old one's place whole.
struct Situation {
  model::GameState game;
  settings::MapOptions mapOptions;
  bool viewOnly = false;  ///< only the map is shown
  Editing editing = Editing::None;
  model::EditHistory edits;                    ///< since the editing began
  std::vector<ReportNote> reportNotes;         ///< one a line of the report
  std::optional<StoppedLine> stoppedLine;      ///< until the lists change
  std::vector<orders::OrderOutcome> outcomes;  ///< of the season's orders resolved so far
  bool showOrders = false;                     ///< orders are drawn on the map
  bool readOnly = false;                       ///< the game's file was opened for reading only
};

/// Loads the map and the settings and sets up a new game, or opens the named game file. Throws
/// FatalError.
Situation startSituation(const Places& places, const std::filesystem::path& gameFile,
                         model::Messages& messages);

/// The orders to be drawn on the map: how those of the season came out, then those entered since.
std::vector<orders::OrderOutcome> shownOrders(const Situation& situation);

/// Resolves the stage and notes why; after a No or an error nothing is changed but the line at
/// which it stopped.
void resolveStage(Situation& situation, model::Messages& messages);

}  // namespace orb::ui
