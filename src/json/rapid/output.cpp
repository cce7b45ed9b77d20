#include "json/rapid/output.h"

#include "text/encoding.h"

#include <array>

namespace orb::json {
namespace {

/// The characters that JSON has as they stand.
constexpr auto Plain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t c = ' '; c < 0x7f; ++c)
    plain[c] = c != '"' && c != '\\';
  return plain;
}();

bool IsPlain(std::string_view text) {
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
