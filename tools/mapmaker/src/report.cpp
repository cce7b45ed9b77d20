#include "report.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace mapmaker {
namespace {

/// What is less than this cannot be seen.
constexpr double LeastOverlap = 0.5;

struct Overlap {
  double Size = 0;
  std::string Text;
};

void Note(std::vector<Overlap>& overlaps, const Shape& common, const std::string& text) {
  const double size = common.Area() / (FigureScale * FigureScale);
  if (size >= LeastOverlap) overlaps.push_back({size, text});
}

/// A dislodged unit covers its own label and dot by design; a coast is an area of no extent.
void NoteFigure(std::vector<Overlap>& overlaps, const std::vector<Figure>& figures, std::size_t i,
                const Coverage& coverage) {
  const Figure& figure = figures[i];
  if (figure.Row >= 0) {
    const Shape& home = coverage[static_cast<std::size_t>(figure.Row)].Extent;
    if (!home.IsEmpty())
      Note(overlaps, figure.Extent.Difference(home), figure.Name + " over its border");
  }
  for (std::size_t k = i + 1; k < figures.size(); ++k) {
    const Figure& other = figures[k];
    const bool same = figure.Row == other.Row;
    const bool unit = figure.Name.ends_with("unit") || other.Name.ends_with("unit");
    if (!same || unit)
      Note(overlaps, figure.Extent.Intersection(other.Extent), figure.Name + " on " + other.Name);
  }
}

void Finish(std::ofstream& file, const QString& path) {
  if (!file.flush()) throw std::runtime_error(path.toStdString() + ": cannot be written");
}

}  // namespace

void WriteContacts(const QString& path, const Contacts& contacts,
                   const std::vector<Location>& locations) {
  std::ofstream file(path.toStdString());
  const auto name = [&](int row) {
    return locations[static_cast<std::size_t>(row - 1)].Abbreviation;
  };
  for (const auto& [rows, length] : contacts)
    file << name(rows.first) << ' ' << name(rows.second) << ' ' << length << '\n';
  Finish(file, path);
}

void WriteOverlaps(const QString& path, const std::vector<Figure>& figures,
                   const Coverage& coverage) {
  std::vector<Overlap> overlaps;
  for (std::size_t i = 0; i < figures.size(); ++i)
    NoteFigure(overlaps, figures, i, coverage);
  std::sort(overlaps.begin(), overlaps.end(),
            [](const Overlap& a, const Overlap& b) { return a.Size > b.Size; });
  std::ofstream file(path.toStdString());
  for (const Overlap& overlap : overlaps)
    file << overlap.Size << ' ' << overlap.Text << '\n';
  Finish(file, path);
}

}  // namespace mapmaker
