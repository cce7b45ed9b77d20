#include "model/edit_history.h"

#include <algorithm>

namespace orb::model {
namespace {

template <class Row, int Bound>
bool SameRows(const Table<Row, Bound>& a, const Table<Row, Bound>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

}  // namespace

bool EditHistory::State::IsOf(const GameState& game) const {
  return SameRows(Units, game.Units) && SameRows(Provinces, game.Provinces);
}

void EditHistory::State::PutInto(GameState& game) const {
  game.Units = Units;
  game.Provinces = Provinces;
}

void EditHistory::Begin(const GameState& before) {
  // Somebody else has changed the position since: going back would undo that as well.
  if (!LeadsTo(before)) Clear();
  if (states_.empty()) states_.push_back(std::make_shared<const State>(before));
}

void EditHistory::Record(const GameState& after) {
  if (LeadsTo(after)) return;
  states_.resize(now_ + 1);
  states_.push_back(std::make_shared<const State>(after));
  ++now_;
}

void EditHistory::Undo(GameState& game) {
  if (CanUndo()) states_[--now_]->PutInto(game);
}

void EditHistory::Redo(GameState& game) {
  if (CanRedo()) states_[++now_]->PutInto(game);
}

void EditHistory::Withdraw(GameState& game) {
  if (!CanUndo()) return;
  Undo(game);
  states_.resize(now_ + 1);
}

bool EditHistory::LeadsTo(const GameState& game) const {
  return states_.empty() || states_[now_]->IsOf(game);
}

void EditHistory::Clear() {
  states_.clear();
  now_ = 0;
}

}  // namespace orb::model
