#include "cli/shell.h"

#include "cli/run.h"
#include "model/files.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "text/strings.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace orb::tests {
namespace {

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

}  // namespace

Outcome Shell::Run(std::string_view line) const {
  return Run(Words(line));
}

Outcome Shell::Run(const std::vector<std::string>& arguments,
                   const cli::Terminals& terminals) const {
  std::vector<std::string> expanded;
  if (std::ranges::find(arguments, "--data") == arguments.end()) {
    expanded = {"--data", DataDirectory().string()};
  }
  for (const std::string& argument : arguments)
    expanded.push_back(Expanded(argument));
  std::ostringstream out;
  std::ostringstream err;
  const int status = cli::Run(expanded, out, err, terminals);
  return {status, Shortened(out.str()), Shortened(err.str())};
}

void Shell::MakeDirectory(std::string_view name) const {
  std::filesystem::create_directory(directory_.Path() / name);
}

std::string Shell::Read(std::string_view name) const {
  const std::filesystem::path file = directory_.Path() / name;
  return std::filesystem::exists(file) ? model::ReadFile(file) : "none";
}

std::string Shell::Listing() const {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(directory_.Path()))
    names.insert(entry.path().lexically_relative(directory_.Path()).string());
  std::string listing;
  for (const std::string& name : names)
    listing += name + " ";
  return listing;
}

std::string Shell::Expanded(std::string text) const {
  return Replaced(std::move(text), "@", directory_.Path().string() + "/");
}

std::string Shell::Shortened(std::string text) const {
  return Replaced(std::move(text), directory_.Path().string() + "/", "@");
}

std::string GameFile(std::string_view season, std::string_view stage, std::string_view units,
                     std::string_view owners) {
  model::GameState game = EmptyBoard(season, stage);
  while (!units.empty())
    AddDrawnUnit(game, text::NextLine(units));
  Own(game, owners);
  return model::FormatGameFile(game);
}

}  // namespace orb::tests
