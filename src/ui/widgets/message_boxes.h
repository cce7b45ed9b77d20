#pragma once

#include "model/messages.h"

#include <QMessageBox>
#include <QString>
#include <QWidget>

namespace orb::ui {

/// A message text as a box shows it: every line break of the core becomes a new line. Texts of the
/// system (file names, reasons) are UTF-8, texts of the game Windows-1252.
QString displayText(const std::string& text);

/// A message box of the program. Its text is shown as it stands: file names and order lines are
/// quoted in it, and must not be taken for markup.
class MessageBox : public QMessageBox {
  Q_OBJECT

 public:
  MessageBox(const QString& text, Icon icon, QWidget* parent);
};

/// Real message boxes over a window. Enter agrees, Esc declines.
class MessageBoxes : public model::Messages {
 public:
  /// Without a parent the boxes stand alone.
  explicit MessageBoxes(QWidget* parent) : m_parent(parent) {}

  bool Warn(const std::string& text) override;
  model::Answer Ask(const std::string& text) override;
  void Show(const std::string& text, model::Icon icon) override;

 private:
  QWidget* m_parent;
};

}  // namespace orb::ui
