#pragma once

#include "render/surface.h"
#include "support/fuzzing.h"

#include <cmath>

namespace orb::fuzz {

/// A surface on which nothing stays; all that is drawn must have a place.
class BlankSurface : public render::Surface {
 public:
  double ScaleWidth() const override { return 10000; }
  double ScaleHeight() const override { return 8000; }
  void LoadPicture(const std::filesystem::path& /*file*/) override {}
  double TextWidth(std::string_view text) const override {
    return 100.0 * static_cast<double>(text.size());
  }
  double TextHeight(std::string_view /*text*/) const override { return 200; }
  void Line(render::Point from, render::Point to) override {
    Check(from);
    Check(to);
  }
  void Box(render::Point corner, double width, double height) override {
    Check(corner);
    Check({width, height});
  }
  void Circle(render::Point centre, double radius) override {
    Check(centre);
    Check({radius, radius});
  }
  void Arc(render::Point centre, double radius, double start, double end) override {
    Check(centre);
    Check({start, end});
    Check({radius, radius});
  }
  void Polygon(std::span<const render::Point> corners) override {
    for (const render::Point& corner : corners)
      Check(corner);
  }

 protected:
  void PaintWhite() override {}
  void DrawText(render::Point corner, std::string_view /*text*/) override { Check(corner); }

 private:
  static void Check(render::Point point) {
    Require(std::isfinite(point.X) && std::isfinite(point.Y), "drawn nowhere");
  }
};

}  // namespace orb::fuzz
