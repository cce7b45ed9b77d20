#include "render/qt/halo_texts.h"

#include "colour/qt/colours.h"
#include "render/surface.h"

#include <QPainter>
#include <QPen>

#include <array>
#include <cmath>
#include <cstring>

namespace orb::render {
namespace {

/// More texts than a map has in all its states; a window that is resized comes by new ones.
constexpr std::size_t MostPictures = 1000;

std::string KeyOf(const HaloText& text, QPointF base, const QTransform& toDevice) {
  const std::array<double, 8> numbers = {
      base.x(),       base.y(),
      toDevice.m11(), toDevice.m22(),
      toDevice.m31(), toDevice.m32(),
      text.Halo,      text.Font.pixelSize() + 0.5 * text.Font.bold()};
  const std::array<uint, 2> colour = {text.Colour.rgba(), static_cast<uint>(text.Text.size())};
  std::string key(sizeof(numbers) + sizeof(colour), '\0');
  std::memcpy(key.data(), numbers.data(), sizeof(numbers));
  std::memcpy(key.data() + sizeof(numbers), colour.data(), sizeof(colour));
  return key.append(text.Text.toUtf8().constData());
}

HaloTexts::Picture Painted(const HaloText& text, QPointF base, const QTransform& toDevice) {
  const QPainterPath outline = OutlineOf(text);
  const QRectF extent = outline.boundingRect().translated(base).adjusted(-text.Halo, -text.Halo,
                                                                         text.Halo, text.Halo);
  const QRect pixels = toDevice.mapRect(extent).toAlignedRect().adjusted(-1, -1, 1, 1);
  HaloTexts::Picture picture{QImage(pixels.size(), QImage::Format_ARGB32_Premultiplied),
                             pixels.topLeft()};
  picture.Image.fill(Qt::transparent);
  QPainter painter(&picture.Image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.setTransform(toDevice * QTransform::fromTranslate(-pixels.left(), -pixels.top()));
  painter.translate(base);
  painter.strokePath(outline, HaloPen(text));
  painter.setFont(text.Font);
  painter.setPen(text.Colour);
  painter.drawText(QPointF(), text.Text);
  return picture;
}

}  // namespace

QPainterPath OutlineOf(const HaloText& text) {
  QPainterPath outline;
  outline.addText(QPointF(), text.Font, text.Text);
  return outline;
}

QPen HaloPen(const HaloText& text) {
  QColor seam = colour::ToQColor(HaloColour);
  seam.setAlpha(qRound(255 * HaloOpacity));
  return {seam, 2 * text.Halo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

const HaloTexts::Picture& HaloTexts::PictureOf(const HaloText& text, QPointF base,
                                               const QTransform& toDevice) {
  const std::string key = KeyOf(text, base, toDevice);
  if (const auto found = pictures_.find(key); found != pictures_.end()) return found->second;
  if (pictures_.size() >= MostPictures) pictures_.clear();
  return pictures_[key] = Painted(text, base, toDevice);
}

}  // namespace orb::render
