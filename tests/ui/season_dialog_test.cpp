#include "model/files.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QTest>
#include <gmock/gmock.h>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SeasonDialogTest : public WindowTest {
 protected:
  /// Opens the dialog, does something in it and presses a key.
  void Edit(const std::function<void(QDialog&)>& edit, int key) const {
    const ModalScript script({[&](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "frmSeason");
      edit(dialog);
      QTest::keyClick(dialog.findChild<QLineEdit*>("txtTitle"), static_cast<Qt::Key>(key));
    }});
    Trigger("mnuGameEditSeason");
  }

  /// What a save would write.
  std::string Saved() {
    Trigger("mnuFileSave");
    return model::ReadFile(directory_.Path() / "game.orb");
  }

  std::string File(const model::GameState& game) {
    return directory_.Write("game.orb", model::FormatGameFile(game)).string();
  }
};

void Choose(const QDialog& dialog, const char* box, const QString& caption) {
  auto* choices = dialog.findChild<QComboBox*>(QLatin1String(box));
  choices->setCurrentIndex(choices->findText(caption));
}

TEST_F(SeasonDialogTest, OkChangesTheGameAndCancelDoesNot) {
  model::GameState game = EmptyBoard("Spring", "moves");
  game.OrdersList = {"ENG F(Lon) - NTH"};
  Open(File(game));
  Trigger("mnuGameEditUnits");
  const auto edit = [](QDialog& dialog) {
    dialog.findChild<QLineEdit*>("txtTitle")->clear();
    QTest::keyClicks(dialog.findChild<QLineEdit*>("txtTitle"), "Spring cup");
    Choose(dialog, "cboSeason", "Autumn");
    dialog.findChild<QSpinBox*>("txtYear")->setValue(-32768);
    Choose(dialog, "cboStage", "Retreats");
    EXPECT_EQ(dialog.findChild<QLabel*>("lblStageNote")->text(), "No unit is dislodged.");
    QTest::keyClicks(dialog.findChild<QLineEdit*>("txtPlayerITA"), "Ada");
    QTest::keyClicks(dialog.findChild<QPlainTextEdit*>("txtFreeText"), "one\rtwo");
    EXPECT_EQ(dialog.findChild<QLabel*>("lblLineCount")->text(), "2 of 100 lines");
  };
  const std::string before = Saved();
  const QImage map = Map();
  Edit(edit, Qt::Key_Escape);
  EXPECT_EQ(Saved(), before);
  Edit(edit, Qt::Key_Return);
  EXPECT_THAT(Saved(), HasSubstr("\"Spring cup\",\"Autumn\",-32768,\"retreats\"\r\n"));
  EXPECT_THAT(Saved(), HasSubstr("\r\n1\r\n\"ENG F(Lon) - NTH\"\r\n2\r\n\"one\"\r\n\"two\"\r\n"));
  EXPECT_THAT(Saved(), HasSubstr("\"ITA\",\"Ada\"\r\n"));
  EXPECT_EQ(window_->windowTitle(), Titled(" Spring cup") + QLatin1String("[*]"));
  EXPECT_EQ(StagePanel(), "fraRetreats");
  EXPECT_TRUE(Find<QAction>("mnuGameEnterRetreats").isChecked());
  EXPECT_FALSE(Find<QAction>("mnuGameEditUnits").isChecked());
  EXPECT_NE(Map(), map);
  Edit([](QDialog& dialog) { dialog.findChild<QLineEdit*>("txtTitle")->clear(); }, Qt::Key_Return);
  EXPECT_EQ(window_->windowTitle(), Titled() + QLatin1String("[*]"));
}

TEST_F(SeasonDialogTest, WhatAFileHoldsIsKeptByteForByte) {
  model::GameState game = EmptyBoard("Summer", "siesta");
  game.Title = "\xA0 caf\xE9 \x93x\x94";
  game.TextLines.Append(
      "fixed\xA0"
      "blank\tand tab ");
  game.TextLines.Append("");
  Open(File(game));
  const std::string before = Saved();
  Edit([](QDialog&) {}, Qt::Key_Return);
  EXPECT_EQ(Saved(), before);
  Edit(
      [](QDialog& dialog) {
        auto* text = dialog.findChild<QPlainTextEdit*>("txtFreeText");
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, "end");
      },
      Qt::Key_Return);
  EXPECT_THAT(Saved(), HasSubstr("\"fixed\xA0"
                                 "blank\tand tab \"\r\n\"end\"\r\n"));
}

TEST_F(SeasonDialogTest, WhatCannotBeStoredIsRefusedAndSaidWhy) {
  const auto edit = [](QDialog& dialog) {
    auto* title = dialog.findChild<QLineEdit*>("txtTitle");
    auto* text = dialog.findChild<QPlainTextEdit*>("txtFreeText");
    const auto* hint = dialog.findChild<QLabel*>("lblHint");
    const auto paste = [](QWidget* box, const QString& pasted) {
      QApplication::clipboard()->setText(pasted);
      QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    };
    title->clear();
    QTest::keyClicks(title, "a\"");
    EXPECT_EQ(hint->text(), "A game file cannot hold double quotes.");
    QTest::keyClicks(title, "b");
    EXPECT_EQ(hint->text(), "");
    paste(title, QString::fromUtf8("Ж"));
    EXPECT_EQ(hint->text(), QString::fromUtf8("A game file cannot hold the character Ж."));
    paste(title, "c\nd");
    EXPECT_EQ(title->text(), "abc d");

    QTest::keyClicks(text, "x\"y");
    EXPECT_EQ(hint->text(), "");
    EXPECT_EQ(text->toPlainText(), "xy");
    paste(text, QString::fromUtf8("\r\n\"Ж€\""));
    EXPECT_EQ(text->toPlainText(), QString::fromUtf8("xy\n€"));
    EXPECT_THAT(hint->text().toStdString(), HasSubstr("3 characters were left out."));
    QTest::keyClick(text, Qt::Key_Return, Qt::ShiftModifier);
    paste(text, QString(96, '\n') + "last\n\nx\ny\n");
    EXPECT_EQ(text->blockCount(), 100);
    EXPECT_EQ(text->toPlainText().section("\n", -1), "") << "as much as fits";
    EXPECT_EQ(hint->text(), "A game keeps at most 100 lines of text. 2 lines were left out.");
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(text->blockCount(), 100);
    EXPECT_EQ(hint->text(), "A game keeps at most 100 lines of text.");
    QTest::keyClick(text, Qt::Key_A, Qt::ControlModifier);
    paste(text, QString(99, '\n') + "last\n");
    EXPECT_EQ(text->blockCount(), 100) << "in place of the others";
    EXPECT_EQ(text->toPlainText().section("\n", -1), "last");
    EXPECT_EQ(hint->text(), "") << "a line break behind the last line is none of its own";
    text->clear();
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8("\"é"));
    QApplication::sendEvent(text, &composed);
    EXPECT_EQ(text->toPlainText(), QString::fromUtf8("é"));
  };
  Edit(edit, Qt::Key_Return);
  EXPECT_EQ(window_->windowTitle(), Titled(" abc d") + QLatin1String("[*]"));
}

TEST_F(SeasonDialogTest, TheReportGoesWhenTheStageGoesBack) {
  Resolve("ENG F(Lon)");
  Edit([](QDialog& dialog) { Choose(dialog, "cboSeason", "Autumn"); }, Qt::Key_Return);
  EXPECT_EQ(Lines("lstReport").size(), 22U);
  const auto goBack = [](QDialog& dialog) {
    Choose(dialog, "cboStage", "Adjustments");
    EXPECT_EQ(dialog.findChild<QLabel*>("lblStageNote")->text(), "The report will be emptied.");
  };
  Edit(goBack, Qt::Key_Return);
  EXPECT_EQ(StagePanel(), "fraAdjustments");
  EXPECT_THAT(Lines("lstReport"), ElementsAre());
}

}  // namespace
}  // namespace orb::tests
