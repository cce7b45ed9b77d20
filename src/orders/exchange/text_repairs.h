#pragma once

#include "orders/exchange/plain_text.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orb::exchange {

constexpr int TextRepairBound = 200;
constexpr std::size_t TextRepairLength = 80;

/// The longest line that is read, in bytes of its plain form after all repairs.
constexpr std::size_t LineBound = 4000;

/// A piece of text that people or programs get wrong, and what takes its place.
struct TextRepair {
  std::string From;         ///< plain and in small letters
  std::string To;           ///< plain
  std::uint64_t Bytes = 0;  ///< a bit for each byte of From, so that lines without are passed over
};

/// The repairs of fixpaste.dat: two text fields a line, what is written and what takes its place.
/// Throws FileError for a pair without its first text or its second, for texts of more than 80
/// bytes, and beyond 200 pairs.
std::vector<TextRepair> LoadTextRepairs(std::string_view bytes, const std::string& fileName);

/// Reads fixpaste.dat of the directory; none when there is no such file. Throws FileError.
std::vector<TextRepair> ReadTextRepairs(const std::filesystem::path& directory);

/// Applies every repair in order to all places where its text is written, in any case; where it
/// begins or ends with a letter, only whole words count. False when the line gets far too long, or
/// the repairs change all of it again and again.
bool Repair(PlainText& line, std::span<const TextRepair> repairs);

}  // namespace orb::exchange
