#include "render/qt/map_font.h"

#include "render/surface.h"

namespace orb::render {

QFont MapFont(double points, bool bold, bool underlined) {
  QFont font(QStringList{QStringLiteral("Open Sans"), QStringLiteral("sans-serif")});
  font.setStyleHint(QFont::SansSerif);
  // Without hinting, texts keep their proportions at every scale.
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(qRound(points * TwipsPerPoint));
  font.setBold(bold);
  font.setUnderline(underlined);
  return font;
}

}  // namespace orb::render
