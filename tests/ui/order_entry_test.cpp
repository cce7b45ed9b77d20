#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"
#include "ui/entry/adjustments_panel.h"
#include "ui/entry/orders_panel.h"
#include "ui/entry/retreats_panel.h"
#include "ui/modal_script.h"
#include "ui/widgets/order_marks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using ui::OrderMark;

/// A panel with its desk, alone in a window.
template <class Panel>
struct Entry {
  explicit Entry(model::GameState game, std::vector<model::Answer> answers = {})
      : messages(std::move(answers)),
        desk({{std::move(game)}}, DataDirectory(), messages, nullptr),
        panel(desk),
        list(*panel.template findChild<QListWidget*>()),
        text(*panel.template findChild<QLineEdit*>()) {
    panel.show();
    panel.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&panel));
  }

  void Press(const char* button) {
    panel.template findChild<QAbstractButton*>(QLatin1String(button))->click();
  }
  void File(const char* order) {
    text.setText(QLatin1String(order));
    QTest::keyClick(&text, Qt::Key_Return);
  }
  void Click(std::string_view place, Qt::KeyboardModifiers modifiers = {}) {
    const model::Map& map = *RealMap();
    const auto hitMap = render::LoadHitMap(DataDirectory(), map, 1.2);
    const model::Province& at = map.Provinces[FindProvince(map, place)];
    panel.mapClicked({desk.game(), hitMap, {at.UnitX, at.UnitY}, modifiers});
  }
  std::string Text() const { return text.text().toStdString(); }
  QListWidget& Open() const {
    return *panel.template findChild<QListWidget*>(list.objectName() + QStringLiteral("Open"));
  }
  std::string Missing() const {
    return panel.template findChild<ui::ElidedLabel*>()->text().toStdString();
  }
  OrderMark Mark(int row) const {
    return static_cast<OrderMark>(list.item(row)->data(ui::OrderMarkRole).toInt());
  }
  std::string Tip(int row) const { return list.item(row)->toolTip().toStdString(); }

  ScriptedMessages messages;
  ui::Desk desk;
  Panel panel;
  QListWidget& list;
  QLineEdit& text;
};

using OrdersEntry = Entry<ui::OrdersPanel>;
using RetreatsEntry = Entry<ui::RetreatsPanel>;
using AdjustmentsEntry = Entry<ui::AdjustmentsPanel>;

TEST(OrderEntry, CommandsWriteOnAndLeaveTheCaretAtTheEnd) {
  const auto check = [](auto entry, const std::vector<std::pair<const char*, const char*>>& cases) {
    for (const auto& [button, text] : cases) {
      entry->text.setText(QStringLiteral("ENG A(Lvp) "));
      entry->text.home(false);
      entry->list.setFocus();
      entry->Press(button);
      EXPECT_EQ(entry->Text(), text) << button;
      EXPECT_TRUE(entry->text.hasFocus()) << button;
      EXPECT_EQ(entry->text.cursorPosition(), entry->text.text().size()) << button;
    }
    QStringList keys;
    for (const auto* button : entry->panel.template findChildren<QAbstractButton*>()) {
      keys << QKeySequence::mnemonic(button->text()).toString();
      EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
    }
    EXPECT_EQ(keys.removeDuplicates() + keys.count(QString()), 0) << "each has its own mnemonic";
  };
  check(std::make_unique<OrdersEntry>(EmptyBoard("Spring", "moves")),
        {{"butOrderMove", "ENG A(Lvp) - "},
         {"butOrderHold", "ENG A(Lvp) hold "},
         {"butOrderSupport", "ENG A(Lvp) S "},
         {"butOrderConvoy", "ENG A(Lvp) C "},
         {"butOrdersHelp", "ENG A(Lvp) "},
         {"butOrderCancel", ""}});
  check(std::make_unique<RetreatsEntry>(EmptyBoard("Spring", "retreats")),
        {{"butRetreatRetreat", "ENG A(Lvp) retreat "},
         {"butRetreatDisband", "ENG A(Lvp) disband "},
         {"butRetreatCancel", ""}});
  check(std::make_unique<AdjustmentsEntry>(EmptyBoard("Autumn", "adjustments")),
        {{"butAdjustmentBuild", "ENG A(Lvp)  build "},
         {"butAdjustmentDisband", "ENG A(Lvp)  disband "},
         {"optAdjustmentFleet", "ENG F(Lvp) "},
         {"butAdjustmentCancel", ""}});
}

TEST(OrderEntry, KeysServeBothTheTextAndTheList) {
  OrdersEntry entry(Board("Spring", "moves", {"ENG A(Lvp) hold", "ENG F(Lon) hold"}));
  entry.panel.startEntry();
  QTest::keyClick(&entry.text, Qt::Key_Up);
  EXPECT_TRUE(entry.list.hasFocus());
  EXPECT_EQ(entry.list.currentRow(), 1);
  QTest::keyClick(&entry.list, Qt::Key_Up);
  QTest::keyClick(&entry.list, Qt::Key_Return);
  EXPECT_EQ(entry.Text(), "ENG A(Lvp) hold");
  QTest::keyClick(&entry.text, Qt::Key_Escape);
  EXPECT_EQ(entry.Text(), "");
  entry.list.setFocus();
  QTest::keyClick(&entry.list, Qt::Key_Delete);
  EXPECT_EQ(entry.list.count(), 1);
  EXPECT_TRUE(entry.text.hasFocus());
  entry.list.setFocus();
  QTest::keyClick(&entry.list, Qt::Key_Delete);
  EXPECT_EQ(entry.list.count(), 1) << "no line is selected";
}

TEST(OrderEntry, ClicksOnTheMapWriteOrders) {
  OrdersEntry entry(Board("Spring", "moves", {"ENG A(Lvp)", "ENG F(NTH)", "RUS F(Stp.s)"}));
  entry.Click("NTH", Qt::ControlModifier);
  entry.Click("Lvp");
  entry.Click("Nwy");
  EXPECT_EQ(entry.Text(), "ENG F(NTH) C A(Lvp) - Nwy ");
  entry.Press("butOrderOK");
  entry.Click("Stp.s");
  entry.Click("Stp");
  EXPECT_EQ(entry.Text(), "RUS F(Stp.s) hold ") << "its own place, not the other coast";
  entry.Press("butOrderCancel");
  entry.Click("Lvp");
  entry.Press("butOrderSupport");
  entry.Click("NTH");
  entry.Press("butOrderMove");
  entry.Click("Spa.s");
  EXPECT_EQ(entry.Text(), "ENG A(Lvp) S F(NTH) - WES ") << "the buttons fit in between";

  AdjustmentsEntry adjusting(Board("Autumn", "adjustments", {"ENG A(Lvp)"}));
  adjusting.Press("optAdjustmentFleet");
  adjusting.Click("Stp");
  EXPECT_EQ(adjusting.Text(), "RUS build F(Stp.n)");
  adjusting.Press("optAdjustmentArmy");
  adjusting.Click("Stp");
  EXPECT_EQ(adjusting.Text(), "RUS build A(Stp)");
  adjusting.Click("Lvp");
  EXPECT_EQ(adjusting.Text(), "ENG disband A(Lvp)");
}

TEST(OrderEntry, TheBoxEmptiesWithTheStageOrTheGame) {
  OrdersEntry entry(Board("Spring", "moves", {"ENG A(Lvp) hold"}), {model::Answer::Yes});
  ui::Desk& desk = entry.desk;
  const TemporaryDirectory directory;
  struct Case {
    const char* What;
    std::function<void()> Command;
    bool Stays;
  };
  for (const Case& c : std::vector<Case>{
           {"save", [&] { desk.saveGameAs(directory.Path() / "game.orb"); }, true},
           {"edit", [&] { desk.setEditing(session::Editing::Units); }, true},
           {"import", [&] { desk.fileOrder("ENG A(Lvp) - Wal"); }, true},
           {"missing", [&] { desk.openGame(directory.Path() / "none.orb", true); }, true},
           {"resolve", [&] { desk.resolve(); }, false},
           {"take back", [&] { desk.takeBack(); }, false},
           {"open", [&] { desk.openGame(directory.Path() / "game.orb", true); }, false},
           {"open again", [&] { desk.openGame(directory.Path() / "game.orb", true); }, false},
           {"new", [&] { desk.newGame(); }, false},
           {"blank", [&] { desk.blankGame(); }, false},
           {"take back", [&] { desk.takeBack(); }, false}}) {
    entry.text.setText(QStringLiteral("ENG F(Lon) - N"));
    c.Command();
    EXPECT_EQ(entry.Text(), c.Stays ? "ENG F(Lon) - N" : "") << c.What;
  }
}

TEST(OrderEntry, ResolveFilesAWholeOrderAndStopsAtAnyOtherLine) {
  struct Case {
    const char* Line;
    bool Whole;
  };
  for (const Case& c :
       {Case{"ENG A(Lvp) - Yor ", true}, Case{" ", true}, Case{"ENG A(Lvp) - ", false},
        Case{"ENG A(Lvp) - Nowhere", false}, Case{"Yor", false}}) {
    OrdersEntry entry(Board("Spring", "moves", {"ENG A(Lvp) hold"}));
    entry.text.setText(QLatin1String(c.Line));
    {
      const ModalScript answers(
          c.Whole ? std::deque<ModalScript::Step>{}
                  : std::deque<ModalScript::Step>{[&](QDialog& box) {
                      EXPECT_THAT(dynamic_cast<QMessageBox&>(box).text().toStdString(),
                                  HasSubstr(QString(c.Line).trimmed().toStdString()));
                      box.reject();
                    }});
      entry.Press("butOrdersResolve");
    }
    EXPECT_EQ(entry.desk.game().Stage, c.Whole ? model::Stage::Finished : model::Stage::Moves)
        << c.Line;
    EXPECT_EQ(entry.Text(), c.Whole ? "" : c.Line);
    EXPECT_EQ(entry.desk.game().Units[1].Location, *c.Line == 'E' && c.Whole ? "Yor" : "Lvp")
        << c.Line;
  }
}

TEST(OrderEntry, SeveralLinesAreHandedOn) {
  OrdersEntry entry(EmptyBoard("Spring", "moves"));
  const QSignalSpy pasted(&entry.panel, &ui::OrderEntryPanel::ordersPasted);
  const auto paste = [&](const char* text) {
    QApplication::clipboard()->setText(QLatin1String(text));
    QTest::keyClick(&entry.text, Qt::Key_V, Qt::ControlModifier);
  };
  paste("ENG A(Lvp) - Yor\n");
  EXPECT_EQ(QString::fromStdString(entry.Text()).trimmed(), "ENG A(Lvp) - Yor");
  EXPECT_EQ(pasted.size(), 0);
  paste("ENG A(Lvp) - Yor\r\nENG F(Lon) - NTH");
  EXPECT_EQ(pasted.size(), 1);
  QMimeData data;
  data.setText(QStringLiteral("F Lon - NTH\nF Edi - NWG"));
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&entry.text, &enter);
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&entry.text, &drop);
  ASSERT_EQ(pasted.size(), 2);
  EXPECT_EQ(pasted.last().at(0), data.text());
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, {5, 5}, {5, 5});
  QApplication::sendEvent(&entry.text, &menu);
  auto* popup = QApplication::activePopupWidget();
  ASSERT_NE(popup, nullptr);
  for (QAction* action : popup->actions()) {
    if (action->text().startsWith("&Paste")) action->trigger();
  }
  popup->close();
  EXPECT_EQ(pasted.size(), 3);
  EXPECT_EQ(QString::fromStdString(entry.Text()).trimmed(), "ENG A(Lvp) - Yor") << "as it was";
}

TEST(OrderEntry, EnterThatFilesNothingSaysWhy) {
  RetreatsEntry entry(EmptyBoard("Spring", "retreats"));
  const QSignalSpy status(&entry.panel, &ui::OrderEntryPanel::statusText);
  const auto said = [&](const char* line) {
    entry.File(line);
    return status.isEmpty() ? "" : status.last().at(0).toString().toStdString();
  };
  EXPECT_THAT(said(""), HasSubstr("empty"));
  EXPECT_THAT(said("ENG F Lon"), HasSubstr("ENG A(Lvp) retreat Yor"));
  EXPECT_EQ(entry.Text(), "ENG F Lon");
}

TEST(OrderEntry, LinesAreMarkedAndMissingOrdersCounted) {
  OrdersEntry entry(Board("Spring", "moves", {"ENG A(Lvp)", "ENG F(Lon)", "FRA A(Par)"}));
  EXPECT_EQ(entry.Missing(), "3 units without an order");
  const QSignalSpy status(&entry.panel, &ui::OrderEntryPanel::statusText);
  entry.File("ENG A(Lvp) - Mun");
  EXPECT_EQ(entry.Mark(0), OrderMark::Doubtful);
  EXPECT_THAT(entry.Tip(0), StartsWith("impossible move: "));
  EXPECT_EQ(status.last().at(0).toString().toStdString(), entry.Tip(0));
  entry.File("ENG F(Lon) - NTH");
  EXPECT_EQ(entry.Mark(1), OrderMark::Passes);
  EXPECT_EQ(status.last().at(0).toString(), "");
  EXPECT_EQ(entry.Missing(), "1 unit without an order");

  AdjustmentsEntry adjusting(Board("Autumn", "adjustments", {"ENG A(Lvp)", "FRA A(Par)"}));
  EXPECT_EQ(adjusting.Missing(), "Numbers that do not fit: ENG, FRA");
  adjusting.File("ENG disband A(Lvp)");
  EXPECT_EQ(adjusting.Missing(), "Numbers that do not fit: FRA");
  adjusting.File("FRA disband A(Par)");
  EXPECT_EQ(adjusting.Missing(), "The numbers of all powers fit");
}

TEST(OrderEntry, WhatIsOpenStandsBelowTheLinesAndBeginsAnOrder) {
  OrdersEntry entry(Board("Spring", "moves", {"ENG A(Lvp) hold", "ENG F(Lon)", "FRA A(Par)"}));
  EXPECT_EQ(entry.list.count(), 1) << "orders alone";
  entry.list.setFocus();
  entry.list.setCurrentRow(0);
  QTest::keyClick(&entry.list, Qt::Key_Down);
  EXPECT_TRUE(entry.Open().hasFocus());
  EXPECT_TRUE(entry.list.selectedItems().isEmpty());
  QTest::keyClick(&entry.Open(), Qt::Key_Return);
  EXPECT_EQ(entry.Text(), "ENG F(Lon) ");
  entry.Click("NTH");
  EXPECT_EQ(entry.Text(), "ENG F(Lon) - NTH ") << "as after a click on the unit";
  QTest::keyClick(&entry.text, Qt::Key_Return);
  EXPECT_EQ(entry.Open().count(), 1);
  ASSERT_FALSE(entry.list.selectedItems().isEmpty());
  QTest::mouseClick(entry.Open().viewport(), Qt::LeftButton, {},
                    entry.Open().visualItemRect(entry.Open().item(0)).center());
  EXPECT_TRUE(entry.list.selectedItems().isEmpty()) << "one line of both lists";
  entry.panel.showOnly(2);
  EXPECT_TRUE(entry.list.isRowHidden(0) && entry.list.isRowHidden(1));
  EXPECT_FALSE(entry.Open().isRowHidden(0));
  entry.File("par - bur");
  EXPECT_EQ(entry.list.item(2)->text(), "FRA A(Par) - Bur") << "of the power that is shown";
  const QSignalSpy other(&entry.panel, &ui::OrderEntryPanel::otherPowerSelected);
  entry.File("ENG A(Lvp) - Yor");
  EXPECT_EQ(other.count(), 1) << "what was filed must be seen";

  RetreatsEntry retreating(Board("Spring", "retreats", {"ENG A(Lvp) <Wal", "GER A(Wal)"}));
  EXPECT_EQ(retreating.Open().item(0)->text(), "ENG A(Lvp) retreat Cly, Edi, Yor or disband");
  QTest::mouseClick(retreating.Open().viewport(), Qt::LeftButton, {},
                    retreating.Open().visualItemRect(retreating.Open().item(0)).center());
  retreating.Click("Yor");
  EXPECT_EQ(retreating.Text(), "ENG A(Lvp) retreat Yor");

  AdjustmentsEntry adjusting(Board("Autumn", "adjustments", {"ENG A(Lvp)"}));
  emit adjusting.Open().itemActivated(adjusting.Open().item(0));
  EXPECT_EQ(adjusting.Text(), "ENG disband ");
}

TEST(OrderEntry, TheLineAtWhichResolvingStoppedIsShown) {
  struct Case {
    const char* Stage;
    std::vector<std::string> Lines;
    std::vector<model::Answer> Answers;
    int Row;
    const char* Result;
  };
  constexpr auto Yes = model::Answer::Yes;
  constexpr auto No = model::Answer::No;
  const std::vector<std::string> moves{"> nonsense", "ENG A(Lvp) - Mun", "> ENG A(Yor) hold",
                                       "> nonsense"};
  const auto stop = [](const Case& c) {
    auto entry = std::make_unique<OrdersEntry>(Board("Spring", c.Stage, c.Lines), c.Answers);
    entry->Press("butOrdersResolve");
    return entry;
  };
  for (const Case& c : std::vector<Case>{{"moves", moves, {No}, 0, "syntax error"},
                                         {"moves", moves, {Yes, No}, 3, "syntax error"},
                                         {"moves", moves, {Yes, Yes, No}, 2, "no such unit"},
                                         {"moves", moves, {Yes, Yes, Yes, No}, 1, "impossible"}}) {
    const auto entry = stop(c);
    EXPECT_EQ(entry->list.currentRow(), c.Row);
    EXPECT_EQ(entry->Mark(c.Row), OrderMark::Stopped);
    EXPECT_THAT(entry->Tip(c.Row), HasSubstr(std::string("stopped here: ") + c.Result));
    entry->desk.setViewOnly(false);
    EXPECT_EQ(entry->Mark(c.Row), OrderMark::Stopped) << "until the list changes";
    entry->File("ENG F(Lon) hold");
    EXPECT_EQ(entry->Mark(c.Row), OrderMark::Doubtful);
  }
  const auto unordered = stop({"moves", {"ENG A(Lvp)", "FRA A(Par) hold"}, {No}, 0, ""});
  EXPECT_FALSE(unordered->desk.now().Stopped) << "it has no line";

  model::GameState game =
      Board("Autumn", "adjustments", {"> ENG build A(Lon)", "> nonsense", "> ENG build F(Lon)"});
  Own(game, "ENG Lon");
  AdjustmentsEntry adjusting(game, {Yes, Yes, No});
  adjusting.Press("butAdjustmentsResolve");
  EXPECT_EQ(adjusting.list.currentRow(), 2) << "the latter of two that clash";
}

}  // namespace
}  // namespace orb::tests
