#pragma once

#include <QImage>
#include <QSize>
#include <QSizeF>

#include <filesystem>
#include <map>

namespace orb::render {

/// Background pictures, decoded once and kept as long as their files are unchanged, with the last
/// scaled copy of each beside it.
class PictureCache {
 public:
  /// The picture of a file. Throws FileError when it is missing or is no picture.
  const QImage& Picture(const std::filesystem::path& file);

  /// The same scaled to a size in pixels.
  const QImage& Scaled(const std::filesystem::path& file, QSize size);

 private:
  struct Entry {
    std::filesystem::file_time_type Time;
    std::uintmax_t Size = 0;
    QImage Original;
    QImage Scaled;
  };

  Entry& Current(const std::filesystem::path& file);

  std::map<std::filesystem::path, Entry> entries_;
};

/// A picture's own resolution in whole pixels an inch.
double Resolution(const QImage& picture);

/// The size in twips at which a picture is meant to be seen, by its own resolution.
QSizeF NaturalSize(const QImage& picture);

}  // namespace orb::render
