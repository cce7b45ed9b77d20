#include "cli/games.h"

#include "json/answers.h"

#include "cli/command.h"
#include "cli/delivery.h"
#include "model/errors.h"
#include "model/files.h"
#include "model/map_files.h"
#include "session/commands.h"

#include <exception>
#include <memory>
#include <system_error>

namespace orb::cli {

namespace {

/// The same as the public one; `problem` is what was thrown.
bool Attempt(Console& console, std::string_view subject, std::string& problem,
             const std::function<bool()>& work) {
  try {
    return work();
  } catch (const UsageError&) {
    throw;  // wrong for every game: the program ends
  } catch (const std::exception& error) {
    problem = model::SentenceOf(error);
    console.Say(subject, problem);
    return false;
  }
}

/// Reads one game and does the work on it. With --json, whatever becomes of it is an object.
bool DoGame(const CommandLine& line, Console& console, const GamePaths& paths, const GameWork& work,
            const std::function<std::shared_ptr<const model::Map>(model::Messages&)>& map) {
  session::Situation situation;  // "{}" would have all 20 kB of it cleared first
  GameAtWork at{situation, paths, {console, paths.Game, line.Has(OptionId::Yes)}};
  std::string problem;
  const bool isDone = Attempt(console, paths.Game, problem, [&] {
    situation.Game = model::EmptyGame(map(at.Messages));
    ExpectNothingToKeep(paths);
    return session::ReadGame(situation, paths.Game, at.Messages, model::Streams::Read) && work(at);
  });
  const bool isUntold = !isDone && (!at.IsTold || !problem.empty());
  if (console.IsForObjects() && isUntold)
    console.PrintObject(json::RefusedText(HeadingOf(line, at), at.Messages, problem));
  return isDone;
}

}  // namespace

bool Attempt(Console& console, std::string_view subject, const std::function<bool()>& work) {
  std::string ignored;
  return Attempt(console, subject, ignored, work);
}

int ForEachGame(const CommandLine& line, Console& console, const std::vector<GamePaths>& plan,
                const GameWork& work) {
  const std::filesystem::path data = DataDirectory(line);
  if (line.Has(OptionId::Json)) console.UseObjects();
  // Loaded within the attempt, so that a broken map is reported like any other fault. All games
  // share it: the map never changes.
  std::shared_ptr<const model::Map> map;
  const auto theMap = [&](model::Messages& messages) {
    if (!map) map = model::LoadMap(data, messages);
    return map;
  };
  std::size_t done = 0;
  bool allDone = true;
  for (const GamePaths& paths : plan) {
    allDone &= DoGame(line, console, paths, work, theMap);
    console.ShowProgress(++done, plan.size());
  }
  return allDone ? ExitDone : ExitRefused;
}

json::Heading HeadingOf(const CommandLine& line, const GameAtWork& at) {
  return {line.Verb->Name, at.Paths.Game};
}

void Tell(Console& console, GameAtWork& at, std::string_view json) {
  at.IsTold = true;
  console.PrintObject(json);
}

void SayAbandoned(Console& console, const GameAtWork& at, std::string_view done) {
  if (!at.Messages.HasDeclined()) return;
  console.Say(at.Paths.Game,
              std::string("Not ").append(done).append(", nothing written; --yes goes on."));
}

}  // namespace orb::cli
