#include "render/svg_surface.h"

#include "render/svg_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace orb::render {
namespace {

std::string_view ClassOf(Surface::Part part) {
  constexpr std::array<std::string_view, 4> names = {"province", "unit", "order", "caption"};
  return names[static_cast<std::size_t>(part)];
}

std::string Attribute(std::string_view name, std::string_view value) {
  return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

/// Pieces shorter than this take more room as a definition than where they stand.
constexpr std::size_t LeastPiece = 50;

/// Of a picture's palette.
constexpr std::size_t MostColours = 256;

}  // namespace

SvgSurface::SvgSurface(SvgDefinitions& definitions, Point size, SvgForm form, std::string idPrefix)
    : definitions_(definitions),
      size_(size),
      form_(form),
      idPrefix_(std::move(idPrefix)),
      open_(1) {}

SvgSurface::Spot SvgSurface::SpotOf(Point point) const {
  return {Tenths(point.X / definitions_.TwipsPerPixel()),
          Tenths(point.Y / definitions_.TwipsPerPixel())};
}

std::string SvgSurface::LengthText(double twips) const {
  return TenthsText(Tenths(twips / definitions_.TwipsPerPixel()));
}

std::string SvgSurface::StrokeAttributes() const {
  if (DrawWidth <= 0) return {};
  // The finest pen that is drawn at all must not be rounded away.
  const long width = std::max(1L, Tenths(DrawWidth * TwipsPerPixel / definitions_.TwipsPerPixel()));
  std::string attributes = Attribute("stroke", ColourText(ForeColour));
  if (width != 10) attributes.append(Attribute("stroke-width", TenthsText(width)));
  return attributes;
}

std::string SvgSurface::PaintAttributes() const {
  if (FillStyle == Fill::Transparent) return StrokeAttributes();
  return Attribute("fill", ColourText(FillColour)).append(StrokeAttributes());
}

void SvgSurface::Add(std::string_view markup) {
  FlushLines();
  open_.back().Content.append(markup);
}

void SvgSurface::FlushLines() {
  if (lines_.empty()) return;
  std::string& content = open_.back().Content;
  const std::string start = "<path d=\"" + lines_ + "\"";
  // Orders draw each line twice, the edge below the core.
  const bool isShared = form_ == SvgForm::Layer && lines_.size() >= LeastPiece;
  content.append(isShared ? definitions_.UseOf(start + "/>", linesPen_) : start + linesPen_ + "/>");
  lines_.clear();
}

/// What lies between units and orders, labels above all, is the same on many maps.
void SvgSurface::ShareRun() {
  std::string& content = open_.front().Content;
  const std::string run = content.substr(runStart_);
  if (form_ == SvgForm::Layer && run.size() >= LeastPiece) {
    content.resize(runStart_);
    content.append(definitions_.UseOf(run));
  }
  runStart_ = content.size();
}

std::string SvgSurface::Markup() {
  FlushLines();
  ShareRun();
  return open_.front().Content;
}

void SvgSurface::LoadPicture(const std::filesystem::path& file) {
  if (form_ != SvgForm::Layer) AddPicture(definitions_.Material().Png(file, MostColours));
}

void SvgSurface::LoadTintedPicture(const std::filesystem::path& file, const Tinting& tinting) {
  if (form_ == SvgForm::Layer) return;
  AddPicture(definitions_.Material().TintedPng(file, MostColours, tinting));
}

void SvgSurface::AddPicture(const std::string& png) {
  Add(std::string("<image")
          .append(Attribute("width", LengthText(size_.X)))
          .append(Attribute("height", LengthText(size_.Y)))
          .append(" preserveAspectRatio=\"none\" xlink:href=\"data:image/png;base64,")
          .append(Base64(png))
          .append("\"/>"));
}

double SvgSurface::TextWidth(std::string_view text) const {
  return definitions_.Material().Width(Font(), text);
}

double SvgSurface::TextHeight(std::string_view /*text*/) const {
  return definitions_.Material().Height(Font());
}

void SvgSurface::Line(Point from, Point to) {
  const std::string pen = StrokeAttributes();
  if (pen.empty()) return;
  if (pen != linesPen_) FlushLines();
  linesPen_ = pen;
  const Spot start = SpotOf(from);
  const Spot end = SpotOf(to);
  if (lines_.empty() || start != lineEnd_) {
    lines_.append("M").append(TenthsText(start.X)).append(" ").append(TenthsText(start.Y));
  }
  // A line without any length is a dot, which some programs leave out.
  const std::string across = TenthsText(end == start ? 1 : end.X - start.X);
  const std::string down = TenthsText(end.Y - start.Y);
  lines_.append("l").append(across).append(down.front() == '-' ? "" : " ").append(down);
  lineEnd_ = end;
}

void SvgSurface::Box(Point corner, double width, double height) {
  const Spot at = SpotOf(corner);
  Add(std::string("<rect")
          .append(Attribute("x", TenthsText(at.X)))
          .append(Attribute("y", TenthsText(at.Y)))
          .append(Attribute("width", LengthText(width)))
          .append(Attribute("height", LengthText(height)))
          .append(PaintAttributes())
          .append("/>"));
}

void SvgSurface::Circle(Point centre, double radius) {
  const Spot at = SpotOf(centre);
  Add(std::string("<circle")
          .append(Attribute("cx", TenthsText(at.X)))
          .append(Attribute("cy", TenthsText(at.Y)))
          .append(Attribute("r", LengthText(radius)))
          .append(PaintAttributes())
          .append("/>"));
}

void SvgSurface::Arc(Point centre, double radius, double start, double end) {
  const auto at = [&](double angle) {
    return SpotOf({centre.X + radius * std::cos(angle), centre.Y - radius * std::sin(angle)});
  };
  const double span = end - start;
  if (span >= 2 * std::numbers::pi) {
    const Fill before = std::exchange(FillStyle, Fill::Transparent);
    Circle(centre, radius);
    FillStyle = before;
    return;
  }
  const std::string length = LengthText(radius);
  const Spot from = at(start);
  const Spot to = at(end);
  Add(std::string("<path d=\"M")
          .append(TenthsText(from.X))
          .append(" ")
          .append(TenthsText(from.Y))
          .append("A")
          .append(length)
          .append(" ")
          .append(length)
          .append(span > std::numbers::pi ? " 0 1 0 " : " 0 0 0 ")
          .append(TenthsText(to.X))
          .append(" ")
          .append(TenthsText(to.Y))
          .append("\"")
          .append(StrokeAttributes())
          .append("/>"));
}

void SvgSurface::Polygon(std::span<const Point> corners) {
  std::string path;
  Spot last;
  for (const Point& corner : corners) {
    const Spot spot = SpotOf(corner);
    const std::string down = TenthsText(spot.Y - last.Y);
    path.append(path.empty() ? "M" : "l")
        .append(TenthsText(spot.X - last.X))
        .append(down.front() == '-' ? "" : " ")
        .append(down);
    last = spot;
  }
  Add(std::string("<path d=\"").append(path).append("z\"").append(PaintAttributes()).append("/>"));
}

void SvgSurface::BeginPart(Part part, std::string_view name, std::string_view title) {
  FlushLines();
  const std::string_view kind = ClassOf(part);
  std::string id = idPrefix_ + std::string(kind).append("-").append(IdText(name));
  if (const int count = ++names_[id]; count > 1) id.append("-").append(std::to_string(count));
  open_.push_back({part,
                   std::string("<g")
                       .append(Attribute("id", id))
                       .append(Attribute("class", kind))
                       .append("><title>")
                       .append(Escaped(title))
                       .append("</title>"),
                   {}});
}

void SvgSurface::EndPart() {
  FlushLines();
  if (open_.size() < 2) return;
  OpenPart part = std::move(open_.back());
  open_.pop_back();
  if (part.Content.empty()) return;
  std::string& content = open_.back().Content;
  const bool isLayer = form_ == SvgForm::Layer;
  if (isLayer && part.Kind == Part::Caption) return;
  if (isLayer && part.Kind == Part::Province) {
    content.append(part.Content.size() < LeastPiece ? part.Content
                                                    : definitions_.UseOf(part.Content));
    return;
  }
  if (isLayer && open_.size() == 1) ShareRun();
  if (isLayer && part.Kind == Part::Unit) part.Content = definitions_.UseOf(part.Content);
  content.append(part.Head).append(part.Content).append("</g>\n");
  if (open_.size() == 1) runStart_ = content.size();
}

void SvgSurface::PaintWhite() {
  Add(std::string("<rect")
          .append(Attribute("width", LengthText(size_.X)))
          .append(Attribute("height", LengthText(size_.Y)))
          .append(" fill=\"#fff\"/>"));
}

void SvgSurface::AddText(Point corner, const std::string& id, std::string_view paint) {
  const Spot at = SpotOf(corner);
  Add(definitions_.Use(id)
          .append(Attribute("x", TenthsText(at.X)))
          .append(Attribute("y", TenthsText(at.Y)))
          .append(paint)
          .append("/>"));
}

void SvgSurface::DrawText(Point corner, std::string_view text) {
  const std::string id = definitions_.TextId(Font(), text);
  if (!id.empty() && HaloWidth > 0) {
    const double pen = definitions_.OutlinePen(2 * HaloWidth * TwipsPerPixel);
    AddText(corner, id,
            Attribute("stroke", ColourText(HaloColour))
                .append(Attribute("stroke-opacity", TenthsText(Tenths(HaloOpacity))))
                .append(Attribute("stroke-width", TenthsText(Tenths(pen))))
                .append(Attribute("stroke-linejoin", "round")));
  }
  if (!id.empty()) AddText(corner, id, Attribute("fill", ColourText(ForeColour)));
  if (!FontUnderline) return;
  const double down = 0.85 * TextHeight(text);
  Line({corner.X, corner.Y + down}, {corner.X + TextWidth(text), corner.Y + down});
}

std::string SvgDocument(SvgSurface& surface, const SvgDefinitions& definitions,
                        std::string_view title, int width, int height, double pixelsPerInch) {
  constexpr double millimetresPerInch = 25.4;
  const auto length = [&](int pixels) {
    return TenthsText(Tenths(pixels / pixelsPerInch * millimetresPerInch)).append("mm");
  };
  const std::string content = surface.Markup();
  return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg")
      .append(Attribute("xmlns", "http://www.w3.org/2000/svg"))
      .append(Attribute("xmlns:xlink", "http://www.w3.org/1999/xlink"))
      .append(Attribute("version", "1.1"))
      .append(Attribute("width", length(width)))
      .append(Attribute("height", length(height)))
      .append(Attribute("viewBox", "0 0 " + std::to_string(width) + " " + std::to_string(height)))
      .append(">\n<title>")
      .append(Escaped(title))
      .append("</title>\n<defs>\n")
      .append(definitions.Markup())
      .append("</defs>\n<g fill=\"none\" stroke-linecap=\"round\">\n")
      .append(content)
      .append("</g>\n</svg>\n");
}

}  // namespace orb::render
