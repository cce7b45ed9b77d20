#include "ui/map/map_overlay.h"

#include "render/drawing.h"

#include <QPainter>

#include <numbers>

namespace orb::ui {
namespace {

/// Clears the symbol of a unit, in twips.
constexpr double RingRadius = 190;
/// Half a side of the frame about the keyboard's place, in twips, and how long its corners are.
constexpr double FocusReach = 270;
constexpr double FocusCorner = 130;
constexpr model::Colour FocusBlue = model::Rgb(0, 72, 186);
constexpr double GhostOpacity = 0.75;
constexpr model::Colour ForbiddenRed = model::Rgb(176, 28, 20);

/// White under the colour stands out from any land.
void drawRing(render::Surface& surface, render::Point middle, double radius, double thickness,
              model::Colour colour) {
  surface.FillStyle = render::Fill::Transparent;
  surface.ForeColour = render::White;
  surface.DrawWidth = thickness + 2;
  surface.Circle(middle, radius);
  surface.ForeColour = colour;
  surface.DrawWidth = thickness;
  surface.Circle(middle, radius);
}

}  // namespace

render::Point unitPoint(const model::Map& map, const model::Unit& unit) {
  const model::Province& place = map.Provinces[model::FindProvince(map, unit.Location)];
  if (unit.Status == model::Dislodged) return {place.LabelX, place.LabelY};
  return {place.UnitX, place.UnitY};
}

double unitScale(const model::Unit& unit) {
  return unit.Status == model::Dislodged ? 0.75 : 1.0;
}

void drawRing(render::Surface& surface, render::Point at, double thickness, double scale) {
  drawRing(surface, render::OnSurface(surface, at), RingRadius * scale, thickness, render::Black);
  render::SetPens(surface);
}

void drawFocus(render::Surface& surface, render::Point at) {
  const render::Point middle = render::OnSurface(surface, at);
  const auto corners = [&](double thickness, model::Colour colour) {
    surface.DrawWidth = thickness;
    surface.ForeColour = colour;
    for (const double right : {-1.0, 1.0}) {
      for (const double down : {-1.0, 1.0}) {
        const render::Point corner{middle.X + right * FocusReach, middle.Y + down * FocusReach};
        surface.Line(corner, {corner.X - right * FocusCorner, corner.Y});
        surface.Line(corner, {corner.X, corner.Y - down * FocusCorner});
      }
    }
  };
  corners(2 * BoldRing + 2, render::White);
  corners(2 * BoldRing - 1, FocusBlue);
  render::SetPens(surface);
}

void drawForbiddenRing(render::Surface& surface, render::Point at) {
  const render::Point middle = render::OnSurface(surface, at);
  drawRing(surface, middle, RingRadius, 2 * BoldRing, ForbiddenRed);
  const double reach = RingRadius / std::numbers::sqrt2;
  surface.Line({middle.X - reach, middle.Y - reach}, {middle.X + reach, middle.Y + reach});
  render::SetPens(surface);
}

void drawGhost(QPainter& painter, render::Surface& surface, const render::SymbolStyle& style,
               const model::Unit& unit, render::Point at) {
  painter.setOpacity(GhostOpacity);
  const auto draw = unit.UnitType == "A" ? render::DrawArmy : render::DrawFleet;
  draw(surface, style, at, model::FindCountry(unit.Power), unitScale(unit));
  painter.setOpacity(1);
}

}  // namespace orb::ui
