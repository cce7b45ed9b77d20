#pragma once

namespace orb::ui {

/// Lets screen readers ask an area that scrolls for any of its parts, also for one that has just
/// gone. May be called again.
void makeScrollAreasAccessible();

}  // namespace orb::ui
