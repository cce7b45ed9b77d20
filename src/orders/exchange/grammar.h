#pragma once

#include "model/stage.h"
#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orb::exchange {

// One order, in any case; brackets, full stops and commas count for nothing, TYPE may be missing,
// and words like "the" and "my" may stand anywhere before a unit or verb. The forms of a stage:
//   moves        [POWER[:]] UNIT MOVE PLACE [MOVE PLACE ...] [VIA]      over waters, by army
//                [POWER[:]] UNIT HOLD
//                [POWER[:]] UNIT SUPPORT UNIT [HOLD | MOVE PLACE]
//                [POWER[:]] UNIT SUPPORT MOVE PLACE
//                [POWER[:]] UNIT CONVOY UNIT [MOVE PLACE]
//   retreats     [POWER[:]] UNIT (RETREAT | MOVE) PLACE
//                [POWER[:]] UNIT DISBAND
//   adjustments  [POWER[:]] BUILD UNIT, DISBAND UNIT, WAIVE
//   UNIT         [POWER] [TYPE] [in] PLACE [army | fleet]
//   MOVE         dashes, arrows, "to", "moves", "attacks" and their like, any number
//   PLACE        NAME [COAST], COAST of NAME
// A verb may also stand before its unit. What follows an order in brackets, behind "--", is a
// comment unless it could be meant as a part of the order.

/// Everything that some tokens can mean as one order, or the fault that was met furthest behind.
struct Parse {
  std::vector<WrittenOrder> Orders;
  std::optional<Fault> Problem;  ///< set when there are no orders
};

/// What may stand behind an order: remarks alone, or anything, of which it takes as much as it can.
enum class Rest : std::uint8_t { Remarks, Anything };

/// Reads the tokens as one order. `verb` is the verb of an order that names none, or None.
Parse ParseWrittenOrder(Tokens tokens, const PlaceNames& names, const model::Map& map,
                        model::Stage stage, Verb verb = Verb::None, Rest rest = Rest::Remarks);

}  // namespace orb::exchange
