#include "model/record_file.h"

#include "model/errors.h"
#include "text/strings.h"

#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace orb::model {
namespace {

constexpr std::string_view LineEnds = "\r\n";

bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

/// The field as it is shown in an error text: short, and without bytes that are no text.
std::string Shown(std::string_view field) {
  constexpr std::size_t longest = 40;
  std::string shown(field.substr(0, longest));
  for (char& c : shown) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') c = '?';
  }
  if (field.size() > longest) shown += "...";
  return '"' + shown + '"';
}

template <class Number>
bool Parse(std::string_view text, Number& number) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && rest == end;
}

}  // namespace

RecordReader::RecordReader(std::string_view bytes, std::string fileName)
    : bytes_(bytes), fileName_(std::move(fileName)) {}

void RecordReader::Fail(std::string_view expected, std::string_view found) const {
  std::string text = fileName_ + ", line " + std::to_string(fieldLine_) + ": expected ";
  throw FileError(text.append(expected).append(", found ").append(found).append("."));
}

std::string_view RecordReader::Text(std::string_view expected) {
  while (position_ < bytes_.size() && bytes_[position_] == ' ')
    ++position_;
  fieldLine_ = line_;
  if (position_ == bytes_.size()) Fail(expected, "the end of the file");
  if (bytes_[position_] == '"') return QuotedField(expected);
  std::size_t end = position_;
  while (end < bytes_.size() && bytes_[end] != ',' && !IsLineEnd(bytes_[end]))
    ++end;
  const std::string_view field = text::Trim(bytes_.substr(position_, end - position_));
  position_ = end;
  EndField(expected);
  return field;
}

std::string_view RecordReader::QuotedField(std::string_view expected) {
  const std::size_t start = position_ + 1;
  std::size_t end = start;
  while (end < bytes_.size() && bytes_[end] != '"' && !IsLineEnd(bytes_[end]))
    ++end;
  if (end == bytes_.size() || bytes_[end] != '"') {
    Fail(expected, "a text without its closing quote");
  }
  position_ = end + 1;
  EndField(expected);
  return bytes_.substr(start, end - start);
}

void RecordReader::EndField(std::string_view expected) {
  while (position_ < bytes_.size() && bytes_[position_] == ' ')
    ++position_;
  if (position_ == bytes_.size()) return;
  if (bytes_[position_] == ',') {
    ++position_;
  } else if (IsLineEnd(bytes_[position_])) {
    position_ += bytes_.substr(position_, 2) == "\r\n" ? 2 : 1;
    ++line_;
  } else {
    Fail(expected, "more after a closing quote");
  }
}

template <class Whole>
Whole RecordReader::WholeNumber(std::string_view expected) {
  const std::string_view field = Text(expected);
  Whole number = 0;
  if (!Parse(field, number)) Fail(std::string(expected) + " (a whole number)", Shown(field));
  return number;
}

std::int16_t RecordReader::Number(std::string_view expected) {
  return WholeNumber<std::int16_t>(expected);
}

int RecordReader::NumberUpTo(int bound, std::string_view expected) {
  const int number = WholeNumber<int>(expected);
  if (number < 0 || number > bound) {
    Fail(std::string(expected) + " (0 to " + std::to_string(bound) + ")", std::to_string(number));
  }
  return number;
}

float RecordReader::Fraction(std::string_view expected) {
  const std::string_view field = Text(expected);
  float number = 0;
  const bool decimal = field.find_first_not_of("+-.0123456789eE") == std::string_view::npos;
  if (!decimal || !Parse(field, number)) Fail(std::string(expected) + " (a number)", Shown(field));
  return number;
}

bool RecordReader::AtEnd() const {
  return bytes_.find_first_not_of(" \r\n", position_) == std::string_view::npos;
}

void RecordWriter::StartField() {
  if (recordStarted_) bytes_ += ',';
  recordStarted_ = true;
}

RecordWriter& RecordWriter::Text(std::string_view text) {
  if (text.find('"') != std::string_view::npos ||
      text.find_first_of(LineEnds) != std::string_view::npos) {
    throw FatalError("A text with a double quote or a line end cannot be stored in a file: " +
                     Shown(text) + ".");
  }
  StartField();
  bytes_.append("\"").append(text).append("\"");
  return *this;
}

RecordWriter& RecordWriter::Number(int number) {
  StartField();
  std::array<char, std::numeric_limits<int>::digits10 + 2> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  bytes_.append(digits.data(), result.ptr);
  return *this;
}

void RecordWriter::EndRecord() {
  bytes_ += "\r\n";
  recordStarted_ = false;
}

}  // namespace orb::model
