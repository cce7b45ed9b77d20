#pragma once

#include "model/game_state.h"

#include <string>
#include <string_view>

// What ORB gives to other programs, as JSON in UTF-8: docs/json.md describes the form,
// docs/orb.schema.json defines it.

namespace orb::json {

/// The situation as an object of its own, on one line: all that a game file holds.
std::string SituationText(const model::GameState& game);

/// Reads the member "situation" of such an object, or of an answer that has one. All that a game
/// file holds is replaced; lists of later stages and the report are empty then. Throws FatalError,
/// with the place in the text, and the situation may then be half that of the text.
void ReadSituation(std::string_view text, model::GameState& game);

}  // namespace orb::json
