#include "render/svg_text.h"

#include "text/encoding.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace orb::render {
namespace {

bool IsIdCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == '_';
}

bool IsControl(char c) {
  const auto code = static_cast<unsigned char>(c);
  return (code < 0x20 && c != '\t' && c != '\n') || code == 0x7F;
}

/// Windows-1252 leaves five codes without a character; as control characters they have no place in
/// a page either.
bool IsUnassigned(char c) {
  return std::string_view("\x81\x8D\x8F\x90\x9D").find(c) != std::string_view::npos;
}

}  // namespace

std::string TenthsText(long tenths) {
  std::string text = tenths < 0 ? "-" : "";
  const long size = std::labs(tenths);
  if (size >= 10 || size == 0) text.append(std::to_string(size / 10));
  if (size % 10 != 0) text.append(".").append(std::to_string(size % 10));
  return text;
}

std::string ColourText(model::Colour colour) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::array<unsigned, 6> nibbles{};
  bool isShort = true;
  for (std::size_t part = 0; part < 3; ++part) {
    const unsigned value = colour >> (8 * part) & 0xFF;
    nibbles[2 * part] = value >> 4;
    nibbles[2 * part + 1] = value & 0xF;
    isShort = isShort && value % 0x11 == 0;
  }
  std::string text = "#";
  for (std::size_t i = 0; i < nibbles.size(); i += isShort ? 2 : 1)
    text.push_back(digits[nibbles[i]]);
  return text;
}

std::string Escaped(std::string_view windows1252) {
  std::string clean;
  for (const char c : windows1252) {
    if (c == '&') {
      clean.append("&amp;");
    } else if (c == '<') {
      clean.append("&lt;");
    } else if (c == '>') {
      clean.append("&gt;");
    } else if (c == '"') {
      clean.append("&quot;");
    } else if (c == '\'') {
      clean.append("&#39;");
    } else if (IsControl(c) || IsUnassigned(c)) {
      clean.append("?");
    } else {
      clean.push_back(c);
    }
  }
  return text::ToUtf8(clean);
}

std::string IdText(std::string_view name) {
  std::string id(name);
  for (char& c : id) {
    if (!IsIdCharacter(c)) c = '-';
  }
  return id;
}

std::string Base64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::uint32_t group = 0;
    const std::size_t count = bytes.size() - i < 3 ? bytes.size() - i : 3;
    for (std::size_t j = 0; j < 3; ++j)
      group = group << 8 | (j < count ? static_cast<unsigned char>(bytes[i + j]) : 0U);
    for (std::size_t j = 0; j < 4; ++j)
      text.push_back(j <= count ? digits[group >> (18 - 6 * j) & 0x3F] : '=');
  }
  return text;
}

}  // namespace orb::render
