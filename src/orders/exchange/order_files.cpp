#include "orders/exchange/order_files.h"

#include "model/seasons.h"
#include "orders/order_list.h"

#include <algorithm>

namespace orb::exchange {

int FileOrders(model::GameState& game, const std::vector<ReadLine>& lines, std::string_view power) {
  int filed = 0;
  for (const ReadLine& line : lines) {
    if (line.Kind != LineKind::Order || (!power.empty() && line.Power != power)) continue;
    if (orders::FileOrder(orders::StageList(game), line.Order)) ++filed;
  }
  return filed;
}

std::string PowerOf(const std::vector<ReadLine>& lines) {
  std::string power;
  for (const ReadLine& line : lines) {
    if (line.Kind == LineKind::Heading && !line.Power.empty()) return line.Power;
  }
  for (const ReadLine& line : lines) {
    if (line.Kind != LineKind::Order) continue;
    if (!power.empty() && line.Power != power) return {};
    power = line.Power;
  }
  return power;
}

std::string OrdersText(const model::GameState& game) {
  std::string text;
  for (const std::string& line : orders::StageList(game))
    text.append(line).append("\r\n");
  return text;
}

std::string ProposedOrdersFile(const model::GameState& game) {
  const bool hasOwnName = game.Stage == "retreats" || game.Stage == "adjustments";
  return model::SeasonCode(game) + "_" + (hasOwnName ? game.Stage : "orders") + ".txt";
}

}  // namespace orb::exchange
