#include "json/situation.h"

#include "model/game_file.h"
#include "support/fuzzing.h"

// The input is a situation in JSON.

namespace orb::fuzz {
namespace {

void ReadSituation(std::string_view text) {
  model::GameState game = StartingGame();
  if (!IsAccepted([&] { json::ReadSituation(text, game); })) return;
  CheckGame(game);
  model::GameState again = StartingGame();
  Require(IsAccepted([&] { json::ReadSituation(json::SituationText(game), again); }),
          "what was written is refused", text);
  Require(Described(again) == Described(game), "it came back otherwise", text);
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orb::fuzz::ReadSituation(orb::fuzz::Text(data, size));
  return 0;
}
