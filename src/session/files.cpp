#include "model/errors.h"
#include "model/game_file.h"
#include "model/new_game.h"
#include "session/commands.h"
#include "session/queries.h"
#include "text/encoding.h"

namespace orb::session {

void NewGame(Situation& situation, const std::filesystem::path& dataDirectory) {
  situation.Editing = Editing::None;
  model::NewGame(situation.Game, dataDirectory);
}

void BlankGame(Situation& situation, const std::filesystem::path& dataDirectory) {
  situation.Editing = Editing::None;
  model::BlankGame(situation.Game, dataDirectory);
}

bool ReadGame(Situation& situation, const std::filesystem::path& file, model::Messages& messages) {
  return model::ReadGameFile(situation.Game, file, messages);
}

void OpenGame(Situation& situation, const std::filesystem::path& file, bool readOnly,
              const std::filesystem::path& dataDirectory, model::Messages& messages) {
  situation.ReadOnly = readOnly;
  situation.Editing = Editing::None;
  situation.Stopped.reset();
  if (!ReadGame(situation, file, messages)) model::NewGame(situation.Game, dataDirectory);
}

void SaveGame(const Situation& situation) {
  if (!CanSave(situation)) {
    throw model::FatalError(text::NameInText(situation.Game.FileName) +
                            " was opened for reading only: save the game under another name.");
  }
  model::WriteGameFile(situation.Game);
}

void SaveGameAs(Situation& situation, const std::filesystem::path& file) {
  situation.ReadOnly = false;
  situation.Game.FileName = file.string();
  SaveGame(situation);
}

}  // namespace orb::session
