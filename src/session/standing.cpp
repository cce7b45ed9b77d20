#include "session/standing.h"

#include "adjudication/possible_orders.h"
#include "model/counts.h"
#include "model/lookups.h"
#include "orders/order_list.h"
#include "orders/parser.h"
#include "session/queries.h"

#include <algorithm>
#include <cstdlib>

namespace orb::session {
namespace {

using adjudication::ListCheck;
using adjudication::PossibleOrders;
using model::GameState;
using model::Stage;

std::vector<std::string> RetreatsOf(const GameState& game, const model::Unit& unit) {
  std::vector<std::string> places;
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
    if (adjudication::MayRetreatTo(game, unit, row))
      places.push_back(game.Map->Provinces[row].Name);
  }
  return places;
}

/// The province that a line builds in, whatever the coast; empty for another order.
std::string BuildPlace(const GameState& game, const std::string& line) {
  const orders::OrderLine order = orders::ParseLine(*game.Map, game.Stage, line);
  if (order.Kind != orders::OrderKind::Build || order.Location == 0) return {};
  return game.Map->Provinces[game.Map->Places[order.Location]].Name;
}

/// The home centres in which the power can build.
std::vector<std::string> RoomOf(const GameState& game, const PossibleOrders& possible, int power) {
  std::vector<std::string> places;
  for (const std::string& line : possible.OfPower(power)) {
    const std::string place = BuildPlace(game, line);
    if (!place.empty() && !std::ranges::count(places, place)) places.push_back(place);
  }
  return places;
}

/// Units of the moves and retreats.
void CountUnits(const GameState& game, const ListCheck& check, Standings& standings) {
  for (int u = 1; u <= game.Units.Count(); ++u) {
    const model::Unit& unit = game.Units[u];
    const int power = model::FindCountry(unit.Power);
    const bool isDue = game.Stage == Stage::Moves || unit.Status == model::Dislodged;
    if (power == 0 || !isDue) continue;
    ++standings.Powers[power].Due;
    const std::string text = model::UnitText(unit);
    if (!std::ranges::count(check.Unordered, text)) {
      ++standings.Powers[power].Ordered;
      continue;
    }
    OpenOrder open{power, text, unit.Location, 0, {}};
    if (game.Stage == Stage::Retreats) open.Places = RetreatsOf(game, unit);
    standings.Open.push_back(std::move(open));
  }
  // Units that were built lately come last among those of all powers.
  std::ranges::stable_sort(standings.Open, {}, &OpenOrder::Power);
}

/// What the lines that would pass change for the power, and where they build.
struct Adjusted {
  int Change = 0;
  std::vector<std::string> Built;
};

Adjusted AdjustedBy(const GameState& game, const ListCheck& check, int power) {
  Adjusted adjusted;
  const std::vector<std::string>& list = orders::StageList(game);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const orders::OrderLine order = orders::ParseLine(*game.Map, game.Stage, list[i]);
    if (order.Power != power || !check.Lines[i].empty()) continue;
    const bool builds = order.Kind == orders::OrderKind::Build;
    adjusted.Change += builds ? 1 : -1;
    if (builds) adjusted.Built.push_back(BuildPlace(game, list[i]));
  }
  return adjusted;
}

void CountAdjustments(const GameState& game, const ListCheck& check, Standings& standings) {
  const PossibleOrders possible(game);
  for (int power = 1; power <= model::CountryCount; ++power) {
    const model::PowerCount count = model::CountPower(game, model::PowerName(power));
    std::vector<std::string> room = RoomOf(game, possible, power);
    const Adjusted adjusted = AdjustedBy(game, check, power);
    PowerStanding& standing = standings.Powers[power];
    standing.Due = std::min(count.Centres - count.Units, static_cast<int>(room.size()));
    standing.Ordered = adjusted.Change;
    const int left = standing.Due - standing.Ordered;
    const bool beyond = standing.Due == 0 ? left != 0 : (left < 0) == (standing.Due > 0);
    if (left != 0 && beyond) {
      standing.Excess = std::abs(left);
    } else if (left != 0) {
      std::erase_if(room, [&](const auto& place) {
        return left < 0 || std::ranges::count(adjusted.Built, place) != 0;
      });
      standings.Open.push_back({power, {}, {}, left, std::move(room)});
    }
  }
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts)
    joined.append(joined.empty() ? "" : ", ").append(text);
  return joined;
}

std::string Signed(int number) {
  return (number > 0 ? "+" : "") + std::to_string(number);
}

/// What the power orders in the stage, by how many are due.
std::string NounOf(Stage stage, int due) {
  std::string noun = "order";
  if (stage == Stage::Retreats) noun = "retreat";
  if (stage == Stage::Adjustments) noun = due > 0 ? "build" : "disband";
  return std::abs(due) == 1 ? noun : noun + "s";
}

/// "3 of 4 orders", "no units"
std::string ProgressOf(const PowerStanding& power, Stage stage) {
  if (power.Due == 0 && power.Ordered == 0) {
    if (stage == Stage::Moves) return "no units";
    if (stage == Stage::Retreats) return "no retreats";
    return stage == Stage::Adjustments ? "no change" : "nothing to order";
  }
  // A power that may neither build nor must disband, and does either.
  if (power.Due == 0) {
    const int change = power.Ordered;
    return std::to_string(std::abs(change)) + " " + NounOf(stage, change);
  }
  const int sign = power.Due < 0 ? -1 : 1;
  return std::to_string(sign * power.Ordered) + " of " + std::to_string(sign * power.Due) + " " +
         NounOf(stage, power.Due);
}

}  // namespace

Standing PowerStanding::InOneWord() const {
  if (Doubtful > 0 || Excess > 0) return Standing::Doubtful;
  if (Ordered != Due) return Standing::Missing;
  return Due == 0 ? Standing::Idle : Standing::Complete;
}

std::string OpenOrder::Begin() const {
  if (!Unit.empty()) return Unit + " ";
  return std::string(model::PowerName(Power)) + (Change > 0 ? " build " : " disband ");
}

Standings StandingsOf(const Situation& situation) {
  const GameState& game = situation.Game;
  Standings standings;
  standings.Powers.SetCount(model::CountryCount);
  if (!TakesOrders(game)) return standings;
  const ListCheck check = CheckOrders(situation);
  for (const std::string& line : orders::StageList(game))
    standings.LinePowers.push_back(orders::ParseLine(*game.Map, game.Stage, line).Power);
  for (std::size_t i = 0; i < standings.LinePowers.size(); ++i) {
    const int power = standings.LinePowers[i];
    if (power != 0 && !check.Lines[i].empty()) ++standings.Powers[power].Doubtful;
  }
  if (game.Stage == Stage::Adjustments) {
    CountAdjustments(game, check, standings);
  } else {
    CountUnits(game, check, standings);
  }
  return standings;
}

std::string FigureOf(const PowerStanding& power, Stage stage) {
  if (power.Due == 0 && power.Ordered == 0) return "-";
  if (stage != Stage::Adjustments)
    return std::to_string(power.Ordered) + "/" + std::to_string(power.Due);
  return Signed(power.Ordered) + "/" + Signed(power.Due);
}

std::string SentenceOf(const std::string& name, const PowerStanding& power, Stage stage) {
  std::string sentence = name + ": " + ProgressOf(power, stage);
  if (power.Excess > 0) sentence += ", " + std::to_string(power.Excess) + " too many";
  if (power.Doubtful > 0) sentence += ", " + std::to_string(power.Doubtful) + " doubtful";
  return sentence;
}

std::string TextOf(const OpenOrder& open, Stage stage) {
  if (stage == Stage::Moves) return open.Unit;
  const std::string places = Joined(open.Places);
  if (stage == Stage::Retreats) {
    return open.Unit + (places.empty() ? " disband" : " retreat " + places + " or disband");
  }
  const std::string_view power = model::PowerName(open.Power);
  const std::string number = std::to_string(std::abs(open.Change));
  return std::string(power)
      .append(open.Change > 0 ? " may build " : " must disband ")
      .append(number)
      .append(places.empty() ? "" : ": ")
      .append(places);
}

}  // namespace orb::session
