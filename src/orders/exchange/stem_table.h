#pragma once

#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orb::exchange {

/// Words, and beginnings of words ("cancel*"), each with bits.
class StemTable {
 public:
  /// Words are parted by blanks; the texts must outlive the table. A beginning has two letters or
  /// more.
  void Add(std::string_view words, unsigned bits);

  /// The bits of a word and of all its beginnings.
  unsigned BitsOf(std::string_view word) const;

 private:
  std::unordered_map<std::string_view, unsigned> words_;
  /// By their first two letters.
  std::unordered_map<std::string_view, std::vector<std::pair<std::string_view, unsigned>>> stems_;
};

}  // namespace orb::exchange
