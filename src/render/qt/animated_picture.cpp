#include "render/qt/animated_picture.h"

#include "model/errors.h"
#include "model/files.h"
#include "render/drawing.h"
#include "render/qt/gif_writer.h"
#include "render/qt/map_file.h"
#include "render/qt/palette.h"
#include "render/qt/replay_picture.h"
#include "settings/map_options.h"

#include <algorithm>
#include <utility>

namespace orb::render {
namespace {

// GIF counts time in hundredths of a second. Twenty frames a second look smooth and keep files
// small; many viewers slow down much faster ones.
constexpr int FrameHundredths = 5;
constexpr int LastMapHundredths = 250;

int FrameCount(const history::Replay& replay) {
  return std::max(1, qRound(Seconds(replay) * 100 / FrameHundredths));
}

/// What is drawn, on what, and how large.
struct Show {
  const std::vector<history::Replay>& Replays;
  const settings::MapOptions& Options;
  const std::filesystem::path& DataDirectory;
  int PixelWidth;
  PictureCache& Pictures;
};

ReplayPicture PictureOf(const Show& show, const history::Replay& replay) {
  return {replay, show.Options, show.DataDirectory, show.PixelWidth, show.Pictures};
}

QImage LastMap(const Show& show) {
  return MapImage(show.Replays.back().End, show.Options, show.DataDirectory, show.PixelWidth,
                  show.Pictures);
}

/// The frames of a show one by one, so that only one is in memory.
class Frames {
 public:
  explicit Frames(const Show& show) : show_(show) {
    for (const history::Replay& replay : show.Replays)
      all_ += FrameCount(replay);
  }

  int All() const { return all_; }
  int Done() const { return done_; }

  std::optional<AnimationFrame> Next() {
    if (done_ == all_) return std::nullopt;
    ++done_;
    // All replays are done: the end of the last one stays in view before the animation begins anew.
    if (replay_ == show_.Replays.size()) return AnimationFrame{LastMap(show_), LastMapHundredths};
    const history::Replay& replay = show_.Replays[replay_];
    if (!picture_) picture_.emplace(PictureOf(show_, replay));
    const int count = FrameCount(replay);
    AnimationFrame frame{picture_->Frame(static_cast<double>(inReplay_) / count), FrameHundredths};
    if (++inReplay_ == count) {
      ++replay_;
      inReplay_ = 0;
      // The next replay has a still of its own.
      picture_.reset();
    }
    return frame;
  }

 private:
  Show show_;
  int all_ = 1;  ///< the last map, and the frames of the replays
  int done_ = 0;
  std::size_t replay_ = 0;
  int inReplay_ = 0;
  std::optional<ReplayPicture> picture_;
};

QRgb ToRgb(model::Colour colour) {
  return qRgb(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
              static_cast<int>(colour >> 16 & 0xFF));
}

/// The one palette of all frames: the powers' own colours, which must not be blended into others,
/// and what suits the first and the last map best.
std::vector<QRgb> CommonColours(const Show& show) {
  std::vector<QRgb> colours = {ToRgb(Black), ToRgb(White)};
  for (const model::Country& country : show.Replays.back().End.Countries) {
    colours.push_back(ToRgb(country.Colour));
    colours.push_back(ToRgb(country.TextColour));
  }
  const std::vector<QRgb> chosen =
      ChooseColours({PictureOf(show, show.Replays.front()).Frame(0), LastMap(show)},
                    GifWriter::MostColours - colours.size());
  colours.insert(colours.end(), chosen.begin(), chosen.end());
  return colours;
}

}  // namespace

std::string AnimatedGif(const FrameSource& next, const std::vector<QRgb>& colours) {
  std::optional<AnimationFrame> frame = next();
  if (!frame) throw model::FileError("There is nothing to animate.");
  GifWriter writer(frame->Picture.size(), Palette(colours));
  for (; frame; frame = next())
    writer.Add(frame->Picture, frame->Hundredths);
  return writer.Finish();
}

std::string AnimationBytes(const std::vector<history::Replay>& replays,
                           const settings::MapOptions& options,
                           const std::filesystem::path& dataDirectory, int pixelWidth,
                           PictureCache& pictures, const FrameProgress& progress) {
  if (replays.empty()) throw model::FileError("There is nothing to animate.");
  const Show show{replays, options, dataDirectory, pixelWidth, pictures};
  Frames frames(show);
  bool stopped = false;
  const auto next = [&]() -> std::optional<AnimationFrame> {
    stopped = frames.Done() > 0 && !progress(frames.Done(), frames.All());
    return stopped ? std::nullopt : frames.Next();
  };
  std::string bytes = AnimatedGif(next, CommonColours(show));
  if (stopped) bytes.clear();
  return bytes;
}

bool SaveAnimation(const std::vector<history::Replay>& replays, const settings::MapOptions& options,
                   const std::filesystem::path& dataDirectory, int pixelWidth,
                   PictureCache& pictures, const std::filesystem::path& file,
                   const FrameProgress& progress) {
  const std::string bytes =
      AnimationBytes(replays, options, dataDirectory, pixelWidth, pictures, progress);
  if (bytes.empty()) return false;
  model::ReplaceFile(file, bytes);
  return true;
}

}  // namespace orb::render
