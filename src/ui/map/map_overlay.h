#pragma once

#include "model/game_state.h"
#include "render/symbols.h"

#include <functional>

class QPainter;

namespace orb::ui {

/// What is painted over the map. The surface lies over the whole map and belongs to the painter,
/// which is for what a surface cannot do.
using MapOverlay = std::function<void(QPainter& painter, render::Surface& surface)>;

/// Where the map shows a unit, in fractions of its width and height.
render::Point unitPoint(const model::Map& map, const model::Unit& unit);

/// How large its symbol is there.
double unitScale(const model::Unit& unit);

constexpr double ThinRing = 1.5;
constexpr double BoldRing = 2.5;

/// Rings what stands at the point, clear of its symbol. The thickness is in pixels of the map's
/// natural size; the scale is that of the symbol.
void drawRing(render::Surface& surface, render::Point at, double thickness, double scale = 1);

/// Frames the place that the keyboard is at, clear of every ring.
void drawFocus(render::Surface& surface, render::Point at);

/// The ring of a place that something cannot go to.
void drawForbiddenRing(render::Surface& surface, render::Point at);

/// The unit's symbol, seen through, wherever it is taken.
void drawGhost(QPainter& painter, render::Surface& surface, const render::SymbolStyle& style,
               const model::Unit& unit, render::Point at);

}  // namespace orb::ui
