#pragma once

#include <QImage>

namespace mapmaker {

/// `picture` in the 256 colours that suit it best, without dithering.
QImage WithPalette(const QImage& picture);

}  // namespace mapmaker
