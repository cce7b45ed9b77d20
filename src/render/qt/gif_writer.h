#pragma once

#include "render/qt/palette.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct GifFileType;

namespace orb::render {

/// Writes an animated GIF that repeats forever. Every frame after the first holds only the
/// rectangle that changed, and of that only the pixels that changed.
class GifWriter {
 public:
  /// How many colours its palette may have: the 256th stands for pixels that stay.
  static constexpr std::size_t MostColours = 255;

  /// Throws FileError for a size that the format cannot hold.
  GifWriter(QSize size, Palette palette);

  /// Adds a frame of 32 bits a pixel, shown for some hundredths of a second. One that looks like
  /// the frame before it prolongs that one. Throws FileError for a picture of another size.
  void Add(const QImage& picture, int hundredths);

  /// The bytes of the file; nothing can be added after that.
  std::string Finish();

 private:
  struct Closing {
    void operator()(GifFileType* file) const;
  };

  QRect FindChanges(const QImage& picture);
  void WritePending();

  QSize size_;
  Palette palette_;
  std::unique_ptr<std::string> bytes_ = std::make_unique<std::string>();
  std::unique_ptr<GifFileType, Closing> file_;
  QImage shown_;                       ///< the last frame; null before the first
  std::vector<std::uint8_t> indices_;  ///< its colours
  std::vector<std::uint8_t> changes_;  ///< those that a frame changes, else the one that stays
  std::vector<std::uint8_t> pending_;  ///< the changes that are still to be written
  QRect pendingPart_;                  ///< where they lie
  int pendingTime_ = 0;
};

}  // namespace orb::render
