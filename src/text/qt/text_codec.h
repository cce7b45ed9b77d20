#pragma once

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace orb::text {

/// Text of 8-bit characters (Windows-1252) for display. The five codes without a character stand
/// for the control characters of the same number, so that every byte has a way back.
QString ToQString(std::string_view bytes);

/// The 8-bit form of a text; nothing when a character has none.
std::optional<std::string> ToBytes(QStringView text);

}  // namespace orb::text
