#include "render/label_boxes.h"

#include "render/drawing.h"

namespace orb::render {

std::vector<LabelBoxes> LabelBoxesOf(const Surface& surface, const model::Map& map) {
  std::vector<LabelBoxes> boxes;
  for (const model::Province& place : map.Provinces) {
    const std::string_view label = LabelText(place);
    const Point corner = LabelCorner(surface, place);
    const double height = surface.TextHeight(label);
    LabelBoxes& box = boxes.emplace_back();
    // Above and below the letters a line of text is empty.
    box.Text = {{corner.X, corner.Y + 0.2 * height},
                {corner.X + surface.TextWidth(label), corner.Y + 0.85 * height}};
    if (place.IsSupplyCentre == 0) continue;
    const Point dot = CentreDot(surface, place);
    box.Dot = {{dot.X - DotRadius, dot.Y - DotRadius}, {dot.X + DotRadius, dot.Y + DotRadius}};
  }
  return boxes;
}

}  // namespace orb::render
