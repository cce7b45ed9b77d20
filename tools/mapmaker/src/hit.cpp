#include "hit.h"

#include "projection.h"

#include <algorithm>
#include <cmath>

namespace mapmaker {
namespace {

/// Where the rings cross the middle of each pixel row, from left to right.
std::vector<std::vector<double>> Crossings(const std::vector<Line>& rings) {
  std::vector<std::vector<double>> crossings(MapHeight);
  for (const Line& ring : rings) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const auto& [upper, lower] = std::minmax(
          ring[i - 1], ring[i], [](const Point& a, const Point& b) { return a.Y < b.Y; });
      const int first = std::max(0, static_cast<int>(std::ceil(upper.Y - 0.5)));
      const int end = std::min(MapHeight, static_cast<int>(std::ceil(lower.Y - 0.5)));
      for (int y = first; y < end; ++y) {
        const double t = (y + 0.5 - upper.Y) / (lower.Y - upper.Y);
        crossings[static_cast<std::size_t>(y)].push_back(upper.X + t * (lower.X - upper.X));
      }
    }
  }
  for (std::vector<double>& row : crossings)
    std::sort(row.begin(), row.end());
  return crossings;
}

void Fill(QImage& picture, const Shape& shape, uchar value) {
  const std::vector<std::vector<double>> crossings = Crossings(shape.Rings());
  for (int y = 0; y < MapHeight; ++y) {
    const std::vector<double>& row = crossings[static_cast<std::size_t>(y)];
    for (std::size_t i = 1; i < row.size(); i += 2) {
      const int first = std::max(0, static_cast<int>(std::ceil(row[i - 1] - 0.5)));
      const int end = std::min(MapWidth, static_cast<int>(std::ceil(row[i] - 0.5)));
      if (first < end) std::fill(picture.scanLine(y) + first, picture.scanLine(y) + end, value);
    }
  }
}

}  // namespace

QImage DrawHitPicture(const Coverage& coverage, std::size_t locations) {
  QImage picture(MapWidth, MapHeight, QImage::Format_Indexed8);
  picture.setColor(0, qRgb(0, 0, 0));
  for (int i = 1; i < 256; ++i)
    picture.setColor(i, QColor::fromHsv(i * 67 % 360, 90 + i % 3 * 50, 235 - i % 4 * 30).rgb());
  picture.fill(0);
  for (std::size_t i = 0; i < locations; ++i)
    Fill(picture, coverage[i].Extent, static_cast<uchar>(i + 1));
  return picture;
}

Contacts FindContacts(const QImage& hitPicture) {
  Contacts contacts;
  const auto note = [&](int a, int b) {
    if (a != b && a != 0 && b != 0) ++contacts[std::minmax({a, b})];
  };
  for (int y = 0; y < hitPicture.height(); ++y) {
    for (int x = 0; x < hitPicture.width(); ++x) {
      const int here = hitPicture.pixelIndex(x, y);
      if (x + 1 < hitPicture.width()) note(here, hitPicture.pixelIndex(x + 1, y));
      if (y + 1 < hitPicture.height()) note(here, hitPicture.pixelIndex(x, y + 1));
    }
  }
  return contacts;
}

}  // namespace mapmaker
