#include "render/qt/text_codec.h"

#include <algorithm>
#include <array>

namespace orb::render {
namespace {

/// The characters of 128 to 159; all other codes are those of Unicode.
constexpr std::array<char16_t, 32> Special = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned FirstSpecial = 128;

}  // namespace

QString ToQString(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char c : bytes) {
    const unsigned code = static_cast<unsigned char>(c);
    const bool special = code >= FirstSpecial && code < FirstSpecial + Special.size();
    text.append(QChar(special ? Special[code - FirstSpecial] : static_cast<char16_t>(code)));
  }
  return text;
}

std::optional<std::string> ToBytes(QStringView text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar c : text) {
    const char16_t code = c.unicode();
    const auto* special = std::find(Special.begin(), Special.end(), code);
    if (special != Special.end()) {
      bytes.push_back(static_cast<char>(FirstSpecial + (special - Special.begin())));
    } else if (code < FirstSpecial || (code >= FirstSpecial + Special.size() && code < 256)) {
      bytes.push_back(static_cast<char>(code));
    } else {
      return std::nullopt;
    }
  }
  return bytes;
}

}  // namespace orb::render
