#include "model/errors.h"
#include "model/game_file.h"
#include "model/new_game.h"
#include "model/replacement.h"
#include "session/commands.h"
#include "session/queries.h"
#include "text/encoding.h"

#include <memory>
#include <system_error>

namespace orb::session {
namespace {

/// The file, or the starting position, holds the game as it is now.
void MarkSaved(Situation& situation) {
  situation.Saved = std::make_shared<const model::GameState>(situation.Game);
}

void BeginGame(Situation& situation) {
  ++situation.GameNumber;
  situation.EarlierFile.clear();
  situation.Editing = Editing::None;
  situation.Rules = Rules::Orb;
}

}  // namespace

void NewGame(Situation& situation, const std::filesystem::path& dataDirectory) {
  BeginGame(situation);
  model::NewGame(situation.Game, dataDirectory);
  MarkSaved(situation);
}

void BlankGame(Situation& situation, const std::filesystem::path& dataDirectory) {
  BeginGame(situation);
  model::BlankGame(situation.Game, dataDirectory);
  MarkSaved(situation);
}

bool ReadGame(Situation& situation, const std::filesystem::path& file, model::Messages& messages,
              model::Streams streams) {
  situation.OwnFile = model::ReadGameFile(situation.Game, file, messages, streams);
  return situation.OwnFile.has_value();
}

void OpenGame(Situation& situation, const std::filesystem::path& file, bool readOnly,
              const std::filesystem::path& dataDirectory, model::Messages& messages) {
  BeginGame(situation);
  situation.ReadOnly = readOnly;
  situation.Stopped.reset();
  if (!ReadGame(situation, file, messages)) model::NewGame(situation.Game, dataDirectory);
  MarkSaved(situation);
}

bool IsSameFile(const std::filesystem::path& a, const std::filesystem::path& b) {
  std::error_code ignored;
  return a == b || std::filesystem::equivalent(a, b, ignored);
}

void ExpectUnchanged(const Situation& situation, const std::filesystem::path& file) {
  const auto& mark = situation.OwnFile;
  if (!mark) return;
  if (!IsSameFile(file, mark->Path)) return;
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
  MarkSaved(situation);
}

void SaveGameAs(Situation& situation, const std::filesystem::path& file, Overwrite overwrite) {
  situation.ReadOnly = false;
  situation.Game.FileName = file.string();
  SaveGame(situation, overwrite);
}

}  // namespace orb::session
