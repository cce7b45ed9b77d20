#include "projection.h"

#include <cmath>
#include <proj.h>
#include <stdexcept>
#include <utility>

namespace mapmaker {

Projection::Projection(Frame frame)
    : m_frame(std::move(frame)),
      m_transformation(proj_create(PJ_DEFAULT_CTX, m_frame.Projection.c_str()), proj_destroy) {
  if (!m_transformation)
    throw std::runtime_error("frame.json: unknown projection " + m_frame.Projection);
}

Point Projection::ToMap(Point lonLat) const {
  const PJ_COORD plane = proj_trans(m_transformation.get(), PJ_FWD,
                                    proj_coord(proj_torad(lonLat.X), proj_torad(lonLat.Y), 0, 0));
  return Magnified({(plane.xy.x - m_frame.Left) / (m_frame.Right - m_frame.Left) * MapWidth,
                    (m_frame.Top - plane.xy.y) / (m_frame.Top - m_frame.Bottom) * MapHeight});
}

Point Projection::Magnified(Point map) const {
  Point moved = map;
  for (const Magnifier& magnifier : m_frame.Magnifiers) {
    const double dx = map.X - magnifier.Centre.X * MapWidth;
    const double dy = map.Y - magnifier.Centre.Y * MapHeight;
    const double radius = magnifier.Radius * MapWidth;
    const double effect =
        magnifier.Strength * std::exp(-(dx * dx + dy * dy) / (2 * radius * radius));
    moved.X += effect * dx;
    moved.Y += effect * dy;
  }
  return moved;
}

}  // namespace mapmaker
