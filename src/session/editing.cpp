#include "session/commands.h"

namespace orb::session {

void SetEditing(Situation& situation, Editing editing) {
  situation.Editing = editing;
}

std::string Edit(Situation& situation, const PositionChange& change) {
  return change(situation.Game);
}

}  // namespace orb::session
