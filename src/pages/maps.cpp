#include "pages/maps.h"

#include "pages/markup.h"

#include "model/lookups.h"
#include "render/drawing.h"
#include "render/hit_map.h"
#include "render/map_view.h"
#include "render/outlines.h"
#include "render/svg_text.h"

#include <cmath>
#include <utility>
#include <vector>

namespace orb::pages {
namespace {

using render::Point;
using render::Tenths;
using render::TenthsText;

/// How far an outline may be from the border that it follows, in pixels of the hit-test picture.
constexpr double Tolerance = 2;

/// Of the background: the map's own tints and enough between them for smooth edges.
constexpr std::size_t Colours = 64;

std::string OutlineText(const std::vector<render::Outline>& outlines, Point size) {
  std::string path;
  for (const render::Outline& outline : outlines) {
    long x = 0;
    long y = 0;
    for (const Point& corner : outline) {
      const long nextX = Tenths(corner.X * size.X);
      const long nextY = Tenths(corner.Y * size.Y);
      const std::string down = TenthsText(nextY - y);
      path.append(&corner == &outline.front() ? "M" : "l").append(TenthsText(nextX - x));
      path.append(down.front() == '-' ? "" : " ").append(down);
      x = nextX;
      y = nextY;
    }
    path.append("z");
  }
  return path;
}

}  // namespace

Maps::Maps(render::SvgMaterial& material, const settings::MapOptions& options,
           std::filesystem::path dataDirectory)
    : dataDirectory_(std::move(dataDirectory)),
      options_(options),
      size_(material.Size(render::BackgroundFile(dataDirectory_, options.Mode))),
      definitions_(material, size_.X / MapWidth, render::SvgLinks::Short),
      ground_(material.Png(render::BackgroundFile(dataDirectory_, options.Mode), Colours)) {}

std::string Maps::ViewBox() const {
  const double height = MapWidth * size_.Y / size_.X;
  return "0 0 " + std::to_string(MapWidth) + " " + TenthsText(Tenths(height));
}

std::string Maps::Layer(const model::GameState& game, std::span<const orders::OrderOutcome> orders,
                        const std::string& idPrefix) {
  render::SvgSurface surface(definitions_, size_, render::SvgForm::Layer, idPrefix);
  render::RenderMap(game, options_, dataDirectory_, surface, orders);
  return surface.Markup();
}

std::string Maps::Ground() {
  return "<use href=\"#ground\"/>";
}

std::string Maps::Definitions() const {
  return std::string(
             "<svg class=\"shared\" width=\"0\" height=\"0\" aria-hidden=\"true\"><defs>\n"
             "<image id=\"ground\" width=\"1000\" height=\"")
      .append(TenthsText(Tenths(MapWidth * size_.Y / size_.X)))
      .append("\" preserveAspectRatio=\"none\" href=\"data:image/png;base64,")
      .append(render::Base64(ground_))
      .append("\"/>\n")
      .append(definitions_.Markup())
      .append("</defs></svg>\n");
}

std::string Maps::Json(Point fraction) const {
  // Whole pixels, since JSON knows no numbers that begin with a dot.
  const auto pixels = [](double length) { return std::to_string(std::lround(length)); };
  std::string point("[");
  point.append(pixels(fraction.X * MapWidth)).append(",");
  return point.append(pixels(fraction.Y * MapWidth * size_.Y / size_.X)).append("]");
}

std::string Maps::UnitPoint(const model::Map& map, std::string_view location) const {
  return Json(render::UnitPoint(model::PlaceOf(map, location)));
}

std::string Maps::AsidePoint(const model::Map& map, std::string_view location) const {
  return Json(render::LabelPoint(model::PlaceOf(map, location)));
}

std::string Maps::Places(const model::Map& map) const {
  const render::HitMap picture = render::LoadHitMap(dataDirectory_, map, size_.X / size_.Y);
  const auto outlines = render::OutlinesOf(picture, Tolerance);
  std::vector<std::string> places;
  for (int row = 1; row <= map.Provinces.Count(); ++row) {
    const model::Province& place = map.Provinces[row];
    std::vector<std::string> members = {Member("n", JsonText(place.FullName)),
                                        Member("u", Json(render::UnitPoint(place)))};
    const auto index = static_cast<std::size_t>(row);
    if (index < outlines.size() && !outlines[index].empty()) {
      const Point size{MapWidth, MapWidth * size_.Y / size_.X};
      members.push_back(Member("d", JsonText(OutlineText(outlines[index], size))));
    }
    places.push_back(JsonText(place.Name).append(":{").append(Joined(members)).append("}"));
  }
  return std::string("{").append(Joined(places)).append("}");
}

}  // namespace orb::pages
