#include "model/errors.h"
#include "model/game_file.h"
#include "model/new_game.h"
#include "model/replacement.h"
#include "session/commands.h"
#include "session/queries.h"
#include "text/encoding.h"

#include <system_error>

namespace orb::session {

void NewGame(Situation& situation, const std::filesystem::path& dataDirectory) {
  situation.Editing = Editing::None;
  situation.Rules = Rules::Orb;
  model::NewGame(situation.Game, dataDirectory);
}

void BlankGame(Situation& situation, const std::filesystem::path& dataDirectory) {
  situation.Editing = Editing::None;
  situation.Rules = Rules::Orb;
  model::BlankGame(situation.Game, dataDirectory);
}

bool ReadGame(Situation& situation, const std::filesystem::path& file, model::Messages& messages,
              model::Streams streams) {
  situation.OwnFile = model::ReadGameFile(situation.Game, file, messages, streams);
  return situation.OwnFile.has_value();
}

void OpenGame(Situation& situation, const std::filesystem::path& file, bool readOnly,
              const std::filesystem::path& dataDirectory, model::Messages& messages) {
  situation.ReadOnly = readOnly;
  situation.Editing = Editing::None;
  situation.Rules = Rules::Orb;
  situation.Stopped.reset();
  if (!ReadGame(situation, file, messages)) model::NewGame(situation.Game, dataDirectory);
}

void ExpectUnchanged(const Situation& situation, const std::filesystem::path& file) {
  const auto& mark = situation.OwnFile;
  if (!mark) return;
  std::error_code ignored;
  if (file != mark->Path && !std::filesystem::equivalent(file, mark->Path, ignored)) return;
  // A file that is gone holds nothing that could be lost.
  if (model::ChangeSince(*mark) != model::FileChange::Changed) return;
  throw model::FileChangedError(text::NameInText(file.string()) +
                                " was changed by another program since it was read: it is left "
                                "as it is.");
}

void SaveGame(Situation& situation, Overwrite overwrite) {
  const std::string& name = situation.Game.FileName;
  if (!CanSave(situation)) {
    throw model::FatalError(text::NameInText(name) +
                            " was opened for reading only: save the game under another name.");
  }
  model::Replacement file(name, model::FormatGameFile(situation.Game));
  // As late as can be: all that takes time is done.
  if (overwrite == Overwrite::Unchanged) ExpectUnchanged(situation, name);
  file.Commit();
  situation.OwnFile = file.Mark();
}

void SaveGameAs(Situation& situation, const std::filesystem::path& file, Overwrite overwrite) {
  situation.ReadOnly = false;
  situation.Game.FileName = file.string();
  SaveGame(situation, overwrite);
}

}  // namespace orb::session
