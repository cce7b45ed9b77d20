#include "render/map_format.h"

#include "text/strings.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace orb::render {

std::optional<MapFormat> FormatOf(const std::filesystem::path& file) {
  constexpr std::array<std::pair<std::string_view, MapFormat>, 4> formats = {
      {{".bmp", MapFormat::Bmp},
       {".png", MapFormat::Png},
       {".svg", MapFormat::Svg},
       {".pdf", MapFormat::Pdf}}};
  const std::string extension = text::LowerCase(file.extension().string());
  for (const auto& [text, format] : formats) {
    if (extension == text) return format;
  }
  return std::nullopt;
}

}  // namespace orb::render
