#include "json/situation.h"
#include "model/errors.h"
#include "model/map_files.h"
#include "session/queries.h"
#include "session/trial.h"

#include <iostream>

// Usage: embed GAME
// Resolves the moves of a game as they stand in its file and prints why each order came out so, then
// the situation in JSON. The game's file stays as it is.

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: embed GAME\n";
    return 2;
  }
  try {
    orb::session::Situation situation;
    situation.Game = orb::model::EmptyGame(orb::model::LoadMap(ORB_DATA_DIR));
    orb::model::Consent messages;
    if (!orb::session::ReadGame(situation, argv[1], messages)) {
      std::cerr << messages.Shown.back() << "\n";
      return 1;
    }
    const orb::session::Situation after = orb::session::TryOut(situation);
    for (std::size_t i = 0; i < after.Notes.size(); ++i) {
      std::cout << after.Game.ReportLines[static_cast<int>(i) + 1] << ": " << after.Notes[i].Reason << "\n";
    }
    std::cout << orb::json::SituationText(after.Game) << "\n";
  } catch (const orb::model::FatalError& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
