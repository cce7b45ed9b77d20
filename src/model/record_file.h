#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orb::model {

/// Reads the fields of a record file one after another. Fields are parted by commas and line ends
/// (CR LF, LF or CR); a field in double quotes may hold commas; blanks round an unquoted field are
/// dropped. A record with too few fields takes the missing ones from the next line. Every failure
/// throws FileError naming the file, the line, what was expected and what was found.
class RecordReader {
 public:
  /// `bytes` must outlive the reader; `fileName` is used in error texts.
  RecordReader(std::string_view bytes, std::string fileName);

  /// The next field as text. `expected` says what the field is, for the error text.
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

  /// Whether nothing but blanks and line ends is left.
  bool AtEnd() const;

 private:
  template <class Whole>
  Whole WholeNumber(std::string_view expected);
  std::string_view QuotedField(std::string_view expected);
  void EndField(std::string_view expected);

  std::string_view bytes_;
  std::size_t position_ = 0;
  int line_ = 1;
  int fieldLine_ = 1;
  std::string fileName_;
};

/// Writes records: texts in double quotes, numbers as plain decimals, fields parted by commas,
/// lines ended by CR LF.
class RecordWriter {
 public:
  /// Throws FatalError when the text holds a double quote or a line end, which no record can store.
  RecordWriter& Text(std::string_view text);
  RecordWriter& Number(int number);
  RecordWriter& Flag(bool flag) { return Number(flag ? -1 : 0); }
  void EndRecord();

  const std::string& Bytes() const { return bytes_; }

 private:
  void StartField();

  std::string bytes_;
  bool recordStarted_ = false;
};

}  // namespace orb::model
