#pragma once

#include "model/game_state.h"
#include "orders/exchange/place_names.h"
#include "orders/exchange/plain_order.h"
#include "orders/exchange/written_order.h"

#include <string>
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

  /// Where the unit is ordered to move to, or nothing.
  const std::string* OrderedMove(const model::Unit& unit) const;

  const std::string& NameOf(int row) const { return Game.Map->Provinces[row].Name; }

  const model::GameState& Game;
  const PlaceNames& Names;
  const model::Stage Stage;
  std::vector<PlainOrder> Moves;  ///< those learnt
};

/// The abbreviation of a power 1..7; empty for 0.
std::string PowerText(int power);

}  // namespace orb::exchange
