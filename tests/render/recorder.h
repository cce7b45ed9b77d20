#pragma once

#include "render/surface.h"

#include <string>
#include <vector>

namespace orb::tests {

/// One thing drawn: its kind ("picture", "text", "line", "box", "circle", "arc", "polygon"), what
/// it is made of and the pens it was drawn with.
struct Stroke {
  std::string Kind;
  std::string Text;                   ///< of a text; the file name of a picture
  std::vector<render::Point> Points;  ///< corners; centre; cursor; both ends
  double Width = 0, Height = 0;       ///< of a box; the radius of a circle and an arc is the width
  double Start = 0, End = 0;          ///< of an arc
  model::Colour Fore = 0;
  model::Colour Fill = 0;
  bool Filled = false;
  double Pen = 0;
  bool Bold = false;
};

/// A surface of 10000 by 8000 twips that remembers what is drawn. Every character is 100 twips
/// wide, every line 200 high.
class Recorder : public render::Surface {
 public:
  std::vector<Stroke> Strokes;
  bool PictureMissing = false;  ///< loading a picture fails

  double ScaleWidth() const override { return 10000; }
  double ScaleHeight() const override { return 8000; }
  void LoadPicture(const std::filesystem::path& file) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  void Line(render::Point from, render::Point to) override;
  void Box(render::Point corner, double width, double height) override;
  void Circle(render::Point centre, double radius) override;
  void Arc(render::Point centre, double radius, double start, double end) override;
  void Polygon(std::span<const render::Point> corners) override;

  /// The strokes of one kind in their order.
  std::vector<Stroke> All(std::string_view kind) const;

  /// The texts in their order, with their cursors: "Lon 100,200".
  std::vector<std::string> Texts() const;

 protected:
  void PaintWhite() override;
  void DrawText(render::Point corner, std::string_view text) override;

 private:
  Stroke& Add(std::string_view kind, std::vector<render::Point> points);
};

/// "x,y" in whole twips.
std::string At(render::Point point);

}  // namespace orb::tests
