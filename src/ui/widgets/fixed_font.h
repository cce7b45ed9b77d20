#pragma once

#include <QFont>

namespace orb::ui {

/// The desktop's font of equal widths; where that has none, or names one that is not there, another
/// one of the system's.
QFont fixedFont();

}  // namespace orb::ui
