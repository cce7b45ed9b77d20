#include "orders/click_entry.h"

#include "model/lookups.h"
#include "model/place.h"
#include "orders/parser.h"
#include "text/strings.h"

namespace orb::orders {
namespace {

using model::GameState;
using model::Unit;

void AppendAction(OrderEntry& entry, std::string_view location) {
  if (location == entry.LastUnitLocation) {
    entry.Text += "hold ";
    return;
  }
  // The dash may have been written by the button before.
  if (!text::Trim(entry.Text).ends_with('-')) entry.Text += "- ";
  entry.Text.append(location).append(" ");
}

void AppendUnit(OrderEntry& entry, const Unit& unit, ClickKeys keys) {
  // The power is written once, in front; a second unit of the same power goes without it.
  if (!entry.Text.starts_with(unit.Power)) entry.Text += unit.Power + " ";
  entry.Text += unit.UnitType + "(" + unit.Location + ") ";
  if (keys.Shift) entry.Text += "S ";
  if (keys.Ctrl) entry.Text += "C ";
  entry.UnitExpected = keys.Shift || keys.Ctrl;
  entry.LastUnitLocation = unit.Location;
}

int FindDislodgedAt(const GameState& game, std::string_view location) {
  for (int i = game.Units.Count(); i >= 1; --i) {
    const Unit& unit = game.Units[i];
    if (unit.Status == model::Dislodged && model::SamePlace(unit.Location, location)) return i;
  }
  return 0;
}

/// Whether a click means a build: the verb of an unfinished line decides, otherwise whether a unit
/// stands there to be disbanded.
bool IsBuildMeant(const std::string& text, bool unitThere) {
  if (text.find(')') == std::string::npos) {
    const std::string words = text::UpperCase(text);
    if (words.find("BUILD") != std::string::npos) return true;
    if (words.find("DISBAND") != std::string::npos) return false;
  }
  return !unitThere;
}

/// The power whose home centre the place is; empty for other places.
std::string HomePowerOf(const model::Map& map, std::string_view location) {
  const int centre = model::ProvinceOf(map, location);
  if (centre == 0 || map.Provinces[centre].IsSupplyCentre == 0) return {};
  return map.Provinces[centre].HomeCountry;
}

/// The place of a unit, as the other type would be written there: "Stp" becomes "Stp." for a fleet.
std::string PlaceFor(const model::Map& map, std::string_view place, std::string_view unitType) {
  std::string province(place.substr(0, place.find('.')));
  if (unitType != "F") return province;
  const bool lacksCoast = province == place && !CanStandIn(map, unitType, province) &&
                          !CoastsToChoose(map, "(" + province + ".").empty();
  return lacksCoast ? province + "." : std::string(place);
}

/// Whether no fleet can stand in the place, on none of its coasts.
bool IsInland(const model::Map& map, std::string_view place) {
  return !CanStandIn(map, "F", place) &&
         CoastsToChoose(map, std::string("(").append(place).append(".")).empty();
}

}  // namespace

OrderEntry ClickOrder(const GameState& game, OrderEntry entry, std::string_view location,
                      ClickKeys keys) {
  if (!entry.UnitExpected) {
    AppendAction(entry, location);
  } else if (const int unit = FindUnitAt(game, location); unit != 0) {
    // A line that was typed, or came out of the list, has room for no further unit.
    if (IsWholeOrder(*game.Map, model::Stage::Moves, entry.Text)) entry.Text.clear();
    AppendUnit(entry, game.Units[unit], keys);
  }
  return entry;
}

std::string ClickRetreat(const GameState& game, const std::string& text,
                         std::string_view location) {
  const std::size_t close = text.find(')');
  if (close == std::string::npos) {
    const int unit = FindDislodgedAt(game, location);
    return unit == 0 ? text : UnitText(game.Units[unit]) + " ";
  }
  const std::string unit = text.substr(0, close + 1);
  const std::string own = unit.substr(unit.rfind('(') + 1);
  if (model::SamePlace(own, location)) return unit + " disband ";
  return (unit + " retreat ").append(location);
}

std::string ClickAdjustment(const GameState& game, const std::string& text,
                            std::string_view location, std::string_view unitType) {
  const int there = FindUnitAt(game, location);
  if (!IsBuildMeant(text, there != 0)) {
    if (there == 0) return text;
    const Unit& unit = game.Units[there];
    return unit.Power + " disband " + unit.UnitType + "(" + unit.Location + ")";
  }
  const std::string power = HomePowerOf(*game.Map, location);
  if (power.empty()) return text;
  const std::string_view built = IsInland(*game.Map, location) ? "A" : unitType;
  return (power + " build ").append(built).append("(").append(location).append(")");
}

std::string_view LastUnitType(std::string_view text) {
  const std::size_t open = text.rfind('(');
  if (open == std::string_view::npos) return {};
  const std::string_view before = text.substr(0, open);
  return before.substr(before.find_last_of(" )") + 1);
}

std::string WithUnitType(const model::Map& map, const std::string& text,
                         std::string_view unitType) {
  std::string line = text;
  const std::size_t open = line.find('(');
  if (open != std::string::npos) {
    const std::size_t close = line.find(')', open);
    std::string end = close == std::string::npos ? "" : line.substr(close);
    const std::string place =
        PlaceFor(map, std::string_view(line).substr(open + 1, close - open - 1), unitType);
    // Whatever stood behind the place, a coast comes first.
    if (place.ends_with('.')) end.clear();
    const std::size_t start = line.substr(0, open).find_last_of(' ') + 1;
    return line.substr(0, start).append(unitType).append("(").append(place).append(end);
  }
  if (text::Trim(line).empty()) return line;
  if (!line.ends_with(' ')) line += ' ';
  return line.append(unitType).append("(");
}

std::string CoastsToChoose(const model::Map& map, std::string_view text) {
  const std::string_view place = text.substr(text.rfind('(') + 1);
  std::string coasts;
  if (!place.ends_with('.')) return coasts;
  for (const model::Province& location : map.Provinces) {
    if (!location.Name.starts_with(place)) continue;
    coasts.append(coasts.empty() ? "" : ", ").append(location.Name);
  }
  return coasts;
}

}  // namespace orb::orders
