#pragma once

#include "shape.h"
#include "tables.h"

#include <memory>

struct PJconsts;

namespace mapmaker {

/// Size of the finished pictures in pixels; map coordinates are these pixels, y downwards.
inline constexpr int MapWidth = 2000;
inline constexpr int MapHeight = 1667;
/// How far the geometry reaches beyond the frame, so that no outline is drawn along it.
inline constexpr double MapMargin = 14;

/// From longitude and latitude in degrees to map coordinates.
class Projection {
 public:
  /// Throws std::runtime_error where the projection is not understood.
  explicit Projection(Frame frame);

  [[nodiscard]] Point ToMap(Point lonLat) const;

 private:
  [[nodiscard]] Point Magnified(Point map) const;

  Frame m_frame;
  std::shared_ptr<PJconsts> m_transformation;
};

}  // namespace mapmaker
