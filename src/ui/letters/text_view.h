#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>

namespace orb::ui {

/// A text that is only read, in the font of reports; Tab leaves it.
QPlainTextEdit* newTextView(const QString& name, const QString& accessibleName);

/// Close and Help, which opens this topic over the dialog; other buttons can be added.
QDialogButtonBox* newCloseButtons(QDialog& dialog, const QString& helpTopic);

}  // namespace orb::ui
