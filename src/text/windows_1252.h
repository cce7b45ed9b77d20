#pragma once

#include <optional>

namespace orb::text {

/// The character of an 8-bit code (Windows-1252). The five codes without one stand for the control
/// characters of the same number, so that every byte has a way back.
char16_t CharacterOf(unsigned char code);

/// The 8-bit code of a character, or nothing.
std::optional<char> CodeOf(char32_t character);

}  // namespace orb::text
