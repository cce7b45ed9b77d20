#pragma once

#include "model/country.h"

#include <filesystem>
#include <span>
#include <string_view>

namespace orb::render {

struct Tinting;

constexpr double TwipsPerPixel = 15;  ///< of a screen at 96 dpi
constexpr double TwipsPerPoint = 20;  ///< of font sizes

struct Point {
  double X = 0, Y = 0;
};

enum class Fill { Solid, Transparent };

/// The seam about texts, which does not quite hide what lies below it.
constexpr model::Colour HaloColour = model::Rgb(255, 255, 255);
constexpr double HaloOpacity = 0.8;

/// A picture to draw on: a window's map, a bitmap, a page, a panel. Lengths are twips (1/1440 inch)
/// from the top left corner, y downwards; texts are 8-bit (Windows-1252). What is drawn follows the
/// public fields as they stand at the call.
class Surface {
 public:
  model::Colour ForeColour = 0;  ///< of outlines and texts
  model::Colour FillColour = 0;
  Fill FillStyle = Fill::Solid;
  double DrawWidth = 1;  ///< pen width in screen pixels at 96 dpi; 0: no outline
  double FontSize = 8;   ///< in points
  bool FontBold = false;
  bool FontUnderline = false;
  double HaloWidth = 0;  ///< of the light seam about the letters of texts, in screen pixels
  double CurrentX = 0, CurrentY = 0;  ///< the text cursor: top left corner of the next text

  Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  virtual ~Surface() = default;

  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;

  /// Paints the whole surface with the picture of a file. Throws FileError, nothing painted.
  virtual void LoadPicture(const std::filesystem::path& file) = 0;

  /// The same, the lands in other tints where the surface can do that. Throws FileError, also for a
  /// broken hit-test picture; without one the tints stay.
  virtual void LoadTintedPicture(const std::filesystem::path& file, const Tinting& /*tinting*/) {
    LoadPicture(file);
  }

  /// What a part of the picture shows.
  enum class Part { Province, Unit, Order, Caption };

  /// Everything until EndPart shows this one, whose title is for whoever reads or points at it.
  /// Means nothing to surfaces that only paint. Parts lie in no other.
  virtual void BeginPart(Part /*part*/, std::string_view /*name*/, std::string_view /*title*/) {}
  virtual void EndPart() {}

  /// Paints the whole surface white and puts the text cursor at its top left corner.
  void Clear();

  virtual double TextWidth(std::string_view text) const = 0;

  /// The height of a line of text, the same for every text of the font.
  virtual double TextHeight(std::string_view text) const = 0;

  /// Writes the text at the cursor and moves the cursor to its end, on the same line.
  void Print(std::string_view text);

  /// Writes the text as Print does and ends the line: the cursor goes to the next line's start.
  void PrintLine(std::string_view text);

  virtual void Line(Point from, Point to) = 0;

  /// A rectangle with outline and filling.
  virtual void Box(Point corner, double width, double height) = 0;

  /// A circle with outline and filling.
  virtual void Circle(Point centre, double radius) = 0;

  /// An unfilled arc between two angles in radians, counted anticlockwise from the right.
  virtual void Arc(Point centre, double radius, double start, double end) = 0;

  /// A closed figure of straight lines with outline and filling.
  virtual void Polygon(std::span<const Point> corners) = 0;

 protected:
  virtual void PaintWhite() = 0;
  virtual void DrawText(Point corner, std::string_view text) = 0;
};

}  // namespace orb::render
