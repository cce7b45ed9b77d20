#include "orders/exchange/meaning.h"

#include "model/lookups.h"
#include "orders/exchange/exact_line.h"
#include "orders/exchange/supports.h"

#include <algorithm>

namespace orb::exchange {
namespace {

using model::Unit;
using orders::OrderKind;

/// Moves and retreats: one for each location that the destination can mean.
std::vector<Completed> MovesMeant(const WrittenOrder& written, const UnitMeant& unit,
                                  const KnownGame& known, OrderKind kind, Fault& fault) {
  std::vector<Completed> orders;
  if (written.ByConvoy && unit.Unit.UnitType == "F") {
    fault = {"only an army is convoyed", written.Destination.At};
    return orders;
  }
  for (const std::string& destination :
       known.DestinationsMeant(written.Destination, unit.Unit, written.ByConvoy)) {
    PlainOrder order = OrderOf(unit.Unit, kind);
    order.Target = destination;
    orders.push_back({std::move(order), unit.Objection});
  }
  return orders;
}

std::vector<Completed> OrdersMeant(const WrittenOrder& written, const UnitMeant& unit,
                                   const KnownGame& known, Fault& fault) {
  switch (written.What) {
    case Verb::Move:
      return MovesMeant(written, unit, known, OrderKind::Move, fault);
    case Verb::Retreat:
      return MovesMeant(written, unit, known, OrderKind::Retreat, fault);
    case Verb::Support:
      return SupportsMeant(written, unit, known, fault);
    case Verb::Convoy:
      return ConvoysMeant(written, unit, known, fault);
    default:
      return {
          {OrderOf(unit.Unit, written.What == Verb::Hold ? OrderKind::Hold : OrderKind::Disband),
           unit.Objection}};
  }
}

/// The locations and types of a build; those that are not written are all that can stand there.
std::vector<Unit> UnitsBuilt(const WrittenUnit& written, const KnownGame& known) {
  const model::Map& map = *known.Game.Map;
  std::vector<Unit> built;
  for (const int row : written.Place.Rows) {
    for (const char type : {'A', 'F'}) {
      if (written.Type != 0 && written.Type != type) continue;
      const std::string unitType(1, type);
      std::vector<std::string> places;
      for (const int location : known.Names.Locations(row)) {
        if (model::CanStandIn(map, unitType, known.NameOf(location))) {
          places.push_back(known.NameOf(location));
        }
      }
      // An army is built in the province itself; a fleet wherever in it fleets can stand, be it one
      // coast or two.
      if (type == 'A' || places.empty()) {
        const bool stands = model::CanStandIn(map, unitType, known.NameOf(row));
        // A type that was written stays even if it cannot stand there: resolving the order says so.
        if (written.Type == 0 && !stands) continue;
        places = {known.NameOf(row)};
      }
      for (const std::string& place : places)
        built.push_back({{}, unitType, place, {}, {}, {}});
    }
  }
  return built;
}

std::vector<Completed> BuildsMeant(const WrittenOrder& written, const KnownGame& known, int power,
                                   Fault& fault) {
  const model::Map& map = *known.Game.Map;
  std::vector<Completed> orders;
  fault = {"no unit can be built there", written.Unit.Place.At};
  for (Unit& unit : UnitsBuilt(written.Unit, known)) {
    // A coast has no home country of its own; its province has.
    const int centre = model::FindProvince(map, unit.Location.substr(0, 3));
    const std::string home = centre == 0 ? std::string() : map.Provinces[centre].HomeCountry;
    // A build that names no power is meant by the power whose home it is.
    unit.Power = power == 0 ? home : PowerText(power);
    if (model::FindCountry(unit.Power) == 0) {
      fault.Reason = "no power is named";
      continue;
    }
    const bool isHome = unit.Power == home && map.Provinces[centre].IsSupplyCentre != 0;
    std::string objection;
    if (!isHome) objection = unit.Location + " is no home centre of " + unit.Power;
    orders.push_back({OrderOf(unit, OrderKind::Build), std::move(objection)});
  }
  return orders;
}

std::vector<Completed> ReadingMeant(const WrittenOrder& written, const KnownGame& known, int power,
                                    Fault& fault) {
  const int own = written.Unit.Power;
  if (written.Power != 0 && own != 0 && own != written.Power) {
    fault = {"two powers are named", written.Unit.Place.At};
    return {};
  }
  // A power that the order names counts before that of a heading.
  if (written.Power != 0 || own != 0) power = written.Power != 0 ? written.Power : own;
  if (written.What == Verb::Build) return BuildsMeant(written, known, power, fault);
  std::vector<Completed> orders;
  for (const UnitMeant& unit : known.UnitsMeant(written.Unit, power, power, fault)) {
    auto more = OrdersMeant(written, unit, known, fault);
    std::move(more.begin(), more.end(), std::back_inserter(orders));
  }
  return orders;
}

/// Takes the order in unless its line could not be read or is there already.
void Add(Meanings& meanings, const Completed& order, const KnownGame& known, TokenRange at) {
  const model::Map& map = *known.Game.Map;
  Meaning meaning{FormatOrder(order.Order, known.Stage), order.Objection,
                  model::FindCountry(order.Order.Power)};
  if (!ReadExactLine(map, known.Stage, meaning.Line)) {
    if (meanings.Problem) return;
    const orders::OrderWords words = WordsOf(order.Order);
    const auto fault = known.Stage == model::Stage::Moves
                           ? orders::ReadParts(map, words, known.Stage).Fault
                           : orders::SyntaxFault::None;
    const std::string text = orders::FaultText(words, fault);
    meanings.Problem = Fault{text.empty() ? "the unit is not on the map" : text, at};
  } else if (std::ranges::none_of(
                 meanings.All, [&](const Meaning& other) { return other.Line == meaning.Line; })) {
    meanings.All.push_back(std::move(meaning));
  }
}

/// Whether an order is none to convoy, or to a place beside the fleet's water.
bool IsOnShore(const Meaning& meaning, const KnownGame& known) {
  const auto order = ReadExactLine(*known.Game.Map, known.Stage, meaning.Line);
  if (!order || order->Kind != OrderKind::Convoy) return true;
  const std::string& to = order->Target2.empty() ? order->Target : order->Target2;
  return model::IsAdjacent(*known.Game.Map, "F", order->Location, to) ||
         !model::CanStandIn(*known.Game.Map, "F", to);
}

}  // namespace

bool IsPossible(const Meaning& meaning, const KnownGame& known) {
  if (!meaning.Objection.empty()) return false;
  const auto order = ReadExactLine(*known.Game.Map, known.Stage, meaning.Line);
  if (!order) return false;
  const model::Map& map = *known.Game.Map;
  const model::Unit unit{order->Power, order->UnitType, order->Location, {}, {}, {}};
  switch (order->Kind) {
    case orders::OrderKind::Move:
    case orders::OrderKind::Retreat:
      return model::IsAdjacent(map, order->UnitType, order->Location, order->Target) ||
             known.IsConvoyed(*order);
    case orders::OrderKind::Support:
      return model::CanSupportInto(map, unit,
                                   order->Target2.empty() ? order->Target : order->Target2);
    default:
      return true;
  }
}

Meanings FindMeanings(const std::vector<WrittenOrder>& readings, const KnownGame& known,
                      int power) {
  Meanings meanings;
  for (const WrittenOrder& written : readings) {
    Fault fault;
    const auto orders = ReadingMeant(written, known, power, fault);
    for (const Completed& order : orders)
      Add(meanings, order, known, written.Unit.Place.At);
    if (orders.empty() && !meanings.Problem) meanings.Problem = fault;
  }
  // An order that can be carried out is more likely meant than one that cannot.
  const auto objected = [](const Meaning& meaning) { return !meaning.Objection.empty(); };
  if (!std::ranges::all_of(meanings.All, objected)) std::erase_if(meanings.All, objected);
  // Of "nor" a fleet that convoys means the one on its shore.
  const auto isFar = [&](const Meaning& meaning) { return !IsOnShore(meaning, known); };
  if (meanings.All.size() > 1 && !std::ranges::all_of(meanings.All, isFar)) {
    std::erase_if(meanings.All, isFar);
  }
  return meanings;
}

}  // namespace orb::exchange
