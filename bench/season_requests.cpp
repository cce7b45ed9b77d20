#include "json/situation.h"

#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "session/queries.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <string>

// Usage: season_requests COUNT [SEED]
// Prints requests for "orbctl serve": seasons of 34 units, half of the orders those of the game of
// the benchmarks, half any that are possible.

namespace {

namespace model = orb::model;

const std::filesystem::path Source = ORB_SOURCE_DIR;

model::GameState LoadGame() {
  model::GameState game = model::EmptyGame(model::LoadMap(Source / "data"));
  const auto path = Source / "bench" / "data" / "midgame.orb";
  if (model::ParseGameFile(model::ReadFile(path), path.string(), game)) std::abort();
  return game;
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::atoi(argv[1]) : 1;
  std::mt19937 random(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1U);
  orb::session::Situation situation;
  situation.Game = LoadGame();
  const auto choices = orb::session::PossibleOrders(situation);
  const std::vector<std::string> own = std::move(situation.Game.OrdersList);
  situation.Game.OrdersList.clear();
  std::string text = orb::json::SituationText(situation.Game);
  text.pop_back();  // the end of the object, behind the request's own members
  std::ios::sync_with_stdio(false);
  for (int i = 0; i < count; ++i) {
    std::cout << text << R"(,"id":)" << i << R"(,"command":"resolve","yes":true,"orders":[)";
    const char* before = "\"";
    for (std::size_t k = 0; k < choices.size(); ++k) {
      const auto& possible = choices[k].Orders;
      const bool isOwn = random() % 2 == 0 && k < own.size();
      std::cout << before << (isOwn ? own[k] : possible[random() % possible.size()]) << '"';
      before = ",\"";
    }
    std::cout << "]}\n";
  }
}
