#include "ui/widgets/power_choice.h"

#include "colour/qt/colours.h"
#include "text/qt/text_codec.h"

#include <QObject>
#include <QPainter>
#include <QPixmap>

namespace orb::ui {
namespace {

/// Large enough for every screen: an icon is only made smaller.
constexpr int Side = 64;
constexpr int Outline = 6;

}  // namespace

QIcon powerIcon(const model::CountryTable& countries, int power) {
  QPixmap picture(Side, Side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  if (power == 0) {
    // Grey can be seen on light and dark grounds, and no power's disc is dotted.
    painter.setPen(QPen(Qt::gray, Outline, Qt::DotLine));
  } else {
    painter.setPen(QPen(colour::ToQColor(countries[power].TextColour), Outline));
    painter.setBrush(colour::ToQColor(countries[power].Colour));
  }
  painter.drawEllipse(picture.rect().adjusted(Outline, Outline, -Outline, -Outline));
  return {picture};
}

QString powerName(const model::CountryTable& countries, int power) {
  return power == 0 ? QObject::tr("Neutral") : text::ToQString(countries[power].Name);
}

}  // namespace orb::ui
