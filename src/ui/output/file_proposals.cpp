#include "ui/output/file_proposals.h"

#include "model/seasons.h"
#include "text/strings.h"

namespace orb::ui {

std::string proposedGameFile(const model::GameState& game) {
  const std::string title = text::LowerCase(text::Trim(game.Title).substr(0, 3));
  return title + "_" + model::SeasonCode(game) + ".orb";
}

std::string proposedExportFile(const model::GameState& game, std::string_view extension) {
  return model::SeasonCode(game).append(extension);
}

GameFilter gameFilterFor(std::string_view fileName) {
  const std::string name = text::LowerCase(fileName);
  if (name.empty() || name.find(".orb") != std::string::npos) return GameFilter::Games;
  return name.find(".dat") != std::string::npos ? GameFilter::Data : GameFilter::All;
}

}  // namespace orb::ui
