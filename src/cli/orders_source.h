#pragma once

#include "cli/console.h"
#include "cli/games.h"
#include "cli/options.h"
#include "cli/paths.h"
#include "orders/exchange/read_orders.h"
#include "session/commands.h"
#include "session/situation.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {

/// The order lines of a text: lines end in LF or CR LF, those of blanks and tabs only are skipped.
std::vector<std::string> OrderLines(std::string_view text);

/// Where the orders of the games come from, and how they are read.
class OrdersSource {
 public:
  /// Throws UsageError when --loose or what goes with it stands where it means nothing.
  explicit OrdersSource(const CommandLine& line);

  /// Fills the stage's list from the orders file where there is one; else only the moves stage has
  /// orders, those of the game file. Read as people write them, lines that are unclear or
  /// doubtful are left out and returned, and how slips of the pen were read is shown. Throws
  /// FileError.
  std::vector<exchange::ReadLine> Take(session::Situation& situation, const GamePaths& paths,
                                       model::Messages& messages);

  /// The same for a game at work, whose register gets the text if that is wanted. Where it cannot
  /// be written a line on standard error says so.
  std::vector<exchange::ReadLine> Take(GameAtWork& at, Console& console);

 private:
  std::string TextOf(const GamePaths& paths);

  bool isLoose_;
  bool isRegistered_;
  std::string text_;  ///< that was read last, as it came
  session::Doubtful doubtful_ = session::Doubtful::LeftOut;
  std::string power_;
  std::filesystem::path data_;
  std::optional<std::vector<exchange::TextRepair>> repairs_;  ///< read when first needed
};

/// Tells on standard error which lines were left out and why, where nobody is asked about them.
void SayLeftOut(Console& console, const GamePaths& paths,
                const std::vector<exchange::ReadLine>& leftOut);

}  // namespace orb::cli
