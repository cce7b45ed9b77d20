#pragma once

#include "model/errors.h"
#include "model/lookups.h"
#include "render/drawing.h"
#include "render/map_view.h"
#include "render/surface.h"
#include "settings/map_options.h"
#include "support/boards.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace orb::tests {

inline constexpr std::array AllModes = {settings::MapMode::Colour3D, settings::MapMode::Colour,
                                        settings::MapMode::Grey, settings::MapMode::BlackWhite};

/// One thing drawn: its kind ("picture", "white", "text", "line", "box", "circle", "arc",
/// "polygon"), what it is made of and the pens it was drawn with.
struct Stroke {
  std::string Kind;
  std::vector<render::Point> Points = {};  ///< corners; centre; cursor; both ends
  std::string Text = {};                   ///< of a text; the file name of a picture
  double Width = 0, Height = 0;  ///< of a box; the radius of a circle and an arc is the width
  double Start = 0, End = 0;     ///< of an arc
  model::Colour Fore = 0, Fill = 0;
  bool Filled = false, Bold = false, Underlined = false;
  double Pen = 0;
  double Halo = 0;  ///< of a text
};

/// A surface of 10000 by 8000 twips that remembers what is drawn. Every character is 100 twips
/// wide, every line 200 high.
class Recorder : public render::Surface {
 public:
  std::vector<Stroke> Strokes;
  bool PictureMissing = false;  ///< loading a picture fails

  double ScaleWidth() const override { return 10000; }
  double ScaleHeight() const override { return 8000; }
  void LoadPicture(const std::filesystem::path& file) override {
    if (PictureMissing) throw model::FileError("Cannot read " + file.string());
    Add({"picture", {}, file.string()});
  }
  double TextWidth(std::string_view text) const override {
    return 100.0 * static_cast<double>(text.size());
  }
  double TextHeight(std::string_view /*text*/) const override { return 200; }
  void Line(render::Point from, render::Point to) override { Add({"line", {from, to}}); }
  void Box(render::Point corner, double width, double height) override {
    Add({"box", {corner}, {}, width, height});
  }
  void Circle(render::Point centre, double radius) override {
    Add({"circle", {centre}, {}, radius});
  }
  void Arc(render::Point centre, double radius, double start, double end) override {
    Add({"arc", {centre}, {}, radius, 0, start, end});
  }
  void Polygon(std::span<const render::Point> corners) override {
    Add({"polygon", {corners.begin(), corners.end()}});
  }

  /// The strokes of one kind in their order; of lines, those of one pen.
  std::vector<Stroke> All(std::string_view kind, double pen = 0) const {
    std::vector<Stroke> found = Strokes;
    std::erase_if(found, [&](const Stroke& stroke) {
      return stroke.Kind != kind || (pen != 0 && stroke.Pen != pen);
    });
    return found;
  }

 protected:
  void PaintWhite() override { Add({"white", {}}); }
  void DrawText(render::Point corner, std::string_view text) override {
    Add({"text", {corner}, std::string(text)});
  }

 private:
  void Add(Stroke stroke) {
    stroke.Fore = ForeColour;
    stroke.Fill = FillColour;
    stroke.Filled = FillStyle == render::Fill::Solid;
    stroke.Pen = DrawWidth;
    stroke.Bold = FontBold;
    stroke.Underlined = FontUnderline;
    if (stroke.Kind == "text") stroke.Halo = HaloWidth;
    Strokes.push_back(std::move(stroke));
  }
};

/// "x,y" in whole twips.
inline std::string At(render::Point point) {
  return std::to_string(std::lround(point.X)) + "," + std::to_string(std::lround(point.Y));
}

/// Where a unit in place is drawn on a recorder.
inline render::Point UnitAt(std::string_view place) {
  return render::OnSurface(Recorder(), render::UnitPoint(model::PlaceOf(*RealMap(), place)));
}

/// Where a place's label, or a dislodged unit, is drawn on a recorder.
inline render::Point LabelAt(std::string_view place) {
  return render::OnSurface(Recorder(), render::LabelPoint(model::PlaceOf(*RealMap(), place)));
}

}  // namespace orb::tests
