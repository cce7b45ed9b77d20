#pragma once

#include <QString>

namespace orb::ui {

// Texts from outside (of games, mails, names of files) where Qt would read signs out of them.

/// For the caption of a menu's entry, a button or a tab: an ampersand is no key, and a tab does not
/// begin the column of keys.
QString captionText(QString text);

/// For the title of a window, followed by the place for the system's mark of unsaved changes.
QString titleText(QString text);

}  // namespace orb::ui
