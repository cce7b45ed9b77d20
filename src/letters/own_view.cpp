#include "letters/own_view.h"

#include "model/lookups.h"
#include "orders/order_list.h"
#include "orders/parser.h"
#include "session/queries.h"

#include <algorithm>

namespace orb::letters {
namespace {

using model::GameState;
using orders::OrderLine;
using session::Situation;

OrderLine Parsed(const GameState& game, const std::string& line) {
  return orders::ParseLine(*game.Map, game.Stage, line);
}

/// What a support or convoy expects of the other unit, as a line: "ENG A(Lon) - Bel".
std::string ExpectedLine(const GameState& game, const OrderLine& order) {
  std::string line(model::PowerName(order.Power2));
  line.append(" ").append(model::UnitTypeName(order.UnitType2)).append("(");
  line.append(model::LocationName(*game.Map, order.Target)).append(")");
  if (order.Kind2 == orders::OrderKind::Hold) return line.append(" hold");
  return line.append(" - ").append(model::LocationName(*game.Map, order.Target2));
}

/// The order that the other unit would have to have; empty where there is no such unit.
std::string SupposedLine(const GameState& game, const OrderLine& order) {
  const std::string& place = model::LocationName(*game.Map, order.Target);
  for (const model::Unit& unit : game.Units) {
    const bool isMeant = unit.Power == model::PowerName(order.Power2) &&
                         unit.UnitType == model::UnitTypeName(order.UnitType2) &&
                         model::SamePlace(unit.Location, place);
    if (!isMeant) continue;
    const std::string expected = ExpectedLine(game, order);
    return model::UnitText(unit).append(expected, expected.find(')') + 1, std::string::npos);
  }
  return {};
}

bool ExpectsOthers(const OrderLine& order) {
  const bool helps = orders::IsSupport(order) || orders::IsConvoy(order);
  return helps && order.Fault == orders::SyntaxFault::None;
}

/// Whether the convoy is of just this move.
bool Carries(const GameState& game, const OrderLine& convoy, const OrderLine& move) {
  return orders::IsConvoy(convoy) && convoy.Power2 == move.Power &&
         model::IsSamePlace(*game.Map, convoy.Target, move.Location) &&
         model::IsSamePlace(*game.Map, convoy.Target2, move.Target);
}

/// A move from coast to coast that no army can make by land.
bool GoesBySea(const GameState& game, const OrderLine& order) {
  return orders::IsMove(order) && order.Fault == orders::SyntaxFault::None &&
         order.UnitType == model::UnitType::Army && model::IsCoastal(*game.Map, order.Location) &&
         model::IsCoastal(*game.Map, order.Target) &&
         !model::IsAdjacent(*game.Map, order.UnitType, order.Location, order.Target);
}

/// An order of another power's fleet that would carry the move; empty where there is no such fleet.
std::string ConvoyByOthers(const GameState& game, const OrderLine& move) {
  for (const model::Unit& unit : game.Units) {
    if (unit.Power == model::PowerName(move.Power)) continue;
    std::string line = model::UnitText(unit);
    line.append(" C ").append(orders::UnitName(*game.Map, move)).append(" - ");
    line.append(model::LocationName(*game.Map, move.Target));
    const OrderLine convoy = Parsed(game, line);
    if (convoy.Fault == orders::SyntaxFault::None && orders::IsConvoy(convoy)) return line;
  }
  return {};
}

/// What the checks say of a line, supposing that somebody also ordered `supposed`.
std::vector<std::string> FaultsOf(const Situation& view, std::size_t row,
                                  const std::string& supposed) {
  Situation tried = view;
  if (!supposed.empty()) orders::StageList(tried.Game).push_back(supposed);
  return session::CheckOrders(tried).Lines[row];
}

/// A support or convoy of a unit of the same power: its order is known.
void RemarkOnOwn(const Situation& view, std::size_t row, const OrderLine& order, Remark& remark) {
  const std::string expected = ExpectedLine(view.Game, order);
  // With the order that it expects in place of the unit's own: is it all that is wrong?
  Situation tried = view;
  std::vector<std::string>& list = orders::StageList(tried.Game);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const OrderLine other = Parsed(view.Game, list[i]);
    const bool isOther = other.Power == order.Power2 && other.UnitType == order.UnitType2 &&
                         model::IsSamePlace(*view.Game.Map, other.Location, order.Target);
    if (isOther && i != row) list[i] = expected;
  }
  list.push_back(expected);
  // Lines that now stand there twice are the same order.
  const bool isMatched = session::CheckOrders(tried).Lines[row].empty();
  if (!isMatched || remark.Faults.empty()) return;
  remark.Unmatched = remark.Faults.front();
  remark.Unmatched.append(". It would take ").append(expected).append(".");
  remark.Faults.clear();
}

void RemarkOnMove(const Situation& view, std::size_t row, const OrderLine& order, Remark& remark) {
  const std::vector<std::string>& list = orders::StageList(view.Game);
  const bool isCarried = std::ranges::any_of(list, [&](const std::string& line) {
    return Carries(view.Game, Parsed(view.Game, line), order);
  });
  const std::string convoy = ConvoyByOthers(view.Game, order);
  if (isCarried || convoy.empty()) return;
  if (!FaultsOf(view, row, convoy).empty()) return;
  remark.Faults.clear();
  remark.Open = "It needs a convoy, and none of your own fleets has the order to give it.";
}

/// Whatever a line needs of others is supposed to have been ordered: what is wrong then is wrong
/// whatever they do.
Remark RemarkOn(const Situation& view, std::size_t row) {
  const OrderLine order = Parsed(view.Game, orders::StageList(view.Game)[row]);
  const bool byOthers = ExpectsOthers(order) && order.Power2 != order.Power;
  Remark remark;
  remark.Faults = FaultsOf(view, row, byOthers ? SupposedLine(view.Game, order) : std::string());
  if (byOthers && remark.Faults.empty()) {
    remark.Open = "It counts only if there is this order: ";
    remark.Open.append(ExpectedLine(view.Game, order)).append(".");
  }
  if (ExpectsOthers(order) && !byOthers) RemarkOnOwn(view, row, order, remark);
  if (GoesBySea(view.Game, order)) RemarkOnMove(view, row, order, remark);
  return remark;
}

}  // namespace

Situation OwnView(const Situation& situation, int power) {
  Situation view = situation;
  view.Stopped.reset();
  std::erase_if(orders::StageList(view.Game),
                [&](const std::string& line) { return Parsed(view.Game, line).Power != power; });
  return view;
}

std::vector<Remark> RemarksOn(const Situation& view) {
  std::vector<Remark> remarks;
  for (std::size_t row = 0; row < orders::StageList(view.Game).size(); ++row)
    remarks.push_back(RemarkOn(view, row));
  return remarks;
}

}  // namespace orb::letters
