#include "orders/order_list.h"

#include <algorithm>

namespace orb::orders {
namespace {

using List = std::vector<std::string>;

List model::GameState::*ListOf(model::Stage stage) {
  if (stage == model::Stage::Retreats) return &model::GameState::RetreatsList;
  return stage == model::Stage::Adjustments ? &model::GameState::AdjustmentsList
                                            : &model::GameState::OrdersList;
}

}  // namespace

List& StageList(model::GameState& game) {
  return game.*ListOf(game.Stage);
}

const List& StageList(const model::GameState& game) {
  return game.*ListOf(game.Stage);
}

std::string_view UnitPart(std::string_view line) {
  // Without a bracket npos + 1 is 0.
  return line.substr(0, line.find(')') + 1);
}

bool FileOrder(std::vector<std::string>& list, std::string_view text) {
  const std::string_view unit = UnitPart(text);
  if (unit.empty()) return false;
  const auto previous = std::find_if(list.rbegin(), list.rend(), [unit](const std::string& line) {
    return line.starts_with(unit);
  });
  if (previous != list.rend()) list.erase(std::next(previous).base());
  list.emplace_back(text);
  return true;
}

bool DeleteOrder(std::vector<std::string>& list, int position) {
  if (position < 0 || position >= static_cast<int>(list.size())) return false;
  list.erase(list.begin() + position);
  return true;
}

}  // namespace orb::orders
