#include "model/errors.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "support/directories.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(WindowTest, AYearIsPlayedByKeyboard) {
  Enter("AUS A(Vie) - Tyr");
  Enter("TUR A(Con) - Bul");
  Resolve("ENG F(Lon)");
  EXPECT_EQ(StagePanel(), "fraSeasonFinished");
  EXPECT_EQ(Lines("lstReport").size(), 22U);
  Press(Qt::Key_N, Qt::AltModifier);

  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_THAT(Lines("lstOrders"), IsEmpty());
  Enter("AUS A(Tyr) - Pie");
  Enter("AUS F(Tri) S AUS A(Tyr) - Ven");
  Enter("AUS A(Tyr) - Ven");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("AUS F(Tri) S AUS A(Tyr) - Ven", "AUS A(Tyr) - Ven"));
  Resolve("ENG F(Lon)");
  EXPECT_EQ(StagePanel(), "fraRetreats");
  Enter("ITA A(Ven) retreat Tus");
  Resolve();

  EXPECT_EQ(StagePanel(), "fraAdjustments");
  for (const char* order : {"AUS build A(Vie)", "TUR build A(Con)", "ITA disband A(Tus)"})
    Enter(QLatin1String(order));
  Resolve();
  EXPECT_EQ(StagePanel(), "fraSeasonFinished");
  EXPECT_EQ(Lines("lstReport").back(), "ITA disband A(Tus)  ");
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_FALSE(Find<QWidget>("lstReport").isVisible());
}

TEST_F(WindowTest, NoLeavesEverythingAsItWas) {
  Enter("ENG A(Lvp) - Nowhere)");
  Enter("FRA F(Bre) - ECH");
  const QImage map = Map();
  const std::vector<std::string> orders = Lines("lstOrders");
  const QString fault = "Warning: ENG A(Lvp) - Nowhere)\nsyntax error.\nContinue?";
  const QString unordered = "Warning: ENG F(Lon) unordered.\nContinue?";
  {
    const ModalScript answers(
        {Answered(fault, Qt::Key_Return), Answered(unordered, Qt::Key_Escape)});
    Press(Qt::Key_R, Qt::AltModifier);
  }
  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_EQ(Lines("lstOrders"), orders);
  EXPECT_EQ(Map(), map);
  EXPECT_FALSE(Find<QWidget>("lstReport").isVisible());
}

TEST_F(WindowTest, OrdersAreEditedAndDeleted) {
  auto& list = Find<QListWidget>("lstOrders");
  auto& text = Find<QLineEdit>("txtOrder");
  EXPECT_TRUE(text.hasFocus());
  Enter("ENG A(Lvp) - Yor");
  Enter("ENG F(Lon) - NTH");
  EXPECT_EQ(list.currentRow(), 1);
  EXPECT_EQ(text.text(), "");
  Enter("no bracket");
  EXPECT_EQ(text.text(), "no bracket") << "nothing filed, nothing lost";
  EXPECT_EQ(list.count(), 2);

  QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                    list.visualItemRect(list.item(0)).center());
  EXPECT_EQ(text.text(), "ENG A(Lvp) - Yor");
  EXPECT_TRUE(text.hasFocus());
  for (int i = 0; i < 3; ++i)
    Press(Qt::Key_Backspace);
  Enter("Wal");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH", "ENG A(Lvp) - Wal"));
  EXPECT_EQ(list.currentRow(), 1) << "in its new place";

  Type(QString::fromUtf8("\"draft\u0416\u00e9\u20ac\""));
  EXPECT_EQ(text.text(), QString::fromUtf8("draft\u00e9\u20ac")) << "as a file can hold it";
  Press(Qt::Key_D, Qt::AltModifier);
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH"));
  EXPECT_EQ(text.text(), "");
  Press(Qt::Key_D, Qt::AltModifier);
  EXPECT_EQ(list.count(), 1) << "the line next to a removed one is not selected";
}

TEST_F(WindowTest, NoExceptionEndsTheWindow) {
  const auto fail = [](auto fault) {
    const ModalScript answers({[](QDialog& box) {
      EXPECT_EQ(box.windowTitle(), Titled());
      box.reject();
    }});
    bool thrown = false;
    QTimer::singleShot(0, [&] {
      thrown = true;
      throw fault;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return thrown; }));
    QTest::qWait(50);
  };
  fail(std::bad_alloc());
  fail(std::out_of_range("far out"));
  fail(1);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(WindowTest, TheStageEntriesTellTheStage) {
  const std::vector<std::pair<const char*, const char*>> stages{
      {"mnuGameEnterOrders", "1901-2-autumn-0-start.orb"},
      {"mnuGameEnterRetreats", "1902-1-spring-1-moves.orb"},
      {"mnuGameEnterAdjustments", "1902-2-autumn-2-retreats.orb"},
      {"mnuGameSeasonFinished", "1902-1-spring-2-retreats.orb"}};
  const auto entries = [&](bool (QAction::*is)() const) {
    std::string names;
    for (const auto& [name, file] : stages)
      names += (Find<QAction>(name).*is)() ? name : "";
    return names;
  };
  for (const auto& [name, file] : stages) {
    Open(examples_ / file);
    Trigger(name);
    EXPECT_EQ(entries(&QAction::isChecked), name) << "choosing it changes nothing";
    EXPECT_EQ(entries(&QAction::isEnabled), name);
    Trigger("mnuGameEditProvinces");
    EXPECT_EQ(entries(&QAction::isChecked), "");
    EXPECT_TRUE(Find<QWidget>("picOwners").isVisible());
  }
  Open(directory_.Write("odd.orb", model::FormatGameFile(EmptyBoard("Spring", "pause"))));
  EXPECT_EQ(StagePanel(), "") << "a stage of which nothing is known";
}

TEST_F(WindowTest, ASelectedReportLineSaysWhyAndUndoTakesAllBack) {
  EXPECT_FALSE(Find<QAction>("mnuGameUndo").isEnabled());
  const QImage before = Map();
  Enter("ENG F(Lon) - ECH");
  Enter("FRA F(Bre) - ECH");
  Enter("TUR A(Con) - Bul");
  Resolve("ENG F(Edi)");
  auto& report = Find<QListWidget>("lstReport");
  EXPECT_EQ(window_->focusWidget(), &report);
  const auto& reason = Find<QLabel>("lblReason");
  EXPECT_THAT(reason.text().toStdString(), HasSubstr("FRA F(Bre) - ECH"));
  Press(Qt::Key_Down);
  EXPECT_THAT(reason.text().toStdString(), HasSubstr("ENG F(Lon) - ECH"));
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(
      "[ ENG F(Lon) - ECH ]  \n[ FRA F(Bre) - ECH ]  \n  TUR A(Con) - Bul  \n"));
  EXPECT_NE(report.item(0)->foreground(), report.item(2)->foreground());
  EXPECT_EQ(report.item(1)->foreground(), report.item(0)->foreground());
  const QBrush light = report.item(0)->foreground();
  QPalette dark = report.palette();
  dark.setColor(QPalette::Base, Qt::black);
  Find<QWidget>("fraReport").setPalette(dark);
  EXPECT_NE(report.item(0)->foreground(), light) << "it can be read on a dark ground as well";
  Find<QWidget>("fraReport").setEnabled(false);
  EXPECT_EQ(report.item(0)->foreground(), report.item(2)->foreground()) << "both are faint";
  Find<QWidget>("fraReport").setEnabled(true);
  EXPECT_NE(Map(), before);
  Trigger("mnuGameUndo");
  EXPECT_EQ(StagePanel(), "fraOrders");
  EXPECT_EQ(Map(), before);
}

TEST_F(WindowTest, CommandsAreTakenBackByNameButNotFromATextBox) {
  const auto file = examples_ / "1902-1-spring-1-moves.orb";
  const auto& back = Find<QAction>("mnuEditTakeBack");
  const auto& again = Find<QAction>("mnuEditDoAgain");
  EXPECT_EQ(back.text().toStdString(), "Take &back");
  EXPECT_FALSE(back.isEnabled() || again.isEnabled());
  Enter("FRA A(Par) - Bur");
  const QImage map = Map();
  {
    const ModalScript answers({FileChosen(QString::fromStdString(file.string()))});
    Trigger("mnuFileOpen");
  }
  EXPECT_THAT(Find<QLabel>("lblStatus").text().toStdString(), HasSubstr("was not saved"));
  Enter("GER A(Bur) disband");
  Resolve();
  Press(Qt::Key_N, Qt::AltModifier);
  Trigger("mnuGameEditUnits");
  Find<QListWidget>("lstUnits").setCurrentRow(0);
  Press(Qt::Key_Delete);
  Trigger("mnuGameEditUnits");
  Enter("FRA A(Bur) & (Par)");
  Press(Qt::Key_D, Qt::AltModifier);
  Trigger("mnuFileBlank");
  Type("AUS");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Find<QLineEdit>("txtOrder").text(), "");
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  const std::vector<std::string> names{"Blank",
                                       "Delete FRA A(Bur) && (Par)",
                                       "Order FRA A(Bur) && (Par)",
                                       "Edit units",
                                       "Next season",
                                       "Resolve retreats",
                                       "Order GER A(Bur) disband",
                                       "Open " + file.filename().string()};
  Find<QListWidget>("lstOrders").setFocus();
  for (const std::string& name : names) {
    EXPECT_EQ(back.text().toStdString(), "Take &back: " + name);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(again.text().toStdString(), "&Do again: " + name);
  }
  EXPECT_EQ(Map(), map);
  EXPECT_EQ(Find<QLabel>("lblFileName").text(), "");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur"));
  EXPECT_TRUE(window_->isWindowModified());
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Find<QLabel>("lblFileName").text().toStdString(), file.string());
  EXPECT_EQ(StagePanel(), "fraRetreats");
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_EQ(Find<QLabel>("lblStatus").text().toStdString(), "Done again: " + names.back());
}

TEST_F(WindowTest, AHelpThatIsMissingOrHasNoTopicsSaysSo) {
  std::filesystem::remove(program_.Path() / "orbhelp.txt");
  for (const char* why : {"Cannot read", "has no topics"}) {
    if (*why == 'h') program_.Write("orbhelp.txt", "A text that\nbegins no topic\n");
    Open();
    const auto told = [&](QDialog& box) {
      EXPECT_THAT(dynamic_cast<QMessageBox&>(box).text().toStdString(), HasSubstr(why));
      box.reject();
    };
    const ModalScript answers({told, told});
    Press(Qt::Key_F1);
    Find<QPushButton>("butOrdersHelp").click();
  }
}

TEST_F(WindowTest, AMapModeWithoutItsBitmapIsNotTaken) {
  std::filesystem::remove(program_.Path() / "mapgrey.bmp");
  Trigger("mnuMapColour");
  EXPECT_TRUE(Find<QAction>("mnuMapColour").isChecked());
  const QImage map = Map();
  {
    const ModalScript answers({[](QDialog& box) { box.reject(); }});
    Trigger("mnuMapGrey");
  }
  EXPECT_TRUE(Find<QAction>("mnuMapColour").isChecked());
  EXPECT_EQ(Map(), map);
  Trigger("mnuShowCentreCount");
  EXPECT_NE(Map(), map);

  std::filesystem::remove(program_.Path() / "map.bmp");
  EXPECT_THROW(Open(), model::FileError);
}

}  // namespace
}  // namespace orb::tests
