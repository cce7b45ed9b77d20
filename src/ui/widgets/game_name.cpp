#include "ui/widgets/game_name.h"

#include "text/qt/text_codec.h"

#include <string>

namespace orb::ui {

QString gameName(const model::GameState& game) {
  const std::string season = game.Season + " " + std::to_string(game.Year);
  return text::ToQString(game.Title.empty() ? season : game.Title + ", " + season);
}

}  // namespace orb::ui
