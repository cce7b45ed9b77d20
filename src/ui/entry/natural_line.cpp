#include "ui/entry/natural_line.h"

#include "orders/exchange/read_orders.h"
#include "orders/parser.h"

#include <optional>

namespace orb::ui {
namespace {

/// Nothing where the line is to stay as it is typed.
std::optional<exchange::ReadLine> readAsWritten(const model::GameState& game,
                                                const std::string& typed, int power) {
  if (power == 0 || orders::ParseLine(*game.Map, game.Stage, typed).Power != 0) return {};
  const std::string name(model::PowerName(power));
  return exchange::ReadOrder(game, typed, {name, {}});
}

}  // namespace

std::string naturalLine(const model::GameState& game, const std::string& typed, int power) {
  const auto read = readAsWritten(game, typed, power);
  return read && read->Kind == exchange::LineKind::Order ? read->Order : typed;
}

std::string naturalFault(const model::GameState& game, const std::string& typed, int power) {
  const auto read = readAsWritten(game, typed, power);
  return read && read->Kind != exchange::LineKind::Order ? read->Reason : std::string();
}

bool isWaiver(const model::GameState& game, const std::string& typed, int power) {
  const std::string name = power == 0 ? std::string() : std::string(model::PowerName(power));
  return exchange::ReadOrder(game, typed, {name, {}}).Kind == exchange::LineKind::Waive;
}

}  // namespace orb::ui
