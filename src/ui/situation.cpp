#include "ui/situation.h"

#include "adjudication/explain.h"
#include "adjudication/stages.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "model/new_game.h"

namespace orb::ui {
namespace {

/// The later stages of a season write on in the report of the moves, and so do their notes.
void addNotes(const adjudication::Resolution& resolution, Situation& situation) {
  std::vector<ReportNote>& notes = situation.reportNotes;
  if (resolution.Stage == adjudication::ResolvedStage::Moves) notes.clear();
  const std::vector<std::string> reasons = adjudication::ExplainReport(situation.game, resolution);
  notes.resize(reasons.size());
  for (std::size_t i = 0; i < reasons.size(); ++i) {
    if (!notes[i].reason.empty() && !reasons[i].empty()) notes[i].reason += ' ';
    notes[i].reason += reasons[i];
  }
  for (const adjudication::ReportEntry& entry : resolution.Entries) {
    if (entry.Order != 0 && resolution.Orders[entry.Order].Failed) {
      notes.at(static_cast<std::size_t>(entry.Line - 1)).failed = true;
    }
  }
}

}  // namespace

Situation startSituation(const std::filesystem::path& dataDirectory,
                         const std::filesystem::path& gameFile, model::Messages& messages) {
  Situation situation;
  situation.game = model::EmptyGame(model::LoadMap(dataDirectory));
  if (gameFile.empty()) {
    model::NewGame(situation.game, dataDirectory);
  } else {
    model::ReadGameFile(situation.game, model::LowerCaseName(gameFile), dataDirectory, messages);
  }
  return situation;
}

void resolveStage(Situation& situation, model::Messages& messages) {
  const adjudication::Resolution resolution = adjudication::ResolveStage(situation.game, messages);
  if (resolution.Completed) addNotes(resolution, situation);
}

}  // namespace orb::ui
