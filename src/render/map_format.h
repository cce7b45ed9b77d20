#pragma once

#include <filesystem>
#include <optional>

namespace orb::render {

enum class MapFormat { Bmp, Png, Svg, Pdf };

/// The widest picture that is drawn, in pixels: wider ones would not fit into memory.
constexpr int MaxPixelWidth = 16384;

/// The format that belongs to a file name's extension, in any letter case; nothing for others.
std::optional<MapFormat> FormatOf(const std::filesystem::path& file);

}  // namespace orb::render
