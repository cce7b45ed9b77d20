#pragma once

#include "model/game_state.h"

#include <bit>
#include <cstdint>

namespace orb::orders {

/// Some of the units of a situation, by their indices 1..40.
class UnitSet {
 public:
  constexpr UnitSet() = default;

  constexpr void Add(int unit) { bits_ |= Bit(unit); }
  constexpr void Remove(int unit) { bits_ &= ~Bit(unit); }
  constexpr bool Has(int unit) const { return (bits_ & Bit(unit)) != 0; }
  constexpr bool IsEmpty() const { return bits_ == 0; }
  constexpr int Count() const { return std::popcount(bits_); }
  /// The unit with the lowest index; not of an empty set.
  constexpr int First() const { return std::countr_zero(bits_); }

  constexpr UnitSet operator&(UnitSet other) const { return UnitSet(bits_ & other.bits_); }
  constexpr UnitSet operator|(UnitSet other) const { return UnitSet(bits_ | other.bits_); }
  /// Those that are not in the other set.
  constexpr UnitSet operator-(UnitSet other) const { return UnitSet(bits_ & ~other.bits_); }
  constexpr bool operator==(const UnitSet&) const = default;

  /// Walks over the units in ascending order.
  class Iterator {
   public:
    constexpr explicit Iterator(std::uint64_t rest) : rest_(rest) {}
    constexpr int operator*() const { return std::countr_zero(rest_); }
    constexpr Iterator& operator++() {
      rest_ &= rest_ - 1;
      return *this;
    }
    constexpr bool operator==(const Iterator&) const = default;

   private:
    std::uint64_t rest_;
  };
  constexpr Iterator begin() const { return Iterator(bits_); }
  constexpr Iterator end() const { return Iterator(0); }

 private:
  constexpr explicit UnitSet(std::uint64_t bits) : bits_(bits) {}
  static constexpr std::uint64_t Bit(int unit) { return std::uint64_t{1} << unit; }

  std::uint64_t bits_ = 0;
};

static_assert(model::UnitBound < 64);

}  // namespace orb::orders
