#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orb::orders {

/// Lists of indices in ascending order, strung together without any memory of their own: one list a
/// key, ended by 0. Keys are 0..KeyBound, items 1..ItemBound, each item in one list at most;
/// ItemBound must fit into a signed byte.
template <int KeyBound, int ItemBound>
class Chains {
 public:
  int First(int key) const { return first_[static_cast<std::size_t>(key)]; }
  int Next(int item) const { return next_[static_cast<std::size_t>(item)]; }

  /// Items must come in descending order.
  void Prepend(int key, int item) {
    auto& first = first_[static_cast<std::size_t>(key)];
    next_[static_cast<std::size_t>(item)] = first;
    first = static_cast<std::int8_t>(item);
  }

 private:
  std::array<std::int8_t, KeyBound + 1> first_{};
  std::array<std::int8_t, ItemBound + 1> next_{};
};

}  // namespace orb::orders
