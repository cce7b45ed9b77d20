#include "text/strings.h"

#include <algorithm>

namespace orb::text {

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Letters are those of ASCII whatever the locale: names in files must not depend on the desktop.

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  MakeUpperCase(upper);
  return upper;
}

void MakeUpperCase(std::span<char> text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

bool IsOneOf(std::string_view word, std::span<const std::string_view> words) {
  return std::ranges::find(words, word) != words.end();
}

std::string_view NextField(std::string_view& line) {
  const auto comma = line.find(',');
  const std::string_view field = line.substr(0, comma);
  line = comma == std::string_view::npos ? std::string_view{} : line.substr(comma + 1);
  return field;
}

std::string_view NextLine(std::string_view& text) {
  const auto end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  if (end == std::string_view::npos) {
    text = {};
  } else {
    text.remove_prefix(text.substr(end, 2) == "\r\n" ? end + 2 : end + 1);
  }
  return line;
}

}  // namespace orb::text
