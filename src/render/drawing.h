#pragma once

#include "model/country.h"
#include "model/map.h"
#include "render/surface.h"

#include <string_view>

// What the map and its symbols have in common.

namespace orb::render {

constexpr model::Colour Black = model::Rgb(0, 0, 0);
constexpr model::Colour White = model::Rgb(255, 255, 255);

/// Whether light stands out from the colour better than dark, by the luma of ITU-R BT.601, which is
/// close enough to what the eye sees.
bool IsDark(model::Colour colour);

/// Sets a black pen of width 1 and solid black filling.
void SetPens(Surface& surface);

/// Where a dislodged unit is drawn, and the name.
Point LabelPoint(const model::Province& province);

/// Where a unit in place is drawn.
Point UnitPoint(const model::Province& province);

/// The point that lies at these fractions of the surface's width and height.
Point OnSurface(const Surface& surface, Point fraction);

/// Writes a text whose top left corner is given.
void PrintAt(Surface& surface, Point corner, std::string_view text);

/// What a place's label says: a coast shows its letter only.
std::string_view LabelText(const model::Province& province);

/// The top left corner of a place's label.
Point LabelCorner(const Surface& surface, const model::Province& province);

/// A supply centre's dot, in twips.
constexpr double DotRadius = 45;

/// The middle of a supply centre's dot, just below the label.
Point CentreDot(const Surface& surface, const model::Province& province);

}  // namespace orb::render
