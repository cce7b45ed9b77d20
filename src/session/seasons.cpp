#include "model/seasons.h"

#include "model/errors.h"
#include "session/commands.h"
#include "session/queries.h"

#include <utility>

namespace orb::session {

void NextSeason(Situation& situation) {
  ExpectFinished(situation);
  const std::string file = situation.Game.FileName;
  model::NextSeason(situation.Game);
  if (!file.empty()) situation.EarlierFile = file;
  ++situation.GameNumber;
}

bool UndoSeason(Situation& situation, model::Messages& messages) {
  if (!CanUndoSeason(situation)) {
    throw model::FatalError("There is nothing to take back: the season is at its start.");
  }
  if (!model::UndoSeason(situation.Game, messages)) return false;
  situation.Editing = Editing::None;
  return true;
}

void SetTitle(Situation& situation, std::string title) {
  situation.Game.Title = std::move(title);
}

void EditSeason(Situation& situation, const model::SeasonFacts& facts) {
  situation.Editing = Editing::None;
  model::EditSeason(situation.Game, facts);
}

void SetColours(Situation& situation, const model::CountryTable& colours) {
  for (int i = 1; i <= model::CountryCount; ++i) {
    situation.Game.Countries[i].Colour = colours[i].Colour;
    situation.Game.Countries[i].TextColour = colours[i].TextColour;
  }
}

}  // namespace orb::session
