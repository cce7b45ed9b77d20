#include "orders/exchange/learnt_moves.h"

#include "orders/exchange/contradictions.h"
#include "orders/exchange/exact_line.h"

namespace orb::exchange {

void LearnMoves(const std::vector<ReadLine>& lines, KnownGame& known) {
  if (known.Stage != model::Stage::Moves) return;
  for (const ReadLine& line : lines) {
    if (!IsUnderstood(line)) continue;
    known.Ordered.insert(SubjectOf(line.Order, known.Stage));
    const auto order = ReadExactLine(*known.Game.Map, known.Stage, line.Order);
    if (order) known.Learn(*order);
  }
}

}  // namespace orb::exchange
