#pragma once

#include "render/qt/picture_cache.h"
#include "render/svg_material.h"

#include <QRawFont>
#include <QString>

#include <map>
#include <utility>
#include <vector>

namespace orb::render {

/// The shapes of texts in the map's font and pictures, by Qt. Needs an application object.
class QtSvgMaterial : public SvgMaterial {
 public:
  /// The cache must outlive the material.
  explicit QtSvgMaterial(PictureCache& pictures) : pictures_(pictures) {}

  double Width(const TextFont& font, std::string_view text) override;
  double Height(const TextFont& font) override;
  std::vector<PlacedGlyph> Shape(const TextFont& font, std::string_view text) override;
  std::vector<OutlineStep> Outline(int glyph) override;
  Point Size(const std::filesystem::path& file) override;
  std::string Png(const std::filesystem::path& file, std::size_t colours) override;
  std::string TintedPng(const std::filesystem::path& file, std::size_t colours,
                        const Tinting& tinting) override;

 private:
  /// A glyph of one of the fonts that a text falls back to.
  struct Known {
    QRawFont Font;
    quint32 Index = 0;
  };

  PictureCache& pictures_;
  std::map<std::pair<QString, quint32>, int> numbers_;  ///< by font and index
  std::vector<Known> glyphs_;
  std::map<std::pair<std::filesystem::path, std::size_t>, std::string> pngs_;
};

}  // namespace orb::render
