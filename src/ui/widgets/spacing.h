#pragma once

namespace orb::ui {

// Room between the controls of a dialog, in pixels.

constexpr int GroupGap = 12;  ///< between groups, and between a caption and its control
constexpr int RowGap = 6;     ///< between rows

}  // namespace orb::ui
