#include "adjudication/stages.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

namespace model = orb::model;

const std::filesystem::path Source = ORB_SOURCE_DIR;

/// Answers Yes to every question.
class Agreeable : public model::Messages {
 public:
  bool Warn(const std::string& /*text*/) override { return true; }
  model::Answer Ask(const std::string& /*text*/) override { return model::Answer::YesToAll; }
  void Show(const std::string& /*text*/, model::Icon /*icon*/) override {}
};

std::string GameBytes(const std::string& name) {
  return model::ReadFile(Source / "bench" / "data" / name);
}

model::GameState LoadGame(const std::string& name) {
  model::GameState game = model::EmptyGame(model::LoadMap(Source / "data"));
  if (model::ParseGameFile(GameBytes(name), name, game)) throw std::runtime_error("unknown place");
  return game;
}

/// As the programs do: on a copy, which takes the game's place when it is resolved.
orb::adjudication::Resolution ResolveOnCopy(model::GameState& game, model::Messages& messages) {
  model::GameState next = game;
  orb::adjudication::Resolution resolution = orb::adjudication::ResolveStage(next, messages);
  if (resolution.Completed) game = std::move(next);
  return resolution;
}

/// Each round starts from a fresh copy, which is not part of the time.
void ResolveSeason(benchmark::State& state, const std::string& name) {
  using Clock = std::chrono::steady_clock;
  const model::GameState start = LoadGame(name);
  Agreeable messages;
  model::GameState game = start;
  while (state.KeepRunning()) {
    game = start;
    const auto begin = Clock::now();
    benchmark::DoNotOptimize(ResolveOnCopy(game, messages));
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
  }
}

void ReadGame(benchmark::State& state) {
  const std::string bytes = GameBytes("midgame.orb");
  model::GameState game = LoadGame("midgame.orb");
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(model::ParseGameFile(bytes, "midgame.orb", game));
  }
}

void WriteGame(benchmark::State& state) {
  const model::GameState game = LoadGame("midgame.orb");
  while (state.KeepRunning())
    benchmark::DoNotOptimize(model::FormatGameFile(game));
}

BENCHMARK_CAPTURE(ResolveSeason, MidGame34Units, "midgame.orb")->UseManualTime();
BENCHMARK_CAPTURE(ResolveSeason, Ring40Units, "ring.orb")->UseManualTime();
BENCHMARK(ReadGame);
BENCHMARK(WriteGame);

}  // namespace
