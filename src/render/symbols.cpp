#include "render/symbols.h"

#include "render/drawing.h"
#include "settings/map_options.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>
#include <utility>
#include <vector>

namespace orb::render {
namespace {

using model::Colour;
using model::Rgb;

constexpr Colour Lit = White;
constexpr Colour HalfLit = Rgb(128, 128, 128);
constexpr Colour Shaded = Rgb(64, 64, 64);

constexpr double ArmyRadius = 115;
constexpr double StandoffReach = 90;

/// A steamer seen from the side, in twips about the unit point; 160 to bow and stern.
constexpr std::array<Point, 13> Ship = {{{-160, -22},
                                         {-76, -22},
                                         {-76, -66},
                                         {-38, -66},
                                         {-38, -118},
                                         {12, -118},
                                         {12, -66},
                                         {56, -66},
                                         {56, -22},
                                         {104, -22},
                                         {160, -48},
                                         {118, 84},
                                         {-126, 84}}};
constexpr Point ShipLetter = {-10, 12};
constexpr std::array<Point, 2> FunnelBand = {{{-30, -88}, {4, -88}}};

/// A shield that hangs from a supply centre's dot, clear of the label and its box.
constexpr std::array<Point, 5> Shield = {{{-62, -6}, {62, -6}, {62, 62}, {0, 120}, {-62, 62}}};
constexpr Point ShieldLetter = {0, 42};

/// How a power's symbols are filled: with its colour, or where there is none with a grey or a
/// black-and-white device that its initial letter tells apart.
struct Paint {
  Colour Filling;
  Colour Outline;
  Colour Letter;  ///< also of the ring
  bool HasLetter;
  bool HasRing;  ///< an army's inner ring, a band about a ship's funnel
};

struct Device {
  unsigned Grey;      ///< in grey; neighbours on the board lie far apart
  bool Dark, Ringed;  ///< in black and white; neighbours on the board differ
};

constexpr std::array<Device, model::CountryCount> Devices = {{{185, false, true},
                                                              {105, false, false},
                                                              {20, true, false},
                                                              {255, false, false},
                                                              {65, true, false},
                                                              {145, false, true},
                                                              {220, true, true}}};

Paint PaintOf(const SymbolStyle& style, int power) {
  const model::Country& country = style.Countries[power];
  if (settings::InColour(style.Mode)) {
    const Colour letter = IsDark(country.Colour) ? White : Black;
    return {country.Colour, country.TextColour, letter, style.Letters, false};
  }
  const Device& device = Devices[static_cast<std::size_t>(power - 1)];
  if (style.Mode == settings::MapMode::Grey) {
    const Colour letter = device.Grey < 128 ? White : Black;
    return {Rgb(device.Grey, device.Grey, device.Grey), Black, letter, true, false};
  }
  return {device.Dark ? Black : White, Black, device.Dark ? White : Black, true, device.Ringed};
}

Point Offset(Point origin, Point twips, double scale) {
  return {origin.X + twips.X * scale, origin.Y + twips.Y * scale};
}

std::vector<Point> Placed(std::span<const Point> figure, Point at, double scale) {
  std::vector<Point> corners;
  corners.reserve(figure.size());
  for (const Point& corner : figure)
    corners.push_back(Offset(at, corner, scale));
  return corners;
}

/// The direction of the edge that ends in a corner, of length 1.
Point EdgeInto(std::span<const Point> figure, std::size_t corner) {
  const Point from = figure[(corner + figure.size() - 1) % figure.size()];
  const Point step = {figure[corner].X - from.X, figure[corner].Y - from.Y};
  const double length = std::hypot(step.X, step.Y);
  return {step.X / length, step.Y / length};
}

/// The figure (clockwise on the screen) with every edge moved inwards by a distance. Each corner
/// moves along the bisector of its angle, the further the sharper the angle is.
std::vector<Point> Inset(std::span<const Point> figure, double distance) {
  std::vector<Point> inner;
  inner.reserve(figure.size());
  for (std::size_t i = 0; i < figure.size(); ++i) {
    const Point in = EdgeInto(figure, i);
    const Point out = EdgeInto(figure, (i + 1) % figure.size());
    const double turn = distance / (1 + in.X * out.X + in.Y * out.Y);
    inner.push_back(Offset(figure[i], {-in.Y - out.Y, in.X + out.X}, turn));
  }
  return inner;
}

void DrawLetter(Surface& surface, Point centre, double size, char letter, Colour colour) {
  const std::string_view text(&letter, 1);
  const double oldSize = std::exchange(surface.FontSize, size);
  const double oldHalo = std::exchange(surface.HaloWidth, 0);
  surface.ForeColour = colour;
  surface.FontBold = true;
  // Capitals stand a little below the middle of their line.
  PrintAt(surface,
          {centre.X - surface.TextWidth(text) / 2, centre.Y - 0.525 * surface.TextHeight(text)},
          text);
  surface.FontBold = false;
  surface.FontSize = oldSize;
  surface.HaloWidth = oldHalo;
}

/// Light falls from the upper left, so that each quarter of the edge has its own shade.
void ShadeCircle(Surface& surface, Point centre, double radius) {
  constexpr double quarter = std::numbers::pi / 2;
  constexpr std::array<Colour, 4> shades = {HalfLit, Lit, HalfLit, Shaded};
  surface.DrawWidth = 1.2;
  for (std::size_t i = 0; i < shades.size(); ++i) {
    surface.ForeColour = shades[i];
    const double start = static_cast<double>(i) * quarter;
    surface.Arc(centre, radius, start, start + quarter);
  }
}

/// The same light as on the circle: an edge's shade follows from the side it faces.
void ShadeFigure(Surface& surface, std::span<const Point> figure) {
  for (std::size_t i = 0; i < figure.size(); ++i) {
    const Point edge = EdgeInto(figure, i);
    // On a clockwise figure the edges that run rightwards or upwards face the light.
    const double light = edge.X - edge.Y;
    surface.ForeColour = light > 0.5 ? Lit : light < -0.5 ? Shaded : HalfLit;
    surface.Line(figure[(i + figure.size() - 1) % figure.size()], figure[i]);
  }
}

void SetPaint(Surface& surface, const Paint& paint) {
  SetPens(surface);
  surface.ForeColour = paint.Outline;
  surface.FillColour = paint.Filling;
}

}  // namespace

void DrawArmy(Surface& surface, const SymbolStyle& style, Point at, int power, double scale) {
  const Paint paint = PaintOf(style, power);
  const Point centre = OnSurface(surface, at);
  SetPaint(surface, paint);
  surface.Circle(centre, ArmyRadius * scale);
  const double inner = (ArmyRadius - 17) * scale;
  if (style.Mode == settings::MapMode::Colour3D) ShadeCircle(surface, centre, inner);
  if (paint.HasRing) {
    surface.FillStyle = Fill::Transparent;
    surface.ForeColour = paint.Letter;
    surface.Circle(centre, (ArmyRadius - 22) * scale);
  }
  if (paint.HasLetter) {
    DrawLetter(surface, centre, (paint.HasRing ? 7 : 8) * scale,
               style.Countries[power].Abbreviation[0], paint.Letter);
  }
  SetPens(surface);
}

void DrawFleet(Surface& surface, const SymbolStyle& style, Point at, int power, double scale) {
  const Paint paint = PaintOf(style, power);
  const Point centre = OnSurface(surface, at);
  const std::vector<Point> ship = Placed(Ship, centre, scale);
  SetPaint(surface, paint);
  surface.Polygon(ship);
  if (style.Mode == settings::MapMode::Colour3D) ShadeFigure(surface, Inset(ship, 16 * scale));
  if (paint.HasRing) {
    surface.ForeColour = paint.Letter;
    surface.DrawWidth = 2 * scale;
    surface.Line(Offset(centre, FunnelBand[0], scale), Offset(centre, FunnelBand[1], scale));
  }
  if (paint.HasLetter) {
    DrawLetter(surface, Offset(centre, ShipLetter, scale), 7 * scale,
               style.Countries[power].Abbreviation[0], paint.Letter);
  }
  SetPens(surface);
}

void DrawUnit(Surface& surface, const SymbolStyle& style, std::string_view unitType, Point at,
              int power, double scale) {
  const auto draw = unitType == "A" ? DrawArmy : DrawFleet;
  draw(surface, style, at, power, scale);
}

Rectangle UnitBox(std::string_view unitType, Point centre, double scale) {
  if (unitType == "A") {
    const double reach = ArmyRadius * scale;
    return {Offset(centre, {-1, -1}, reach), Offset(centre, {1, 1}, reach)};
  }
  const auto [left, right] = std::ranges::minmax(Ship, {}, &Point::X);
  const auto [top, bottom] = std::ranges::minmax(Ship, {}, &Point::Y);
  return {Offset(centre, {left.X, top.Y}, scale), Offset(centre, {right.X, bottom.Y}, scale)};
}

void DrawMoveLine(Surface& surface, Point from, Point to, Colour colour) {
  surface.ForeColour = colour;
  surface.DrawWidth = 2 * MoveLineReach / TwipsPerPixel;
  surface.Line(OnSurface(surface, from), OnSurface(surface, to));
  SetPens(surface);
}

void DrawStandoffMarker(Surface& surface, Point at) {
  constexpr double r = StandoffReach;
  constexpr double side = r - 15;
  // Two strong diagonals, then a thin cross between them: the flash of a clash.
  constexpr std::array<std::pair<Point, Point>, 8> lines = {{{{-r, -r}, {r, r}},
                                                             {{r, -r}, {-r, r}},
                                                             {{-side, -r}, {r, side}},
                                                             {{-r, -side}, {side, r}},
                                                             {{side, -r}, {-r, side}},
                                                             {{r, -side}, {-side, r}},
                                                             {{-r, 0}, {r, 0}},
                                                             {{0, -r}, {0, r}}}};
  const Point centre = OnSurface(surface, at);
  SetPens(surface);
  for (const auto& [from, to] : lines) {
    surface.Line(Offset(centre, from, 1), Offset(centre, to, 1));
  }
}

void DrawCentreOwnerMarker(Surface& surface, const model::GameState& game,
                           const settings::MapOptions& options, int province) {
  const int owner = model::FindCountry(game.Provinces[province].Owner);
  if (owner == 0) return;
  const Paint paint = PaintOf(StyleOf(game.Countries, options), owner);
  const Point centre = CentreDot(surface, game.Map->Provinces[province]);
  SetPaint(surface, paint);
  surface.Polygon(Placed(Shield, centre, 1));
  if (paint.HasLetter) {
    DrawLetter(surface, Offset(centre, ShieldLetter, 1), 6, game.Countries[owner].Abbreviation[0],
               paint.Letter);
  }
  SetPens(surface);
}

}  // namespace orb::render
