#include "ui/widgets/fixed_font.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

namespace orb::ui {
namespace {

/// What is really drawn for it, not what it says of itself.
bool isFixed(const QFont& font) {
  return QFontInfo(font).fixedPitch();
}

}  // namespace

QFont fixedFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (isFixed(font)) return font;
  // Some platform themes without settings of their own answer with the font of the menus.
  for (const QString& family :
       {QStringLiteral("monospace"), QStringLiteral("DejaVu Sans Mono"),
        QStringLiteral("Liberation Mono"), QStringLiteral("Noto Sans Mono")}) {
    font.setFamilies({family});
    font.setStyleHint(QFont::Monospace);
    if (isFixed(font)) return font;
  }
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isFixedPitch(family) || QFontDatabase::isPrivateFamily(family)) continue;
    font.setFamilies({family});
    return font;
  }
  return font;
}

}  // namespace orb::ui
