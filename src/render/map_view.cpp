#include "render/map_view.h"

#include "model/counts.h"
#include "model/lookups.h"
#include "model/place.h"
#include "render/drawing.h"
#include "render/labels.h"
#include "render/order_drawing.h"
#include "render/parts.h"
#include "render/symbols.h"
#include "render/tinting.h"

#include <algorithm>
#include <string>
#include <vector>

namespace orb::render {
namespace {

using model::GameState;
using model::Unit;
using Orders = std::span<const orders::OrderOutcome>;

std::string_view StageCaption(model::Stage stage) {
  if (stage == model::Stage::Moves) return "before moves";
  if (stage == model::Stage::Retreats) return "before retreats";
  if (stage == model::Stage::Adjustments) return "before adjustments";
  return "end";
}

void DrawCaptions(Surface& surface, const GameState& game) {
  const DrawnPart part(surface, game);
  const double left = surface.TextWidth("O");
  const double height = surface.TextHeight("O");
  const auto caption = [&](double lines, std::string_view text) {
    PrintAt(surface, {left, lines * height}, text);
  };
  surface.FontBold = true;
  caption(0.5, game.Title);
  caption(1.5, SeasonText(game));
  surface.FontBold = false;
  caption(2.5, StageCaption(game.Stage));
}

/// Marks the provinces at which a move was aimed and which are empty all the same: those where
/// nobody got through. A coast shares its province's marker.
void DrawStandoffMarkers(Surface& surface, const GameState& game) {
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
    const model::Province& province = game.Map->Provinces[row];
    if (game.Provinces[row].Uncontested || province.Name.size() != 3) continue;
    if (model::FindUnitAt(game, province.Name) == 0) {
      DrawStandoffMarker(surface, UnitPoint(province));
    }
  }
}

/// The last unit that stands undislodged in the dislodged unit's province, or nothing.
const Unit* FindAttacker(const GameState& game, const Unit& dislodged) {
  const Unit* attacker = nullptr;
  for (const Unit& unit : game.Units) {
    if (unit.Status != model::Dislodged && model::SamePlace(unit.Location, dislodged.Location)) {
      attacker = &unit;
    }
  }
  return attacker;
}

/// Whether the attack is drawn as an order.
bool IsAmong(const Orders& orders, const Unit& dislodged) {
  return std::ranges::any_of(orders, [&dislodged](const orders::OrderOutcome& order) {
    return order.Kind == orders::OrderKind::Move && order.Outcome == orders::Outcome::Succeeded &&
           order.Location == dislodged.DislodgedFrom &&
           model::SamePlace(order.Destination, dislodged.Location);
  });
}

/// Old game files do not tell where a unit was dislodged from: no line then. Gives the lines.
std::vector<Path> DrawAttackLines(Surface& surface, const GameState& game, settings::MapMode mode,
                                  const Orders& orders) {
  std::vector<Path> lines;
  for (const Unit& unit : game.Units) {
    if (unit.Status != model::Dislodged || unit.DislodgedFrom.empty()) continue;
    // A line from a place where a unit stands now would look like an attack by that unit.
    if (model::FindUnitAt(game, unit.DislodgedFrom) != 0 || IsAmong(orders, unit)) continue;
    const Unit* attacker = FindAttacker(game, unit);
    if (attacker == nullptr) continue;
    const int power = model::FindCountry(attacker->Power);
    const Point from = UnitPoint(model::PlaceOf(*game.Map, unit.DislodgedFrom));
    const Point to = UnitPoint(model::PlaceOf(*game.Map, attacker->Location));
    DrawMoveLine(surface, from, to,
                 settings::InColour(mode) ? game.Countries[power].Colour : Black);
    lines.push_back({OnSurface(surface, from), OnSurface(surface, to)});
  }
  return lines;
}

/// Writes the labels again that the lines run over.
void DrawLabelsOver(const std::vector<Path>& lines, Surface& surface, const GameState& game,
                    const settings::MapOptions& options) {
  if (lines.empty()) return;
  const std::vector<LabelBoxes> labels = LabelBoxesOf(surface, *game.Map);
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
    const LabelBoxes& boxes = labels[static_cast<std::size_t>(row - 1)];
    if (std::ranges::any_of(
            lines, [&boxes](const Path& line) { return boxes.AreTouched(line, MoveLineReach); })) {
      DrawLabelAgain(surface, game, options, row);
    }
  }
}

void DrawUnits(Surface& surface, const GameState& game, const settings::MapOptions& options,
               bool dislodged) {
  const SymbolStyle style = StyleOf(game.Countries, options);
  for (const Unit& unit : game.Units) {
    const int power = model::FindCountry(unit.Power);
    const model::Province& province = model::PlaceOf(*game.Map, unit.Location);
    // Only now, so that a unit in no known place is an error even where it would not be drawn.
    if (unit.Status != (dislodged ? model::Dislodged : std::string_view{})) continue;
    const DrawnPart part(surface, unit);
    DrawUnit(surface, style, unit.UnitType, dislodged ? LabelPoint(province) : UnitPoint(province),
             power, dislodged ? DislodgedScale : 1.0);
  }
}

void DrawCentreOwners(Surface& surface, const GameState& game,
                      const settings::MapOptions& options) {
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
    if (game.Map->Provinces[row].IsSupplyCentre != 0) {
      const DrawnPart part(surface, game, row);
      DrawCentreOwnerMarker(surface, game, options, row);
    }
  }
}

/// "5", or before adjustments "5(+2)": what may be built or must be disbanded.
std::string CountText(const GameState& game, std::string_view power) {
  const model::PowerCount count = model::CountPower(game, power);
  std::string text = std::to_string(count.Centres);
  const int surplus = count.Centres - count.Units;
  if (game.Stage != model::Stage::Adjustments || surplus == 0) return text;
  return text.append(surplus > 0 ? "(+" : "(").append(std::to_string(surplus)).append(")");
}

/// Rows of the powers' abbreviations and counts on white.
void DrawPlainLegend(Surface& surface, const GameState& game) {
  const double letter = surface.TextWidth("O");
  const double height = surface.TextHeight("O");
  const double width = 5.5 * letter;
  const double left = surface.ScaleWidth() - width - 0.8 * letter;
  SetPens(surface);
  surface.FillColour = White;
  surface.Box({left, 0.2 * height}, width, (model::CountryCount + 0.4) * height);
  for (int power = 1; power <= model::CountryCount; ++power) {
    const std::string& name = game.Countries[power].Abbreviation;
    PrintAt(surface, {left + 0.5 * letter, (0.4 + power - 1) * height},
            name + ": " + std::to_string(model::CountPower(game, name).Centres));
  }
  SetPens(surface);
}

/// Rows of the powers' colours and counts; the little boxes stand left of the column.
void DrawColourLegend(Surface& surface, const GameState& game) {
  const double letter = surface.TextWidth("O");
  const double height = surface.TextHeight("O");
  const double width = (game.Stage == model::Stage::Adjustments ? 4.5 : 2.5) * letter;
  const double left = surface.ScaleWidth() - width;
  SetPens(surface);
  for (int power = 1; power <= model::CountryCount; ++power) {
    const model::Country& country = game.Countries[power];
    const double top = (0.4 + power - 1) * height;
    surface.ForeColour = Black;
    surface.FillColour = country.Colour;
    surface.Box({left - 1.4 * letter, top + 0.15 * height}, 1.1 * letter, 0.7 * height);
    surface.ForeColour = country.TextColour;
    PrintAt(surface, {left, top}, CountText(game, country.Abbreviation));
  }
  SetPens(surface);
}

/// The boxes that orders keep clear of; for a map without orders none need be worked out.
std::vector<LabelBoxes> BoxesToKeepClear(const Surface& surface, const GameState& game,
                                         const Orders& orders) {
  return orders.empty() ? std::vector<LabelBoxes>{} : LabelBoxesOf(surface, *game.Map);
}

void DrawGround(const GameState& game, const settings::MapOptions& options,
                const std::filesystem::path& dataDirectory, Surface& surface,
                const Orders& orders) {
  const std::filesystem::path background = BackgroundFile(dataDirectory, options.Mode);
  if (options.TintByOwner) {
    surface.LoadTintedPicture(background, TintByOwner(game, dataDirectory, options.Mode));
  } else {
    surface.LoadPicture(background);
  }
  SetPens(surface);
  SetLabelFont(surface);
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row)
    DrawLabel(surface, game, options, row);
  DrawCaptions(surface, game);
  if (game.Stage == model::Stage::Retreats) {
    DrawStandoffMarkers(surface, game);
    DrawLabelsOver(DrawAttackLines(surface, game, options.Mode, orders), surface, game, options);
  }
}

}  // namespace

std::filesystem::path BackgroundFile(const std::filesystem::path& dataDirectory,
                                     settings::MapMode mode) {
  if (settings::InColour(mode)) return dataDirectory / "map.bmp";
  return dataDirectory / (mode == settings::MapMode::Grey ? "mapgrey.bmp" : "mapbw.bmp");
}

void DrawBelowUnits(const GameState& game, const settings::MapOptions& options,
                    const std::filesystem::path& dataDirectory, Surface& surface) {
  DrawGround(game, options, dataDirectory, surface, {});
}

void DrawAboveUnits(const GameState& game, const settings::MapOptions& options, Surface& surface) {
  SetLabelFont(surface);
  if (options.ShowCentreOwners) DrawCentreOwners(surface, game, options);
  if (options.ShowCentreCount) {
    settings::InColour(options.Mode) ? DrawColourLegend(surface, game)
                                     : DrawPlainLegend(surface, game);
  }
}

void RenderMap(const GameState& game, const settings::MapOptions& options,
               const std::filesystem::path& dataDirectory, Surface& surface,
               std::span<const orders::OrderOutcome> orders) {
  DrawGround(game, options, dataDirectory, surface, orders);
  const std::vector<LabelBoxes> labels = BoxesToKeepClear(surface, game, orders);
  const std::vector<OrderRoute> routes = RoutesOf(surface, game, orders, labels);
  // From the ground up: the lines of orders, the labels they would hide, units in place, dislodged
  // units over their attackers, the labels that those
  // hide, and what is marked on units.
  DrawOrdersBelowUnits(surface, game, routes, options);
  for (const int row : LabelsUnder(routes, labels))
    DrawLabelAgain(surface, game, options, row);
  const std::vector<ShownUnit> units = UnitsShown(game);
  HideLabelsUnder(surface, game, options, units);
  DrawUnits(surface, game, options, false);
  DrawUnits(surface, game, options, true);
  DrawLabelsBeside(surface, *game.Map, units);
  DrawOrdersAboveUnits(surface, game, routes, options);
  DrawAboveUnits(game, options, surface);
}

}  // namespace orb::render
