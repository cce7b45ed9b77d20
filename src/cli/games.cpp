#include "cli/games.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "text/encoding.h"

#include <exception>
#include <fstream>
#include <memory>
#include <system_error>

namespace orb::cli {
namespace {

bool ReadGame(Console& console, const std::string& path, model::GameState& game) {
  const auto unknown = model::ParseGameFile(model::ReadFile(path), path, game);
  if (unknown) console.Say(path, "Unknown province: " + *unknown);
  return !unknown;
}

}  // namespace

bool Attempt(Console& console, std::string_view subject, const std::function<bool()>& work) {
  try {
    return work();
  } catch (const UsageError&) {
    throw;  // wrong for every game: the program ends
  } catch (const std::exception& error) {
    console.Say(subject, error.what());
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
      if (!map) map = model::LoadMap(data);
      model::GameState game = model::EmptyGame(map);
      return ReadGame(console, paths.Game, game) && work(game, paths);
    });
    console.ShowProgress(++done, plan.size());
  }
  return allDone ? ExitDone : ExitRefused;
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines)
    text.append(line).append("\n");
  return text;
}

void WriteText(const std::filesystem::path& path, std::string_view text) {
  if (!IsDevice(path)) return model::ReplaceFile(path, text);
  std::ofstream stream(path, std::ios::binary | std::ios::app);
  if (!stream.write(text.data(), static_cast<std::streamsize>(text.size())).flush()) {
    throw model::FileError("Cannot write " + text::NameInText(path.string()) + ".");
  }
}

void PrintUnderHeading(Console& console, const std::vector<GamePaths>& plan, const GamePaths& paths,
                       std::string_view text) {
  if (plan.size() > 1) console.Print("== " + paths.Game + "\n");
  console.Print(text);
}

}  // namespace orb::cli
