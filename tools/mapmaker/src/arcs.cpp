#include "coverage.h"
#include "edges.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace mapmaker {
namespace {

/// A connected part of an area.
struct Part {
  Shape Extent;
  double Size = 0;
  int Owner = -1;
};

std::vector<Part> PartsOf(const Coverage& coverage) {
  std::vector<Part> parts;
  for (std::size_t i = 0; i < coverage.size(); ++i) {
    for (const Shape& polygon : coverage[i].Extent.Polygons())
      parts.push_back({polygon, polygon.Area(), static_cast<int>(i)});
  }
  std::sort(parts.begin(), parts.end(),
            [](const Part& a, const Part& b) { return a.Size < b.Size; });
  return parts;
}

/// The area, other than its own, that the part with this index borders longest on; -1 if none.
int LongestNeighbour(const std::vector<Part>& parts, std::size_t index, const EdgeOwners& edges) {
  std::map<int, double> lengths;
  for (const Line& ring : parts[index].Extent.Rings()) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const int across = Across(edges, Edge(ring[i - 1], ring[i]), static_cast<int>(index));
      if (across < 0) continue;
      const int owner = parts[static_cast<std::size_t>(across)].Owner;
      if (owner != parts[index].Owner)
        lengths[owner] += std::hypot(ring[i].X - ring[i - 1].X, ring[i].Y - ring[i - 1].Y);
    }
  }
  const auto longest = std::max_element(lengths.begin(), lengths.end(),
                                        [](auto& a, auto& b) { return a.second < b.second; });
  return longest == lengths.end() ? -1 : longest->first;
}

/// One round of WithoutSmallParts; tells whether a part has moved.
bool MoveSmallParts(Coverage& coverage, double leastLand, double leastWater) {
  std::vector<Part> parts = PartsOf(coverage);
  EdgeOwners edges;
  for (std::size_t i = 0; i < parts.size(); ++i)
    AddOwner(edges, parts[i].Extent, static_cast<int>(i));
  bool moved = false;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const bool land = IsLand(coverage[static_cast<std::size_t>(parts[i].Owner)]);
    if (parts[i].Size >= (land ? leastLand : leastWater)) continue;
    const int neighbour = LongestNeighbour(parts, i, edges);
    if (neighbour < 0) continue;
    parts[i].Owner = neighbour;
    moved = true;
  }
  std::vector<std::vector<Shape>> shapes(coverage.size());
  for (const Part& part : parts)
    shapes[static_cast<std::size_t>(part.Owner)].push_back(part.Extent);
  for (std::size_t i = 0; i < coverage.size(); ++i)
    coverage[i].Extent = Shape::Collection(shapes[i]).Merged();
  return moved;
}

}  // namespace

std::vector<Arc> ArcsOf(const Coverage& coverage) {
  EdgeOwners edges;
  std::vector<Shape> boundaries;
  for (std::size_t i = 0; i < coverage.size(); ++i) {
    if (coverage[i].Extent.IsEmpty()) continue;
    AddOwner(edges, coverage[i].Extent, static_cast<int>(i));
    boundaries.push_back(coverage[i].Extent.Boundary());
  }
  std::vector<Arc> arcs;
  for (Line& line : Shape::Collection(boundaries).Merged().JoinedLines()) {
    const std::array<int, 2>& sides = edges.at(Edge(line[0], line[1]));
    arcs.push_back({std::move(line), sides[0], sides[1]});
  }
  return arcs;
}

Coverage WithoutSmallParts(Coverage coverage, double leastLand, double leastWater) {
  constexpr int rounds = 6;
  for (int i = 0; i < rounds && MoveSmallParts(coverage, leastLand, leastWater); ++i) {
  }
  return coverage;
}

}  // namespace mapmaker
