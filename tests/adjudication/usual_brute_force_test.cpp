#include "adjudication/usual/stages.h"
#include "adjudication/usual_checker.h"
#include "adjudication/usual_positions.h"
#include "model/lookups.h"
#include "support/boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using adjudication::Ruling;
using model::GameState;
using model::Unit;

/// Where the resolution differs from the trial; empty where it does not.
std::string Difference(const GameState& before, const Ruled& ruled) {
  GameState after = before;
  const adjudication::Resolution resolution = adjudication::usual::ResolveStage(after);
  std::string text = ruled.Contradiction;
  std::string standoffs;
  for (const std::string& place : ruled.Standoffs)
    standoffs += place + " ";
  std::vector<std::string> contested = Words(ContestedPlaces(after));
  std::sort(contested.begin(), contested.end());
  std::string marked;
  for (const std::string& place : contested)
    marked += place + " ";
  if (marked != standoffs) text += "standoffs: " + marked + "instead of: " + standoffs + "\n";
  for (int u = 1; u <= before.Units.Count(); ++u) {
    const UnitFate& fate = ruled.Units[static_cast<std::size_t>(u - 1)];
    const Unit& unit = after.Units[u];
    const orders::OrderLine& order = resolution.Orders[resolution.OrdersOfUnits[u]];
    UnitFate got = fate;
    got.Location = unit.Location;
    got.DislodgedFrom = unit.DislodgedFrom;
    got.Dislodged = unit.Status == model::Dislodged;
    if (fate.Moves || fate.Supports) got.Serves = !order.Failed;
    const Ruling ruling = resolution.Reasons[resolution.OrdersOfUnits[u]].Ruling;
    const bool isSpecial =
        ruling == Ruling::Paradox || ruling == Ruling::NoPath || ruling == Ruling::Ring;
    got.Why = isSpecial ? ruling : Ruling::None;
    if (got == fate) continue;
    text += model::UnitText(before.Units[u]) + " ends in " + got.Location + " <" +
            got.DislodgedFrom + (got.Dislodged ? "!" : "") + (got.Serves ? " served" : "") +
            " instead of " + fate.Location + " <" + fate.DislodgedFrom +
            (fate.Dislodged ? "!" : "") + (fate.Serves ? " served" : "") +
            (got.Why == fate.Why ? "" : ", for another reason") + "\n";
  }
  return text;
}

/// The position with as many orders and units left out as the difference allows.
GameState Reduced(GameState game) {
  const auto differs = [](const GameState& other) {
    return !Difference(other, RuleByTrial(other)).empty();
  };
  for (bool smaller = true; smaller;) {
    smaller = false;
    for (std::size_t i = 0; i < game.OrdersList.size(); ++i) {
      GameState other = game;
      other.OrdersList.erase(other.OrdersList.begin() + static_cast<std::ptrdiff_t>(i));
      if (differs(other)) game = other, smaller = true;
    }
    for (int u = 1; u <= game.Units.Count(); ++u) {
      GameState other = game;
      other.Units.Remove(u);
      if (differs(other)) game = other, smaller = true;
    }
  }
  return game;
}

std::string Drawn(const GameState& game) {
  std::string text = DrawUnits(game);
  for (const std::string& line : game.OrdersList)
    text += "> " + line + "\n";
  return text;
}

unsigned FromEnvironment(const char* name, unsigned otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

/// How many positions held what, so that the test cannot pass by meeting none.
struct Tally {
  int Positions = 0, Convoys = 0, Circles = 0, Paradoxes = 0, Chains = 0;
  int Dislodged = 0, Standoffs = 0, Cut = 0;
};

void Count(const Ruled& ruled, Tally& tally) {
  ++tally.Positions;
  tally.Convoys += ruled.Convoyed != 0 ? 1 : 0;
  tally.Circles += ruled.HasCircle ? 1 : 0;
  tally.Paradoxes += ruled.Paradoxes != 0 ? 1 : 0;
  tally.Chains += ruled.Paradoxes > 1 ? 1 : 0;
  tally.Standoffs += ruled.Standoffs.empty() ? 0 : 1;
  const auto any = [&](auto test) {
    return std::any_of(ruled.Units.begin(), ruled.Units.end(), test) ? 1 : 0;
  };
  tally.Dislodged += any([](const UnitFate& fate) { return fate.Dislodged; });
  tally.Cut += any([](const UnitFate& fate) { return fate.Supports && !fate.Serves; });
}

// ORB_TRIAL_SEED and ORB_TRIAL_POSITIONS: other positions, and more of them, for a longer run.
TEST(UsualRules, ResultIsTheOneThatSatisfiesAllDefinitions) {
  const unsigned positions = FromEnvironment("ORB_TRIAL_POSITIONS", 6000);
  const unsigned first = FromEnvironment("ORB_TRIAL_SEED", 1);
  Tally tally;
  int differences = 0;
  for (unsigned seed = first; seed < first + positions && differences < 20; ++seed) {
    const GameState game = seed % 3 == 0 ? ParadoxOf(seed) : MeleeOf(seed);
    const Ruled ruled = RuleByTrial(game);
    if (ruled.Moves > 12) continue;
    Count(ruled, tally);
    if (Difference(game, ruled).empty()) continue;
    ++differences;
    const GameState reduced = Reduced(game);
    ADD_FAILURE() << "seed " << seed << ", as far as needed:\n"
                  << Drawn(reduced) << Difference(reduced, RuleByTrial(reduced));
  }
  struct Least {
    const char* Name;
    int Count, OfThousand;
  };
  const std::vector<Least> counts = {
      {"Positions", tally.Positions, 950},     {"Convoys", tally.Convoys, 300},
      {"Circles", tally.Circles, 20},          {"Paradoxes", tally.Paradoxes, 50},
      {"ParadoxesOfSeveral", tally.Chains, 2}, {"Dislodged", tally.Dislodged, 200},
      {"Standoffs", tally.Standoffs, 30},      {"SupportsCut", tally.Cut, 250}};
  for (const Least& least : counts) {
    RecordProperty(least.Name, least.Count);
    EXPECT_GE(least.Count * 1000LL, static_cast<long long>(positions) * least.OfThousand)
        << least.Name;
  }
}

}  // namespace
}  // namespace orb::tests
