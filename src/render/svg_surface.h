#pragma once

#include "render/surface.h"
#include "render/svg_material.h"

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace orb::render {

/// What the drawings of one document share: each text is defined once, of outlines that are defined
/// once, and looks the same wherever it is opened.
class SvgDefinitions {
 public:
  /// The document's unit is this many twips. The material must outlive the definitions.
  SvgDefinitions(SvgMaterial& material, double twipsPerPixel)
      : material_(material), twipsPerPixel_(twipsPerPixel) {}

  SvgMaterial& Material() const { return material_; }
  double TwipsPerPixel() const { return twipsPerPixel_; }

  /// The id of a text's shape, which stands at its top left corner; empty where there is no ink.
  std::string TextId(const TextFont& font, std::string_view text);

  /// The width of a pen about outlines, of which the document's own differs.
  double OutlinePen(double twips) const;

  /// The id of a piece of markup that is used more than once.
  std::string PieceId(const std::string& markup);

  /// Everything that was asked for, to stand within <defs>.
  const std::string& Markup() const { return markup_; }

 private:
  std::string GlyphId(int glyph);

  SvgMaterial& material_;
  double twipsPerPixel_;
  std::string markup_;
  std::set<int> glyphs_;
  std::map<std::pair<TextFont, std::string>, std::string> texts_;
  std::map<std::string, std::string> pieces_;
};

/// How a drawing stands in its document.
struct SvgForm {
  std::string IdPrefix = {};   ///< before all ids, which must differ within a document
  bool EmbedsPictures = true;  ///< else the document shows them itself
  bool SharesPieces = false;   ///< whether what several drawings have in common is defined once
};

/// A drawing as SVG text. Numbers are rounded to a tenth of a pixel. Parts become groups with an
/// id, a class and a title: <g id="unit-Lon" class="unit"><title>...; where something is drawn in
/// several strokes of its own, the later ones end in "-2", "-3" and so on.
class SvgSurface : public Surface {
 public:
  /// The size is in twips; the definitions must outlive the surface.
  SvgSurface(SvgDefinitions& definitions, Point size, SvgForm form = {});

  /// What was drawn.
  std::string Markup();

  double ScaleWidth() const override { return size_.X; }
  double ScaleHeight() const override { return size_.Y; }
  void LoadPicture(const std::filesystem::path& file) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  void Line(Point from, Point to) override;
  void Box(Point corner, double width, double height) override;
  void Circle(Point centre, double radius) override;
  void Arc(Point centre, double radius, double start, double end) override;
  void Polygon(std::span<const Point> corners) override;
  void BeginPart(Part part, std::string_view name, std::string_view title) override;
  void EndPart() override;

 protected:
  void PaintWhite() override;
  void DrawText(Point corner, std::string_view text) override;

 private:
  /// A group that is not ended yet.
  struct OpenPart {
    std::string Head, Content;
  };

  /// Whole tenths of a pixel, in which a path is told.
  struct Spot {
    long X = 0, Y = 0;

    bool operator==(const Spot&) const = default;
  };

  Spot SpotOf(Point point) const;
  std::string LengthText(double twips) const;
  std::string StrokeAttributes() const;
  std::string PaintAttributes() const;
  TextFont Font() const { return {FontSize, FontBold}; }
  void Add(std::string_view markup);
  void AddText(Point corner, const std::string& id, std::string_view paint);
  void FlushLines();

  SvgDefinitions& definitions_;
  Point size_;
  SvgForm form_;
  std::vector<OpenPart> open_;        ///< the first is the drawing itself
  std::map<std::string, int> names_;  ///< how often a name was used
  std::string lines_;                 ///< of one pen, not added yet
  std::string linesPen_;
  Spot lineEnd_;
};

/// A whole file of one drawing, some pixels large, at a resolution in pixels an inch. The title is
/// 8-bit text.
std::string SvgDocument(SvgSurface& surface, const SvgDefinitions& definitions,
                        std::string_view title, int width, int height, double pixelsPerInch);

}  // namespace orb::render
