#pragma once

#include "model/files.h"
#include "model/messages.h"
#include "model/season_edit.h"
#include "orders/exchange/read_orders.h"
#include "session/situation.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Every command of a game, each as one function that works in place: for a program that reads a
// game, does one thing with it and drops it. What a command refuses it refuses by a FatalError
// whose sentence is the same in every front end. After a throw or a false the situation may be half
// changed and must be dropped: class Session keeps the one before, and keeps in step what depends
// on the game.

namespace orb::session {

// Games and their files. A game that is begun or opened is resolved by ORB's own rules until others
// are chosen.

/// The starting position. The data directory is that of start.dat.
void NewGame(Situation& situation, const std::filesystem::path& dataDirectory);

/// The empty board.
void BlankGame(Situation& situation, const std::filesystem::path& dataDirectory);

/// Reads a game file. A location that is not on the map is reported in a message: false.
bool ReadGame(Situation& situation, const std::filesystem::path& file, model::Messages& messages,
              model::Streams streams = model::Streams::Refused);

/// Reads a game file to work on; the starting position where ReadGame is false.
void OpenGame(Situation& situation, const std::filesystem::path& file, bool readOnly,
              const std::filesystem::path& dataDirectory, model::Messages& messages);

/// Whether a game is also written over what somebody else has made of its file since it was read.
enum class Overwrite : std::uint8_t { Unchanged, Anything };

/// Writes the game to the file that it came from or was saved to last. Refused for a file that was
/// opened for reading only, and by a FileChangedError for one that somebody else has changed.
void SaveGame(Situation& situation, Overwrite overwrite = Overwrite::Unchanged);

/// Writes the game to a file, which is the game's own from then on. Refused by a FileChangedError
/// where it is the file that the game came from and somebody else has changed it.
void SaveGameAs(Situation& situation, const std::filesystem::path& file,
                Overwrite overwrite = Overwrite::Unchanged);

/// Throws FileChangedError where the game came from this file and somebody else has changed it.
void ExpectUnchanged(const Situation& situation, const std::filesystem::path& file);

// Orders of the stage.

/// Files a typed order into the stage's list, in place of the unit's previous one. False: it names
/// no unit.
bool FileOrder(Situation& situation, std::string_view text);

/// Files the orders of the lines that are sure; how many.
int FileOrders(Situation& situation, const std::vector<exchange::ReadLine>& lines);

/// Removes the line in this row, counted from 0; false when there is none.
bool DeleteOrder(Situation& situation, int row);

/// These lines take the place of the stage's list.
void ReplaceOrders(Situation& situation, std::vector<std::string> lines);

/// What becomes of doubtful orders where nobody is there to look at each of them.
enum class Doubtful : std::uint8_t { LeftOut, Accepted };

/// The orders in a text as people write it take the place of the stage's list. Returns the lines
/// that were left out: those that are unclear, and those that are doubtful unless they are
/// accepted. How slips of the pen in the others were read is shown, and where it is of an order
/// sheet for another game, season or power.
std::vector<exchange::ReadLine> ReplaceOrdersByText(Situation& situation, std::string_view text,
                                                    const exchange::ReadingOptions& options,
                                                    Doubtful doubtful, model::Messages& messages);

/// Why a line was left out: what is unclear about it, or "doubtful: " and what speaks against it.
std::string LeftOutReason(const exchange::ReadLine& line);

/// Asks whether to go on without each of the lines that were left out; false at the first No.
bool GoOnWithout(const std::vector<exchange::ReadLine>& leftOut, model::Messages& messages);

// The course of the game.

/// Whether a resolution notes why each line of the report came out so, and each order's outcome, or
/// the outcomes alone: reasons take as long as all the rest.
enum class Noting : std::uint8_t { Full, Outcomes, None };

/// Whether a resolution is held against what the other rules make of the same orders.
enum class Comparing : std::uint8_t { No, Yes };

/// Resolves the stage that the game is in, by the rules in force. False when a question was
/// answered No or the numbers of a power do not fit; Stopped then tells the line that the question
/// was about.
bool Resolve(Situation& situation, model::Messages& messages, Noting noting = Noting::Full,
             Comparing comparing = Comparing::No);

/// Chooses the rules for what is resolved from now on.
void SetRules(Situation& situation, Rules rules);

/// Starts the season that follows a finished one.
void NextSeason(Situation& situation);

/// Puts the season back to its start; false when its start is not known or a question was answered
/// No.
bool UndoSeason(Situation& situation, model::Messages& messages);

/// Gives the game a title, also an empty one.
void SetTitle(Situation& situation, std::string title);

/// Changes names, place in time and texts of the game. Ends any other editing.
void EditSeason(Situation& situation, const model::SeasonFacts& facts);

/// Takes over both colours of every power, and nothing else of the table.
void SetColours(Situation& situation, const model::CountryTable& colours);

// Editing the position.

/// Begins to edit something else; None ends the editing.
void SetEditing(Situation& situation, Editing editing);

/// A change of the position as in model/position_edit.h: why it is refused, or an empty text.
using PositionChange = std::function<std::string(model::GameState&)>;

/// Makes a change. Returns what the change returns.
std::string Edit(Situation& situation, const PositionChange& change);

}  // namespace orb::session
