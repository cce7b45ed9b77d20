#include "adjudication/support_cutting.h"

#include "model/text.h"
#include "orders/lookups.h"

namespace orb::adjudication {

void CutSupports(const model::GameState& game, Resolution& resolution, int m) {
  const orders::OrderLine& move = resolution.Orders[m];
  const int unit = orders::FindUnitAt(game, move.Target);
  if (unit == 0) return;
  const int k = game.Units[unit].OrderIndex;
  orders::OrderLine& support = resolution.Orders[k];
  if (!support.Active || !orders::IsSupport(support)) return;
  if (support.Kind2 == "-" && model::SamePlace(support.Target2, move.Location)) return;
  orders::Reject(support, "cut");
  resolution.Reasons[k].Cutter = static_cast<std::int16_t>(m);
}

}  // namespace orb::adjudication
