#pragma once

#include "model/country.h"

#include <QColor>

namespace orb::colour {

inline QColor ToQColor(model::Colour colour) {
  return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
          static_cast<int>(colour >> 16 & 0xFF)};
}

inline model::Colour ToColour(const QColor& colour) {
  return model::Rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
                    static_cast<unsigned>(colour.blue()));
}

}  // namespace orb::colour
