#include "mime_text.h"

#include "text/encoding.h"
#include "text/strings.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orb::mail {
namespace {

constexpr std::string_view NoCharacter = "\xEF\xBF\xBD";  // U+FFFD

/// Puts U+FFFD in place of what is no UTF-8. The system's converter lets numbers pass that are far
/// beyond the last character, and one of them would make all the text none.
std::string OnlyCharacters(std::string_view bytes) {
  std::string utf8;
  while (!bytes.empty()) {
    const std::string_view before = bytes;
    if (text::NextCharacter(bytes)) {
      utf8 += before.substr(0, before.size() - bytes.size());
    } else {
      utf8 += NoCharacter;
      bytes.remove_prefix(1);
    }
  }
  return utf8;
}

/// Converts what can be converted; other bytes become U+FFFD.
std::string Converted(iconv_t converter, std::string bytes) {
  std::string utf8;
  char* in = bytes.data();
  std::size_t left = bytes.size();
  while (left > 0) {
    std::array<char, 4096> buffer;
    char* out = buffer.data();
    std::size_t room = buffer.size();
    const std::size_t before = left;
    const bool isDone = iconv(converter, &in, &left, &out, &room) != static_cast<std::size_t>(-1);
    const std::size_t written = buffer.size() - room;
    utf8.append(buffer.data(), written);
    if (isDone || (left < before && written > 0)) continue;
    utf8 += NoCharacter;
    ++in;
    --left;
  }
  return utf8;
}

/// Whether a text can only be UTF-8: it has such characters beyond ASCII. Sets of two bytes a
/// character have bytes of value 0.
bool IsSurelyUtf8(std::string_view bytes) {
  const auto isBeyondAscii = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
  return std::ranges::any_of(bytes, isBeyondAscii) && bytes.find('\0') == std::string_view::npos &&
         text::IsUtf8(bytes);
}

/// Whether mail programs call a text so that is in Windows-1252.
bool IsLatin1(std::string_view charset) {
  return charset.empty() || charset == "us-ascii" || charset == "iso-8859-1" ||
         charset == "latin1" || charset == "windows-1252";
}

/// The bytes of a stream that was written to memory.
std::string BytesOf(GMimeStream* memory) {
  const GByteArray* const array = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(memory));
  // Without bytes the array has no memory.
  return array->len == 0 ? std::string()
                         : std::string(reinterpret_cast<const char*>(array->data), array->len);
}

/// Whether a text that is said to be in base64 cannot be: it begins with a line that has other
/// characters.
bool IsNoBase64(std::string_view bytes) {
  bytes.remove_prefix(std::min(bytes.find_first_not_of("\r\n"), bytes.size()));
  return std::ranges::any_of(text::NextLine(bytes), [](char c) {
    return c != '+' && c != '/' && c != '=' && g_ascii_isalnum(c) == 0 && g_ascii_isspace(c) == 0;
  });
}

/// What base64 stands for. GMime's own reading drops the last characters of what breaks off.
std::string FromBase64(std::string_view bytes) {
  constexpr std::string_view digits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string decoded;
  unsigned bits = 0;
  int count = 0;
  for (const char c : bytes) {
    const std::size_t digit = digits.find(c);
    // Behind the padding at the end another piece may follow.
    if (c == '=') count = 0;
    if (digit == std::string_view::npos) continue;
    bits = bits << 6U | static_cast<unsigned>(digit);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    decoded += static_cast<char>(bits >> static_cast<unsigned>(count) & 0xFFU);
  }
  return decoded;
}

}  // namespace

std::string HeaderText(const char* text) {
  if (text == nullptr) return {};
  std::string line = InUtf8(text, "");
  std::ranges::replace_if(
      line, [](char c) { return c >= 0 && c < ' '; }, ' ');
  return std::string(text::Trim(line));
}

std::string InUtf8(std::string bytes, const char* charset) {
  if (IsSurelyUtf8(bytes)) return bytes;
  const std::string name = text::LowerCase(charset == nullptr ? "" : charset);
  if (IsLatin1(name)) return text::ToUtf8(bytes);
  iconv_t converter = g_mime_iconv_open("UTF-8", name.c_str());
  if (reinterpret_cast<std::intptr_t>(converter) == -1) return text::ToUtf8(bytes);
  std::string utf8 = Converted(converter, std::move(bytes));
  g_mime_iconv_close(converter);
  return OnlyCharacters(utf8);
}

std::string Content(GMimePart* part) {
  GMimeDataWrapper* const content = g_mime_part_get_content(part);
  if (content == nullptr) return {};
  const Owned<GMimeStream> memory(g_mime_stream_mem_new());
  if (g_mime_part_get_content_encoding(part) != GMIME_CONTENT_ENCODING_BASE64) {
    g_mime_data_wrapper_write_to_stream(content, memory.get());
    return BytesOf(memory.get());
  }
  GMimeStream* const encoded = g_mime_data_wrapper_get_stream(content);
  g_mime_stream_reset(encoded);
  g_mime_stream_write_to_stream(encoded, memory.get());
  std::string bytes = BytesOf(memory.get());
  return IsNoBase64(bytes) ? bytes : FromBase64(bytes);
}

}  // namespace orb::mail
