#include "ui/session/trial.h"

#include "model/errors.h"
#include "session/trial.h"

namespace orb::ui {

Trial tryOutStage(const session::Situation& situation, bool compare) {
  const auto comparing = compare ? session::Comparing::Yes : session::Comparing::No;
  try {
    return {session::TryOut(situation, session::Noting::Full, comparing)};
  } catch (const model::FatalError& objection) {
    return {situation, objection.what()};
  }
}

}  // namespace orb::ui
