#include "ui/session/start.h"

#include "model/files.h"
#include "model/map_files.h"
#include "session/commands.h"
#include "settings/settings_file.h"

namespace orb::ui {
namespace {

void readSettings(const Places& places, Start& start) {
  settings::Settings settings{start.view.mapOptions, start.view.viewOnly};
  settings::ReadSettingsFile(settings::SettingsFileForReading(places.program, places.config),
                             settings, start.situation.Game.Countries);
  start.view.mapOptions = settings.Map;
  start.view.viewOnly = settings.ViewOnly;
}

}  // namespace

Start startProgram(const Places& places, const std::filesystem::path& gameFile,
                   model::Messages& messages) {
  Start start{{model::EmptyGame(model::LoadMap(places.program, messages))}};
  // Before the game: it is set up in the colours of the settings.
  readSettings(places, start);
  if (gameFile.empty()) {
    session::NewGame(start.situation, places.program);
  } else {
    session::OpenGame(start.situation, model::FileInAnyCase(gameFile), false, places.program,
                      messages);
  }
  return start;
}

}  // namespace orb::ui
