#include "adjudication/adjustments.h"
#include "adjudication/stages.h"
#include "model/game_file.h"
#include "model/new_game.h"
#include "model/seasons.h"
#include "model/text.h"
#include "orders/lookups.h"
#include "support/directories.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

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
      if (!orders::CanStandIn(*RealMap(), type, place)) continue;
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
    for (std::size_t i = 0; i < plans.size(); ++i) {
      if (Chance(2)) plans[i][static_cast<std::size_t>(Below(static_cast<int>(plans[i].size())))]++;
      if (Chance(95)) game.OrdersList.push_back(Text(game, i) + " " + plans[i]);
      if (Chance(2)) game.OrdersList.push_back(Text(game, i) + " - " + Aim(UnitOf(game, i)));
    }
    while (game.OrdersList.size() + 40 > 80)
      game.OrdersList.pop_back();
  }

  void OrderRetreats(GameState& game) {
    for (const Unit& unit : game.Units) {
      if (unit.Status.empty() || Chance(5)) continue;
      const std::string text = orders::UnitText(unit);
      game.RetreatsList.push_back(text + (Chance(10) ? " disband" : " retreat " + Aim(unit)));
    }
  }

  void OrderAdjustments(GameState& game) {
    for (const model::Country& country : game.Countries) {
      const std::string& power = country.Abbreviation;
      const adjudication::PowerCount count = adjudication::CountPower(game, power);
      int surplus = count.Units - count.Centres;
      for (int u = 1; u <= game.Units.Count() && surplus > 0; ++u) {
        const Unit& unit = game.Units[u];
        if (unit.Power != power) continue;
        game.AdjustmentsList.push_back(power + " disband " + orders::UnitText(unit).substr(4));
        --surplus;
      }
      for (int p = 1; p <= game.Provinces.Count() && surplus < 0; ++p) {
        const model::Province& place = game.Map->Provinces[p];
        if (place.HomeCountry != power || Chance(30)) continue;
        game.AdjustmentsList.push_back(power + " build " + (Chance(50) ? "A(" : "F(") + place.Name +
                                       ")");
      }
    }
  }

 private:
  static const Unit& UnitOf(const GameState& game, std::size_t i) {
    return game.Units[static_cast<int>(i) + 1];
  }
  static std::string Text(const GameState& game, std::size_t i) {
    return orders::UnitText(UnitOf(game, i));
  }

  /// Lets unit u help another unit's plan at times: a fleet carries an army to anywhere, any unit
  /// supports what it can reach.
  void Assist(const GameState& game, int u, std::vector<std::string>& plans) {
    std::string& plan = plans[static_cast<std::size_t>(u - 1)];
    const int wanted = Below(100);
    for (int tries = 0; tries < 15; ++tries) {
      const auto other = static_cast<std::size_t>(Below(game.Units.Count()));
      std::string& helped = plans[other];
      const Unit& unit = UnitOf(game, other);
      const bool moves = helped.starts_with("- ");
      const std::string place = moves ? helped.substr(2) : unit.Location;
      if (wanted < 10 && game.Units[u].UnitType == "F" && unit.UnitType == "A") {
        if (!moves || Chance(50)) helped = "- " + RandomPlace();
        plan = "c " + Text(game, other) + " " + helped;
        return;
      }
      if (wanted >= 10 && wanted < 60 && (moves || helped == "hold") &&
          orders::CanSupportInto(*RealMap(), game.Units[u], place)) {
        plan = "s " + Text(game, other) + " " + helped;
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
      if (orders::IsAdjacent(*RealMap(), unit.UnitType, unit.Location, place.Name)) {
        near.push_back(place.Name);
      }
    }
    if (near.empty() || Chance(7)) return RandomPlace();
    return near[static_cast<std::size_t>(Below(static_cast<int>(near.size())))];
  }

  std::mt19937 random_;
};

bool Arrives(const OrderLine& order, const Unit& unit, int u) {
  return order.Active && !order.Failed && order.Kind == "-" && order.UnitIndex == u &&
         order.Target == unit.Location;
}

bool Attacks(const OrderLine& order, const Unit& before, const Unit& after) {
  return order.Active && !order.Failed && order.Kind == "-" &&
         model::SamePlace(order.Target, before.Location) && order.Location == after.DislodgedFrom;
}

template <class Test>
bool AnyOrder(const Resolution& resolution, Test test) {
  return std::any_of(resolution.Orders.begin(), resolution.Orders.end(), test);
}

void CheckMovedUnit(const Resolution& resolution, const GameState& before, const GameState& after,
                    int u) {
  const Unit& old = before.Units[u];
  const Unit& unit = after.Units[u];
  EXPECT_EQ(unit.Power + unit.UnitType, old.Power + old.UnitType);
  EXPECT_EQ(unit.PreviousLocation, old.Location);
  EXPECT_TRUE(orders::CanStandIn(*after.Map, unit.UnitType, unit.Location)) << unit.Location;
  EXPECT_EQ(unit.Location != old.Location, AnyOrder(resolution,
                                                    [&](const OrderLine& order) {
                                                      return Arrives(order, unit, u) &&
                                                             order.Target != old.Location;
                                                    }))
      << orders::UnitText(old) << " now in " << unit.Location;
  EXPECT_EQ(unit.Status == model::Dislodged,
            AnyOrder(resolution, [&](const OrderLine& o) { return Attacks(o, old, unit); }))
      << orders::UnitText(old) << " <" << unit.DislodgedFrom;
  const OrderLine& own = resolution.Orders[unit.OrderIndex];
  EXPECT_EQ(unit.Status == model::Dislodged, own.Result == model::Dislodged);
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

void CheckMoves(const Resolution& resolution, const GameState& before, const GameState& after,
                std::size_t unordered) {
  ASSERT_EQ(after.Units.Count(), before.Units.Count());
  for (int u = 1; u <= before.Units.Count(); ++u)
    CheckMovedUnit(resolution, before, after, u);
  const std::set<std::string> distinct(before.OrdersList.begin(), before.OrdersList.end());
  if (distinct.size() == before.OrdersList.size()) CheckPlaces(resolution, after);
  ASSERT_EQ(static_cast<std::size_t>(after.ReportLines.Count()),
            before.OrdersList.size() + unordered);
  for (std::size_t i = 0; i < before.OrdersList.size(); ++i) {
    const std::string& line = after.ReportLines[static_cast<int>(i) + 1];
    EXPECT_EQ(line.substr(2, before.OrdersList[i].size()), before.OrdersList[i]);
  }
  bool dislodged = false;
  for (const Unit& unit : after.Units)
    dislodged = dislodged || unit.Status == model::Dislodged;
  EXPECT_EQ(after.Stage, dislodged                   ? "retreats"
                         : before.Season == "Spring" ? "finished"
                                                     : "adjustments");
  for (int p = 1; p <= before.Provinces.Count(); ++p) {
    const std::string& place = after.Map->Provinces[p].Name;
    const bool aimedAt = AnyOrder(resolution, [&](const OrderLine& order) {
      return order.Active && order.Kind == "-" && model::SamePlace(order.Target, place);
    });
    EXPECT_TRUE(after.Provinces[p].Uncontested || aimedAt) << place;
    EXPECT_EQ(after.Provinces[p].PreviousOwner, before.Provinces[p].Owner);
  }
}

void CheckRetreats(const GameState& before, const GameState& after) {
  int next = 1;
  for (const Unit& old : before.Units) {
    if (next > after.Units.Count()) {
      EXPECT_EQ(old.Status, model::Dislodged);
      continue;
    }
    const Unit& unit = after.Units[next];
    const bool same = unit.PreviousLocation == old.PreviousLocation && unit.Power == old.Power;
    if (old.Status.empty()) {
      EXPECT_TRUE(same && unit.Location == old.Location) << orders::UnitText(old);
    }
    if (!same) continue;
    ++next;
    EXPECT_TRUE(unit.Status.empty());
    if (old.Status.empty()) continue;
    EXPECT_EQ(orders::FindUnitAt(before, unit.Location), 0);
    EXPECT_FALSE(model::SamePlace(unit.Location, old.DislodgedFrom));
    EXPECT_TRUE(before.Provinces[model::FindProvince(*before.Map, unit.Location)].Uncontested);
    EXPECT_TRUE(orders::IsAdjacent(*before.Map, old.UnitType, old.Location, unit.Location));
  }
  EXPECT_EQ(next, after.Units.Count() + 1);
  EXPECT_EQ(after.Stage, before.Season == "Spring" ? "finished" : "adjustments");
}

void CheckAdjustments(const Resolution& resolution, const GameState& before,
                      const GameState& after) {
  if (!resolution.Completed) return;
  EXPECT_EQ(after.Stage, "finished");
  std::set<std::string> places;
  for (const Unit& unit : after.Units) {
    const std::string place = unit.Location.substr(0, 3);
    places.insert(place);
    const model::Province& province = after.Map->Provinces[model::FindProvince(*after.Map, place)];
    const int old = orders::FindUnitAt(before, place);
    EXPECT_TRUE(old != 0 ? before.Units[old].Power == unit.Power
                         : province.HomeCountry == unit.Power && province.IsSupplyCentre != 0)
        << orders::UnitText(unit);
  }
  EXPECT_EQ(places.size(), static_cast<std::size_t>(after.Units.Count()));
  for (const model::Country& country : after.Countries) {
    const adjudication::PowerCount count = adjudication::CountPower(after, country.Abbreviation);
    EXPECT_LE(count.Units, count.Centres) << country.Abbreviation;
  }
}

/// Saving, loading and saving again gives the same bytes.
void CheckFile(const GameState& game) {
  const std::string bytes = model::FormatGameFile(game);
  GameState loaded = model::EmptyGame(game.Map);
  ASSERT_FALSE(model::ParseGameFile(bytes, "game", loaded));
  EXPECT_EQ(model::FormatGameFile(loaded), bytes);
}

/// A No to any one question leaves everything as it was.
void CheckRefusal(const GameState& before, std::size_t questions, Player& player) {
  if (questions == 0) return;
  const int refused = player.Below(static_cast<int>(questions));
  std::vector<model::Answer> answers(static_cast<std::size_t>(refused), model::Answer::Yes);
  answers.push_back(model::Answer::No);
  ScriptedMessages messages(answers);
  GameState game = before;
  EXPECT_FALSE(adjudication::ResolveStage(game, messages).Completed);
  EXPECT_EQ(Describe(game), Describe(before));
}

std::size_t CountUnordered(const ScriptedMessages& messages) {
  return static_cast<std::size_t>(std::count_if(
      messages.Questions.begin(), messages.Questions.end(),
      [](const std::string& text) { return text.ends_with(" unordered.\rContinue?"); }));
}

/// How often each kind of outcome was met, so that the test cannot pass by meeting none.
struct Tally {
  int Dislodged = 0, Removed = 0, Built = 0, ConvoysFailed = 0, Refused = 0;
};

void PlayStage(Player& player, GameState& game, Tally& tally) {
  const GameState before = game;
  ScriptedMessages messages;
  const Resolution resolution = adjudication::ResolveStage(game, messages);
  if (before.Stage == "moves") {
    CheckMoves(resolution, before, game, CountUnordered(messages));
    tally.Dislodged += game.Stage == "retreats" ? 1 : 0;
    tally.ConvoysFailed +=
        AnyOrder(resolution, [](const OrderLine& o) { return o.Result == "convoy failed"; });
  } else if (before.Stage == "retreats") {
    CheckRetreats(before, game);
    tally.Removed += before.Units.Count() - game.Units.Count();
  } else {
    CheckAdjustments(resolution, before, game);
    tally.Built += std::max(0, game.Units.Count() - before.Units.Count());
  }
  tally.Refused += messages.Questions.empty() ? 0 : 1;
  CheckFile(game);
  CheckRefusal(before, messages.Questions.size(), player);
}

TEST(RandomPlay, KeepsWhatTheRulesPromise) {
  Tally tally;
  for (unsigned seed = 1; seed <= 4000 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Player player(seed);
    GameState game = player.Position();
    if (seed % 10 == 0) model::NewGame(game, DataDirectory());
    for (int season = 1; season <= 2; ++season) {
      player.OrderMoves(game);
      PlayStage(player, game, tally);
      if (game.Stage == "retreats") {
        player.OrderRetreats(game);
        PlayStage(player, game, tally);
      }
      if (game.Stage == "adjustments") {
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
