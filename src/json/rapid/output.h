#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <rapidjson/writer.h>
#include <string>
#include <string_view>
#include <utility>

namespace orb::json {

/// Where the writer puts its characters. Most of the time goes into adding a character or a short
/// word, and most texts need no room but the sink's own.
class TextSink {
 public:
  using Ch = char;

  TextSink() {
    next_ = room_.data();
    end_ = next_ + room_.size();
  }
  TextSink(const TextSink&) = delete;
  TextSink& operator=(const TextSink&) = delete;

  void Put(char c) {
    if (next_ == end_) Grow(1);
    *next_++ = c;
  }
  void Flush() {}

  /// A text between quotes.
  void PutQuoted(std::string_view text) {
    if (static_cast<std::size_t>(end_ - next_) < text.size() + 2) Grow(text.size() + 2);
    *next_++ = '"';
    next_ = std::copy(text.begin(), text.end(), next_);
    *next_++ = '"';
  }

  /// All that was put.
  std::string Taken() const { return std::string(Begin(), static_cast<const char*>(next_)); }

 private:
  const char* Begin() const { return more_ ? more_.get() : room_.data(); }

  void Grow(std::size_t more) {
    const auto size = static_cast<std::size_t>(next_ - Begin());
    const std::size_t room = 2 * (size + more);
    auto grown = std::make_unique_for_overwrite<char[]>(room);
    next_ = std::copy(Begin(), static_cast<const char*>(next_), grown.get());
    end_ = grown.get() + room;
    more_ = std::move(grown);
  }

  std::array<char, 16'384> room_;
  std::unique_ptr<char[]> more_;
  char* next_ = nullptr;
  char* end_ = nullptr;
};

/// The writer, with a shorter way for texts that stand in JSON as they are: nearly all do.
class TextWriter : public rapidjson::Writer<TextSink> {
 public:
  using Writer::Writer;

  /// A text without characters that JSON escapes.
  void Plain(std::string_view text) {
    Prefix(rapidjson::kStringType);
    os_->PutQuoted(text);
  }
};

/// Writes one JSON value, on one line. Texts are given as the core has them, in Windows-1252;
/// names of members need no escapes.
class Output {
 public:
  /// An object of the members that `fill` writes.
  template <class Fill>
  void Object(const Fill& fill) {
    writer_.StartObject();
    fill();
    writer_.EndObject();
  }

  /// An array of what `write` writes for each of the items.
  template <class Items, class Write>
  void Array(const Items& items, const Write& write) {
    writer_.StartArray();
    for (const auto& item : items)
      write(item);
    writer_.EndArray();
  }

  void Key(std::string_view name) { writer_.Plain(name); }
  void Text(std::string_view text);
  void Utf8(std::string_view text);
  void Number(std::int64_t number) { writer_.Int64(number); }
  void Flag(bool flag) { writer_.Bool(flag); }

  /// A value that is JSON already.
  void Raw(std::string_view json) {
    writer_.RawValue(json.data(), json.size(), rapidjson::kStringType);
  }

  // Members of the object that is being written.

  void Member(std::string_view name, std::string_view text) {
    Key(name);
    Text(text);
  }
  void Member(std::string_view name, int number) {
    Key(name);
    Number(number);
  }
  void Member(std::string_view name, bool flag) {
    Key(name);
    Flag(flag);
  }

  /// A text that is left out where it is empty: that is what its absence means.
  void MemberUnlessEmpty(std::string_view name, std::string_view text) {
    if (!text.empty()) Member(name, text);
  }

  /// A flag that is left out where it is false.
  void MemberIfTrue(std::string_view name, bool flag) {
    if (flag) Member(name, true);
  }

  /// An array of texts.
  template <class Lines>
  void Texts(std::string_view name, const Lines& texts) {
    Key(name);
    Array(texts, [&](const auto& text) { Text(text); });
  }

  /// What was written.
  std::string Taken() const { return sink_.Taken(); }

 private:
  TextSink sink_;
  TextWriter writer_{sink_};
};

}  // namespace orb::json
