#include "adjudication/possible_orders.h"
#include "adjudication/stages.h"
#include "adjudication/usual/stages.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/lookups.h"
#include "model/map_files.h"
#include "session/what_if.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

namespace adjudication = orb::adjudication;
namespace model = orb::model;
namespace session = orb::session;

const std::filesystem::path Source = ORB_SOURCE_DIR;

std::string GameBytes(const std::string& name) {
  return model::ReadFile(Source / "bench" / "data" / name);
}

model::GameState LoadGame(const std::string& name) {
  model::GameState game = model::EmptyGame(model::LoadMap(Source / "data"));
  if (model::ParseGameFile(GameBytes(name), name, game)) throw std::runtime_error("unknown place");
  return game;
}

/// As the programs do: on a copy, which takes the game's place when it is resolved.
adjudication::Resolution ResolveOnCopy(model::GameState& game, model::Messages& messages) {
  model::GameState next = game;
  adjudication::Resolution resolution = adjudication::ResolveStage(next, messages);
  if (resolution.Completed) game = std::move(next);
  return resolution;
}

/// Each round starts from a fresh copy, which is not part of the time.
void ResolveSeason(benchmark::State& state, const std::string& name) {
  using Clock = std::chrono::steady_clock;
  const model::GameState start = LoadGame(name);
  model::Consent messages;
  model::GameState game = start;
  while (state.KeepRunning()) {
    game = start;
    const auto begin = Clock::now();
    benchmark::DoNotOptimize(ResolveOnCopy(game, messages));
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - begin).count());
  }
}

void ResolveSeasonByUsualRules(benchmark::State& state, const std::string& name) {
  const model::GameState start = LoadGame(name);
  model::GameState game = start;
  while (state.KeepRunning()) {
    state.PauseTiming();
    game = start;
    state.ResumeTiming();
    benchmark::DoNotOptimize(adjudication::usual::ResolveStage(game));
  }
}

void ListPossibleOrders(benchmark::State& state) {
  const model::GameState game = LoadGame("midgame.orb");
  while (state.KeepRunning()) {
    const adjudication::PossibleOrders possible(game);
    for (int u = 1; u <= game.Units.Count(); ++u)
      benchmark::DoNotOptimize(possible.OfUnit(u));
  }
}

void AskWhatIf(benchmark::State& state, session::Rules rules) {
  session::Situation situation;
  situation.Game = LoadGame("midgame.orb");
  situation.Rules = rules;
  const session::Question question =
      session::Ask(situation, model::UnitText(situation.Game.Units[1]));
  while (state.KeepRunning())
    benchmark::DoNotOptimize(session::SingleChanges(question));
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
BENCHMARK_CAPTURE(ResolveSeasonByUsualRules, MidGame34Units, "midgame.orb");
BENCHMARK_CAPTURE(ResolveSeasonByUsualRules, Ring40Units, "ring.orb");
BENCHMARK(ListPossibleOrders);
BENCHMARK_CAPTURE(AskWhatIf, Orb, session::Rules::Orb);
BENCHMARK_CAPTURE(AskWhatIf, Usual, session::Rules::Usual);
BENCHMARK(ReadGame);
BENCHMARK(WriteGame);

}  // namespace
