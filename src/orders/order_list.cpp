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

bool FileOrder(std::vector<std::string>& list, std::string_view text) {
  const std::size_t bracket = text.find(')');
  if (bracket == std::string_view::npos) return false;
  const std::string_view unit = text.substr(0, bracket + 1);
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
