#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// How a page's parts are written. Texts are 8-bit (Windows-1252) and become UTF-8; nothing in them
// can become markup or script.

namespace orb::pages {

struct Attribute {
  std::string_view Name;
  std::string Value;  ///< 8-bit text, escaped where it is written
};

/// A text between tags.
std::string Text(std::string_view windows1252);

/// An element around markup.
std::string Element(std::string_view name, const std::vector<Attribute>& attributes,
                    std::string_view content);

/// An element around markup, without attributes.
std::string Element(std::string_view name, std::string_view content);

/// A text as a string of JSON that may stand within a script element.
std::string JsonText(std::string_view windows1252);

/// Members of a JSON object or elements of an array, separated by commas.
std::string Joined(const std::vector<std::string>& parts);

/// "key":value; the value is JSON.
std::string Member(std::string_view key, std::string_view value);

}  // namespace orb::pages
