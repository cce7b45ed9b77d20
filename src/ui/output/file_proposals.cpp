#include "ui/output/file_proposals.h"

#include "model/seasons.h"
#include "text/strings.h"

#include <algorithm>
#include <string_view>

namespace orb::ui {
namespace {

/// What a file's name cannot hold, on this or on another system, becomes a hyphen: a title and a
/// season are any texts. A point in front would hide the file.
std::string asFileName(std::string text) {
  const auto cannot = [](char c) {
    const auto code = static_cast<unsigned char>(c);
    return code < ' ' || code == 0x7F ||
           std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
  };
  std::replace_if(text.begin(), text.end(), cannot, '-');
  if (text.starts_with('.')) text.front() = '-';
  return text;
}

}  // namespace

std::string proposedGameFile(const model::GameState& game) {
  const std::string title = text::LowerCase(text::Trim(game.Title).substr(0, 3));
  return asFileName(title + "_" + model::SeasonCode(game) + ".orb");
}

std::string proposedExportFile(const model::GameState& game, std::string_view extension) {
  return asFileName(model::SeasonCode(game).append(extension));
}

GameFilter gameFilterFor(std::string_view fileName) {
  const std::string name = text::LowerCase(fileName);
  if (name.empty() || name.find(".orb") != std::string::npos) return GameFilter::Games;
  return name.find(".dat") != std::string::npos ? GameFilter::Data : GameFilter::All;
}

}  // namespace orb::ui
