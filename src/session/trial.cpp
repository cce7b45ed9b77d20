#include "session/trial.h"

#include "model/errors.h"

namespace orb::session {

Situation TryOut(const Situation& situation, Noting noting, Comparing comparing) {
  Situation tried = situation;
  model::Consent messages;
  if (Resolve(tried, messages, noting, comparing)) return tried;
  throw model::FatalError(messages.Shown.empty() ? "The stage cannot be resolved."
                                                 : messages.Shown.back());
}

}  // namespace orb::session
