#pragma once

#include "render/surface.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orb::render {

/// The font that a text is written in.
struct TextFont {
  double Size = 8;  ///< in points
  bool Bold = false;

  auto operator<=>(const TextFont&) const = default;
};

/// One glyph of a text: which one, and where its origin on the base line lies, in twips from the
/// text's top left corner.
struct PlacedGlyph {
  int Glyph = 0;
  Point At;

  bool operator==(const PlacedGlyph& other) const {
    return Glyph == other.Glyph && At.X == other.At.X && At.Y == other.At.Y;
  }
};

/// One step of an outline: 'M' to a point, 'L' a line, 'C' a curve with its two control points
/// before its end, 'Z' back to the start. Twips from the glyph's origin, y downwards.
struct OutlineStep {
  char Kind = 'Z';
  std::vector<Point> Points;
};

/// What a vector file takes from outside the core: the shapes of texts, and pictures.
class SvgMaterial {
 public:
  SvgMaterial() = default;
  SvgMaterial(const SvgMaterial&) = delete;
  SvgMaterial& operator=(const SvgMaterial&) = delete;
  virtual ~SvgMaterial() = default;

  /// The width of a text (Windows-1252), in twips.
  virtual double Width(const TextFont& font, std::string_view text) = 0;

  /// The height of a line, in twips.
  virtual double Height(const TextFont& font) = 0;

  /// The glyphs of a text; equal numbers mean equal outlines. Blanks have none.
  virtual std::vector<PlacedGlyph> Shape(const TextFont& font, std::string_view text) = 0;

  /// The outline of a glyph that Shape gave.
  virtual std::vector<OutlineStep> Outline(int glyph) = 0;

  /// The size in twips at which a picture's file is meant to be seen. Throws FileError.
  virtual Point Size(const std::filesystem::path& file) = 0;

  /// A picture's file as PNG with a palette of at most so many colours, up to 256. Throws
  /// FileError.
  virtual std::string Png(const std::filesystem::path& file, std::size_t colours) = 0;

  /// The same in other tints, where the material can do that. Throws FileError.
  virtual std::string TintedPng(const std::filesystem::path& file, std::size_t colours,
                                const Tinting& /*tinting*/) {
    return Png(file, colours);
  }
};

}  // namespace orb::render
