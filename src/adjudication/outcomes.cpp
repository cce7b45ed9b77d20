#include "adjudication/outcomes.h"

#include "adjudication/explain_parts.h"

namespace orb::adjudication {
namespace {

using orders::Outcome;

/// The results are not asked: "dislodged" takes the place of the others.
Outcome OutcomeAt(const Resolution& resolution, int k, int endOfRoom) {
  const orders::OrderLine& order = resolution.Orders[k];
  const Reason& reason = resolution.Reasons[k];
  if (order.Rejection == orders::OrderResult::Repeated) {
    return OutcomeAt(resolution, reason.Blocker, endOfRoom);
  }
  if (reason.LostFleet != 0) return Outcome::Failed;
  if (reason.Cutter != 0) return Outcome::Cut;
  if (!order.Active) return Outcome::Void;
  return order.Failed || k >= endOfRoom ? Outcome::Failed : Outcome::Succeeded;
}

}  // namespace

std::vector<orders::OrderOutcome> Outcomes(const Resolution& resolution) {
  std::vector<orders::OrderOutcome> outcomes;
  if (!resolution.Completed) return outcomes;
  const int count = resolution.Orders.Count();
  const bool builds = resolution.Stage == model::Stage::Adjustments;
  const int endOfRoom = builds ? FirstNotCarriedOut(resolution) : count + 1;
  outcomes.reserve(static_cast<std::size_t>(count));
  for (int k = 1; k <= count; ++k) {
    outcomes.push_back(orders::OutcomeOf(*resolution.Map, resolution.Orders[k],
                                         OutcomeAt(resolution, k, endOfRoom)));
  }
  return outcomes;
}

}  // namespace orb::adjudication
