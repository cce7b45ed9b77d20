#pragma once

#include "model/game_state.h"
#include "orders/order_outcome.h"
#include "render/svg_surface.h"
#include "settings/map_options.h"

#include <filesystem>
#include <span>
#include <string>

namespace orb::pages {

/// The maps of one page: drawings over a background that is there once. Their unit is a pixel of a
/// map that is MapWidth wide.
class Maps {
 public:
  static constexpr int MapWidth = 1000;

  /// Throws FileError for a missing or broken background. The material must outlive the maps.
  Maps(render::SvgMaterial& material, const settings::MapOptions& options,
       std::filesystem::path dataDirectory);

  /// "0 0 1000 833.5".
  std::string ViewBox() const;

  /// A map's drawing without its background; ids begin with the prefix. Throws IndexOutOfRange as
  /// RenderMap does.
  std::string Layer(const model::GameState& game, std::span<const orders::OrderOutcome> orders,
                    const std::string& idPrefix);

  /// The use of the background in a map.
  static std::string Ground();

  /// What the maps refer to, to stand in the page once, when all of them are drawn.
  std::string Definitions() const;

  /// Where a unit in place is drawn, and one aside, as JSON: [x,y].
  std::string UnitPoint(const model::Map& map, std::string_view location) const;
  std::string AsidePoint(const model::Map& map, std::string_view location) const;

  /// The places of a map as JSON: {"Lon":{"n":"London","d":"M...","u":[x,y]},...}. A coast has no
  /// outline "d", nor has any place where there is no hit-test picture.
  std::string Places(const model::Map& map) const;

 private:
  std::string Json(render::Point fraction) const;

  std::filesystem::path dataDirectory_;
  settings::MapOptions options_;
  render::Point size_;  ///< in twips
  render::SvgDefinitions definitions_;
  std::string ground_;  ///< PNG
};

}  // namespace orb::pages
