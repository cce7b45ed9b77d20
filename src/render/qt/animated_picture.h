#pragma once

#include "history/replay.h"
#include "render/qt/picture_cache.h"
#include "settings/map_options.h"

#include <QImage>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orb::render {

/// The width in pixels at which an animation suits mails and web pages.
constexpr int AnimationWidth = 1000;

/// One picture of an animation, of 32 bits a pixel.
struct AnimationFrame {
  QImage Picture;
  int Hundredths = 0;  ///< of a second that it is shown
};

/// Gives one frame after another, all of one size, and nothing after the last.
using FrameSource = std::function<std::optional<AnimationFrame>()>;

/// Called after every frame with the frames done and the number of all; false stops the work.
using FrameProgress = std::function<bool(int done, int all)>;

/// An animated GIF of the frames that repeats forever, in at most 255 colours. Throws FileError
/// when there is no frame.
std::string AnimatedGif(const FrameSource& next, const std::vector<QRgb>& colours);

/// Replays, played one after the other, as an animated GIF some pixels wide (0: the background's
/// own width): twenty frames a second, and the last one's end for a while. Empty when progress
/// stops it. Throws what MapImage throws, FileError also without replays.
std::string AnimationBytes(const std::vector<history::Replay>& replays,
                           const settings::MapOptions& options,
                           const std::filesystem::path& dataDirectory, int pixelWidth,
                           PictureCache& pictures, const FrameProgress& progress);

/// Saves the same to a file, which is replaced whole or not at all; false, nothing written, when
/// progress stops it. Throws FileError also when it cannot be written.
bool SaveAnimation(const std::vector<history::Replay>& replays, const settings::MapOptions& options,
                   const std::filesystem::path& dataDirectory, int pixelWidth,
                   PictureCache& pictures, const std::filesystem::path& file,
                   const FrameProgress& progress);

}  // namespace orb::render
