#include "model/files.h"
#include "orders/exchange/check_line.h"
#include "session/commands.h"
#include "support/boards.h"
#include "support/directories.h"
#include "ui/exchange/exchange_model.h"
#include "ui/help/help_window.h"
#include "ui/modal_script.h"
#include "ui/widgets/order_marks.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTextBrowser>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using ui::ExchangeModel;
using ui::OrderMark;

/// The preview as a test sees it.
struct Preview {
  explicit Preview(QDialog& dialog)
      : table(*dialog.findChild<QTableView*>(QStringLiteral("tblExchange"))),
        ok(*dialog.findChild<QPushButton*>(QStringLiteral("butExchangeOK"))) {}

  /// The cell of a line of the text, counted from 1.
  QModelIndex At(int line, ExchangeModel::Column column) const {
    int row = 0;
    while (table.model()->headerData(row, Qt::Vertical).toInt() != line)
      ++row;
    return table.model()->index(row, column);
  }
  std::string Understood(int line) const {
    return At(line, ExchangeModel::Understood).data().toString().toStdString();
  }
  OrderMark Mark(int line) const {
    return static_cast<OrderMark>(
        At(line, ExchangeModel::Understood).data(ui::OrderMarkRole).toInt());
  }
  bool IsTaken(int line) const {
    return At(line, ExchangeModel::Take).data(Qt::CheckStateRole).toInt() == Qt::Checked;
  }
  /// The keys work in this line.
  void Select(int line, ExchangeModel::Column column = ExchangeModel::Written) const {
    table.setFocus();
    table.setCurrentIndex(At(line, column));
  }
  /// What is shown from top to bottom: the numbers of the lines, and captions.
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
      if (table.isRowHidden(row)) continue;
      const QString number = table.model()->headerData(row, Qt::Vertical).toString();
      const QString caption = table.model()->index(row, 0).data().toString();
      rows.push_back((number.isEmpty() ? caption : number).toStdString());
    }
    return rows;
  }
  /// The numbers above the table.
  std::vector<std::string> Summary() const {
    std::vector<std::string> texts;
    const auto* panel = table.window()->findChild<QWidget*>(QStringLiteral("panExchangeSummary"));
    for (const QLabel* label : panel->findChildren<QLabel*>())
      texts.push_back(label->text().toStdString());
    return texts;
  }
  std::string Label(const char* name) const {
    return table.window()->findChild<QLabel*>(QLatin1String(name))->text().toStdString();
  }
  void Choose(const char* power) const {
    auto& box = *table.window()->findChild<QComboBox*>(QStringLiteral("cboExchangePower"));
    box.setCurrentText(QLatin1String(power));
  }

  QTableView& table;
  QPushButton& ok;
};

TEST_F(WindowTest, ImportedLinesAreCorrectedWhereTheyStand) {
  const auto file = directory_.Write(
      "orders.txt", "FRANCE\nHello!\nA Paris to Burgundy\nF Brest - \xC9xyz\nA Mar S Par - Bur\n");
  const auto correct = [](QDialog& dialog) {
    const Preview preview(dialog);
    EXPECT_EQ(dialog.windowTitle(), Titled(" Import Orders"));
    EXPECT_EQ(preview.Understood(3), "FRA A(Par) - Bur");
    EXPECT_EQ(preview.Mark(3), OrderMark::Passes);
    EXPECT_EQ(preview.Mark(4), OrderMark::Stopped);
    EXPECT_EQ(preview.At(4, ExchangeModel::Written).data().toString(),
              QString::fromUtf8("F Brest - \u00c9xyz"));
    EXPECT_THAT(preview.Rows(), ElementsAre("To be decided", "4", "Clear", "1", "3", "5"));
    EXPECT_THAT(preview.Summary(), ElementsAre("FRA: 2 sure, 1 unclear"));
    EXPECT_EQ(preview.Label("lblExchangeResult"), "OK files 2 orders. Left out: 1 unclear.");
    EXPECT_EQ(preview.table.currentIndex(), preview.At(4, ExchangeModel::Written));

    Press(Qt::Key_F2);
    auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return editor->selectedText() == editor->text().mid(10); }))
        << "what is not understood is selected";
    Type("ech");
    EXPECT_EQ(preview.Understood(4), "FRA F(Bre) - ECH") << "as it is typed";
    Press(Qt::Key_Escape);
    EXPECT_EQ(preview.Mark(4), OrderMark::Stopped);
    Press(Qt::Key_F2);
    Type("brest - mao");
    Press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview.table.hasFocus(); }));
    EXPECT_EQ(preview.table.currentIndex().row(), 1) << "where it was";
    EXPECT_EQ(preview.Label("lblExchangeResult"),
              "OK files 3 orders, 1 in place of what is in the list.");
    Press(Qt::Key_Return);
  };
  const ModalScript answers({FileChosen(Shown(file)), correct});
  Enter("FRA F(Bre) hold");
  Trigger("mnuFileImportOrders");
  EXPECT_THAT(Lines("lstOrders"),
              ElementsAre("FRA A(Par) - Bur", "FRA F(Bre) - MAO", "FRA A(Mar) S A(Par) - Bur"));
}

TEST_F(WindowTest, PastedOrdersOfAnotherPowerAreFiledOnlyWhenTicked) {
  QApplication::clipboard()->setText(
      "Orders for France:\nA Par \u2013 Bur\nENG F(Lon) - NTH\nDraft:\nA Mar - Spa\n");
  const auto cancel = [](QDialog& dialog) {
    const Preview preview(dialog);
    EXPECT_FALSE(preview.IsTaken(3));
    EXPECT_EQ(preview.Mark(3), OrderMark::Doubtful);
    EXPECT_THAT(
        preview.Summary(),
        ElementsAre("ENG: 1 doubtful", "FRA: 1 sure, 1 doubtful, 2 units without an order"));
    EXPECT_THAT(preview.Understood(5), EndsWith("sets it aside, in line 4)"));
    dialog.findChild<QPushButton*>(QStringLiteral("butExchangeHelp"))->click();
    auto* help = dialog.findChild<ui::HelpWindow*>();
    ASSERT_NE(help, nullptr) << "one that the dialog does not block";
    EXPECT_TRUE(help->isWindow());
    EXPECT_THAT(help->findChild<QTextBrowser*>()->toPlainText().toStdString(),
                HasSubstr("fixpaste.dat"));
    help->close();
    Press(Qt::Key_Escape);
  };
  const auto accept = [](QDialog& /*dialog*/) { Press(Qt::Key_Return); };
  const auto tick = [](QDialog& dialog) {
    const Preview preview(dialog);
    preview.Select(3);
    Press(Qt::Key_Space);
    EXPECT_TRUE(preview.IsTaken(3));
    Press(Qt::Key_Return);
  };
  const ModalScript answers({cancel, accept, tick});
  Trigger("mnuEditPasteOrders");
  EXPECT_THAT(Lines("lstOrders"), IsEmpty());
  Trigger("mnuEditPasteOrders");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur"));
  Trigger("mnuEditPasteOrders");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur", "ENG F(Lon) - NTH"));
}

TEST_F(WindowTest, ThePowerOfAPasteIsChosenAndMeaningsAreOffered) {
  QApplication::clipboard()->setText(
      "FRA A(Par) - Bur\nFRA A(Mar) - Bur\nGER A Mun S Bur\nGER F(Kie) - Hol\nF Xyz x\n"
      "AUS A(Vie) - Gal\nAUS A(Bud) - Gal\nRUS A War S Gal");
  const auto choose = [](QDialog& dialog) {
    const Preview preview(dialog);
    EXPECT_FALSE(preview.ok.isEnabled()) << "no power is named by all";
    auto& model = *preview.table.model();
    EXPECT_THAT(preview.Understood(3), StartsWith("It can mean "));
    preview.Select(3, ExchangeModel::Understood);
    Press(Qt::Key_F2);
    auto* meanings = dialog.findChild<QComboBox*>(QStringLiteral("cboExchangeMeaning"));
    ASSERT_NE(meanings, nullptr);
    meanings->setCurrentIndex(meanings->findText("GER A(Mun) S FRA A(Mar) - Bur"));
    emit meanings->activated(meanings->currentIndex());
    EXPECT_EQ(preview.Mark(3), OrderMark::Passes);
    EXPECT_THAT(preview.Understood(8), StartsWith("It can mean "));
    model.setData(preview.At(6, ExchangeModel::Written), "A Vie hold");
    EXPECT_EQ(preview.Understood(8), "RUS A(War) S AUS A(Bud) - Gal") << "the only move there";
    model.setData(preview.At(5, ExchangeModel::Written), "F Kie - Den");
    EXPECT_THAT(preview.Understood(4), HasSubstr("line 5 is taken instead"));
    EXPECT_FALSE(preview.IsTaken(4));
    preview.Select(3);
    Press(Qt::Key_Space);
    preview.Choose("Germany");
    EXPECT_EQ(preview.Understood(5), "GER F(Kie) - Den") << "kept when the power is chosen";
    EXPECT_FALSE(preview.IsTaken(1));
    EXPECT_FALSE(preview.IsTaken(3)) << "left out by hand";
    preview.Select(3);
    Press(Qt::Key_Space);
    EXPECT_TRUE(preview.ok.isEnabled());
    preview.ok.click();
  };
  const ModalScript answers({choose});
  Trigger("mnuEditPasteOrders");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("GER A(Mun) S FRA A(Mar) - Bur", "GER F(Kie) - Den"));
}

TEST_F(WindowTest, DoubtfulOrdersWaitAboveTheSureOnesForATick) {
  const auto file = directory_.Write("orders.txt",
                                     "FRANCE\nF Bre - MAO\nA Par - Bur (tentative)\nA Mar - Bur\n"
                                     "A Mar H\nGERMANY\nA Mun x\nA Ber - Kie\nI changed my mind:\n"
                                     "A Ber - Pru\n");
  const auto decide = [](QDialog& dialog) {
    const Preview preview(dialog);
    const std::vector<std::string> rows{
        "To be decided", "7", "3", "4", "5", "Clear", "1", "2", "6", "8", "10"};
    EXPECT_EQ(preview.Rows(), rows);
    EXPECT_EQ(preview.Label("lblExchangeResult"),
              "OK files 2 orders, 1 in place of what is in the list. Left out: 1 unclear, 3 "
              "doubtful.");
    EXPECT_THAT(preview.Summary(), ElementsAre("FRA: 1 sure, 3 doubtful, 2 units without an order",
                                               "GER: 1 sure, 1 unclear, 1 unit without an order"));
    EXPECT_EQ(preview.Understood(8),
              "replaced: GER A(Ber) - Kie  (the text itself orders otherwise below)");
    preview.Select(5);
    Press(Qt::Key_Space);
    EXPECT_TRUE(preview.IsTaken(5));
    Press(Qt::Key_Up);
    Press(Qt::Key_Space);
    EXPECT_TRUE(preview.IsTaken(4));
    EXPECT_FALSE(preview.IsTaken(5)) << "one order a unit";
    EXPECT_FALSE(preview.IsTaken(3));
    preview.Select(5);
    Press(Qt::Key_Down);
    EXPECT_EQ(preview.table.currentIndex(), preview.At(1, ExchangeModel::Written))
        << "past the caption";
    preview.Select(7);
    Press(Qt::Key_F2);
    Type("A Mun - Ruh");
    Press(Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview.table.hasFocus(); }));
    EXPECT_EQ(preview.Rows(), rows) << "no line jumps away";
    EXPECT_THAT(preview.Summary(),
                ElementsAre("FRA: 1 sure, 3 doubtful, 1 unit without an order", "GER: 2 sure"));
    Press(Qt::Key_Return);
  };
  Enter("GER F(Kie) - Den");
  Enter("FRA F(Bre) hold");
  const ModalScript answers({FileChosen(Shown(file)), decide});
  Trigger("mnuFileImportOrders");
  EXPECT_THAT(Lines("lstOrders"),
              ElementsAre("GER F(Kie) - Den", "FRA F(Bre) - MAO", "FRA A(Mar) - Bur",
                          "GER A(Mun) - Ruh", "GER A(Ber) - Pru"))
      << "in the order of the text";
}

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
