#pragma once

#include "shape.h"

#include <array>
#include <unordered_map>

namespace mapmaker {

/// An edge between two neighbouring points of a ring, whichever way it runs.
struct Edge {
  Edge(Point a, Point b);
  bool operator==(const Edge&) const = default;

  std::array<double, 4> Ends;
};

struct EdgeHash {
  std::size_t operator()(const Edge& edge) const;
};

/// The two owners on the sides of an edge; -1 where there is none.
using EdgeOwners = std::unordered_map<Edge, std::array<int, 2>, EdgeHash>;

/// Notes `owner` on every edge of the rings of `shape`.
void AddOwner(EdgeOwners& owners, const Shape& shape, int owner);

/// The owner across `edge` from `owner`, or -1.
[[nodiscard]] int Across(const EdgeOwners& owners, const Edge& edge, int owner);

}  // namespace mapmaker
