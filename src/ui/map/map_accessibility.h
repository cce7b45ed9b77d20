#pragma once

namespace orb::ui {

class MapPicture;

/// Lets screen readers hear maps: each is a list with a child for every location, which tells what
/// is there, what it borders on and which order its unit has, and which takes clicks. May be called
/// again.
void makeMapsAccessible();

/// Tells screen readers that the keyboard is at another location of the map.
void tellFocus(MapPicture& map);

}  // namespace orb::ui
