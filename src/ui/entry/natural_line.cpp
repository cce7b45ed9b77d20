#include "ui/entry/natural_line.h"

#include "orders/exchange/read_orders.h"
#include "orders/parser.h"

namespace orb::ui {

std::string naturalLine(const model::GameState& game, const std::string& typed, int power) {
  if (power == 0 || orders::ParseLine(*game.Map, game.Stage, typed).Power != 0) return typed;
  const std::string name(model::PowerName(power));
  const exchange::ReadLine read = exchange::ReadOrder(game, typed, {name, {}});
  return read.Kind == exchange::LineKind::Order ? read.Order : typed;
}

}  // namespace orb::ui
