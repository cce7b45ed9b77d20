#pragma once

#include "render/surface.h"
#include "render/svg_material.h"

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace orb::render {

/// The name of the attribute that refers to other elements: "xlink:href", which every program
/// knows, or "href", which browsers know as well.
enum class SvgLinks { Old, Short };

/// What the drawings of one document share: each text is defined once, of outlines that are defined
/// once, and looks the same wherever it is opened.
class SvgDefinitions {
 public:
  /// The document's unit is this many twips. The material must outlive the definitions.
  SvgDefinitions(SvgMaterial& material, double twipsPerPixel, SvgLinks links = SvgLinks::Old)
      : material_(material), twipsPerPixel_(twipsPerPixel), links_(links) {}

  SvgMaterial& Material() const { return material_; }
  double TwipsPerPixel() const { return twipsPerPixel_; }

  /// The id of a text's shape, which stands at its top left corner; empty where there is no ink.
  std::string TextId(const TextFont& font, std::string_view text);

  /// The width of a pen about outlines, of which the document's own differs.
  double OutlinePen(double twips) const;

  /// The beginning of an element that uses what has the id.
  std::string Use(std::string_view id) const;

  /// The use of a piece of markup, which is defined once; attributes go before those of the use.
  std::string UseOf(const std::string& markup, std::string_view attributes = {});

  /// Everything that was asked for, to stand within <defs>.
  const std::string& Markup() const { return markup_; }

 private:
  std::string GlyphId(int glyph);

  SvgMaterial& material_;
  double twipsPerPixel_;
  SvgLinks links_;
  std::string markup_;
  std::set<int> glyphs_;
  std::map<std::pair<TextFont, std::string>, std::string> texts_;
  std::map<std::string, std::string> pieces_;
};

/// How a drawing stands in its document.
enum class SvgForm {
  Whole,  ///< by itself
  Layer,  ///< one of many in a page, which shows the background and tells the captions and
          ///< provinces itself; what several of them have in common is defined once
};

/// A drawing as SVG text. Numbers are rounded to a tenth of a pixel. Parts become groups with an
/// id, a class and a title: <g id="unit-Lon" class="unit"><title>...; where something is drawn in
/// several strokes of its own, the later ones end in "-2", "-3" and so on.
class SvgSurface : public Surface {
 public:
  /// The size is in twips; the definitions must outlive the surface.
  /// All ids begin with the prefix, since they must differ within a document.
  SvgSurface(SvgDefinitions& definitions, Point size, SvgForm form = SvgForm::Whole,
             std::string idPrefix = {});

  /// What was drawn.
  std::string Markup();

  double ScaleWidth() const override { return size_.X; }
  double ScaleHeight() const override { return size_.Y; }
  void LoadPicture(const std::filesystem::path& file) override;
  void LoadTintedPicture(const std::filesystem::path& file, const Tinting& tinting) override;
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
    Part Kind = Part::Province;
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
  void AddPicture(const std::string& png);
  void AddText(Point corner, const std::string& id, std::string_view paint);
  void FlushLines();
  void ShareRun();

  SvgDefinitions& definitions_;
  Point size_;
  SvgForm form_;
  std::string idPrefix_;
  std::size_t runStart_ = 0;          ///< of what belongs to no unit or order, in the drawing
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
