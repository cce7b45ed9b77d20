#pragma once

#include "model/game_state.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace orb::model {

/// The steps of editing units and provinces, to go back and forth among them. Copies share the
/// states they hold. Undo and Redo change nothing where there is no step to take.
class EditHistory {
 public:
  /// A step begins in this situation. Where the last one did not lead there, all steps are
  /// forgotten.
  void Begin(const GameState& before);

  /// The step that was begun led to this situation; where that has the same units and provinces,
  /// there was none. What was undone before can no longer be redone.
  void Record(const GameState& after);

  bool CanUndo() const { return now_ > 0; }
  bool CanRedo() const { return now_ + 1 < states_.size(); }
  void Undo(GameState& game);
  void Redo(GameState& game);

  /// Undoes the last step as if it had never been: it cannot be redone.
  void Withdraw(GameState& game);

  /// Whether the situation has the units and provinces that the last step led to; true without any
  /// step.
  bool LeadsTo(const GameState& game) const;

  void Clear();

 private:
  struct State {
    Table<Unit, UnitBound> Units;
    Table<ProvinceState, ProvinceBound> Provinces;

    explicit State(const GameState& game) : Units(game.Units), Provinces(game.Provinces) {}
    bool IsOf(const GameState& game) const;
    void PutInto(GameState& game) const;
  };

  std::vector<std::shared_ptr<const State>> states_;
  std::size_t now_ = 0;  ///< which of the states is the present one
};

}  // namespace orb::model
