#include "text/qt/text_codec.h"

#include "text/windows_1252.h"

namespace orb::text {

QString ToQString(std::string_view bytes) {
  QString text;
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char c : bytes)
    text.append(QChar(text::CharacterOf(static_cast<unsigned char>(c))));
  return text;
}

std::optional<std::string> ToBytes(QStringView text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar c : text) {
    // A character beyond 16 bits comes as two surrogates; neither has an 8-bit code.
    const auto code = text::CodeOf(c.unicode());
    if (!code) return std::nullopt;
    bytes.push_back(*code);
  }
  return bytes;
}

}  // namespace orb::text
