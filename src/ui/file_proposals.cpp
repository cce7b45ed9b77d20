#include "ui/file_proposals.h"

#include "model/text.h"

#include <algorithm>

namespace orb::ui {
namespace {

/// "s01" for Spring 1901.
std::string shortSeason(const model::GameState& game) {
  const std::string season = model::LowerCase(std::string_view(game.Season).substr(0, 1));
  const std::string year = std::to_string(game.Year);
  return season + year.substr(year.size() - std::min<std::size_t>(2, year.size()));
}

}  // namespace

std::string proposedGameFile(const model::GameState& game) {
  const std::string title = model::LowerCase(model::Trim(game.Title).substr(0, 3));
  return title + "_" + shortSeason(game) + ".orb";
}

std::string proposedExportFile(const model::GameState& game, std::string_view extension) {
  return shortSeason(game).append(extension);
}

GameFilter gameFilterFor(std::string_view fileName) {
  const std::string name = model::LowerCase(fileName);
  if (name.empty() || name.find(".orb") != std::string::npos) return GameFilter::Games;
  return name.find(".dat") != std::string::npos ? GameFilter::Data : GameFilter::All;
}

}  // namespace orb::ui
