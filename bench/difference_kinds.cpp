#include "difference_kinds.h"

#include "model/lookups.h"

namespace orb::survey {
namespace {

using orders::OrderLine;
using orders::OrderResult;

template <class Fits>
bool AnyLine(const StagePair& pair, Fits fits) {
  for (int k = 1; k <= pair.Lines(); ++k) {
    const bool looked = pair.Different.test(static_cast<std::size_t>(k));
    if (looked && !pair.Orb.Orders[k].Supplied && fits(pair.Orb.Orders[k], pair.Usual.Orders[k], k))
      return true;
  }
  return false;
}

bool IsMoves(const StagePair& pair) {
  return pair.Orb.Stage == model::Stage::Moves;
}

bool HasPathByUsualRules(const StagePair& pair, int k) {
  const adjudication::Ruling ruling = pair.Usual.Reasons[k].Ruling;
  return pair.Usual.Orders[k].Active && ruling != adjudication::Ruling::NoPath &&
         ruling != adjudication::Ruling::Paradox;
}

bool ChainNotWhole(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine& orb, const OrderLine& usual, int k) {
           const bool swims = orb.ViaConvoy && orb.Active;
           return swims && (!usual.Active || (usual.ViaConvoy && !HasPathByUsualRules(pair, k) &&
                                              pair.Usual.Reasons[k].LostFleet == 0));
         });
}

bool EveryFleetCounts(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine&, const OrderLine& usual, int k) {
           return pair.Orb.Reasons[k].LostFleet != 0 && usual.ViaConvoy &&
                  HasPathByUsualRules(pair, k);
         });
}

bool OthersShips(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [](const OrderLine& orb, const OrderLine& usual, int) {
           return orb.ViaConvoy && usual.Active && !usual.ViaConvoy;
         });
}

/// An attack on a convoying fleet whose outcome the order of the phases may have changed.
bool ConvoyAttacksFirst(const StagePair& pair) {
  if (!IsMoves(pair)) return false;
  return AnyLine(pair, [&](const OrderLine& orb, const OrderLine&, int) {
    if (!orders::IsMove(orb) || !orb.Active) return false;
    const int unit = model::FindUnitAt(pair.Before, orb.Target);
    if (unit == 0) return false;
    const OrderLine& attacked = pair.Orb.Orders[pair.Orb.OrdersOfUnits[unit]];
    return orders::IsConvoy(attacked);
  });
}

bool OwnUnitsCut(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine& orb, const OrderLine&, int k) {
           const int cutter = pair.Orb.Reasons[k].Cutter;
           return cutter != 0 && pair.Orb.Orders[cutter].Power == orb.Power;
         });
}

bool OwnUnitDislodged(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine& orb, const OrderLine&, int k) {
           const int dislodger = pair.Orb.Reasons[k].Dislodger;
           return dislodger != 0 && pair.Orb.Orders[dislodger].Power == orb.Power;
         });
}

bool IsImpossibleMove(const OrderLine& order) {
  return orders::IsMove(order) && order.Rejection == OrderResult::ImpossibleMove;
}

bool SupportOfImpossibleMove(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine& orb, const OrderLine&, int) {
           return orders::IsSupport(orb) && orb.LinkedOrder != 0 &&
                  IsImpossibleMove(pair.Orb.Orders[orb.LinkedOrder]);
         });
}

bool HoldSupportOfImpossibleMove(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [](const OrderLine& orb, const OrderLine& usual, int) {
           return orders::IsSupport(orb) && orb.Rejection == OrderResult::NotUsed &&
                  orb.Kind2 == orders::OrderKind::Hold && usual.Rejection != OrderResult::NotUsed;
         });
}

bool SupportNamesCoast(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [](const OrderLine& orb, const OrderLine& usual, int) {
           return orders::IsSupport(orb) && orb.Rejection == OrderResult::NotUsed &&
                  orb.Kind2 == orders::OrderKind::Move && usual.Rejection != OrderResult::NotUsed;
         });
}

bool CoastLeftOut(const StagePair& pair) {
  return AnyLine(pair, [](const OrderLine& orb, const OrderLine& usual, int) {
    const bool refused =
        orb.Rejection == OrderResult::NoSuchUnit || orb.Rejection == OrderResult::ImpossibleMove;
    return refused && usual.Rejection != orb.Rejection;
  });
}

bool TwoOrders(const StagePair& pair) {
  return AnyLine(pair, [](const OrderLine&, const OrderLine& usual, int) {
    return usual.Rejection == OrderResult::Contradicted || usual.Rejection == OrderResult::Repeated;
  });
}

/// A unit that ORB dislodged by an army from the sea, or whose retreat leads there.
bool RetreatToConvoy(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine&, const OrderLine&, int k) {
           const int dislodger = pair.Usual.Reasons[k].Dislodger;
           return dislodger != 0 && pair.Usual.Orders[dislodger].ViaConvoy;
         });
}

bool BuildsClash(const StagePair& pair) {
  return AnyLine(pair, [](const OrderLine& orb, const OrderLine&, int) {
    return orb.Rejection == OrderResult::Clash;
  });
}

bool NeverChooses(const StagePair& pair) {
  if (pair.Orb.Stage != model::Stage::Adjustments) return false;
  return !pair.Orb.Completed || pair.Usual.Orders.Count() > pair.Orb.Orders.Count() ||
         AnyLine(pair, [](const OrderLine&, const OrderLine& usual, int) {
           return usual.Rejection == OrderResult::TooMany;
         });
}

/// A unit that bounced was dislodged: by the usual rules it keeps the others out all the same.
bool DislodgedInTheWay(const StagePair& pair) {
  return IsMoves(pair) && AnyLine(pair, [&](const OrderLine& orb, const OrderLine& usual, int k) {
           return orders::IsMove(orb) && orb.Failed && usual.Active &&
                  (pair.Orb.Reasons[k].Dislodger != 0 || pair.Usual.Reasons[k].Dislodger != 0);
         });
}

/// A support was cut, and taken off its move's strength once more.
bool SupportTakenOffTwice(const StagePair& pair) {
  if (!IsMoves(pair)) return false;
  for (int k = 1; k <= pair.Lines(); ++k) {
    const adjudication::Reason& reason = pair.Orb.Reasons[k];
    const int supported = pair.Orb.Orders[k].LinkedOrder;
    if (reason.SupportWithdrawn && reason.Cutter != 0 && supported != 0 &&
        pair.Different.test(static_cast<std::size_t>(supported))) {
      return true;
    }
  }
  return false;
}

}  // namespace

const std::array<DifferenceKind, KindCount> DifferenceKinds{
    DifferenceKind{"Of two orders for one unit, both act", TwoOrders},
    DifferenceKind{"Coasts are written exactly", CoastLeftOut},
    DifferenceKind{"A support names the coast", SupportNamesCoast},
    DifferenceKind{"Convoys are not fully checked", ChainNotWhole},
    DifferenceKind{"Every fleet counts", EveryFleetCounts},
    DifferenceKind{"Others may put your army on a ship", OthersShips},
    DifferenceKind{"An impossible move keeps its support", SupportOfImpossibleMove},
    DifferenceKind{"A support to hold does not help an impossible move",
                   HoldSupportOfImpossibleMove},
    DifferenceKind{"Your own units cut your supports", OwnUnitsCut},
    DifferenceKind{"A unit that bounced can be dislodged by its own power", OwnUnitDislodged},
    DifferenceKind{"Nobody retreats to where a convoyed attack came from", RetreatToConvoy},
    DifferenceKind{"Attacks on convoying fleets come first", ConvoyAttacksFirst},
    DifferenceKind{"A dislodged unit no longer stands in the way", DislodgedInTheWay},
    DifferenceKind{"A support that was cut can count against its move", SupportTakenOffTwice},
    DifferenceKind{"Builds that clash all fail", BuildsClash},
    DifferenceKind{"ORB never chooses a removal", NeverChooses},
};

}  // namespace orb::survey
