#include "json/situation.h"
#include "serve/server.h"

#include "model/game_file.h"
#include "support/fuzzing.h"

// The input is a situation in JSON, or a request. Whatever it is, its answer is one line.

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

void Ask(std::string_view request) {
  static serve::Server server(ORB_DATA_DIRECTORY, "/nonexistent");
  const std::string answer = server.Answer(request);
  Require(answer.starts_with(R"({"format":"orb","version":1,)") && answer.ends_with("}"),
          "no answer", answer);
  Require(answer.find('\n') == std::string::npos, "more than a line", answer);
}

}  // namespace
}  // namespace orb::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orb::fuzz::ReadSituation(orb::fuzz::Text(data, size));
  orb::fuzz::Ask(orb::fuzz::Text(data, size));
  return 0;
}
