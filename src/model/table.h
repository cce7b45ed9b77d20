#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

namespace orb::model {

/// Throws IndexOutOfRange with a sentence that names the index and the bound.
[[noreturn]] void ThrowIndexOutOfRange(int index, int bound);

/// A table of at most BoundOfTable rows indexed from 1, with the count of rows in use beside it.
/// Rows past the count keep what they held; an index of 0 or past the bound throws IndexOutOfRange.
/// Rows never move: references stay good as long as the table.
///
/// The rows lie in the table itself, but only those ever touched exist: tables are made, copied and
/// dropped by thousands, and most of them stay nearly empty.
template <class Row, int BoundOfTable>
class Table {
 public:
  static constexpr int Bound = BoundOfTable;

  // Defaulted, it would let every "= {}" clear the storage: hence NOLINT.
  Table() noexcept {}  // NOLINT(modernize-use-equals-default)
  Table(const Table& other) : count_(other.count_) {
    std::uninitialized_copy_n(other.Rows(), other.touched_, Rows());
    touched_ = other.touched_;
  }
  Table(Table&& other) noexcept : count_(other.count_) {
    std::uninitialized_move_n(other.Rows(), other.touched_, Rows());
    touched_ = other.touched_;
  }
  Table& operator=(const Table& other) {
    TouchOnly(other.touched_);
    std::copy_n(other.Rows(), touched_, Rows());
    count_ = other.count_;
    return *this;
  }
  Table& operator=(Table&& other) noexcept {
    TouchOnly(other.touched_);
    std::move(other.Rows(), other.Rows() + touched_, Rows());
    count_ = other.count_;
    return *this;
  }
  ~Table() { std::destroy_n(Rows(), touched_); }

  /// Rows in use, 0..Bound.
  int Count() const { return count_; }

  /// Sets the rows in use; throws IndexOutOfRange beyond the bound.
  void SetCount(int count) {
    if (count < 0 || count > Bound) ThrowIndexOutOfRange(count, Bound);
    if (static_cast<unsigned>(count) > touched_) Touch(static_cast<unsigned>(count));
    count_ = count;
  }

  Row& operator[](int index) {
    if (IsUntouched(index)) [[unlikely]] {
      Check(index);
      Touch(static_cast<unsigned>(index));
    }
    return Rows()[index - 1];
  }
  const Row& operator[](int index) const {
    if (IsUntouched(index)) [[unlikely]] {
      Check(index);
      return Untouched();
    }
    return Rows()[index - 1];
  }

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

  Row* begin() { return Rows(); }
  Row* end() { return Rows() + count_; }
  const Row* begin() const { return Rows(); }
  const Row* end() const { return Rows() + count_; }

 private:
  static void Check(int index) {
    if (index < 1 || index > Bound) ThrowIndexOutOfRange(index, Bound);
  }

  bool IsUntouched(int index) const { return static_cast<unsigned>(index) - 1U >= touched_; }

  /// What a row holds that nobody has touched.
  static const Row& Untouched() {
    static const Row empty{};
    return empty;
  }

  void Touch(unsigned count) {
    std::uninitialized_value_construct_n(Rows() + touched_, count - touched_);
    touched_ = count;
  }

  void TouchOnly(unsigned count) {
    if (count > touched_) Touch(count);
    std::destroy_n(Rows() + count, touched_ - count);
    touched_ = count;
  }

  Row* Rows() { return reinterpret_cast<Row*>(storage_.data()); }
  const Row* Rows() const { return reinterpret_cast<const Row*>(storage_.data()); }

  alignas(Row) std::array<std::byte, sizeof(Row) * BoundOfTable> storage_;
  unsigned touched_ = 0;  ///< rows from the first that exist
  int count_ = 0;
};

}  // namespace orb::model
