#include "ui/modal_script.h"

#include "model/messages.h"
#include "text/qt/text_codec.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace orb::tests {
namespace {

/// Where the keyboard goes to. Without a window manager nobody hands the focus back to the window
/// when a dialog, or a list that popped up, has closed.
QWidget* FocusWidget() {
  const QWidget* active = QApplication::activeWindow();
  if (QApplication::focusWidget() == nullptr || active == nullptr || !active->isVisible()) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible() || window->windowType() == Qt::Popup) continue;
      window->activateWindow();
      if (!QTest::qWaitForWindowActive(window)) ADD_FAILURE() << "the window is not active";
    }
  }
  QWidget* widget = QApplication::focusWidget();
  if (widget == nullptr) throw std::runtime_error("nothing has the focus");
  return widget;
}

}  // namespace

ModalScript::ModalScript(std::deque<Step> steps) : steps_(std::move(steps)) {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { HandleDialog(); });
  timer_.start(1);
}

ModalScript::~ModalScript() {
  EXPECT_EQ(steps_.size(), 0U) << "dialogs that did not come up";
}

void ModalScript::HandleDialog() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isActiveWindow() || dialog->property("handled").toBool())
    return;
  dialog->setProperty("handled", true);
  if (steps_.empty()) {
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    ADD_FAILURE() << "unexpected dialog: "
                  << (box != nullptr ? box->text() : dialog->windowTitle()).toStdString();
    return dialog->reject();
  }
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  step(*dialog);
}

void Press(int key, Qt::KeyboardModifiers modifiers) {
  QWidget* target = FocusWidget();
  const auto buttons = target->window()->findChildren<QAbstractButton*>();
  QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
  // A button pressed by its mnemonic is seen to go down before it acts.
  EXPECT_TRUE(QTest::qWaitFor([&] {
    return std::none_of(buttons.begin(), buttons.end(),
                        [](auto* button) { return button->isDown(); });
  }));
}

QString Titled(const char* rest) {
  return text::ToQString(model::ProgramName) + QLatin1String(rest);
}

void Type(const QString& text) {
  QWidget* target = FocusWidget();
  for (const QChar character : text) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, character);
    QApplication::sendEvent(target, &press);
  }
}

ModalScript::Step Answered(const QString& text, int key, Qt::KeyboardModifiers modifiers) {
  return [=](QDialog& dialog) {
    const auto* box = qobject_cast<QMessageBox*>(&dialog);
    EXPECT_EQ(box != nullptr ? box->text().toStdString() : "no message box", text.toStdString());
    EXPECT_EQ(dialog.windowTitle(), Titled());
    QTest::keyClick(&dialog, static_cast<Qt::Key>(key), modifiers);
    if (!QTest::qWaitFor([&] { return !dialog.isVisible(); }, 1000)) {
      ADD_FAILURE() << "the key does not answer the box";
      dialog.reject();
    }
  };
}

ModalScript::Step Pressed(const char* box, QMessageBox::StandardButton button) {
  return [=](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), box);
    const auto* buttons = dialog.findChild<QDialogButtonBox*>();
    auto* wanted =
        buttons != nullptr ? buttons->button(QDialogButtonBox::StandardButton(+button)) : nullptr;
    if (wanted != nullptr) return wanted->click();
    ADD_FAILURE() << "no such button: " << dialog.windowTitle().toStdString();
    dialog.reject();
  };
}

ModalScript::Step FileChosen(const QString& path) {
  return [path](QDialog& dialog) {
    auto* name = dialog.findChild<QLineEdit*>();
    ASSERT_NE(name, nullptr);
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
    dialog.setProperty("handled", false);
  };
}

}  // namespace orb::tests
