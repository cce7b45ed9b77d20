#include "adjudication/adjustments.h"
#include "adjudication/explain.h"
#include "adjudication/participants.h"
#include "adjudication/stages.h"
#include "model/counts.h"
#include "model/lookups.h"
#include "model/new_game.h"
#include "model/place.h"
#include "model/seasons.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using adjudication::Resolution;
using model::GameState;
using model::Unit;
using orders::OrderLine;
using orders::OrderResult;

/// Makes up positions and orders, the same ones for the same seed.
class Player {
 public:
  explicit Player(unsigned seed) : random_(seed) {}

  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
  bool Chance(int percent) { return Below(100) < percent; }

  GameState Position() {
    GameState game = EmptyBoard(Chance(50) ? "Spring" : "Autumn", "moves");
    std::set<std::string> taken;
    const int wanted = Below(model::UnitBound + 1);
    for (int tries = 0; tries < 200 && game.Units.Count() < wanted; ++tries) {
      const std::string& place = RandomPlace();
      const std::string type = Chance(50) ? "A" : "F";
      if (!model::CanStandIn(*RealMap(), type, place)) continue;
      if (!taken.insert(place.substr(0, 3)).second) continue;
      Unit& unit = game.Units.Append();
      unit.Power = game.Countries[1 + Below(model::CountryCount)].Abbreviation;
      unit.UnitType = type;
      unit.Location = place;
    }
    return game;
  }

  void OrderMoves(GameState& game) {
    std::vector<std::string> plans;
    for (const Unit& unit : game.Units)
      plans.push_back(Chance(85) ? "- " + Aim(unit) : "hold");
    for (int u = 1; u <= game.Units.Count(); ++u)
      Assist(game, u, plans);
    for (int u = 1; u <= game.Units.Count(); ++u) {
      const std::string text = model::UnitText(game.Units[u]) + " ";
      std::string& plan = plans[static_cast<std::size_t>(u - 1)];
      if (Chance(2)) plan[static_cast<std::size_t>(Below(static_cast<int>(plan.size())))]++;
      if (Chance(95)) game.OrdersList.push_back(text + plan);
      if (Chance(2)) game.OrdersList.push_back(text + "- " + Aim(game.Units[u]));
    }
    if (game.OrdersList.size() > 40) game.OrdersList.resize(40);
  }

  void OrderRetreats(GameState& game) {
    for (const Unit& unit : game.Units) {
      if (unit.Status.empty() || Chance(5)) continue;
      const std::string text = model::UnitText(unit);
      game.RetreatsList.push_back(text + (Chance(10) ? " disband" : " retreat " + Aim(unit)));
    }
  }

  void OrderAdjustments(GameState& game) {
    for (const model::Country& country : game.Countries) {
      const std::string& power = country.Abbreviation;
      const model::PowerCount count = model::CountPower(game, power);
      int surplus = count.Units - count.Centres;
      for (const Unit& unit : game.Units) {
        if (unit.Power != power || surplus-- <= 0) continue;
        game.AdjustmentsList.push_back(power + " disband " + model::UnitText(unit).substr(4));
      }
      for (const model::Province& place : game.Map->Provinces) {
        if (place.HomeCountry != power || count.Units >= count.Centres || Chance(30)) continue;
        game.AdjustmentsList.push_back(power + " build " + (Chance(50) ? "A(" : "F(") + place.Name +
                                       ")");
      }
    }
  }

 private:
  /// Lets unit u help another unit's plan at times: a fleet carries an army to anywhere, any unit
  /// supports what it can reach.
  void Assist(const GameState& game, int u, std::vector<std::string>& plans) {
    std::string& plan = plans[static_cast<std::size_t>(u - 1)];
    const int wanted = Below(100);
    for (int tries = 0; tries < 15; ++tries) {
      const int other = 1 + Below(game.Units.Count());
      std::string& helped = plans[static_cast<std::size_t>(other - 1)];
      const Unit& unit = game.Units[other];
      const bool moves = helped.starts_with("- ");
      const std::string place = moves ? helped.substr(2) : unit.Location;
      if (wanted < 10 && game.Units[u].UnitType == "F" && unit.UnitType == "A") {
        if (!moves || Chance(50)) helped = "- " + RandomPlace();
        plan = "c " + model::UnitText(unit) + " " + helped;
        return;
      }
      if (wanted >= 10 && wanted < 60 && (moves || helped == "hold") &&
          model::CanSupportInto(*RealMap(), game.Units[u], place)) {
        plan = "s " + model::UnitText(unit) + " " + helped;
        return;
      }
    }
  }

  const std::string& RandomPlace() {
    return RealMap()->Provinces[1 + Below(RealMap()->Provinces.Count())].Name;
  }

  /// Mostly a place that the unit can move to, at times any place.
  std::string Aim(const Unit& unit) {
    std::vector<std::string> near;
    for (const model::Province& place : RealMap()->Provinces) {
      if (model::IsAdjacent(*RealMap(), unit.UnitType, unit.Location, place.Name)) {
        near.push_back(place.Name);
      }
    }
    if (near.empty() || Chance(7)) return RandomPlace();
    return near[static_cast<std::size_t>(Below(static_cast<int>(near.size())))];
  }

  std::mt19937 random_;
};

template <class Test>
bool AnyMove(const Resolution& resolution, Test test) {
  return std::any_of(resolution.Orders.begin(), resolution.Orders.end(),
                     [&](const OrderLine& o) { return o.Active && orders::IsMove(o) && test(o); });
}

void CheckMovedUnit(const Resolution& resolution, const GameState& before, const GameState& after,
                    int u) {
  const Unit& old = before.Units[u];
  const Unit& unit = after.Units[u];
  const model::Map& map = *after.Map;
  SCOPED_TRACE(model::UnitText(old) + " now in " + unit.Location + " <" + unit.DislodgedFrom);
  EXPECT_EQ(unit.Power + unit.UnitType + unit.PreviousLocation,
            old.Power + old.UnitType + old.Location);
  EXPECT_TRUE(model::CanStandIn(*after.Map, unit.UnitType, unit.Location));
  EXPECT_TRUE(unit.Location == old.Location || AnyMove(resolution, [&](const OrderLine& o) {
                return !o.Failed && o.UnitIndex == u &&
                       model::LocationName(map, o.Target) == unit.Location;
              }));
  const bool dislodged = unit.Status == model::Dislodged;
  const bool entered = AnyMove(resolution, [&](const OrderLine& o) {
    return !o.Failed && model::SamePlace(model::LocationName(map, o.Target), old.Location) &&
           model::LocationName(map, o.Location) == unit.DislodgedFrom;
  });
  // A retreat leaves DislodgedFrom standing, so only a dislodged unit's tells of this season.
  EXPECT_TRUE(dislodged ? entered : unit.DislodgedFrom == old.DislodgedFrom);
  EXPECT_EQ(dislodged,
            resolution.Orders[resolution.OrdersOfUnits[u]].Result == OrderResult::Dislodged);
}

/// Units that were not dislodged stand in places of their own. Rules that count a support twice
/// or carry out two orders of one unit can break this.
void CheckPlaces(const Resolution& resolution, const GameState& after) {
  for (int k = 1; k <= resolution.Orders.Count(); ++k) {
    if (resolution.Reasons[k].SupportWithdrawn) return;
  }
  std::set<std::string> places;
  for (const Unit& unit : after.Units) {
    if (unit.Status.empty()) {
      EXPECT_TRUE(places.insert(unit.Location.substr(0, 3)).second) << unit.Location;
    }
  }
}

void CheckMoves(const Resolution& resolution, const GameState& before, const GameState& after) {
  ASSERT_EQ(after.Units.Count(), before.Units.Count());
  for (int u = 1; u <= before.Units.Count(); ++u)
    CheckMovedUnit(resolution, before, after, u);
  const std::set<std::string> distinct(before.OrdersList.begin(), before.OrdersList.end());
  if (distinct.size() == before.OrdersList.size()) CheckPlaces(resolution, after);
  ASSERT_EQ(after.ReportLines.Count(), resolution.Orders.Count());
  for (std::size_t i = 0; i < before.OrdersList.size(); ++i) {
    const std::string& line = after.ReportLines[static_cast<int>(i) + 1];
    EXPECT_EQ(line.substr(2, before.OrdersList[i].size()), before.OrdersList[i]);
  }
  const bool dislodged = std::any_of(after.Units.begin(), after.Units.end(), [](const Unit& unit) {
    return unit.Status == model::Dislodged;
  });
  EXPECT_EQ(after.Stage, dislodged                   ? model::Stage::Retreats
                         : before.Season == "Spring" ? model::Stage::Finished
                                                     : model::Stage::Adjustments);
  for (int p = 1; p <= before.Provinces.Count(); ++p) {
    const std::string& place = after.Map->Provinces[p].Name;
    EXPECT_TRUE(
        after.Provinces[p].Uncontested ||
        AnyMove(resolution,
                [&](const OrderLine& o) { return model::IsSamePlace(*after.Map, o.Target, p); }))
        << place;
    EXPECT_EQ(after.Provinces[p].PreviousOwner, before.Provinces[p].Owner);
  }
}

void CheckRetreats(const GameState& before, const GameState& after) {
  int next = 1;
  for (const Unit& old : before.Units) {
    const Unit unit = next <= after.Units.Count() ? after.Units[next] : Unit();
    const bool same = unit.PreviousLocation == old.PreviousLocation && unit.Power == old.Power;
    EXPECT_TRUE(old.Status == model::Dislodged || (same && unit.Location == old.Location))
        << model::UnitText(old);
    if (!same) continue;
    ++next;
    EXPECT_TRUE(unit.Status.empty());
    if (old.Status.empty()) continue;
    EXPECT_EQ(model::FindUnitAt(before, unit.Location), 0);
    EXPECT_FALSE(model::SamePlace(unit.Location, old.DislodgedFrom));
    EXPECT_TRUE(before.Provinces[model::FindProvince(*before.Map, unit.Location)].Uncontested);
    EXPECT_TRUE(model::IsAdjacent(*before.Map, old.UnitType, old.Location, unit.Location));
  }
  EXPECT_EQ(next, after.Units.Count() + 1);
  EXPECT_EQ(after.Stage,
            before.Season == "Spring" ? model::Stage::Finished : model::Stage::Adjustments);
}

void CheckAdjustments(const Resolution& resolution, const GameState& before,
                      const GameState& after) {
  if (!resolution.Completed) return;
  EXPECT_EQ(after.Stage, model::Stage::Finished);
  std::set<std::string> places;
  for (const Unit& unit : after.Units) {
    const std::string place = unit.Location.substr(0, 3);
    places.insert(place);
    const model::Province& province = after.Map->Provinces[model::FindProvince(*after.Map, place)];
    const int old = model::FindUnitAt(before, place);
    EXPECT_TRUE(old != 0 ? before.Units[old].Power == unit.Power
                         : province.HomeCountry == unit.Power && province.IsSupplyCentre != 0)
        << model::UnitText(unit);
  }
  EXPECT_EQ(places.size(), static_cast<std::size_t>(after.Units.Count()));
  for (const model::Country& country : after.Countries) {
    const model::PowerCount count = model::CountPower(after, country.Abbreviation);
    EXPECT_LE(count.Units, count.Centres) << country.Abbreviation;
  }
}

/// A No to any one question abandons the resolution.
void CheckRefusal(const GameState& before, std::size_t questions, Player& player) {
  if (questions == 0) return;
  const int refused = player.Below(static_cast<int>(questions));
  std::vector<model::Answer> answers(static_cast<std::size_t>(refused), model::Answer::Yes);
  answers.push_back(model::Answer::No);
  ScriptedMessages messages(answers);
  GameState game = before;
  EXPECT_FALSE(adjudication::ResolveStage(game, messages).Completed);
}

/// Every unit that a sentence names had a part in what it tells.
void CheckParticipants(const Resolution& resolution, const GameState& before,
                       const GameState& after) {
  const auto sentences = adjudication::ExplainReport(after, resolution);
  const auto participants = adjudication::ReportParticipants(after, resolution);
  for (int u = 1; u <= before.Units.Count(); ++u) {
    const std::string name = model::UnitText(before.Units[u]);
    for (std::size_t i = 0; i < sentences.size(); ++i) {
      if (sentences[i].find(name) == std::string::npos) continue;
      EXPECT_THAT(participants[i], testing::Contains(after.Units[u].Location)) << sentences[i];
    }
  }
}

/// How often each kind of outcome was met, so that the test cannot pass by meeting none.
struct OutcomesMet {
  int Dislodged = 0, Removed = 0, Built = 0, ConvoysFailed = 0, Refused = 0;
};

void PlayStage(Player& player, GameState& game, OutcomesMet& tally) {
  const GameState before = game;
  ScriptedMessages messages;
  const Resolution resolution = adjudication::ResolveStage(game, messages);
  if (before.Stage == model::Stage::Moves) {
    CheckMoves(resolution, before, game);
    CheckParticipants(resolution, before, game);
    tally.Dislodged += game.Stage == model::Stage::Retreats ? 1 : 0;
    for (const OrderLine& order : resolution.Orders)
      tally.ConvoysFailed += order.Result == OrderResult::ConvoyFailed ? 1 : 0;
  } else if (before.Stage == model::Stage::Retreats) {
    CheckRetreats(before, game);
    tally.Removed += before.Units.Count() - game.Units.Count();
  } else {
    CheckAdjustments(resolution, before, game);
    tally.Built += std::max(0, game.Units.Count() - before.Units.Count());
  }
  tally.Refused += messages.Questions.empty() ? 0 : 1;
  CheckRefusal(before, messages.Questions.size(), player);
}

TEST(RandomPlay, KeepsWhatTheRulesPromise) {
  OutcomesMet tally;
  for (unsigned seed = 1; seed <= 4000 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Player player(seed);
    GameState game = player.Position();
    if (seed % 10 == 0) model::NewGame(game, DataDirectory());
    for (int season = 1; season <= 2; ++season) {
      player.OrderMoves(game);
      PlayStage(player, game, tally);
      if (game.Stage == model::Stage::Retreats) {
        player.OrderRetreats(game);
        PlayStage(player, game, tally);
      }
      if (game.Stage == model::Stage::Adjustments) {
        player.OrderAdjustments(game);
        PlayStage(player, game, tally);
      }
      model::NextSeason(game);
      game.AdjustmentsList.clear();
    }
  }
  EXPECT_GT(tally.Dislodged, 500);
  EXPECT_GT(tally.Removed, 500);
  EXPECT_GT(tally.Built, 50);
  EXPECT_GT(tally.ConvoysFailed, 5);
  EXPECT_GT(tally.Refused, 500);
}

}  // namespace
}  // namespace orb::tests
