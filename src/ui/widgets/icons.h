#pragma once

#include <QIcon>
#include <QString>

namespace orb::ui {

/// One of the program's own icons, by the name of its file. It is drawn in the text colour of the
/// palette in force, so that it suits light and dark themes.
QIcon newIcon(const QString& name);

/// The program's own picture, in its own colours.
QIcon programIcon();

}  // namespace orb::ui
