#include "render/recorder.h"

#include "model/errors.h"

#include <cmath>
#include <utility>

namespace orb::tests {

Stroke& Recorder::Add(std::string_view kind, std::vector<render::Point> points) {
  Stroke& stroke = Strokes.emplace_back();
  stroke.Kind = kind;
  stroke.Points = std::move(points);
  stroke.Fore = ForeColour;
  stroke.Fill = FillColour;
  stroke.Filled = FillStyle == render::Fill::Solid;
  stroke.Pen = DrawWidth;
  stroke.Bold = FontBold;
  return stroke;
}

void Recorder::LoadPicture(const std::filesystem::path& file) {
  if (PictureMissing) throw model::FileError("Cannot read " + file.string());
  Add("picture", {}).Text = file.string();
}

double Recorder::TextWidth(std::string_view text) const {
  return 100.0 * static_cast<double>(text.size());
}

double Recorder::TextHeight(std::string_view /*text*/) const {
  return 200;
}

void Recorder::Line(render::Point from, render::Point to) {
  Add("line", {from, to});
}

void Recorder::Box(render::Point corner, double width, double height) {
  Stroke& box = Add("box", {corner});
  box.Width = width;
  box.Height = height;
}

void Recorder::Circle(render::Point centre, double radius) {
  Add("circle", {centre}).Width = radius;
}

void Recorder::Arc(render::Point centre, double radius, double start, double end) {
  Stroke& arc = Add("arc", {centre});
  arc.Width = radius;
  arc.Start = start;
  arc.End = end;
}

void Recorder::Polygon(std::span<const render::Point> corners) {
  Add("polygon", {corners.begin(), corners.end()});
}

void Recorder::PaintWhite() {
  Add("white", {});
}

void Recorder::DrawText(render::Point corner, std::string_view text) {
  Add("text", {corner}).Text = text;
}

std::vector<Stroke> Recorder::All(std::string_view kind) const {
  std::vector<Stroke> found;
  for (const Stroke& stroke : Strokes) {
    if (stroke.Kind == kind) found.push_back(stroke);
  }
  return found;
}

std::vector<std::string> Recorder::Texts() const {
  std::vector<std::string> texts;
  for (const Stroke& stroke : All("text")) {
    texts.push_back(stroke.Text + " " + At(stroke.Points.front()));
  }
  return texts;
}

std::string At(render::Point point) {
  return std::to_string(std::lround(point.X)) + "," + std::to_string(std::lround(point.Y));
}

}  // namespace orb::tests
