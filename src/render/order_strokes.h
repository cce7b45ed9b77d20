#pragma once

#include "render/paths.h"
#include "render/surface.h"

// The strokes that orders are drawn with. Each has an edge in a second colour, so that it reads on
// any ground and over other strokes. Points and lengths are twips.

namespace orb::render {

/// Widths are in screen pixels at 96 dpi.
struct OrderPen {
  model::Colour Core;
  model::Colour Edge;
  double Width;
  double EdgeWidth;  ///< to either side of the core
};

enum class LineForm { Solid, LongDashes, Dashes, Dots };

constexpr double HeadLength = 9 * TwipsPerPixel;
constexpr double HeadHalf = 4.2 * TwipsPerPixel;  ///< half the width of a head
constexpr double EndDotRadius = 3 * TwipsPerPixel;
constexpr double CutGap = 4 * TwipsPerPixel;  ///< between the strokes of a cut

void DrawPath(Surface& surface, const OrderPen& pen, const Path& path, LineForm form);

/// An arrow's head: a triangle, or only its two sides.
void DrawHead(Surface& surface, const OrderPen& pen, Spot tip, bool filled);

/// A disc, or only its outline.
void DrawEndDot(Surface& surface, const OrderPen& pen, Point centre, bool filled);

/// A bar across a line.
void DrawBar(Surface& surface, const OrderPen& pen, Spot spot);

/// Two slanting strokes across a gap in a line.
void DrawCut(Surface& surface, const OrderPen& pen, Spot spot);

/// An x that reaches this far to each side.
void DrawCross(Surface& surface, const OrderPen& pen, Point centre, double reach);

/// A plus that reaches this far to each side.
void DrawPlus(Surface& surface, const OrderPen& pen, Point centre, double reach);

}  // namespace orb::render
