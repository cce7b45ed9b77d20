#pragma once

#include "model/game_state.h"
#include "orders/exchange/read_line.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orb::letters {

// The register of what came in: beside a game file NAME.orb a text NAME.received.txt, to which
// every text with orders that is imported or pasted is added, with what became of it. Nothing in it
// is ever changed. It is in UTF-8, for people to read:
//
//   == 2026-11-22 18:03:07
//   Stage: Autumn 1903, moves
//   Power: FRA
//   Source: Anna <anna@example.org>: orders
//   Filed: FRA A(Par) - Bur
//   Not filed: A Mar: its order is missing
//   | the text, each line behind a stroke
//
// and an empty line behind each entry.

/// A text that came in. All texts are in UTF-8 or Windows-1252.
struct Receipt {
  std::string Time;   ///< "2026-11-22 18:03:07"
  std::string Stage;  ///< "Autumn 1903, moves"
  std::string
      Power;  ///< as it was chosen, else that of all orders filed; empty: several, or unknown
  std::string Source;  ///< who sent it, or which file or clipboard it came from
  std::vector<std::string> Filed;
  std::vector<std::string> NotFiled;  ///< each with the reason
  std::string Text;

  bool operator==(const Receipt&) const = default;
};

/// A receipt of this moment for a text that came in for the game. Of its lines, those that are
/// `filed` were; all other orders in it, and what is unclear, were not.
Receipt ReceiptOf(const model::GameState& game, const std::vector<exchange::ReadLine>& lines,
                  const std::vector<exchange::ReadLine>& filed);

/// The register that belongs to a game's file.
std::filesystem::path RegisterOf(const std::filesystem::path& game);

/// The entry as it is added to the register.
std::string FormatReceipt(const Receipt& receipt);

/// Adds an entry. Throws FileError.
void Register(const std::filesystem::path& game, const Receipt& receipt);

/// The entries of a register in their order. What it holds beside them is passed over.
std::vector<Receipt> ParseRegister(std::string_view text);

/// The entries of the game's register; none where there is no file. Throws FileError.
std::vector<Receipt> ReadRegister(const std::filesystem::path& game);

/// Whether the words, in whatever case, all stand somewhere in the entry.
bool Mentions(const Receipt& receipt, std::string_view words);

}  // namespace orb::letters
