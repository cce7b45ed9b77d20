#include "ui/help/help_window.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace orb::tests {
namespace {

class HelpWindowTest : public testing::Test {
 protected:
  template <class Control>
  Control& Find(const char* name) {
    auto* control = window_.findChild<Control*>(QString::fromLatin1(name));
    if (control == nullptr) throw std::runtime_error(name);
    return *control;
  }

  QString Topic() { return Find<QTextBrowser>("txtHelpPage").accessibleName(); }
  QString Text() { return Find<QTextBrowser>("txtHelpPage").toPlainText(); }
  QString Found() { return Find<QLabel>("lblHelpFound").text(); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  void Open(const char* topic) {
    window_.showTopic(QString::fromLatin1(topic));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  }

  ui::HelpWindow window_{
      help::ReadHelpTopics("%A & <b>\n<i>1 < 2</i> [B] &amp; %1 %2\n"
                           "%B\nTwo  words\nand two\nwords\n"
                           "%C\nNothing\n    Order  Two words\n")};
};

TEST_F(HelpWindowTest, LinksAndKeysLeadThroughTheTopics) {
  Open("no such topic");
  EXPECT_EQ(Topic(), "A & <b>");
  EXPECT_EQ(Text(), "A & <b>\n<i>1 < 2</i> B &amp; %1 %2");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Topic(), "A & <b>");

  Press(Qt::Key_Tab);
  Press(Qt::Key_Return);
  EXPECT_EQ(Topic(), "B");
  Find<QListWidget>("lstHelpTopics").setCurrentRow(2);
  EXPECT_EQ(Topic(), "C");
  Press(Qt::Key_Left, Qt::AltModifier);
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Topic(), "A & <b>");
  EXPECT_FALSE(Find<QAction>("mnuHelpBack").isEnabled());
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Topic(), "B");
  EXPECT_EQ(Find<QListWidget>("lstHelpTopics").currentRow(), 1);
  window_.showTopic(QStringLiteral("A & <b>"));
  EXPECT_FALSE(Find<QAction>("mnuHelpForward").isEnabled());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(window_.isVisible());
}

TEST_F(HelpWindowTest, SearchRunsThroughAllTopics) {
  Open("B");
  Press(Qt::Key_F, Qt::ControlModifier);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral(" two words"));
  EXPECT_EQ(Found(), "1 of 3");
  const auto marked = [this] {
    QStringList texts;
    for (const auto& mark : Find<QTextBrowser>("txtHelpPage").extraSelections())
      texts << mark.cursor.selectedText();
    return texts.join(QLatin1Char('|'));
  };
  EXPECT_EQ(marked(), "Two words|two words");
  Press(Qt::Key_F3);
  Press(Qt::Key_F3);
  EXPECT_EQ(Topic(), "C");
  EXPECT_EQ(Found(), "3 of 3");
  EXPECT_EQ(marked(), "Two words");
  EXPECT_EQ(Find<QListWidget>("lstHelpTopics").item(1)->text(), "B (2)");
  Press(Qt::Key_Return);
  EXPECT_EQ(Found(), "1 of 3");
  Press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Topic(), "C");
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Topic(), "B");
  QTest::keyClicks(&Find<QLineEdit>("txtHelpFind"), QStringLiteral("x"));
  EXPECT_EQ(Found(), "not found");
}

}  // namespace
}  // namespace orb::tests
