#include "model/files.h"
#include "orders/exchange/check_line.h"
#include "session/commands.h"
#include "support/boards.h"
#include "support/directories.h"
#include "ui/exchange_preview.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using ui::OrderMark;
using Preview = ExchangePreview;

TEST_F(WindowTest, OrdersHandedOutAreReadAgain) {
  EXPECT_FALSE(Find<QAction>("mnuFileExportOrders").isEnabled()) << "there are none";
  const std::vector<std::string> orders{"FRA A(Par) - Bur", "FRA A(Mar) S A(Par) - Bur",
                                        "RUS F(Stp.s) - BOT"};
  for (const std::string& order : orders)
    Enter(QString::fromStdString(order));
  const auto file = directory_.Path() / "handed out.txt";
  const auto propose = [&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), Titled(" Export Orders"));
    EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), "s01_orders.txt");
    FileChosen(Shown(file))(dialog);
  };
  const auto accept = [](QDialog& /*dialog*/) { Press(Qt::Key_Return); };
  const ModalScript answers({propose, FileChosen(Shown(file)), accept});
  Trigger("mnuFileExportOrders");
  Trigger("mnuEditCopyOrders");
  const std::string written = model::ReadFile(file);
  EXPECT_THAT(written, StartsWith("FRA A(Par) - Bur\r\n"));
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), written);
  Trigger("mnuFileNew");
  Trigger("mnuFileImportOrders");
  EXPECT_EQ(Lines("lstOrders"), orders);
}

TEST_F(WindowTest, AnOrderSheetForSomethingElseIsNamedAboveItsOrders) {
  session::Situation start{EmptyBoard("Spring", "moves")};
  session::NewGame(start, DataDirectory());
  model::GameState game = start.Game;
  const auto paste = [&](const std::function<void(const Preview&, const QLabel&)>& look) {
    QApplication::clipboard()->setText(QString::fromStdString(
        "France\nFRA A(Par) - Bur\n" + exchange::CheckLineText(game, "FRA") + "\n"));
    const ModalScript answers({[&](QDialog& dialog) {
      look(Preview(dialog), *dialog.findChild<QLabel*>(QStringLiteral("lblExchangeSheet")));
      Press(Qt::Key_Escape);
    }});
    Trigger("mnuEditPasteOrders");
  };
  paste([](const Preview& preview, const QLabel& sheet) {
    EXPECT_FALSE(sheet.isVisible()) << sheet.text().toStdString();
    EXPECT_EQ(preview.Mark(2), OrderMark::Passes) << "sure";
    EXPECT_THAT(preview.Rows(), ElementsAre("1", "2")) << "the check line is no order";
    preview.Choose("Germany");
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.text(), "The order sheet is of FRA, not of GER.");
  });
  game.Year = 1903;
  paste([](const Preview& preview, const QLabel& sheet) {
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.text(),
              "The order sheet of FRA is of Spring 1903; the game is in Spring 1901.");
    EXPECT_TRUE(preview.ok.isEnabled()) << "whoever knows better may go on";
  });
}

TEST_F(WindowTest, AMailIsNamedAboveItsOrders) {
  const std::string picture(300'000, 'x');
  const auto file = directory_.Write("orders.eml",
                                     "From: Tom <tom@example.org>\nSubject: Spring <b>orders</b>\n"
                                     "Content-Type: multipart/mixed; boundary=bb\n\n--bb\n"
                                     "Content-Transfer-Encoding: base64\n\nQSBQYXIgLSBCdXI=\n--bb\n"
                                     "Content-Type: image/png\n\n" +
                                         picture + "\n--bb--\n");
  if (!std::filesystem::exists(model::ProgramDirectory() / "orbmail.so")) {
    GTEST_SKIP() << "built without GMime";
  }
  const auto accept = [](QDialog& dialog) {
    const Preview preview(dialog);
    EXPECT_EQ(preview.Label("lblExchangeMails"),
              "From Tom <tom@example.org>: Spring <b>orders</b>");
    Press(Qt::Key_Return);
  };
  const ModalScript answers({FileChosen(Shown(file)), accept});
  Trigger("mnuFileImportOrders");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur"));
}

TEST_F(WindowTest, ThePowerOfASenderIsRememberedUntilItIsUnticked) {
  if (!std::filesystem::exists(model::ProgramDirectory() / "orbmail.so")) {
    GTEST_SKIP() << "built without GMime";
  }
  // Orders of two powers, so that the text names none.
  const auto copyMail = [](const QString& sender) {
    QApplication::clipboard()->setText(QStringLiteral("From: ") + sender +
                                       QStringLiteral("\nSubject: Spring\nMessage-ID: <1@x>\n\n"
                                                      "FRA A(Par) - Bur\nGER A(Mun) - Ruh\n"));
  };
  const auto paste = [&](const QString& sender, const QString& offered, bool tick) {
    copyMail(sender);
    const auto see = [&](QDialog& dialog) {
      const Preview preview(dialog);
      auto* power = dialog.findChild<QComboBox*>(QStringLiteral("cboExchangePower"));
      auto* remember = dialog.findChild<QCheckBox*>(QStringLiteral("chkExchangeRemember"));
      ASSERT_NE(remember, nullptr);
      EXPECT_EQ(power->currentText(), offered) << sender.toStdString();
      EXPECT_EQ(remember->isChecked(), !offered.isEmpty());
      preview.Choose("Germany");
      remember->setChecked(tick);
      preview.ok.click();
    };
    const ModalScript answers({see});
    Trigger("mnuEditPasteOrders");
  };
  paste("Tom <tom@example.org>", "", true);
  paste("T. Baker <TOM@example.org>", "Germany", false);
  paste("tom@example.org", "", false);
}

TEST_F(WindowTest, TextsThatCannotBeReadAreRefused) {
  const auto folder = directory_.Path().string() + "/";
  directory_.Write("long.txt", std::string(200'001, 'a'));
  directory_.Write("binary.txt", std::string("a\0b", 3));
  directory_.Write("good.txt", "A Par - Bur");
  const auto told = [](const std::string& part) {
    return [part](QDialog& dialog) {
      EXPECT_THAT(dynamic_cast<QMessageBox&>(dialog).text().toStdString(), HasSubstr(part));
      dialog.accept();
    };
  };
  const auto& paste = Find<QAction>("mnuEditPasteOrders");
  QApplication::clipboard()->clear();
  EXPECT_FALSE(paste.isEnabled());
  QApplication::clipboard()->setText(QStringLiteral(" \n"));
  EXPECT_TRUE(paste.isEnabled());
  std::filesystem::remove(program_.Path() / "fixpaste.dat");
  program_.Write("fixpaste.dat", "\"no pair");
  const ModalScript answers(
      {FileChosen(QString::fromStdString(folder + "long.txt")), told("200001 bytes"),
       FileChosen(QString::fromStdString(folder + "binary.txt")), told("value 0"),
       FileChosen(QString::fromStdString(folder + "good.txt")), told("fixpaste.dat"),
       told("no text on the clipboard")});
  for (int i = 0; i < 3; ++i)
    Trigger("mnuFileImportOrders");
  Trigger("mnuEditPasteOrders");
  EXPECT_THAT(Lines("lstOrders"), IsEmpty());
}

}  // namespace
}  // namespace orb::tests
