#include "model/seasons.h"

#include "model/errors.h"
#include "session/commands.h"

namespace orb::session {

void NextSeason(Situation& situation) {
  if (situation.Game.Stage != model::Stage::Finished) {
    throw model::FatalError("The season is not finished: the game is in the stage \"" +
                            std::string(StageText(situation.Game)) + "\".");
  }
  model::NextSeason(situation.Game);
}

bool UndoSeason(Situation& situation, model::Messages& messages) {
  if (situation.Game.Stage == model::Stage::Moves) {
    throw model::FatalError("There is nothing to take back: the season is at its start.");
  }
  if (!model::UndoSeason(situation.Game, messages)) return false;
  situation.Editing = Editing::None;
  return true;
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
