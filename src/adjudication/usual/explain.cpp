#include "adjudication/usual/explain.h"

#include "adjudication/explain_parts.h"
#include "model/lookups.h"
#include "model/place.h"
#include "orders/binding.h"

namespace orb::adjudication::usual {
namespace {

using model::Map;
using model::UnitType;
using orders::OrderKind;
using orders::OrderLine;
using orders::OrderResult;

/// The line that contradicts the order, stands for it, or came before it.
std::string OtherLine(const Resolution& resolution, int order) {
  return Quoted(resolution.Orders[resolution.Reasons[order].Blocker]);
}

Explanation Repetition(const Resolution& resolution, int order) {
  return {"It says the same as " + OtherLine(resolution, order), {}};
}

Explanation Contradiction(const Resolution& resolution, int order, std::string_view verdict) {
  return {std::string(verdict), "it and " + OtherLine(resolution, order) + " differ"};
}

std::string NoMoveText(const Map& map, const OrderLine& order) {
  if (model::IsSamePlace(map, order.Location, order.Target)) return "it stands there already";
  const std::string noWay = NoWayText(map, order);
  const bool couldSail = order.UnitType == UnitType::Army &&
                         model::IsCoastal(map, order.Location) &&
                         model::IsCoastal(map, order.Target);
  return couldSail ? noWay + " by land, and no chain of fleets stands between them" : noWay;
}

std::string NoSupportText(const Resolution& resolution, const OrderLine& order) {
  const orders::Piece unit = orders::OrderedPiece(order);
  if (unit == orders::OtherPiece(order)) return "no unit supports itself";
  return "the " + std::string(TypeName(unit.UnitType)) + " in " +
         NameOf(resolution, order.Location) + " cannot move to " +
         std::string(model::ProvinceName(NameOf(resolution, orders::SupportedPlace(order)))) +
         ", so it cannot support there";
}

std::string NoConvoyText(const Resolution& resolution, const OrderLine& order) {
  const Map& map = *resolution.Map;
  for (const int place : {int{order.Target}, int{order.Target2}}) {
    if (!model::IsCoastal(map, place)) return NameOf(resolution, place) + " is no coastal place";
  }
  if (model::IsSamePlace(map, order.Target, order.Target2)) return "the army stands there already";
  return "there is no " + std::string(model::PowerName(order.Power2)) + " A(" +
         NameOf(resolution, order.Target) + ")" + UnitThere(resolution, order.Power2, order.Target);
}

/// An army that could walk goes by land unless its own power's fleets carry it.
Explanation VoidText(const Resolution& resolution, const OrderLine& order) {
  const orders::OrderTable& table = resolution.Orders;
  for (const OrderLine& other : table) {
    const bool meant = orders::RefersTo(order, other) && orders::IsMove(other);
    if (!meant || !model::IsSamePlace(*resolution.Map, order.Target2, other.Target)) continue;
    if (!other.Active) return {"It is void", Quoted(other) + " is impossible"};
    if (orders::IsConvoy(order)) {
      return {"It is void", Quoted(other) +
                                " went by land: no whole chain of fleets with one of its " +
                                "own power was ordered to convoy it"};
    }
  }
  return NotUsed(resolution, order);
}

Account ExplainRejection(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  switch (line.Rejection) {
    case OrderResult::SyntaxError:
      return {NotUnderstood(resolution, line)};
    case OrderResult::NoSuchUnit:
      return {NoSuchUnit(resolution, line)};
    case OrderResult::Repeated:
      return {Repetition(resolution, order)};
    case OrderResult::Contradicted:
      return {Contradiction(resolution, order, "Its unit was to hold")};
    case OrderResult::Cut:
      return ExplainCut(resolution, order);
    case OrderResult::ImpossibleMove:
      return {{"It is impossible", NoMoveText(*resolution.Map, line)}};
    case OrderResult::ImpossibleSupport:
      return {{"It is impossible", NoSupportText(resolution, line)}};
    case OrderResult::ImpossibleConvoy:
      return {{"It is impossible", NoConvoyText(resolution, line)}};
    default:
      return {VoidText(resolution, line)};
  }
}

/// Why a convoyed move has no path.
std::string NoPathText(const Resolution& resolution, int move) {
  const Reason& reason = resolution.Reasons[move];
  if (reason.Ruling == Ruling::Paradox) {
    return "a paradox: by the support that it cuts, its landing would decide over its own convoy";
  }
  if (reason.LostFleet != 0) return BrokenConvoy(resolution, reason.LostFleet);
  return "no whole chain of fleets was ordered to carry it there";
}

bool HasNoPath(const Resolution& resolution, int move) {
  const Ruling ruling = resolution.Reasons[move].Ruling;
  return ruling == Ruling::NoPath || ruling == Ruling::Paradox;
}

Explanation ExplainOwnMove(const Resolution& resolution, int order) {
  if (HasNoPath(resolution, order)) return {"Its convoy failed", NoPathText(resolution, order)};
  return ExplainMovement(resolution, order);
}

Explanation ExplainConvoy(const Resolution& resolution, int order) {
  const int army = resolution.Orders[order].LinkedOrder;
  const std::string move = Quoted(resolution.Orders[army]);
  if (!HasNoPath(resolution, army)) return {"It convoyed " + move, {}};
  // That this fleet itself was dislodged is told behind.
  const bool lostItself = WasDislodged(resolution, order);
  return {"Its convoy of " + move + " failed",
          lostItself ? std::string() : NoPathText(resolution, army)};
}

/// The attacks that left the support uncut, and why.
std::string UncutText(const Resolution& resolution, const OrderLine& support) {
  const Map& map = *resolution.Map;
  std::string text;
  for (int m = 1; m <= resolution.Orders.Count(); ++m) {
    const OrderLine& move = resolution.Orders[m];
    if (!move.Active || !orders::IsMove(move) ||
        !model::IsSamePlace(map, move.Target, support.Location)) {
      continue;
    }
    text += "; " + Quoted(move) + " did not cut it: ";
    if (HasNoPath(resolution, m)) {
      text += "its convoy failed";
    } else if (move.Power == support.Power) {
      text += "it is of the same power";
    } else {
      text += "it came from " + NameOf(resolution, move.Location) + ", the place supported into";
    }
  }
  return text;
}

Explanation ExplainSupport(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  const OrderLine& linked = resolution.Orders[line.LinkedOrder];
  if (line.Kind2 == OrderKind::Hold) {
    return {"It supported " + UnitName(resolution, linked) + " where it stood" +
                UncutText(resolution, line),
            {}};
  }
  const Reason& outcome = resolution.Reasons[line.LinkedOrder];
  std::string text = "It supported " + Quoted(linked);
  if (outcome.Discounted.test(static_cast<std::size_t>(order))) {
    text = "Its support of " + Quoted(linked) + " did not count against " +
           UnitName(resolution, resolution.Orders[outcome.Occupant]) + ", a unit of its own power";
  } else if (HasNoPath(resolution, line.LinkedOrder)) {
    text += ", but that move's convoy failed";
  }
  return {text + UncutText(resolution, line), {}};
}

/// What came of the order itself; what else befell its unit is added by ExplainMoveOrder.
Account ExplainOwnFate(const Resolution& resolution, int order) {
  const OrderLine& line = resolution.Orders[order];
  if (line.Active && line.Kind == OrderKind::Hold) return ExplainHold(resolution, order);
  if (line.Active && orders::IsMove(line)) return {ExplainOwnMove(resolution, order)};
  Account account = !line.Active              ? ExplainRejection(resolution, order)
                    : orders::IsSupport(line) ? Account{ExplainSupport(resolution, order)}
                                              : Account{ExplainConvoy(resolution, order)};
  const std::string held = HeldAgainst(resolution, order);
  if (!held.empty() && !WasDislodged(resolution, order)) account.Told.Also = "; it held" + held;
  return account;
}

Explanation ExplainMoveOrder(const Resolution& resolution, int order) {
  Account account = ExplainOwnFate(resolution, order);
  Explanation& told = account.Told;
  if (WasDislodged(resolution, order) && !account.ToldDislodged) {
    told.Also +=
        "; it " + DislodgedBy(resolution, order) + ": " + DislodgingStrengths(resolution, order);
  }
  told.Also += LostSupportsOf(resolution, order);
  return told;
}

Explanation ExplainRetreatOrder(const Resolution& resolution, int order) {
  switch (resolution.Orders[order].Rejection) {
    case OrderResult::Repeated:
      return Repetition(resolution, order);
    case OrderResult::Contradicted:
      return Contradiction(resolution, order, "It was disbanded");
    default:
      return adjudication::ExplainRetreat(resolution, order);
  }
}

Explanation ExplainTooMany(const OrderLine& order) {
  if (order.Kind == OrderKind::Build) {
    return {"It was not built", PowerOf(order) + " may build no more"};
  }
  return {"It was not removed", "no more units of " + PowerOf(order) + " have to go"};
}

Explanation ExplainAdjustmentOrder(const model::GameState& after, const Resolution& resolution,
                                   int order) {
  if (order == 0) return adjudication::ExplainAdjustment(after, resolution, order);
  const OrderLine& line = resolution.Orders[order];
  if (line.Supplied) {
    return {"It was removed",
            "nobody named it; of those left it was farthest from the centres of its power"};
  }
  switch (line.Rejection) {
    case OrderResult::Repeated:
      return Repetition(resolution, order);
    case OrderResult::Clash:
      return {"It was not built", OtherLine(resolution, order) + " for the same place came first"};
    case OrderResult::TooMany:
      return ExplainTooMany(line);
    default:
      return adjudication::ExplainAdjustment(after, resolution, order);
  }
}

}  // namespace

Explanation ExplainOrder(const model::GameState& after, const Resolution& resolution, int order) {
  switch (resolution.Stage) {
    case model::Stage::Retreats:
      return ExplainRetreatOrder(resolution, order);
    case model::Stage::Adjustments:
      return ExplainAdjustmentOrder(after, resolution, order);
    default:
      return ExplainMoveOrder(resolution, order);
  }
}

}  // namespace orb::adjudication::usual
