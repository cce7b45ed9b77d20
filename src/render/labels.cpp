#include "render/labels.h"

#include "model/lookups.h"
#include "render/drawing.h"
#include "render/label_boxes.h"
#include "render/parts.h"
#include "render/symbols.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <vector>

namespace orb::render {
namespace {

using model::GameState;

constexpr double HaloWidth = 1.3;
constexpr double HaloOnBox = 1.1;  ///< there is little room between the letters and the box
constexpr double BlotMargin = 10;  ///< beside a label that is hidden, in twips
constexpr double BoxWidth = 2;
constexpr double BoxEdge = 0.5;    ///< to either side of a box's outline
constexpr double BoxFringe = 0.6;  ///< lest the colour shows along a black box
constexpr double DotHalo = 12;     ///< in twips
constexpr double Gap = 30;         ///< between a unit and the label beside it, in twips

bool HasBox(const GameState& game, const settings::MapOptions& options, int row) {
  return options.ColourBordersByOwner && game.Map->Provinces[row].IsSupplyCentre != 0 &&
         model::FindCountry(game.Provinces[row].Owner) != 0;
}

/// The box in the owner's colour. A dark edge sets it off from the land, whose tint may be as
/// light as the colour; where the map shows no colours, the box is black.
void DrawOwnerBox(Surface& surface, const GameState& game, const settings::MapOptions& options,
                  int row) {
  const model::Province& province = game.Map->Provinces[row];
  const std::string_view label = LabelText(province);
  const Point corner = LabelCorner(surface, province);
  const double height = surface.TextHeight(label);
  const auto outline = [&](double width, model::Colour pen) {
    surface.DrawWidth = width;
    surface.ForeColour = pen;
    surface.Box({corner.X - surface.TextWidth(" ") / 2, corner.Y + 0.1 * height},
                surface.TextWidth(std::string(" ").append(label)), 0.8 * height);
  };
  const bool inColour = settings::InColour(options.Mode);
  surface.FillStyle = Fill::Transparent;
  if (inColour) outline(BoxWidth + 2 * BoxEdge, Black);
  outline(BoxWidth, game.Countries[model::FindCountry(game.Provinces[row].Owner)].Colour);
  if (!inColour) outline(BoxWidth + BoxFringe, Black);
  SetPens(surface);
}

void DrawDot(Surface& surface, const GameState& game, int row) {
  const model::Province& province = game.Map->Provinces[row];
  if (province.IsSupplyCentre != 0) surface.Circle(CentreDot(surface, province), DotRadius);
}

Rectangle BoxOf(const Surface& surface, const ShownUnit& unit) {
  return UnitBox(unit.UnitType, OnSurface(surface, unit.At), unit.Scale);
}

/// What a label beside a unit must not cover: all units, and all other labels with their dots.
std::vector<Rectangle> ObstaclesFor(const Surface& surface, const model::Map& map,
                                    std::span<const ShownUnit> units) {
  std::vector<Rectangle> obstacles;
  for (const ShownUnit& unit : units)
    obstacles.push_back(BoxOf(surface, unit));
  for (const LabelBoxes& boxes : LabelBoxesOf(surface, map)) {
    obstacles.push_back(boxes.Text);
    obstacles.push_back(boxes.Dot);
  }
  return obstacles;
}

/// The top left corner at which a label beside the unit covers least, best on its right.
Point CornerBeside(const Surface& surface, const Rectangle& unit, std::string_view label,
                   const std::vector<Rectangle>& obstacles) {
  const double width = surface.TextWidth(label);
  const double height = surface.TextHeight(label);
  const Point middle = {(unit.TopLeft.X + unit.BottomRight.X) / 2,
                        (unit.TopLeft.Y + unit.BottomRight.Y) / 2};
  const double right = unit.BottomRight.X + Gap;
  const double left = unit.TopLeft.X - Gap - width;
  // A line of text has air of its own above and below the letters.
  const double above = unit.TopLeft.Y - 0.85 * height;
  const double below = unit.BottomRight.Y - 0.1 * height;
  const std::array<Point, 8> corners = {{{right, middle.Y - height / 2},
                                         {left, middle.Y - height / 2},
                                         {middle.X - width / 2, above},
                                         {middle.X - width / 2, below},
                                         {right, above},
                                         {left, above},
                                         {right, below},
                                         {left, below}}};
  const Rectangle whole = {{0, 0}, {surface.ScaleWidth(), surface.ScaleHeight()}};
  Point best = corners.front();
  double least = std::numeric_limits<double>::infinity();
  for (const Point& corner : corners) {
    const Rectangle box = {{corner.X, corner.Y + 0.2 * height},
                           {corner.X + width, corner.Y + 0.85 * height}};
    double covered = CommonArea(box, box) - CommonArea(box, whole);
    for (const Rectangle& obstacle : obstacles)
      covered += CommonArea(box, obstacle);
    if (covered >= least) continue;
    least = covered;
    best = corner;
  }
  return best;
}

}  // namespace

void SetLabelFont(Surface& surface) {
  surface.FontSize = 8;
  surface.FontBold = false;
  surface.FontUnderline = false;
  surface.HaloWidth = HaloWidth;
}

void DrawLabel(Surface& surface, const GameState& game, const settings::MapOptions& options,
               int row) {
  const DrawnPart part(surface, game, row);
  const std::string_view label = LabelText(game.Map->Provinces[row]);
  const Point corner = LabelCorner(surface, game.Map->Provinces[row]);
  PrintAt(surface, corner, label);
  if (!HasBox(game, options, row)) return DrawDot(surface, game, row);
  DrawOwnerBox(surface, game, options, row);
  DrawDot(surface, game, row);
  // The box and the dot run through the lower parts of letters such as p and y.
  surface.HaloWidth = HaloOnBox;
  PrintAt(surface, corner, label);
  surface.HaloWidth = HaloWidth;
}

void DrawLabelAgain(Surface& surface, const GameState& game, const settings::MapOptions& options,
                    int row) {
  const model::Province& province = game.Map->Provinces[row];
  if (province.IsSupplyCentre != 0) {
    surface.ForeColour = White;
    surface.FillColour = White;
    surface.Circle(CentreDot(surface, province), DotRadius + DotHalo);
    SetPens(surface);
  }
  DrawLabel(surface, game, options, row);
}

std::vector<ShownUnit> UnitsShown(const GameState& game) {
  std::vector<ShownUnit> shown;
  for (const model::Unit& unit : game.Units) {
    const model::Province& place = model::PlaceOf(*game.Map, unit.Location);
    const bool aside = unit.Status == model::Dislodged;
    shown.push_back({unit.UnitType, aside ? LabelPoint(place) : UnitPoint(place),
                     aside ? DislodgedScale : 1,
                     aside ? model::FindProvince(*game.Map, unit.Location) : 0});
  }
  return shown;
}

void HideLabelsUnder(Surface& surface, const GameState& game, const settings::MapOptions& options,
                     std::span<const ShownUnit> units) {
  SetLabelFont(surface);
  for (const ShownUnit& unit : units) {
    const int row = unit.LabelRow;
    if (row == 0) continue;
    const std::string_view label = LabelText(game.Map->Provinces[row]);
    const Point corner = LabelCorner(surface, game.Map->Provinces[row]);
    const double height = surface.TextHeight(label);
    surface.FillColour = White;
    surface.DrawWidth = 0;
    surface.Box({corner.X - BlotMargin, corner.Y + 0.15 * height},
                surface.TextWidth(label) + 2 * BlotMargin, 0.8 * height);
    SetPens(surface);
    if (HasBox(game, options, row)) DrawOwnerBox(surface, game, options, row);
    DrawDot(surface, game, row);
  }
}

void DrawLabelsBeside(Surface& surface, const model::Map& map, std::span<const ShownUnit> units) {
  const auto liesOnLabel = [](const ShownUnit& unit) { return unit.LabelRow != 0; };
  if (std::ranges::none_of(units, liesOnLabel)) return;
  SetLabelFont(surface);
  std::vector<Rectangle> obstacles = ObstaclesFor(surface, map, units);
  for (const ShownUnit& unit : units) {
    if (!liesOnLabel(unit)) continue;
    const std::string_view label = LabelText(map.Provinces[unit.LabelRow]);
    const Point corner = CornerBeside(surface, BoxOf(surface, unit), label, obstacles);
    PrintAt(surface, corner, label);
    obstacles.push_back(
        {corner, {corner.X + surface.TextWidth(label), corner.Y + surface.TextHeight(label)}});
  }
}

}  // namespace orb::render
