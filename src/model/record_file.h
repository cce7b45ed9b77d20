#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orb::model {

/// Ends a record.
constexpr bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

/// Whether a text that is stored can hold the character: texts stand between double quotes, records
/// in lines, and neither can be written in any other way.
constexpr bool IsStorable(char c) {
  return c != '"' && !IsLineEnd(c);
}

/// Whether a field without quotes may hold one. It can be read, but never written again.
enum class LoneQuotes : std::uint8_t { Kept, Refused };

/// As much of a text as an error text shows: a broken file may have a name of many megabytes.
std::string Shortened(std::string_view text);

/// Reads the fields of a record file one after another. Fields are separated by commas and line
/// ends (CR LF, LF or CR); a field in double quotes may hold commas; blanks round an unquoted field
/// are dropped. A record with too few fields takes the missing ones from the next line. Every
/// failure throws FileError naming the file, the line, what was expected and what was found.
class RecordReader {
 public:
  /// `bytes` must outlive the reader; `fileName` is used in error texts.
  RecordReader(std::string_view bytes, std::string fileName, LoneQuotes quotes = LoneQuotes::Kept);

  /// The next field as text, a part of the reader's bytes. `expected` says what the field is, for
  /// the error text.
  std::string_view Text(std::string_view expected);

  /// The next field as a whole decimal number of 16 bits.
  std::int16_t Number(std::string_view expected);

  /// The next field as a whole decimal number in 0..bound; it may take 32 bits.
  int NumberUpTo(int bound, std::string_view expected);

  /// The next field as a flag: any number but 0 is true.
  bool Flag(std::string_view expected) { return Number(expected) != 0; }

  /// The next field as a decimal fraction with "." as its point.
  float Fraction(std::string_view expected);

  /// Throws the error for a field that was read last and is not what was expected.
  [[noreturn]] void Fail(std::string_view expected, std::string_view found) const;

  /// The same; the field itself is what was found, shown in quotes and not too long.
  [[noreturn]] void Refuse(std::string_view expected, std::string_view field) const;

  /// The line in which the next byte stands, counted from 1.
  int Line() const { return line_; }

  /// Whether nothing but blanks and line ends is left.
  bool AtEnd();

 private:
  template <class Whole>
  Whole WholeNumber(std::string_view expected);
  std::string_view PlainField(const char* at, std::string_view expected);
  void EndField(const char* at, std::string_view expected);

  const char* next_;               ///< the first byte that was not read
  const char* content_ = nullptr;  ///< the first byte that AtEnd saw to be none of those
  const char* end_;
  int line_ = 1;
  int fieldLine_ = 1;
  LoneQuotes quotes_;
  std::string fileName_;
};

/// Writes records: texts in double quotes, numbers as plain decimals, fields separated by commas,
/// lines ended by CR LF.
class RecordWriter {
 public:
  /// `expectedSize`: about how many bytes will be written.
  explicit RecordWriter(std::size_t expectedSize = 0) : bytes_(expectedSize, '\0') {}

  /// Throws FatalError when the text holds a double quote or a line end, which no record can store.
  RecordWriter& Text(std::string_view text);
  RecordWriter& Number(int number);
  RecordWriter& Flag(bool flag) { return flag ? Plain("-1") : Plain("0"); }
  void EndRecord();

  /// What was written; the writer must not be used after that.
  std::string Take();

 private:
  RecordWriter& Plain(std::string_view field);
  char* StartField(std::size_t size);
  char* Room(std::size_t size);
  void Grow(std::size_t size);

  std::string bytes_;     ///< longer than what is written, so that a field is one check for room
  std::size_t size_ = 0;  ///< the bytes written
  bool recordStarted_ = false;
};

}  // namespace orb::model
