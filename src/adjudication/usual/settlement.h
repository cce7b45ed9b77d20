#pragma once

#include "adjudication/usual/strengths.h"

namespace orb::adjudication::usual {

/// All moves, supports and convoys decided.
struct Settlement {
  usual::Known Known;  ///< nothing is open
  UnitSet Circles;     ///< moves that succeed only together, in a closed circle
  UnitSet Paradoxes;   ///< convoyed moves without a path because it would depend on itself
};

/// Decides all moves together: the one assignment that satisfies all definitions of strengths.h at
/// once. Where several do, they differ in closed circles of moves, each into the place that the
/// next one leaves: all moves of such a circle succeed. Where none does, or several that differ in
/// whether a convoyed move has its path (a paradox: by the support that it cuts an army's landing
/// would decide over its own convoy, perhaps by way of other convoys), each convoyed move whose
/// path so depends on itself has no path, and the rest is decided again.
Settlement Settle(const Plans& plans);

}  // namespace orb::adjudication::usual
