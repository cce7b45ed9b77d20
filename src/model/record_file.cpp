#include "model/record_file.h"

#include "model/errors.h"
#include "text/encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace orb::model {
namespace {

/// A table of what a field ends at, for one look per byte: files are read and written by thousands.
constexpr std::array<bool, 256> Marks(bool (*ends)(char)) {
  std::array<bool, 256> marks{};
  for (std::size_t byte = 0; byte < marks.size(); ++byte)
    marks[byte] = ends(static_cast<char>(byte));
  return marks;
}

// A quoted text ends with its line too, so that a missing quote is found in the line that lacks it.
constexpr std::array<bool, 256> QuotedEnds = Marks([](char c) { return !IsStorable(c); });
constexpr std::array<bool, 256> PlainEnds = Marks([](char c) { return c == ',' || IsLineEnd(c); });

bool IsIn(const std::array<bool, 256>& marks, char c) {
  return marks[static_cast<unsigned char>(c)];
}

const char* SkipBlanks(const char* at, const char* end) {
  while (at != end && *at == ' ')
    ++at;
  return at;
}

/// The field as it is shown in an error text: short, and without bytes that cannot be printed.
std::string Shown(std::string_view field) {
  std::string shown = Shortened(field);
  for (char& c : shown) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') c = '?';
  }
  return '"' + shown + '"';
}

/// Whether the whole text is a number. A leading "+" is read, which the standard function refuses;
/// a "-" behind it would be taken for the sign.
template <class Number>
bool Parse(std::string_view text, Number& number) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && rest == end;
}

}  // namespace

std::string Shortened(std::string_view text) {
  constexpr std::size_t longest = 40;
  std::string shown(text.substr(0, longest));
  return text.size() > longest ? shown.append("...") : shown;
}

RecordReader::RecordReader(std::string_view bytes, std::string fileName, LoneQuotes quotes)
    : next_(bytes.data()),
      end_(bytes.data() + bytes.size()),
      quotes_(quotes),
      fileName_(std::move(fileName)) {}

void RecordReader::Fail(std::string_view expected, std::string_view found) const {
  std::string text =
      text::NameInText(fileName_) + ", line " + std::to_string(fieldLine_) + ": expected ";
  throw FileError(text.append(expected).append(", found ").append(found).append("."));
}

void RecordReader::Refuse(std::string_view expected, std::string_view field) const {
  Fail(expected, Shown(field));
}

std::string_view RecordReader::Text(std::string_view expected) {
  const char* at = SkipBlanks(next_, end_);
  // Errors name the line in which the field begins; the end of the field may begin the next one.
  fieldLine_ = line_;
  if (at == end_) Fail(expected, "the end of the file");
  if (*at != '"') return PlainField(at, expected);
  const char* const start = ++at;
  while (at != end_ && !IsIn(QuotedEnds, *at))
    ++at;
  if (at == end_ || *at != '"') Fail(expected, "a text without its closing quote");
  const char* const last = at++;
  // Most fields are followed by a comma at once.
  if (at != end_ && *at == ',') {
    next_ = at + 1;
  } else {
    EndField(at, expected);
  }
  return {start, last};
}

/// A field without quotes: it ends at the next comma or line end, the blanks before that dropped.
std::string_view RecordReader::PlainField(const char* at, std::string_view expected) {
  const char* const start = at;
  while (at != end_ && !IsIn(PlainEnds, *at))
    ++at;
  if (quotes_ == LoneQuotes::Refused &&
      std::string_view(start, at).find('"') != std::string::npos) {
    Fail(expected, "a double quote in a text that does not begin with one");
  }
  const char* last = at;
  while (last != start && last[-1] == ' ')
    --last;
  if (at != end_ && *at == ',') {
    next_ = at + 1;
  } else {
    EndField(at, expected);
  }
  return {start, last};
}

/// Goes past the comma or line end behind a field. The end of the file ends a field as well.
void RecordReader::EndField(const char* at, std::string_view expected) {
  at = SkipBlanks(at, end_);
  if (at != end_) {
    const char end = *at++;
    const bool lineEnds = IsLineEnd(end);
    if (!lineEnds && end != ',') Fail(expected, "more after a closing quote");
    if (lineEnds) ++line_;
    if (end == '\r' && at != end_ && *at == '\n') ++at;
  }
  next_ = at;
}

template <class Whole>
Whole RecordReader::WholeNumber(std::string_view expected) {
  const std::string_view field = Text(expected);
  Whole number = 0;
  if (!Parse(field, number)) Refuse(std::string(expected) + " (a whole number)", field);
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
  // The standard function would also read "inf" and "nan".
  const bool decimal = field.find_first_not_of("+-.0123456789eE") == std::string_view::npos;
  if (!decimal || !Parse(field, number)) Refuse(std::string(expected) + " (a number)", field);
  return number;
}

bool RecordReader::AtEnd() {
  // Asked before each record, of which there may be a million empty ones.
  if (content_ == nullptr || content_ < next_) {
    content_ = std::find_if_not(next_, end_, [](char c) { return c == ' ' || IsLineEnd(c); });
  }
  return content_ == end_;
}

void RecordWriter::Grow(std::size_t size) {
  constexpr std::size_t smallest = 256;
  // Doubled, so that a long file is not copied for every record.
  bytes_.resize(2 * bytes_.size() + size + smallest);
}

inline char* RecordWriter::Room(std::size_t size) {
  if (bytes_.size() - size_ < size) Grow(size);
  return bytes_.data() + size_;
}

/// Where a field of at most this size can be put, after its comma.
inline char* RecordWriter::StartField(std::size_t size) {
  char* at = Room(size + 1);
  // A first field overwrites the comma; that is cheaper than a choice for each of hundreds.
  *at = ',';
  if (recordStarted_) ++at;
  recordStarted_ = true;
  return at;
}

RecordWriter& RecordWriter::Text(std::string_view text) {
  char* at = StartField(text.size() + 2);
  *at++ = '"';
  for (const char c : text) {
    if (IsIn(QuotedEnds, c)) {
      throw FatalError("A text with a double quote or a line end cannot be stored in a file: " +
                       Shown(text) + ".");
    }
    *at++ = c;
  }
  *at++ = '"';
  size_ = static_cast<std::size_t>(at - bytes_.data());
  return *this;
}

RecordWriter& RecordWriter::Plain(std::string_view field) {
  char* at = StartField(field.size());
  for (const char c : field)
    *at++ = c;
  size_ = static_cast<std::size_t>(at - bytes_.data());
  return *this;
}

RecordWriter& RecordWriter::Number(int number) {
  std::array<char, std::numeric_limits<int>::digits10 + 2> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return Plain({digits.data(), result.ptr});
}

void RecordWriter::EndRecord() {
  char* const at = Room(2);
  at[0] = '\r';
  at[1] = '\n';
  size_ += 2;
  recordStarted_ = false;
}

std::string RecordWriter::Take() {
  bytes_.resize(size_);
  return std::move(bytes_);
}

}  // namespace orb::model
