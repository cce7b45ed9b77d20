#include "session/commands.h"

namespace orb::session {

void SetEditing(Situation& situation, Editing editing) {
  situation.Editing = editing;
}

std::string Edit(Situation& situation, const PositionChange& change) {
  situation.Edits.Begin(situation.Game);
  std::string refusal = change(situation.Game);
  situation.Edits.Record(situation.Game);
  return refusal;
}

void UndoEdit(Situation& situation) {
  situation.Edits.Undo(situation.Game);
}

void RedoEdit(Situation& situation) {
  situation.Edits.Redo(situation.Game);
}

void WithdrawEdit(Situation& situation) {
  situation.Edits.Withdraw(situation.Game);
}

}  // namespace orb::session
