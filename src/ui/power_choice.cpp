#include "ui/power_choice.h"

#include "render/qt/text_codec.h"

#include <QObject>
#include <QPainter>
#include <QPixmap>

namespace orb::ui {
namespace {

/// Large enough for every screen: an icon is only made smaller.
constexpr int Side = 64;
constexpr int Outline = 6;

QColor toQColor(model::Colour colour) {
  return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
          static_cast<int>(colour >> 16 & 0xFF)};
}

}  // namespace

QIcon powerIcon(const model::CountryTable& countries, int power) {
  QPixmap picture(Side, Side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  if (power == 0) {
    painter.setPen(QPen(Qt::gray, Outline, Qt::DotLine));
  } else {
    painter.setPen(QPen(toQColor(countries[power].TextColour), Outline));
    painter.setBrush(toQColor(countries[power].Colour));
  }
  painter.drawEllipse(picture.rect().adjusted(Outline, Outline, -Outline, -Outline));
  return QIcon(picture);
}

QString powerName(const model::CountryTable& countries, int power) {
  return power == 0 ? QObject::tr("Neutral") : render::ToQString(countries[power].Name);
}

}  // namespace orb::ui
