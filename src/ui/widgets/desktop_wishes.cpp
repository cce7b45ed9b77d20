#include "ui/widgets/desktop_wishes.h"

#include <QApplication>

#include <array>
#include <utility>

namespace orb::ui {
namespace {

using Colours = std::array<std::pair<QPalette::ColorRole, QRgb>, 13>;

constexpr Colours Dark{{{QPalette::Window, 0xff2b2d30},
                        {QPalette::WindowText, 0xffe8e8e8},
                        {QPalette::Base, 0xff1e1f22},
                        {QPalette::AlternateBase, 0xff34363a},
                        {QPalette::Text, 0xffe8e8e8},
                        {QPalette::Button, 0xff3a3c40},
                        {QPalette::ButtonText, 0xffe8e8e8},
                        {QPalette::ToolTipBase, 0xff3a3c40},
                        {QPalette::ToolTipText, 0xffe8e8e8},
                        {QPalette::Highlight, 0xff2f6ab8},
                        {QPalette::HighlightedText, 0xffffffff},
                        {QPalette::Link, 0xff8abfff},
                        {QPalette::BrightText, 0xffffffff}}};

/// Black on white, or white on what is nearly black; the selection is turned round.
void setBlackAndWhite(QPalette& palette) {
  const bool dark = palette.color(QPalette::Window).lightness() < 128;
  const QColor ground = dark ? Qt::black : Qt::white;
  const QColor ink = dark ? Qt::white : Qt::black;
  for (const auto role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase,
                          QPalette::Button, QPalette::ToolTipBase, QPalette::HighlightedText})
    palette.setColor(role, ground);
  // Edges are drawn darker than the ground, which nothing can be: the areas stand out themselves.
  if (dark) {
    palette.setColor(QPalette::Base, QColor(0x1c, 0x1c, 0x1c));
    palette.setColor(QPalette::Button, QColor(0x38, 0x38, 0x38));
  }
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
        QPalette::BrightText, QPalette::Highlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow})
    palette.setColor(role, ink);
}

/// What cannot be used stays fainter than the rest, in every palette that is made here.
void setFainter(QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  const QColor ground = palette.color(QPalette::Active, QPalette::Base);
  const auto mixed = [&](float strength) {
    const auto part = [strength](float a, float b) { return strength * a + (1 - strength) * b; };
    return QColor::fromRgbF(part(text.redF(), ground.redF()), part(text.greenF(), ground.greenF()),
                            part(text.blueF(), ground.blueF()));
  };
  palette.setColor(QPalette::PlaceholderText, mixed(0.65F));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, mixed(0.45F));
}

DesktopWishes& inForce() {
  static DesktopWishes wishes;
  return wishes;
}

}  // namespace

DesktopWishes wishesIn(const QMap<QString, QVariantMap>& settings) {
  const QVariantMap common = settings.value(QStringLiteral("org.freedesktop.appearance"));
  const QVariantMap gnome = settings.value(QStringLiteral("org.gnome.desktop.interface"));
  const QVariantMap kde = settings.value(QStringLiteral("org.kde.kdeglobals.KDE"));
  const QVariant still = gnome.value(QStringLiteral("enable-animations"));
  const QVariant duration = kde.value(QStringLiteral("AnimationDurationFactor"));
  DesktopWishes wishes;
  wishes.dark = common.value(QStringLiteral("color-scheme")).toUInt() == 1;
  wishes.moreContrast = common.value(QStringLiteral("contrast")).toUInt() == 1;
  // The common key is the youngest; each desktop has had its own before.
  wishes.lessMotion = common.value(QStringLiteral("reduced-motion")).toUInt() == 1 ||
                      (still.isValid() && !still.toBool()) ||
                      (duration.isValid() && duration.toDouble() == 0);
  return wishes;
}

QPalette wishedPalette(const QPalette& given, const DesktopWishes& wishes) {
  QPalette palette = given;
  const bool isLight = given.color(QPalette::Window).lightness() >= 128;
  if (wishes.dark && isLight) {
    // All roles that a style derives, edges and shadows, come from the button's colour.
    palette = QPalette(QColor::fromRgb(0x3a, 0x3c, 0x40), QColor::fromRgb(0x2b, 0x2d, 0x30));
    for (const auto& [role, colour] : Dark)
      palette.setColor(role, QColor::fromRgb(colour));
  }
  if (wishes.moreContrast) setBlackAndWhite(palette);
  if ((wishes.dark && isLight) || wishes.moreContrast) setFainter(palette);
  return palette;
}

const DesktopWishes& desktopWishes() {
  return inForce();
}

void setDesktopWishes(const DesktopWishes& wishes) {
  const DesktopWishes before = std::exchange(inForce(), wishes);
  if (before.dark == wishes.dark && before.moreContrast == wishes.moreContrast) return;
  // The desktop's own palette again, whatever was made of it before.
  QApplication::setPalette(QPalette());
  // Whoever has set up the colours of Qt's programs by hand has chosen on purpose.
  DesktopWishes open = wishes;
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME")) open.dark = false;
  if (open.dark || open.moreContrast)
    QApplication::setPalette(wishedPalette(QApplication::palette(), open));
}

}  // namespace orb::ui
