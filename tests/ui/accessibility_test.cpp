#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using testing::AnyOf;
using testing::IsEmpty;

/// Parts of Qt's own controls, which speak through the control.
bool IsPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  return qobject_cast<const QScrollBar*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
         widget.objectName().startsWith(QLatin1String("qt_")) ||
         QByteArray(widget.metaObject()->className()).startsWith("QComboBoxPrivate");
}

bool TakesTheKeyboard(const QWidget& widget) {
  const Qt::FocusPolicy policy = widget.focusPolicy();
  const auto* area = qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
  const bool viewport = area != nullptr && area->viewport() == &widget;
  return policy != Qt::NoFocus && !viewport;
}

/// The visible controls of a window that a screen reader cannot name.
std::vector<std::string> Nameless(const QWidget& window) {
  std::vector<std::string> found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&window) || !TakesTheKeyboard(*widget) || IsPart(*widget)) continue;
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    if (spoken->text(QAccessible::Name).isEmpty()) {
      found.push_back(widget->metaObject()->className() +
                      (" " + widget->objectName()).toStdString());
    }
  }
  return found;
}

/// The captions that share their letter with another one.
std::vector<std::string> SharedLetters(const QStringList& captions) {
  std::map<QString, QStringList> byKeys;
  for (const QString& caption : captions) {
    const QString keys = QKeySequence::mnemonic(caption).toString();
    if (!keys.isEmpty()) byKeys[keys] << caption;
  }
  std::vector<std::string> shared;
  for (const auto& [keys, texts] : byKeys) {
    if (texts.size() > 1) shared.push_back(texts.join(QLatin1String(", ")).toStdString());
  }
  return shared;
}

QStringList Captions(const QWidget& menu) {
  QStringList captions;
  for (const QAction* entry : menu.actions()) {
    if (!entry->isSeparator()) captions << entry->text();
  }
  return captions;
}

/// The captions in sight whose letters lead somewhere.
QStringList VisibleCaptions(const QWidget& window) {
  QStringList captions;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&window) || !widget->isEnabled()) continue;
    if (widget->window() != window.window()) continue;
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
      captions << button->text();
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label != nullptr && label->buddy() != nullptr) captions << label->text();
    const auto* tabs = qobject_cast<const QTabBar*>(widget);
    for (int i = 0; tabs != nullptr && i < tabs->count(); ++i)
      captions << tabs->tabText(i);
    if (qobject_cast<const QMenuBar*>(widget) != nullptr) captions << Captions(*widget);
  }
  return captions;
}

class AccessibilityTest : public WindowTest {
 protected:
  static void Check(const QWidget& window, const std::string& where) {
    EXPECT_THAT(Nameless(window), IsEmpty()) << where;
    EXPECT_THAT(SharedLetters(VisibleCaptions(window)), IsEmpty()) << where;
  }

  void CheckDialogOf(const char* entry) const {
    const ModalScript looked({[&](QDialog& dialog) {
      Check(dialog, entry);
      dialog.reject();
    }});
    Trigger(entry);
  }
};

TEST_F(AccessibilityTest, APartThatHasGoneIsNone) {
  const QList<QScrollArea*> areas = window_->findChildren<QScrollArea*>();
  ASSERT_FALSE(areas.isEmpty());
  for (QScrollArea* area : areas) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(area);
    ASSERT_TRUE(spoken->childCount() > 0);
    EXPECT_EQ(spoken->child(spoken->childCount()), nullptr) << area->metaObject()->className();
  }
}

TEST_F(AccessibilityTest, EveryControlHasANameAndALetterOfItsOwn) {
  QApplication::clipboard()->setText(QStringLiteral("FRA A Par - Bur"));
  for (const char* entry :
       {"mnuGameEditSeason", "mnuGameColours", "mnuEditPasteOrders", "mnuGameLetters"})
    CheckDialogOf(entry);
  for (const char* game : {"1901-2-autumn-0-start", "1902-2-autumn-1-moves",
                           "1902-2-autumn-2-retreats", "1902-1-spring-2-retreats"}) {
    Open(examples_ / (std::string(game) + ".orb"));
    Check(*window_, game);
  }
  Trigger("mnuGameTryOut");
  Check(*window_, "trial");
  Trigger("mnuGameUndo");
  Resolve(QStringLiteral("ENG F(NTH)"));
  Find<QListWidget>("lstReport").setCurrentRow(0);
  Find<QAbstractButton>("butWhatIf").click();
  Check(*window_, "what if");
  Trigger("mnuFileAnimateMove");
  Check(*window_, "animation");
  Find<QAbstractButton>("butAnimateClose").click();
  Press(Qt::Key_F1);
  Check(Find<QWidget>("frmHelp"), "help");
  Find<QWidget>("frmHelp").close();
  window_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  for (const char* editing : {"mnuGameEditUnits", "mnuGameEditProvinces"}) {
    Trigger(editing);
    Check(*window_, editing);
    const ModalScript looked({[&](QDialog& dialog) {
      Check(dialog, editing);
      dialog.reject();
    }});
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
  }
  const std::vector<std::string> twins{"&Colour, &Colour borders by owner"};
  for (const QMenu* menu : window_->findChildren<QMenu*>()) {
    const QStringList captions = Captions(*menu);
    EXPECT_THAT(SharedLetters(captions), AnyOf(IsEmpty(), twins));
    for (const QString& caption : captions)
      EXPECT_FALSE(QKeySequence::mnemonic(caption).isEmpty()) << caption.toStdString();
  }
}

}  // namespace
}  // namespace orb::tests
