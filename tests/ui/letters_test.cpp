#include "letters/received.h"

#include "ui/letters/letters_dialog.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::Not;

class LettersTest : public WindowTest {
 protected:
  void SetUp() override {
    game_ = directory_.Path() / "league.orb";
    std::filesystem::copy_file(examples_ / "1903-2-autumn-0-start.orb", game_);
    Open(game_);
  }

  static void Press(const QDialog& dialog, const char* button) {
    dialog.findChild<QPushButton*>(QLatin1String(button))->click();
  }

  static std::string TextOf(const QDialog& dialog, const char* view) {
    return dialog.findChild<QPlainTextEdit*>(QLatin1String(view))->toPlainText().toStdString();
  }

  void Paste(const char* text) const {
    QApplication::clipboard()->setText(QLatin1String(text));
    Trigger("mnuEditPasteOrders");
  }

  static void Accept(QDialog& dialog) { Press(dialog, "butExchangeOK"); }

  std::filesystem::path game_;
};

TEST_F(LettersTest, AreCopiedMailedAndSavedWithTheirMaps) {
  Enter(QStringLiteral("FRA A(Bur) - Mun"));
  Enter(QStringLiteral("GER A(Mun) - Bur"));
  const auto folder = directory_.Path() / "out";
  std::filesystem::create_directory(folder);
  const ModalScript script(
      {[&](QDialog& dialog) {
         auto& letters = dynamic_cast<ui::LettersDialog&>(dialog);
         QUrl opened;
         letters.setOpener([&](const QUrl& link) {
           opened = link;
           return true;
         });
         dialog.findChild<QListWidget*>()->setCurrentRow(1);
         EXPECT_THAT(TextOf(dialog, "txtLetter"), HasSubstr("FRA A(Bur) - Mun"));
         EXPECT_THAT(TextOf(dialog, "txtLetter"), Not(HasSubstr("GER A(Mun)")));
         EXPECT_GT(dialog.findChild<QLabel*>(QStringLiteral("lblLetterMap"))->pixmap().width(),
                   300);
         Press(dialog, "butLetterCopy");
         EXPECT_EQ(QApplication::clipboard()->text().toStdString(), TextOf(dialog, "txtLetter"));
         Press(dialog, "butLetterMail");
         EXPECT_EQ(opened.scheme(), QStringLiteral("mailto"));
         EXPECT_THAT(opened.query(QUrl::FullyDecoded).toStdString(), HasSubstr("FRA A(Bur) - Mun"));
         // The next dialog comes up over this one.
         QTimer::singleShot(0, &dialog, [&dialog] {
           Press(dialog, "butLetterSave");
           EXPECT_THAT(
               dialog.findChild<QLabel*>(QStringLiteral("lblLetterNote"))->text().toStdString(),
               HasSubstr("The letters are in "));
           dialog.reject();
         });
       },
       FileChosen(QString::fromStdString(folder.string()))});
  Trigger("mnuGameLetters");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 14);
}

TEST_F(LettersTest, WhatCameInIsRegisteredAndFoundAgain) {
  {
    const ModalScript script({Accept, Accept});
    Paste("FRANCE\nA Bur - Mun\nA Par - Xyz");
    Paste("GERMANY\nA Mun - Bur");
  }
  const auto receipts = letters::ReadRegister(game_);
  ASSERT_EQ(receipts.size(), 2U);
  EXPECT_THAT(receipts[0].Filed, testing::ElementsAre("FRA A(Bur) - Mun"));
  EXPECT_EQ(receipts[0].NotFiled.size(), 1U);
  EXPECT_EQ(receipts[0].Source, "the clipboard");
  EXPECT_EQ(receipts[0].Text, "FRANCE\nA Bur - Mun\nA Par - Xyz\n");
  const ModalScript script({[](QDialog& dialog) {
    const auto& list = *dialog.findChild<QListWidget*>(QStringLiteral("lstReceived"));
    EXPECT_EQ(list.count(), 2);
    EXPECT_THAT(TextOf(dialog, "txtReceived"), HasSubstr("| GERMANY"));
    dialog.findChild<QLineEdit*>(QStringLiteral("txtReceivedSearch"))
        ->setText(QStringLiteral("xyz france"));
    EXPECT_EQ(list.count(), 1);
    EXPECT_THAT(TextOf(dialog, "txtReceived"), HasSubstr("Filed: FRA A(Bur) - Mun"));
    dialog.reject();
  }});
  Trigger("mnuGameReceived");
}

TEST_F(LettersTest, ARegisterThatCannotBeWrittenIsToldOnce) {
  std::filesystem::create_directory(letters::RegisterOf(game_));
  const ModalScript script({Accept,
                            [](QDialog& dialog) {
                              EXPECT_THAT(dynamic_cast<QMessageBox&>(dialog).text().toStdString(),
                                          HasSubstr("not registered"));
                              dialog.reject();
                            },
                            Accept});
  Paste("FRANCE\nA Bur - Mun");
  Paste("FRANCE\nA Bur - Bel");
  EXPECT_EQ(Lines("lstOrders").size(), 1U);
}

TEST_F(LettersTest, TheGameIsComparedWithAnother) {
  const ModalScript script(
      {FileChosen(QString::fromStdString((examples_ / "1903-2-autumn-1-moves.orb").string())),
       [](QDialog& dialog) {
         EXPECT_THAT(TextOf(dialog, "txtCorrection"), HasSubstr("FRA A(Mun) is in Ruh."));
         dialog.reject();
       }});
  Trigger("mnuFileCompare");
}

}  // namespace
}  // namespace orb::tests
