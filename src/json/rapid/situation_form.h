#pragma once

#include "json/rapid/input.h"
#include "json/rapid/output.h"

#include "model/game_state.h"

namespace orb::json {

// What the outermost object begins with, and the member that holds a situation.
constexpr std::string_view FormatName = "format";
constexpr std::string_view VersionName = "version";
constexpr std::string_view SituationName = "situation";

/// Of the form that is written, and the only one that is read. It changes when a member is given
/// another meaning or goes; new members come without a new number.
constexpr int FormVersion = 1;

/// Writes the members that every outermost object begins with.
void WriteForm(Output& out);

/// Refuses the value of a member "format" or "version" that is not of this form.
void ExpectFormat(const Node& format);
void ExpectVersion(const Node& version);

/// Takes a text that game files can hold.
void TakeStorable(const Node& node, std::string& text);

/// Writes what a game file holds, as an object.
void WriteSituation(Output& out, const model::GameState& game);

/// Reads such an object; see ReadSituation in json/situation.h. The map stays.
void TakeSituation(const Node& situation, model::GameState& game);

}  // namespace orb::json
