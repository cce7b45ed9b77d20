#pragma once

#include "history/journeys.h"
#include "session/situation.h"

#include <string>
#include <vector>

namespace orb::pages {

/// A game as one file has it, or as it stands in a program.
struct Source {
  session::Situation Situation;

  /// Whether the orders in its lists are meant to be carried out: they are secret otherwise, unless
  /// a later situation shows what became of them.
  bool Resolves = false;
};

/// A season of a game, as far as its situations tell of it.
struct Season {
  std::string Name;                        ///< "Spring 1901"
  model::GameState Start;                  ///< the map that it begins with
  model::GameState End;                    ///< how it stands last, with the report
  std::vector<history::Journey> Journeys;  ///< of Start's units in their order, then new ones
  std::vector<orders::OrderOutcome> Orders;
  std::vector<session::ReportNote> Notes;  ///< for the lines of End's report; perhaps fewer
  std::string Remark;                      ///< by which rules it was resolved, where not by ORB's
};

/// The seasons of a game in their order, from situations in any order. Orders that a situation
/// holds are resolved where a later one shows that this is what became of them, by either rules, so
/// that their outcomes and reasons are known; where none does, only what the positions tell is
/// shown. Throws FatalError where orders that are to be resolved cannot be, and as
/// history::SeasonReplay does.
std::vector<Season> SeasonsOf(std::vector<Source> sources);

}  // namespace orb::pages
