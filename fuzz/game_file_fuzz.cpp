#include "model/game_file.h"
#include "model/game_state.h"
#include "support/fuzzing.h"

// The input is a game file.

namespace orb::fuzz {
namespace {

void ReadGame(std::string_view bytes) {
  // What was open before must neither show through nor be touched by a file that is refused.
  const model::GameState& before = StartingGame();
  model::GameState game = before;
  bool isRead = false;
  IsAccepted([&] { isRead = !model::ParseGameFile(bytes, "game.orb", game); });
  if (isRead) {
    CheckGame(game);
  } else {
    Require(Described(game) == Described(before), "a broken file changed the game");
  }
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orb::fuzz::ReadGame(orb::fuzz::Text(data, size));
  return 0;
}
