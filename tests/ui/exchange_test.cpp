#include "support/directories.h"
#include "ui/exchange/exchange_model.h"
#include "ui/exchange_preview.h"
#include "ui/help/help_window.h"
#include "ui/modal_script.h"
#include "ui/widgets/order_marks.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
using Preview = ExchangePreview;

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
    preview.Choose("All powers");
    EXPECT_TRUE(preview.IsTaken(3));
    preview.Choose("France");
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

}  // namespace
}  // namespace orb::tests
