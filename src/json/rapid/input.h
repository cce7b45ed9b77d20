#pragma once

#include "model/errors.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
// Compares 16 bytes at once where the processor can. Up to 15 bytes behind a text are looked at.
#if defined(__SSE2__) && !defined(RAPIDJSON_SSE2)
#define RAPIDJSON_SSE2
#endif
#include <rapidjson/document.h>
#include <string>
#include <string_view>

namespace orb::json {

/// A value of a text in JSON and where it stands, which what is said about it begins with:
/// "situation.units[3].power". What cannot be taken as it is asked for throws FatalError. A node
/// lives no longer than the node that it stands in.
class Node {
 public:
  Node(const rapidjson::Value& value, const Node* outer, std::string_view name)
      : value_(value), outer_(outer), name_(name) {}
  Node(const rapidjson::Value& value, const Node* outer, int index)
      : value_(value), outer_(outer), index_(index) {}

  /// A text in its 8-bit form, or the same into a string that may have room for it.
  std::string Text() const;
  void TakeText(std::string& text) const;

  /// A text as it stands, in UTF-8.
  std::string_view Utf8() const;

  bool Flag() const;
  std::int64_t Whole(std::int64_t least, std::int64_t greatest) const;

  /// Whether it is a whole number of 64 bits.
  bool IsWhole() const { return value_.IsInt64() || value_.IsUint64(); }
  bool IsText() const { return value_.IsString(); }

  /// The number of items of an array, at most `bound`.
  int Count(int bound) const;

  /// Calls `take(item)` for each item of an array.
  template <class Take>
  void Items(const Take& take) const {
    if (!value_.IsArray()) Refuse("an array");
    int index = 0;
    for (const rapidjson::Value& item : value_.GetArray())
      take(Node(item, this, index++));
  }

  /// Calls `take(row, value)` for each member of an object; `rowOf(name)` is its row from 1 to 127,
  /// or 0 for a member that is passed over. Refused where a row comes twice.
  template <class RowOf, class Take>
  void Members(const RowOf& rowOf, const Take& take) const {
    if (!value_.IsObject()) Refuse("an object");
    std::bitset<128> taken;
    for (const auto& member : value_.GetObject()) {
      const Node node(member.value, this, TextOf(member.name));
      const int row = rowOf(node);
      if (row == 0) continue;
      if (taken[static_cast<std::size_t>(row)]) node.Fail("is there twice");
      taken.set(static_cast<std::size_t>(row));
      take(row, node);
    }
  }

  /// The same for members with these names, counted from 1, and no others.
  template <class Names, class Take>
  void MembersOf(const Names& names, const Take& take) const {
    const auto rowOf = [&](const Node& member) {
      int row = 0;
      for (const std::string_view name : names) {
        ++row;
        if (member.Name() == name) return row;
      }
      member.Fail("is not known here");
    };
    Members(rowOf, take);
  }

  /// Calls `take(value)` for the first member of that name, if it is an object that has one.
  template <class Take>
  void WithMember(std::string_view name, const Take& take) const {
    if (!value_.IsObject()) return;
    for (const auto& member : value_.GetObject()) {
      if (TextOf(member.name) == name) return take(Node(member.value, this, name));
    }
  }

  /// A text or a whole number as JSON.
  std::string Json() const;

  /// The name of a member, in UTF-8.
  std::string_view Name() const { return name_; }

  /// Throws a sentence that begins with the place.
  [[noreturn]] void Fail(std::string_view what) const;

  /// The same: what was expected, and what was found.
  [[noreturn]] void Refuse(std::string_view expected) const;

 private:
  static std::string_view TextOf(const rapidjson::Value& text) {
    return {text.GetString(), text.GetStringLength()};
  }
  std::string Place() const;
  std::string Found() const;

  const rapidjson::Value& value_;
  const Node* outer_;
  std::string_view name_;
  int index_ = -1;
};

/// A text in JSON, read.
class Document {
 public:
  /// Throws FatalError, which tells where the text is no JSON in UTF-8.
  explicit Document(std::string_view text);

  Node Root() const { return {document_, nullptr, std::string_view()}; }

 private:
  /// What a situation needs: most texts are read without asking the system for memory.
  static constexpr std::size_t Room = 16'384;
  static constexpr std::size_t StackRoom = 8'192;

  std::string text_;  ///< texts without escapes stay where they are
  alignas(std::max_align_t) std::array<char, Room> room_;
  rapidjson::MemoryPoolAllocator<> pool_{room_.data(), room_.size()};
  rapidjson::Document document_{&pool_, StackRoom};
};

}  // namespace orb::json
