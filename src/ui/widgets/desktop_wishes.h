#pragma once

#include <QMap>
#include <QPalette>
#include <QString>
#include <QVariantMap>

namespace orb::ui {

/// What a desktop asks of its programs that Qt does not pass on, or not in every version.
struct DesktopWishes {
  bool dark = false;
  bool moreContrast = false;
  bool lessMotion = false;
};

/// The wishes in the settings that a desktop's portal tells: keys and values by their namespaces.
DesktopWishes wishesIn(const QMap<QString, QVariantMap>& settings);

/// The palette as it is to be: dark where a light one was not chosen on purpose, black and white
/// where more contrast is wished.
QPalette wishedPalette(const QPalette& given, const DesktopWishes& wishes);

/// What is in force; nothing at first.
const DesktopWishes& desktopWishes();
/// Takes effect at once, in colours and in motion.
void setDesktopWishes(const DesktopWishes& wishes);

}  // namespace orb::ui
