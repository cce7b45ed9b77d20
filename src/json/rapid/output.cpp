#include "json/rapid/output.h"

#include "text/encoding.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace orb::json {
namespace {

/// The characters that JSON has as they stand.
constexpr auto Plain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t c = ' '; c < 0x80; ++c)
    plain[c] = c != '"' && c != '\\';
  return plain;
}();

/// Whether one of eight characters is beyond ASCII, before the blank, a quote or a backslash.
bool HasOther(std::uint64_t eight) {
  constexpr std::uint64_t each = 0x0101010101010101;
  // The highest bit of a character that is below `bound`, as long as all are ASCII.
  const auto below = [](std::uint64_t characters, std::uint64_t bound) {
    return (characters - each * bound) & ~characters;
  };
  return ((eight | below(eight, ' ') | below(eight ^ (each * '"'), 1) |
           below(eight ^ (each * '\\'), 1)) &
          (each * 0x80)) != 0;
}

bool IsPlain(std::string_view text) {
  std::uint64_t eight = 0;
  for (; text.size() >= sizeof eight; text.remove_prefix(sizeof eight)) {
    std::memcpy(&eight, text.data(), sizeof eight);
    if (HasOther(eight)) return false;
  }
  for (const char c : text) {
    if (!Plain[static_cast<unsigned char>(c)]) return false;
  }
  return true;
}

}  // namespace

void Output::Text(std::string_view text) {
  if (IsPlain(text)) return writer_.Plain(text);
  Utf8(text::ToUtf8(text));
}

void Output::Utf8(std::string_view text) {
  if (IsPlain(text)) return writer_.Plain(text);
  writer_.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

}  // namespace orb::json
