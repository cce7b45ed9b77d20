#pragma once

#include <cstddef>
#include <cstdint>
#include <rapidjson/writer.h>
#include <string>
#include <string_view>
#include <utility>

namespace orb::json {

/// Where the writer puts its characters: a text that grows by large steps, since most of the time
/// goes into adding a character or a short word.
class TextSink {
 public:
  using Ch = char;

  void Put(char c) {
    if (size_ == text_.size()) Grow(1);
    text_[size_++] = c;
  }
  void Flush() {}

  /// A text between quotes.
  void PutQuoted(std::string_view text) {
    if (text_.size() - size_ < text.size() + 2) Grow(text.size() + 2);
    char* to = text_.data() + size_;
    *to = '"';
    text.copy(to + 1, text.size());
    to[text.size() + 1] = '"';
    size_ += text.size() + 2;
  }

  /// All of it; the sink must not be used after that.
  std::string Take() {
    text_.resize(size_);
    return std::move(text_);
  }

 private:
  void Grow(std::size_t more) { text_.resize(2 * (text_.size() + more) + 8000); }

  std::string text_;
  std::size_t size_ = 0;  ///< of what was put
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

  /// What was written; the output must not be used after that.
  std::string Take() { return sink_.Take(); }

 private:
  TextSink sink_;
  TextWriter writer_{sink_};
};

}  // namespace orb::json
