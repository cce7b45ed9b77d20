#pragma once

#include "model/country.h"

#include <cmath>
#include <string>
#include <string_view>

// How numbers, colours, names and bytes stand in SVG and HTML files.

namespace orb::render {

/// A length in tenths of a pixel, the least that these files tell apart.
inline long Tenths(double pixels) {
  return std::lround(pixels * 10);
}

/// Tenths as a number: "12", "12.3", ".5", "-.5".
std::string TenthsText(long tenths);

/// "#rrggbb", or "#rgb" where that says the same.
std::string ColourText(model::Colour colour);

/// An 8-bit text (Windows-1252) as UTF-8 between tags or quotes: what could be read as markup, and
/// control characters that such files may not hold, are replaced.
std::string Escaped(std::string_view windows1252);

/// A name as part of an id: anything but letters, digits, "-" and "_" becomes "-".
std::string IdText(std::string_view name);

std::string Base64(std::string_view bytes);

}  // namespace orb::render
