#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QTimer>

#include <deque>
#include <functional>

namespace orb::tests {

/// Handles the modal dialogs that come up while it lives, one step a dialog. A dialog without a
/// step and a step without a dialog are failures; neither stops the test.
class ModalScript {
 public:
  using Step = std::function<void(QDialog&)>;

  explicit ModalScript(std::deque<Step> steps);
  ModalScript(const ModalScript&) = delete;
  ModalScript& operator=(const ModalScript&) = delete;
  ~ModalScript();

 private:
  void HandleDialog();

  std::deque<Step> steps_;
  QTimer timer_;
};

/// A window's title: the program's name and what follows it.
QString Titled(const char* rest = "");

/// Presses a key where the keyboard goes to now.
void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Types a text where the keyboard goes to now.
void Type(const QString& text);

/// A step for a message box: expects its text and presses the button's key.
ModalScript::Step Answered(const QString& text, int key,
                           Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// A step for the message box of this name: presses one of its buttons.
ModalScript::Step Pressed(const char* box, QMessageBox::StandardButton button);

/// A step for a file dialog: types the file's name in and accepts.
ModalScript::Step FileChosen(const QString& path);

}  // namespace orb::tests
