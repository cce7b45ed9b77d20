#pragma once

#include <cstdint>
#include <string_view>

namespace orb::orders {

/// What a check or the resolution found about an order. None: nothing; a move that bounced has
/// none.
enum class OrderResult : std::uint8_t {
  None,
  SyntaxError,
  NoSuchUnit,
  NotUsed,         ///< a support or convoy that describes no order
  ImpossibleMove,  ///< also of a retreat
  ImpossibleSupport,
  Cut,
  ConvoyFailed,
  Dislodged,  ///< takes the place of what was found before
  Unordered,  ///< of a dislodged unit
  Occupied,   ///< a retreat to a place where a unit stands
  Standoff,   ///< a retreat to a place that a standoff left empty
  NotHomeCentre,
  CentreNotOwned,
  CentreNotEmpty,
  ImpossibleUnit,
  Clash,
  // By the usual rules alone.
  Contradicted,  ///< several lines for one unit that differ
  Repeated,      ///< says what an earlier line says
  ImpossibleConvoy,
  TooMany,  ///< a build or removal beyond the number allowed
};

/// The result as reports have it: "syntax error", "centre not empty1"; empty for None.
std::string_view ResultWord(OrderResult result);

}  // namespace orb::orders
