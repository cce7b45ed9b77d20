#pragma once

#include <QFont>

namespace orb::render {

/// The map's font at a size in points. The unit of its painter is a twip, so that the font's size
/// "in pixels" is one in twips.
QFont MapFont(double points, bool bold, bool underlined);

}  // namespace orb::render
