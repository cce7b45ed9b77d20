#include "render/svg_surface.h"
#include "render/svg_text.h"

#include <cmath>

namespace orb::render {
namespace {

/// Outlines are told finer than all else: letters are small and are looked at closely.
constexpr double OutlineUnitsPerTwip = 2;

/// One step of an outline, relative to where the last one ended.
class OutlineWriter {
 public:
  void Write(const OutlineStep& step) {
    if (step.Kind == 'Z') {
      x_ = startX_;
      y_ = startY_;
      path.append("z");
      return;
    }
    path.push_back(static_cast<char>(step.Kind - 'A' + 'a'));
    bool isFirst = true;
    long endX = x_;
    long endY = y_;
    for (const Point& point : step.Points) {
      endX = std::lround(point.X * OutlineUnitsPerTwip);
      endY = std::lround(point.Y * OutlineUnitsPerTwip);
      Number(endX - x_, isFirst);
      Number(endY - y_, false);
      isFirst = false;
    }
    x_ = endX;
    y_ = endY;
    if (step.Kind == 'M') {
      startX_ = x_;
      startY_ = y_;
    }
  }

  std::string path;

 private:
  void Number(long value, bool isFirst) {
    if (!isFirst && value >= 0) path.push_back(' ');
    path.append(std::to_string(value));
  }

  long x_ = 0, y_ = 0, startX_ = 0, startY_ = 0;
};

std::string FactorText(double factor) {
  // Six digits keep the last unit of the largest letter in its place.
  std::string text = std::to_string(factor);
  return text.substr(text.front() == '0' ? 1 : 0);
}

}  // namespace

double SvgDefinitions::OutlinePen(double twips) const {
  return twips * OutlineUnitsPerTwip;
}

std::string SvgDefinitions::GlyphId(int glyph) {
  std::string id = std::string("g").append(std::to_string(glyph));
  if (!glyphs_.insert(glyph).second) return id;
  OutlineWriter writer;
  for (const OutlineStep& step : material_.Outline(glyph))
    writer.Write(step);
  markup_.append("<path id=\"").append(id).append("\" transform=\"scale(");
  markup_.append(FactorText(1 / (OutlineUnitsPerTwip * twipsPerPixel_)));
  markup_.append(")\" d=\"").append(writer.path).append("\"/>\n");
  return id;
}

std::string SvgDefinitions::TextId(const TextFont& font, std::string_view text) {
  const auto [entry, isNew] = texts_.try_emplace({font, std::string(text)});
  if (!isNew) return entry->second;
  const std::vector<PlacedGlyph> glyphs = material_.Shape(font, text);
  if (glyphs.empty()) return {};
  std::string uses;
  for (const PlacedGlyph& glyph : glyphs) {
    uses.append(Use(GlyphId(glyph.Glyph))).append(" x=\"");
    uses.append(TenthsText(Tenths(glyph.At.X / twipsPerPixel_))).append("\" y=\"");
    uses.append(TenthsText(Tenths(glyph.At.Y / twipsPerPixel_))).append("\"/>");
  }
  entry->second = std::string("t").append(std::to_string(texts_.size()));
  markup_.append("<g id=\"").append(entry->second).append("\">").append(uses).append("</g>\n");
  return entry->second;
}

std::string SvgDefinitions::Use(std::string_view id) const {
  return std::string(links_ == SvgLinks::Old ? "<use xlink:href=\"#" : "<use href=\"#")
      .append(id)
      .append("\"");
}

std::string SvgDefinitions::UseOf(const std::string& markup, std::string_view attributes) {
  const auto [entry, isNew] = pieces_.try_emplace(markup);
  if (isNew) {
    entry->second = std::string("p").append(std::to_string(pieces_.size()));
    markup_.append("<g id=\"").append(entry->second).append("\">").append(markup).append("</g>\n");
  }
  return Use(entry->second).append(attributes).append("/>");
}

}  // namespace orb::render
