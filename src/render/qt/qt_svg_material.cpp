#include "render/qt/qt_svg_material.h"

#include "model/errors.h"
#include "render/qt/map_font.h"
#include "render/qt/palette.h"
#include "text/qt/text_codec.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainterPath>
#include <QTextLayout>
#include <QTextOption>

namespace orb::render {
namespace {

QFont FontOf(const TextFont& font) {
  return MapFont(font.Size, font.Bold, false);
}

/// A curve is three elements of Qt's path: its two control points and its end.
OutlineStep CurveAt(const QPainterPath& path, int element) {
  OutlineStep curve{'C', {}};
  for (int i = 0; i < 3; ++i) {
    const QPainterPath::Element& at = path.elementAt(element + i);
    curve.Points.push_back({at.x, at.y});
  }
  return curve;
}

QString KeyOf(const QRawFont& font) {
  return QStringLiteral("%1/%2/%3").arg(font.familyName(), font.styleName()).arg(font.pixelSize());
}

QImage WithPalette(const QImage& picture, std::size_t colours) {
  Palette palette(ChooseColours({picture}, colours));
  QImage indexed(picture.size(), QImage::Format_Indexed8);
  indexed.setColorTable({palette.Colours().begin(), palette.Colours().end()});
  for (int y = 0; y < picture.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    uchar* to = indexed.scanLine(y);
    for (int x = 0; x < picture.width(); ++x)
      to[x] = palette.IndexOf(from[x] | 0xFF000000U);
  }
  return indexed;
}

std::string PngOf(const QImage& picture, std::size_t colours) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  // Quality 0 is the smallest file; nothing of the picture is lost.
  if (!WithPalette(picture, colours).save(&buffer, "PNG", 0)) {
    throw model::FileError("The map cannot be written in this format.");
  }
  return buffer.data().toStdString();
}

}  // namespace

double QtSvgMaterial::Width(const TextFont& font, std::string_view text) {
  return QFontMetricsF(FontOf(font)).horizontalAdvance(text::ToQString(text));
}

double QtSvgMaterial::Height(const TextFont& font) {
  return QFontMetricsF(FontOf(font)).height();
}

std::vector<PlacedGlyph> QtSvgMaterial::Shape(const TextFont& font, std::string_view text) {
  const QFont shaped = FontOf(font);
  QTextLayout layout(text::ToQString(text), shaped);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(1e6);
  layout.endLayout();
  const double shift = QFontMetricsF(shaped).ascent() - line.ascent();
  std::vector<PlacedGlyph> placed;
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const QList<quint32> indexes = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < indexes.size(); ++i) {
      if (run.rawFont().pathForGlyph(indexes[i]).isEmpty()) continue;
      const auto [entry, isNew] = numbers_.try_emplace({KeyOf(run.rawFont()), indexes[i]});
      if (isNew) {
        glyphs_.push_back({run.rawFont(), indexes[i]});
        entry->second = static_cast<int>(glyphs_.size());
      }
      placed.push_back({entry->second, {positions[i].x(), positions[i].y() + shift}});
    }
  }
  return placed;
}

std::vector<OutlineStep> QtSvgMaterial::Outline(int glyph) {
  const Known& known = glyphs_[static_cast<std::size_t>(glyph - 1)];
  const QPainterPath path = known.Font.pathForGlyph(known.Index);
  std::vector<OutlineStep> steps;
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::Element& element = path.elementAt(i);
    if (element.isMoveTo()) {
      if (!steps.empty()) steps.push_back({'Z', {}});
      steps.push_back({'M', {{element.x, element.y}}});
    } else if (element.isLineTo()) {
      steps.push_back({'L', {{element.x, element.y}}});
    } else if (element.type == QPainterPath::CurveToElement) {
      steps.push_back(CurveAt(path, i));
    }
  }
  if (!steps.empty()) steps.push_back({'Z', {}});
  return steps;
}

Point QtSvgMaterial::Size(const std::filesystem::path& file) {
  const QSizeF size = NaturalSize(pictures_.Picture(file));
  return {size.width(), size.height()};
}

std::string QtSvgMaterial::Png(const std::filesystem::path& file, std::size_t colours) {
  const auto [entry, isNew] = pngs_.try_emplace({file, colours});
  if (isNew) entry->second = PngOf(pictures_.Picture(file), colours);
  return entry->second;
}

std::string QtSvgMaterial::TintedPng(const std::filesystem::path& file, std::size_t colours,
                                     const Tinting& tinting) {
  return PngOf(pictures_.Tinted(file, pictures_.Picture(file).size(), tinting), colours);
}

}  // namespace orb::render
