#include "text/references.h"

#include "text/windows_1252.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace orb::text {
namespace {

struct Named {
  std::string_view Name;
  char32_t Character;
};

constexpr std::array Names{
    Named{"amp", '&'},       Named{"lt", '<'},        Named{"gt", '>'},
    Named{"quot", '"'},      Named{"apos", '\''},     Named{"nbsp", 0xA0},
    Named{"laquo", 0xAB},    Named{"shy", 0xAD},      Named{"acute", 0xB4},
    Named{"middot", 0xB7},   Named{"raquo", 0xBB},    Named{"ensp", 0x2002},
    Named{"emsp", 0x2003},   Named{"thinsp", 0x2009}, Named{"zwnj", 0x200C},
    Named{"zwj", 0x200D},    Named{"hyphen", 0x2010}, Named{"ndash", 0x2013},
    Named{"mdash", 0x2014},  Named{"lsquo", 0x2018},  Named{"rsquo", 0x2019},
    Named{"sbquo", 0x201A},  Named{"ldquo", 0x201C},  Named{"rdquo", 0x201D},
    Named{"bdquo", 0x201E},  Named{"bull", 0x2022},   Named{"hellip", 0x2026},
    Named{"rsaquo", 0x203A}, Named{"rarr", 0x2192},   Named{"rArr", 0x21D2},
    Named{"minus", 0x2212},  Named{"szlig", 0xDF},    Named{"AElig", 0xC6},
    Named{"aelig", 0xE6},    Named{"Oslash", 0xD8},   Named{"oslash", 0xF8},
};

/// What stands behind the letter in the name of one with an accent: "auml", "Eacute".
constexpr std::array<std::string_view, 7> Accents{"uml",   "acute", "grave", "circ",
                                                  "tilde", "ring",  "cedil"};

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The character of a number as HTML reads it: in pages, those of 128 to 159 are meant as codes of
/// Windows-1252.
std::optional<char32_t> Numbered(std::string_view digits) {
  const bool isHex = digits.starts_with('x') || digits.starts_with('X');
  if (isHex) digits.remove_prefix(1);
  unsigned number = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, number, isHex ? 16 : 10);
  const bool isSurrogate = number >= 0xD800 && number < 0xE000;
  if (read.ec != std::errc() || read.ptr != end || isSurrogate || number > 0x10FFFF) return {};
  const bool isCode = number >= 0x80 && number < 0xA0;
  return isCode ? CharacterOf(static_cast<unsigned char>(number)) : number;
}

std::optional<char32_t> CalledSo(std::string_view name) {
  const auto* const known = std::ranges::find(Names, name, &Named::Name);
  if (known != Names.end()) return known->Character;
  const bool hasAccent = !name.empty() && IsLetter(name[0]) &&
                         std::ranges::find(Accents, name.substr(1)) != Accents.end();
  return hasAccent ? std::optional<char32_t>(name[0]) : std::nullopt;
}

}  // namespace

std::optional<char32_t> NextReference(std::string_view& text) {
  constexpr std::size_t longest = 10;
  if (!text.starts_with('&')) return {};
  const std::size_t end = text.substr(0, longest).find(';');
  if (end == std::string_view::npos) return {};
  const std::string_view name = text.substr(1, end - 1);
  const auto character = name.starts_with('#') ? Numbered(name.substr(1)) : CalledSo(name);
  if (character) text.remove_prefix(end + 1);
  return character;
}

}  // namespace orb::text
