#include "ui/situation.h"

#include "adjudication/explain.h"
#include "adjudication/participants.h"
#include "adjudication/stages.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "render/settings.h"

#include <algorithm>

namespace orb::ui {
namespace {

void addMissing(const std::vector<std::string>& texts, std::vector<std::string>& all) {
  for (const std::string& text : texts) {
    if (std::find(all.begin(), all.end(), text) == all.end()) all.push_back(text);
  }
}

/// The later stages of a season write on in the report of the moves, and so do their notes.
void addNotes(const adjudication::Resolution& resolution, Situation& situation) {
  std::vector<ReportNote>& notes = situation.reportNotes;
  if (resolution.Stage == adjudication::ResolvedStage::Moves) notes.clear();
  const std::vector<std::string> reasons = adjudication::ExplainReport(situation.game, resolution);
  const auto participants = adjudication::ReportParticipants(situation.game, resolution);
  notes.resize(reasons.size());
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    if (!notes[i].reason.empty() && !reasons[i].empty()) notes[i].reason += ' ';
    notes[i].reason += reasons[i];
    addMissing(participants[i], notes[i].locations);
  }
  for (const adjudication::ReportEntry& entry : resolution.Entries) {
    if (entry.Order != 0 && resolution.Orders[entry.Order].Failed) {
      notes.at(static_cast<std::size_t>(entry.Line - 1)).failed = true;
    }
  }
}

void readSettings(const Places& places, Situation& situation) {
  render::Settings settings{situation.mapOptions, situation.viewOnly};
  render::ReadSettingsFile(render::SettingsFileForReading(places.program, places.config), settings,
                           situation.game.Countries);
  situation.mapOptions = settings.Map;
  situation.viewOnly = settings.ViewOnly;
}

}  // namespace

Situation startSituation(const Places& places, const std::filesystem::path& gameFile,
                         model::Messages& messages) {
  Situation situation;
  situation.game = model::EmptyGame(model::LoadMap(places.program));
  readSettings(places, situation);
  if (gameFile.empty()) {
    model::NewGame(situation.game, places.program);
  } else {
    model::ReadGameFile(situation.game, model::LowerCaseName(gameFile), places.program, messages);
  }
  return situation;
}

void resolveStage(Situation& situation, model::Messages& messages) {
  const adjudication::Resolution resolution = adjudication::ResolveStage(situation.game, messages);
  if (resolution.Completed) addNotes(resolution, situation);
}

}  // namespace orb::ui
