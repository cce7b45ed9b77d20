#pragma once

#include "adjudication/resolution.h"
#include "orders/order_outcome.h"

#include <vector>

namespace orb::adjudication {

/// How each order came out, in the order of the resolution's table; also those that no player
/// wrote. Orders that a check rejected are void, with the fields that could be read of them. Empty
/// for a resolution that was not completed.
std::vector<orders::OrderOutcome> Outcomes(const Resolution& resolution);

}  // namespace orb::adjudication
