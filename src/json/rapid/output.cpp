#include "json/rapid/output.h"

#include "text/encoding.h"

#include <algorithm>

namespace orb::json {

void Output::Text(std::string_view text) {
  const bool isAscii =
      std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (isAscii) return Utf8(text);
  Utf8(text::ToUtf8(text));
}

void Output::Clear() {
  buffer_.Clear();
  writer_.Reset(buffer_);
}

}  // namespace orb::json
