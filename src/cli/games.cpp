#include "cli/games.h"

#include "cli/delivery.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/map_files.h"
#include "session/commands.h"

#include <exception>
#include <memory>
#include <system_error>

namespace orb::cli {

bool Attempt(Console& console, std::string_view subject, const std::function<bool()>& work) {
  try {
    return work();
  } catch (const UsageError&) {
    throw;  // wrong for every game: the program ends
  } catch (const std::exception& error) {
    console.Say(subject, model::SentenceOf(error));
    return false;
  }
}

int ForEachGame(const CommandLine& line, Console& console, const std::vector<GamePaths>& plan,
                const GameWork& work) {
  const std::filesystem::path data = DataDirectory(line);
  std::shared_ptr<const model::Map> map;
  std::size_t done = 0;
  bool allDone = true;
  for (const GamePaths& paths : plan) {
    allDone &= Attempt(console, paths.Game, [&] {
      // Loaded within the attempt, so that a broken map is reported like any other fault. All games
      // share it: the map never changes.
      session::Situation situation;  // "{}" would have all 20 kB of it cleared first
      GameAtWork at{situation, paths, {console, paths.Game, line.Has(OptionId::Yes)}};
      if (!map) map = model::LoadMap(data, at.Messages);
      ExpectNothingToKeep(paths);
      situation.Game = model::EmptyGame(map);
      return session::ReadGame(situation, paths.Game, at.Messages, model::Streams::Read) &&
             work(at);
    });
    console.ShowProgress(++done, plan.size());
  }
  return allDone ? ExitDone : ExitRefused;
}

void SayAbandoned(Console& console, const GameAtWork& at, std::string_view done) {
  if (!at.Messages.HasDeclined()) return;
  console.Say(at.Paths.Game,
              std::string("Not ").append(done).append(", nothing written; --yes goes on."));
}

}  // namespace orb::cli
