#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orb::text {

/// The text without leading and trailing blanks. A blank is the space character; a tab is text.
std::string_view Trim(std::string_view text);

/// The text with a to z made capitals; every other byte stays.
std::string UpperCase(std::string_view text);

/// Makes a to z capitals where they stand.
void MakeUpperCase(std::span<char> text);

/// The text with A to Z made small; every other byte stays.
std::string LowerCase(std::string_view text);

/// The same as text = value, faster where most values are empty.
inline void Assign(std::string& text, std::string_view value) {
  if (value.empty()) return text.clear();
  text = value;
}

/// Whether a word is one of a list, to the letter.
bool IsOneOf(std::string_view word, std::span<const std::string_view> words);

/// Cuts the text before the first "," off the line and returns it; the line keeps what follows.
/// Without a "," the whole line is returned and the line becomes empty. Nothing is trimmed.
std::string_view NextField(std::string_view& line);

/// Cuts the next line off the text and returns it without its line end (CR LF, LF or CR).
std::string_view NextLine(std::string_view& text);

}  // namespace orb::text
