#pragma once

#include "render/hit_map.h"
#include "render/qt/halo_texts.h"
#include "render/tinting.h"

#include <QImage>
#include <QSize>
#include <QSizeF>

#include <filesystem>
#include <future>
#include <map>
#include <optional>

namespace orb::render {

/// Background pictures, decoded once and kept as long as their files are unchanged, with the last
/// scaled copy of each beside it.
class PictureCache {
 public:
  /// Begins to decode the picture of a file beside what the program does until it is wanted.
  void Fetch(const std::filesystem::path& file);

  /// The picture of a file. Throws FileError when it is missing or is no picture.
  const QImage& Picture(const std::filesystem::path& file);

  /// The same scaled to a size in pixels.
  const QImage& Scaled(const std::filesystem::path& file, QSize size);

  /// The same with lands in other tints, which the hit-test picture tells; where that is missing,
  /// in its own. Throws FileError also for a broken hit-test picture.
  const QImage& Tinted(const std::filesystem::path& file, QSize size, const Tinting& tinting);

  /// The texts that were painted over them.
  HaloTexts& Texts() { return texts_; }

 private:
  /// Tells a file from one that took its place.
  struct Stamp {
    std::filesystem::file_time_type Time;
    std::uintmax_t Size = 0;

    bool operator==(const Stamp&) const = default;
  };

  struct Entry {
    Stamp Read;                   ///< of the file when it was read
    std::future<QImage> Fetched;  ///< valid until the picture is first wanted
    QImage Original;
    QImage Scaled;
    std::optional<TintColourTable> Tints;  ///< of the original
    QImage Tinted;
    Tinting TintedAs;  ///< what Tinted shows
  };

  /// A hit-test picture.
  struct HitEntry {
    Stamp Read;
    HitMap Hits;
  };

  /// Nothing where the file cannot be looked at.
  static std::optional<Stamp> StampOf(const std::filesystem::path& file);

  Entry& Current(const std::filesystem::path& file);
  const HitMap* HitPicture(const Tinting& tinting);

  std::map<std::filesystem::path, Entry> entries_;
  std::map<std::filesystem::path, HitEntry> hitPictures_;
  HaloTexts texts_;
};

/// A picture's own resolution in whole pixels an inch.
double Resolution(const QImage& picture);

/// The size in twips at which a picture is meant to be seen, by its own resolution.
QSizeF NaturalSize(const QImage& picture);

}  // namespace orb::render
