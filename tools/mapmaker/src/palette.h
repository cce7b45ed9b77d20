#pragma once

#include <QImage>

namespace mapmaker {

/// `picture` in the `size` colours (up to 256) that suit it best, without dithering.
QImage WithPalette(const QImage& picture, std::size_t size);

}  // namespace mapmaker
