#pragma once

#include "model/country.h"

#include <QColor>

namespace orb::colour {

// Game data keep red in the lowest byte, then green, then blue; none has an alpha part.
/// The toolkit's form of a power's colour.
inline QColor ToQColor(model::Colour colour) {
  return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
          static_cast<int>(colour >> 16 & 0xFF)};
}

/// The stored form of a colour that was picked; its alpha part is dropped.
inline model::Colour ToColour(const QColor& colour) {
  return model::Rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
                    static_cast<unsigned>(colour.blue()));
}

}  // namespace orb::colour
