#pragma once

#include "orders/exchange/run_on.h"
#include "orders/exchange/source_line.h"

#include <optional>

namespace orb::exchange {

/// Reads a row of a table whose cells stand between semicolons or between quotes and commas,
/// "Army;Paris;Burgundy", as one order, where its cells are none by themselves. `parts`: what they
/// were read as. The part's tokens are those of the body.
std::optional<PartRead> ReadCells(const SourceLine& line, TokenRange body, const PartsRead& parts,
                                  const KnownGame& known, const Context& context);

/// Passes over a unit alone where the part behind it is its order: "A Vie";"A Vie - Tri".
void DropNamesOfUnits(Tokens line, PartsRead& parts, const PlaceNames& names);

}  // namespace orb::exchange
