#include "edges.h"

#include <functional>

namespace mapmaker {

Edge::Edge(Point a, Point b) {
  const bool inOrder = a.X < b.X || (a.X == b.X && a.Y < b.Y);
  if (!inOrder) std::swap(a, b);
  Ends = {a.X, a.Y, b.X, b.Y};
}

std::size_t EdgeHash::operator()(const Edge& edge) const {
  std::size_t hash = 0;
  for (const double value : edge.Ends)
    hash = hash * 1000003 + std::hash<double>()(value);
  return hash;
}

void AddOwner(EdgeOwners& owners, const Shape& shape, int owner) {
  for (const Line& ring : shape.Rings()) {
    for (std::size_t i = 1; i < ring.size(); ++i) {
      const auto [entry, isNew] =
          owners.try_emplace(Edge(ring[i - 1], ring[i]), std::array{owner, -1});
      if (!isNew) entry->second[1] = owner;
    }
  }
}

int Across(const EdgeOwners& owners, const Edge& edge, int owner) {
  const auto entry = owners.find(edge);
  if (entry == owners.end()) return -1;
  const auto& [first, second] = entry->second;
  return first == owner ? second : first;
}

}  // namespace mapmaker
