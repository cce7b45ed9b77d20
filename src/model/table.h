#pragma once

#include "model/errors.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace orb::model {

/// Throws IndexOutOfRange with a sentence that names the index and the bound.
[[noreturn]] void ThrowIndexOutOfRange(int index, int bound);

/// A fixed-size table indexed from 1, with the count of rows in use beside it. Rows past the count
/// keep what they held; an index of 0 or past the bound throws IndexOutOfRange.
template <class Row, int BoundOfTable>
class Table {
 public:
  static constexpr int Bound = BoundOfTable;

  /// Rows in use, 0..Bound.
  int Count() const { return count_; }

  /// Sets the rows in use; throws IndexOutOfRange beyond the bound.
  void SetCount(int count) {
    if (count < 0 || count > Bound) ThrowIndexOutOfRange(count, Bound);
    count_ = static_cast<std::int16_t>(count);
  }

  Row& operator[](int index) { return rows_[Checked(index)]; }
  const Row& operator[](int index) const { return rows_[Checked(index)]; }

  /// Takes one more row into use and returns it as it was left; throws IndexOutOfRange when full.
  Row& Append() {
    SetCount(count_ + 1);
    return (*this)[count_];
  }

  /// Appends a row with the given contents; throws IndexOutOfRange when full.
  Row& Append(Row row) { return Append() = std::move(row); }

  /// Removes row 1..Count(): every later row moves down one place, order kept.
  void Remove(int index) {
    if (index < 1 || index > count_) ThrowIndexOutOfRange(index, count_);
    for (int i = index; i < count_; ++i)
      (*this)[i] = (*this)[i + 1];
    SetCount(count_ - 1);
  }

  Row* begin() { return rows_.data(); }
  Row* end() { return rows_.data() + count_; }
  const Row* begin() const { return rows_.data(); }
  const Row* end() const { return rows_.data() + count_; }

 private:
  static std::size_t Checked(int index) {
    if (index < 1 || index > Bound) ThrowIndexOutOfRange(index, Bound);
    return static_cast<std::size_t>(index - 1);
  }

  std::array<Row, BoundOfTable> rows_{};
  std::int16_t count_ = 0;
};

}  // namespace orb::model
