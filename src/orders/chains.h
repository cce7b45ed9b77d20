#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orb::orders {

/// Lists of indices strung together in ascending order, one list a key; 0 ends a list. Keys are
/// 0..KeyBound, items 1..ItemBound, each item in one list.
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
