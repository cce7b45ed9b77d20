#include "render/drawing.h"

#include "model/place.h"

namespace orb::render {

bool IsDark(model::Colour colour) {
  const auto part = [colour](int shift) { return static_cast<double>(colour >> shift & 0xFF); };
  return 0.299 * part(0) + 0.587 * part(8) + 0.114 * part(16) < 125;
}

void SetPens(Surface& surface) {
  surface.ForeColour = Black;
  surface.FillColour = Black;
  surface.FillStyle = Fill::Solid;
  surface.DrawWidth = 1;
}

Point LabelPoint(const model::Province& province) {
  return {province.LabelX, province.LabelY};
}

Point UnitPoint(const model::Province& province) {
  return {province.UnitX, province.UnitY};
}

Point OnSurface(const Surface& surface, Point fraction) {
  return {fraction.X * surface.ScaleWidth(), fraction.Y * surface.ScaleHeight()};
}

void PrintAt(Surface& surface, Point corner, std::string_view text) {
  surface.CurrentX = corner.X;
  surface.CurrentY = corner.Y;
  surface.Print(text);
}

std::string_view LabelText(const model::Province& province) {
  const std::string_view name = province.Name;
  return model::IsCoast(name) ? name.substr(name.size() - 1) : name;
}

Point LabelCorner(const Surface& surface, const model::Province& province) {
  const std::string_view label = LabelText(province);
  const Point centre = OnSurface(surface, LabelPoint(province));
  return {centre.X - surface.TextWidth(label) / 2, centre.Y - surface.TextHeight(label) / 2};
}

Point CentreDot(const Surface& surface, const model::Province& province) {
  const Point label = OnSurface(surface, LabelPoint(province));
  return {label.X, label.Y + 0.6 * surface.TextHeight(province.Name)};
}

}  // namespace orb::render
