#pragma once

#include "history/replay.h"
#include "render/surface.h"
#include "settings/map_options.h"

#include <filesystem>

// A frame is the map of the replay's start with the units on their way: first all moves, then the
// retreats, last what is built or disbanded, with short rests before, between and after them; what
// does not happen takes no time. At progress 0 the frame is that map, at 1 the units stand as at
// the replay's end.

namespace orb::render {

/// How long the replay takes at normal speed, in seconds.
double Seconds(const history::Replay& replay);

/// The last progress up to this one at which no unit was on its way: shown there alone, the frames
/// leap from stage to stage.
double AtRest(const history::Replay& replay, double progress);

/// Draws what stays the same in every frame. Throws FileError for a missing or broken bitmap.
void DrawStill(const history::Replay& replay, const settings::MapOptions& options,
               const std::filesystem::path& dataDirectory, Surface& surface);

/// Draws the units, and what lies over them, at a progress of 0..1 on top of the still.
void DrawMoving(const history::Replay& replay, const settings::MapOptions& options, double progress,
                Surface& surface);

}  // namespace orb::render
