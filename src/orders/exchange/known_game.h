#pragma once

#include "model/game_state.h"
#include "orders/exchange/place_names.h"
#include "orders/exchange/plain_order.h"
#include "orders/exchange/written_order.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace orb::exchange {

/// A unit that a written one can mean.
struct UnitMeant {
  model::Unit Unit;
  std::string Objection;  ///< why it can have no orders, empty when it stands there
};

/// What the reader knows of the game: its map, its units and the moves that are ordered.
class KnownGame {
 public:
  /// The game and the names must outlive it.
  KnownGame(const model::GameState& game, const PlaceNames& names, model::Stage stage)
      : Game(game), Names(names), Stage(stage) {}

  /// The units that a written one can mean. `power` is who owns it, 0: anybody; `fallback` owns a
  /// unit that is written in full and stands nowhere. Without any, the fault says why.
  std::vector<UnitMeant> UnitsMeant(const WrittenUnit& written, int power, int fallback,
                                    Fault& fault) const;

  /// The locations that a destination can mean for a unit. A fleet's coast that is not written is
  /// one that it can reach.
  std::vector<std::string> DestinationsMeant(const WrittenPlace& written, const model::Unit& unit,
                                             bool byConvoy) const;

  /// Why an order in its exact form can have no effect: one of its units stands nowhere. Or empty.
  std::string Objection(const PlainOrder& order) const;

  /// Takes note of a move; an earlier one of the unit is forgotten, whatever it does now.
  void Learn(const PlainOrder& order);

  /// Whether the text has a fleet convoy an army so.
  bool IsConvoyed(const PlainOrder& move) const;

  /// Where the unit is ordered to move to, or nothing.
  const std::string* OrderedMove(const model::Unit& unit) const;

  const std::string& NameOf(int row) const { return Game.Map->Provinces[row].Name; }

  const model::GameState& Game;
  const PlaceNames& Names;
  const model::Stage Stage;
  /// The power of all units that the text orders, or nothing where they are of several.
  std::string OnlyPower() const;

  /// Whether orders for the rest of the units can be told: only when the text was read once, and
  /// not again and again.
  bool TakeRest() const;

  std::vector<PlainOrder> Moves;  ///< those learnt
  std::set<std::string> Ordered;  ///< the subjects of all orders, where they were learnt
  bool IsLearnt = false;          ///< whether the text was read once
  mutable bool IsAsked = false;   ///< whether what is learnt was asked for
  mutable int RestReads = 0;      ///< how often the rest of the units was ordered something
  std::set<std::pair<std::string, std::string>> Convoys;  ///< from where to where, learnt
};

/// The abbreviation of a power 1..7; empty for 0.
std::string PowerText(int power);

}  // namespace orb::exchange
