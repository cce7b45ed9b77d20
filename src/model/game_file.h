#pragma once

#include "model/files.h"
#include "model/game_state.h"
#include "model/messages.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace orb::model {

// A game file, record by record: the header "ORB v5.5"; title, season, year, stage; the unit count
// and the units; the location count and the locations' live state; the order count and the lines
// of the moves stage; the text count and the texts; the power count and the players' names. Older
// versions lack some fields; the last two sections may be missing.

/// The bytes of the game file of this situation. Throws FatalError when a text cannot be stored.
std::string FormatGameFile(const GameState& game);

/// Reads a game file of any version from memory into the situation. What the file's version does
/// not hold stays as it was. Returns the first location name that is not on the map, or nothing
/// when the game was read. Throws FileError or IndexOutOfRange for a broken file. The situation
/// changes only when the game was read whole; `FileName` is left to the caller. What stands behind
/// the end of the game is not read; `remark` then gets a sentence about it.
std::optional<std::string> ParseGameFile(std::string_view bytes, const std::string& fileName,
                                         GameState& game, std::string* remark = nullptr);

/// "Unknown province: Xyz": what the user is told about a location that ParseGameFile returns.
std::string UnknownProvinceText(std::string_view location);

/// Reads the named file into the situation and makes it the current file name; the mark of what was
/// read. An unknown location is reported in a message: nothing. Then, and when it throws as
/// ParseGameFile does, the situation is unchanged. Another message tells of what is not read.
std::optional<FileMark> ReadGameFile(GameState& game, const std::filesystem::path& file,
                                     Messages& messages, Streams streams = Streams::Refused);

}  // namespace orb::model
