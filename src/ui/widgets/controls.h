#pragma once

#include <QAction>
#include <QColor>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QString>

#include <string>
#include <vector>

namespace orb::ui {

/// A push button that the Enter key presses as the space key does.
QPushButton* newButton(const QString& name, const QString& caption);

/// OK and Cancel, which accept and reject the dialog, and Help, which opens this topic over it.
QDialogButtonBox* newOkCancel(QDialog& dialog, const QString& helpTopic);

/// The heading of a panel.
QLabel* newHeading(const QString& text);

/// An entry at the end of a menu.
QAction* newEntry(QMenu& menu, const QString& name, const QString& caption,
                  const QKeySequence& shortcut = {});

/// A red and an amber that can be read on this background, light or dark: something failed,
/// something is in doubt.
QColor failureColour(const QColor& background);
QColor doubtColour(const QColor& background);

/// A blue that stands out on this background, for what is meant to be found at a glance.
QColor accentColour(const QColor& background);

/// A yellow to fill a notice with, on which the text of this background can be read.
QColor noticeColour(const QColor& background);

/// Fills a list box with 8-bit texts; false, nothing touched, when it shows them already.
bool showTexts(QListWidget& box, const std::vector<std::string>& texts);

/// A line of text that gives way: what does not fit is left out of its middle. Of a path the
/// beginning and the file's name stay.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace orb::ui
