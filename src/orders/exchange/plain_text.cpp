#include "orders/exchange/plain_text.h"

#include "text/encoding.h"
#include "text/references.h"
#include "text/utf8.h"
#include "text/windows_1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace orb::exchange {
namespace {

/// Characters of one range and what stands for all of them. Those from U+F000 on are the bullets
/// and arrows of word processors, those from U+1F1E6 on make flags, U+FE00 to U+FE0F choose how the
/// character before them looks.
struct Folding {
  char32_t First;
  char32_t Last;
  std::string_view Plain;
};

constexpr std::array Foldings{
    Folding{0x00, 0x1F, " "},        Folding{0x7F, 0xA0, " "},
    Folding{0xA1, 0xA1, " "},        Folding{0xBF, 0xBF, " "},
    Folding{0x2190, 0x2190, "<-"},   Folding{0x21E6, 0x21E6, "<-"},
    Folding{0xAB, 0xAB, ">"},        Folding{0xAD, 0xAD, ""},
    Folding{0xB4, 0xB4, "'"},        Folding{0xB7, 0xB7, "*"},
    Folding{0xBB, 0xBB, ">"},        Folding{0x1680, 0x1680, " "},
    Folding{0x2000, 0x200A, " "},    Folding{0x200B, 0x200F, ""},
    Folding{0x2010, 0x2013, "-"},    Folding{0x2014, 0x2015, "--"},
    Folding{0x2018, 0x201B, "'"},    Folding{0x201C, 0x201F, "\""},
    Folding{0x2022, 0x2023, "*"},    Folding{0x2026, 0x2026, "..."},
    Folding{0x2028, 0x202F, " "},    Folding{0x2032, 0x2032, "'"},
    Folding{0x2033, 0x2033, "\""},   Folding{0x203A, 0x203A, ">"},
    Folding{0x2043, 0x2043, "*"},    Folding{0x205F, 0x205F, " "},
    Folding{0x2060, 0x2064, ""},     Folding{0x2192, 0x2192, "->"},
    Folding{0x21A6, 0x21A6, "->"},   Folding{0x21D2, 0x21D2, "->"},
    Folding{0x2212, 0x2212, "-"},    Folding{0x25B6, 0x25B8, "->"},
    Folding{0x25BA, 0x25BB, "->"},   Folding{0x1F449, 0x1F449, "->"},
    Folding{0x1F846, 0x1F846, "->"}, Folding{0x1F852, 0x1F852, "->"},
    Folding{0x23E9, 0x23E9, "->"},   Folding{0x2794, 0x2798, "->"},
    Folding{0x21E8, 0x21E8, "->"},   Folding{0x1F3FB, 0x1F3FF, ""},
    Folding{0x25A0, 0x25FF, "*"},    Folding{0x2799, 0x27A1, "->"},
    Folding{0x2610, 0x2611, "*"},    Folding{0x2705, 0x2705, "*"},
    Folding{0x2713, 0x2714, "*"},    Folding{0x27A2, 0x27A4, "->"},
    Folding{0x27A5, 0x27BF, "->"},   Folding{0xF0A7, 0xF0A8, "*"},
    Folding{0xF0B7, 0xF0B7, "*"},    Folding{0xF0D8, 0xF0D8, "*"},
    Folding{0xF0E0, 0xF0E0, "->"},   Folding{0xF0E8, 0xF0E8, "->"},
    Folding{0x1F1E6, 0x1F1FF, ""},   Folding{0x27F6, 0x27F6, "->"},
    Folding{0x27F9, 0x27F9, "->"},   Folding{0x2B95, 0x2B95, "->"},
    Folding{0x3000, 0x3000, " "},    Folding{0xFE00, 0xFE0F, ""},
    Folding{0xFE58, 0xFE58, "--"},   Folding{0xFE63, 0xFE63, "-"},
    Folding{0xFEFF, 0xFEFF, ""},     Folding{0xFF0D, 0xFF0D, "-"},
};

/// The forms of "!" to "~" that are as wide as Chinese characters, from U+FF01 on.
constexpr std::string_view Wide =
    "!\"#$%&'()*+,-./"
    "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz{|}~";
constexpr char32_t FirstWide = 0xFF01;

/// The letters U+00C0 to U+00FF without their accents.
constexpr std::string_view Letters =
    "AAAAAAACEEEEIIIIDNOOOOOxOUUUUYTsaaaaaaaceeeeiiiidnooooo/ouuuuyty";
constexpr char32_t FirstLetter = 0xC0;

/// The same of U+0100 to U+017F.
constexpr std::string_view FurtherLetters =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOoRrRrRrSsSs"
    "SsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
constexpr char32_t FirstFurther = 0x100;
static_assert(FurtherLetters.size() == 0x80);

/// The Greek capitals from U+0391 and Cyrillic ones from U+0410 on, in Latin letters; the small
/// ones follow in the same order.
constexpr std::array<std::string_view, 25> Greek{"a", "v", "g", "d", "e",  "z",  "i", "th", "i",
                                                 "k", "l", "m", "n", "x",  "o",  "p", "r",  "s",
                                                 "s", "t", "y", "f", "ch", "ps", "o"};
constexpr std::array<std::string_view, 32> Cyrillic{
    "a", "b", "v", "g", "d", "e",  "zh", "z",  "i",  "y",    "k", "l", "m", "n", "o",  "p",
    "r", "s", "t", "u", "f", "kh", "ts", "ch", "sh", "shch", "",  "y", "",  "e", "yu", "ya"};
constexpr char32_t FirstGreek = 0x391;
constexpr char32_t FirstCyrillic = 0x410;

/// A Greek or Cyrillic letter in small Latin ones; nothing for other characters.
std::optional<std::string_view> LatinForm(char32_t character) {
  constexpr std::array<std::pair<char32_t, std::string_view>, 9> accented{{{0x3AC, "a"},
                                                                           {0x3AD, "e"},
                                                                           {0x3AE, "i"},
                                                                           {0x3AF, "i"},
                                                                           {0x3CC, "o"},
                                                                           {0x3CD, "y"},
                                                                           {0x3CE, "o"},
                                                                           {0x401, "e"},
                                                                           {0x451, "e"}}};
  for (const auto& [letter, form] : accented) {
    if (letter == character) return form;
  }
  const auto formIn = [&](const auto& letters, char32_t first) -> std::optional<std::string_view> {
    constexpr char32_t toSmall = 0x20;
    const char32_t place = character - first;
    if (character < first || place >= 2 * toSmall) return std::nullopt;
    if (place % toSmall >= letters.size()) return std::nullopt;
    return letters[place % toSmall];
  };
  const auto greek = formIn(Greek, FirstGreek);
  return greek ? greek : formIn(Cyrillic, FirstCyrillic);
}

/// The Latin letter that a Greek or Cyrillic one alone among Latin ones was taken for, or that
/// begins the same type of unit; nothing for others.
std::optional<std::string_view> LatinTwin(char32_t character) {
  constexpr std::array<std::pair<char32_t, std::string_view>, 24> twins{
      {{0x391, "A"}, {0x395, "E"}, {0x39C, "M"}, {0x39D, "N"}, {0x39F, "O"}, {0x3A4, "T"},
       {0x392, "B"}, {0x396, "Z"}, {0x399, "I"}, {0x39A, "K"}, {0x3A6, "F"}, {0x3BF, "o"},
       {0x410, "A"}, {0x412, "B"}, {0x415, "E"}, {0x41A, "K"}, {0x41C, "M"}, {0x41E, "O"},
       {0x422, "T"}, {0x424, "F"}, {0x430, "a"}, {0x435, "e"}, {0x43E, "o"}, {0x440, "p"}}};
  const auto twin =
      std::ranges::find(twins, character, [](const auto& pair) { return pair.first; });
  return twin == twins.end() ? std::nullopt : std::optional(twin->second);
}

/// The plain form of a character, or nothing.
std::optional<std::string_view> PlainForm(char32_t character) {
  if (character >= FirstLetter && character < FirstLetter + Letters.size()) {
    return Letters.substr(character - FirstLetter, 1);
  }
  if (character >= FirstWide && character < FirstWide + Wide.size()) {
    return Wide.substr(character - FirstWide, 1);
  }
  // U+0152 and U+0153 are left out: they also are halves of signs whose bytes were mistaken.
  const bool isHalf = character == 0x152 || character == 0x153;
  if (!isHalf && character >= FirstFurther && character < FirstFurther + FurtherLetters.size()) {
    return FurtherLetters.substr(character - FirstFurther, 1);
  }
  for (const Folding& folding : Foldings) {
    if (character >= folding.First && character <= folding.Last) return folding.Plain;
  }
  return std::nullopt;
}

/// Cuts the first character off a line, which is in UTF-8 or else in Windows-1252.
char32_t NextCharacter(std::string_view& line, bool isUtf8) {
  if (const auto character = isUtf8 ? text::NextCharacter(line) : std::nullopt) return *character;
  const auto code = static_cast<unsigned char>(line[0]);
  line.remove_prefix(1);
  return text::CharacterOf(code);
}

/// Cuts off a character whose bytes in UTF-8 some program took for characters of their own, as an
/// arrow becomes "\u00E2\u2020\u2019". Nothing, and nothing is cut, where none with a plain form
/// stands there: "\u00DC\u201D" is two characters.
std::optional<char32_t> NextMistaken(std::string_view& line, bool isUtf8) {
  constexpr std::size_t longest = 4;
  std::string_view rest = line;
  std::string bytes;
  while (!rest.empty() && bytes.size() < longest) {
    const char32_t character = NextCharacter(rest, isUtf8);
    // Latin-1 has control characters where Windows-1252 has dashes and quotes.
    const auto code =
        character < 0x100 ? static_cast<char>(character) : text::CodeOf(character).value_or(' ');
    if (static_cast<unsigned char>(code) < 0x80) return std::nullopt;
    bytes += code;
    std::string_view meant = bytes;
    const auto found = text::NextCharacter(meant);
    if (!found) continue;
    if (!PlainForm(*found)) return std::nullopt;
    line = rest;
    return found;
  }
  return std::nullopt;
}

/// Cuts off a letter whose bytes a mail left in the quoted-printable form, "=C3=BC"; nothing, and
/// nothing is cut, where none beyond ASCII stands there. Dashes and arrows are for the repairs.
std::optional<char32_t> NextEncoded(std::string_view& line) {
  constexpr std::size_t length = 3;  // of a byte: "=C3"
  constexpr std::size_t longest = 4;
  std::string bytes;
  for (std::string_view rest = line;
       rest.size() >= length && rest[0] == '=' && bytes.size() < longest;
       rest.remove_prefix(length)) {
    unsigned code = 0;
    const auto [end, error] = std::from_chars(rest.data() + 1, rest.data() + length, code, 16);
    if (error != std::errc() || end != rest.data() + length || code < 0x80) return std::nullopt;
    bytes += static_cast<char>(code);
    std::string_view meant = bytes;
    auto found = text::NextCharacter(meant);
    // "M=FCnchen" is of an older character set.
    constexpr std::string_view following = "89ABab";
    const bool goesOn = rest.size() > length + 1 && rest[length] == '=' &&
                        following.find(rest[length + 1]) != std::string_view::npos;
    if (!found && bytes.size() == 1 && !goesOn)
      found = text::CharacterOf(static_cast<unsigned char>(code));
    if (!found) continue;
    if (*found < FirstLetter || *found >= FirstGreek) return std::nullopt;
    line = rest.substr(length);
    return found;
  }
  return std::nullopt;
}

/// Whether a byte is a character that stands for itself, as most do.
bool IsPlain(char byte, References references) {
  return byte >= ' ' && byte < 0x7F && byte != '=' &&
         (byte != '&' || references == References::Kept);
}

}  // namespace

Span PlainText::Written(std::size_t begin, std::size_t end) const {
  const Span first = Origins[begin];
  const Span last = Origins[end - 1];
  return {first.Offset, std::max(first.Length, last.Offset + last.Length - first.Offset)};
}

PlainText ToPlain(std::string_view line, std::size_t offset, References references) {
  const bool isUtf8 = text::IsUtf8(line);
  // A letter alone may have been taken for the Latin one that looks like it.
  bool wasForeign = false;
  const auto isForeign = [&](std::string_view text) {
    return !text.empty() && LatinForm(NextCharacter(text, isUtf8)).has_value();
  };
  PlainText plain;
  plain.Text.reserve(line.size());
  plain.Origins.reserve(line.size());
  while (!line.empty()) {
    if (IsPlain(line[0], references)) {
      plain.Text += line[0];
      plain.Origins.push_back({offset++, 1});
      line.remove_prefix(1);
      wasForeign = false;
      continue;
    }
    std::string_view rest = line;
    auto meant = references == References::Read ? text::NextReference(rest) : std::nullopt;
    const bool isReference = meant.has_value();
    if (!meant) meant = NextEncoded(rest);
    if (!meant) meant = NextMistaken(rest, isUtf8);
    const char32_t character = meant ? *meant : NextCharacter(rest, isUtf8);
    const std::string_view bytes = line.substr(0, line.size() - rest.size());
    const auto latin = LatinForm(character);
    if (latin && (wasForeign || isForeign(rest))) {
      plain.Text += *latin;
    } else if (const auto twin = LatinTwin(character)) {
      plain.Text += *twin;
    } else if (const auto form = PlainForm(character)) {
      plain.Text += *form;
    } else if (isReference) {
      text::AppendUtf8(plain.Text, character);
    } else {
      plain.Text += bytes;
    }
    // A character may become several bytes, "->", or none: each byte points back to the whole
    // character.
    plain.Origins.resize(plain.Text.size(), {offset, bytes.size()});
    wasForeign = latin.has_value();
    offset += bytes.size();
    line = rest;
  }
  return plain;
}

}  // namespace orb::exchange
