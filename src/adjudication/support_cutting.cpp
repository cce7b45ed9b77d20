#include "adjudication/support_cutting.h"

namespace orb::adjudication {

void CutSupports(Battlefield& field, int m) {
  const orders::OrderLine& move = field.Order(m);
  const int unit = field.LastUnitAt(m);
  if (unit == 0) return;
  const int k = field.OrderOf(unit);
  orders::OrderLine& support = field.Order(k);
  if (!support.Active || !orders::IsSupport(support)) return;
  // A unit is not kept from supporting into a place by an attack from there, unless that attack
  // dislodges it: then Battlefield::Dislodge withdraws the support.
  if (support.Kind2 == orders::OrderKind::Move && field.IsSamePlace(support.Target2, move.Location))
    return;
  orders::Reject(support, orders::OrderResult::Cut);
  field.ReasonOf(k).Cutter = static_cast<std::int16_t>(m);
}

}  // namespace orb::adjudication
