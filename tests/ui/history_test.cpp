#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <gmock/gmock.h>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class HistoryTest : public WindowTest {
 protected:
  bool IsVisible(const char* name) const { return Find<QWidget>(name).isVisible(); }
  QAbstractSlider& Line() const { return Find<QAbstractSlider>("sldHistory"); }

  /// Whether the line has so many stages, once their files are read.
  bool HasStages(int count) const {
    return QTest::qWaitFor(
        [&] { return IsVisible("fraHistory") ? Line().maximum() == count - 1 : count == 1; });
  }

  void SaveAs(const char* name) const {
    const ModalScript answers(
        {FileChosen(QString::fromStdString((directory_.Path() / name).string()))});
    Trigger("mnuFileSaveAs");
  }

  std::string Banner() const {
    if (!IsVisible("fraPast")) return {};
    return Find<QWidget>("fraPast").findChild<QLabel*>()->text().toStdString();
  }
};

TEST_F(HistoryTest, EarlierStagesAreShownWithTheirReportAndCanBeGoneOnFrom) {
  Trigger("mnuMapZoom100");
  Enter("ENG F(Lon) - ECH");
  Enter("FRA F(Bre) - ECH");
  const std::vector<std::string> orders = Lines("lstOrders");
  const QImage start = Map();
  SaveAs("con_s01.orb");
  EXPECT_TRUE(HasStages(1));
  Resolve("ENG F(Edi)");
  const std::vector<std::string> report = Lines("lstReport");
  Find<QListWidget>("lstReport").clearSelection();
  const QImage end = Map();
  EXPECT_TRUE(HasStages(2)) << "its file has it as it was";
  SaveAs("con_s01 end.orb");
  directory_.Write("con_a01.orb", "no game");
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(HasStages(3)) << "also without a file of its own";
  EXPECT_EQ(Line().value(), 2);
  Enter("ENG F(Lon) - NTH");
  const QImage now = Map();

  Line().setFocus();
  Press(Qt::Key_Left);
  EXPECT_EQ(Banner(), "Spring 1901, end");
  EXPECT_EQ(Lines("lstReport"), report);
  EXPECT_EQ(Map(), end);
  EXPECT_EQ(StagePanel(), "");
  Find<QListWidget>("lstReport").setCurrentRow(0);
  EXPECT_THAT(Find<QLabel>("lblReason").text().toStdString(), HasSubstr("FRA F(Bre) - ECH"));
  Line().setFocus();
  Press(Qt::Key_Home);
  EXPECT_EQ(Banner(), "Spring 1901, before moves");
  EXPECT_EQ(Lines("lstPastOrders"), orders);
  EXPECT_THAT(Lines("lstReport"), IsEmpty());
  EXPECT_EQ(Map(), start);
  Press(Qt::Key_Right);
  Press(Qt::Key_Right);
  EXPECT_EQ(Banner(), "");
  EXPECT_EQ(Map(), now);
  EXPECT_TRUE(Line().hasFocus()) << "the keys go on stepping";
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH"));

  Press(Qt::Key_Left);
  std::filesystem::remove(directory_.Path() / "con_s01.orb");
  Press(Qt::Key_Left);
  EXPECT_EQ(Banner(), "Spring 1901, end") << "its file is gone";
  EXPECT_TRUE(HasStages(2));
  Press(Qt::Key_Escape);
  EXPECT_EQ(StagePanel(), "fraOrders");
  Line().setValue(0);
  Find<QPushButton>("butPastGoOn").click();
  EXPECT_EQ(Banner(), "");
  EXPECT_EQ(StagePanel(), "fraSeasonFinished");
  EXPECT_THAT(Find<QLabel>("lblFileName").text().toStdString(), HasSubstr("con_s01 end.orb"));
  Trigger("mnuEditTakeBack");
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - NTH"));

  SaveAs("con_a01 b.orb");
  EXPECT_TRUE(HasStages(2));
  Resolve("ENG F(Edi)");
  EXPECT_TRUE(HasStages(3));
  Trigger("mnuFileSave");
  EXPECT_TRUE(HasStages(2)) << "its file has no other stage any more";
}

TEST_F(HistoryTest, TheLineIsPlayedChartedAndHidden) {
  for (const char* name :
       {"1901-1-spring-1-moves", "1901-2-autumn-1-moves", "1902-1-spring-0-start"})
    std::filesystem::copy_file(examples_ / (std::string(name) + ".orb"),
                               directory_.Path() / (std::string("con") + name + ".orb"));
  Open(directory_.Path() / "con1901-2-autumn-1-moves.orb");
  EXPECT_TRUE(HasStages(3));
  EXPECT_EQ(Line().value(), 1) << "later stages are shown as well";
  Find<QAbstractButton>("butHistoryPlay").click();
  EXPECT_TRUE(IsVisible("fraAnimate"));
  EXPECT_FALSE(IsVisible("fraHistory"));
  Find<QPushButton>("butAnimateClose").click();
  EXPECT_TRUE(IsVisible("fraHistory"));
  {
    const ModalScript answers({[](QDialog& dialog) {
      EXPECT_THAT(dialog.findChild<QWidget*>("picCentres")->accessibleDescription().toStdString(),
                  HasSubstr("Austria-Hungary: 3, "));
      dialog.reject();
    }});
    Find<QAbstractButton>("butHistoryCentres").click();
  }
  Line().setValue(0);
  EXPECT_NE(Banner(), "");
  EXPECT_THAT(Lines("lstReport"), IsEmpty()) << "no file has the orders that led there";
  Trigger("mnuMapShowHistory");
  EXPECT_EQ(Banner(), "");
  EXPECT_FALSE(IsVisible("fraHistory"));
  window_->close();
  Open(directory_.Path() / "con1901-2-autumn-1-moves.orb");
  QTest::qWait(50);
  EXPECT_FALSE(IsVisible("fraHistory"));
  Trigger("mnuMapShowHistory");
  EXPECT_TRUE(HasStages(3));
  Trigger("mnuMapViewOnly");
  EXPECT_FALSE(IsVisible("fraHistory"));
}

TEST_F(HistoryTest, OrdersAreFoundForPrintingInTheFilesBesideOrItIsSaidWhyNot) {
  const auto reason = [this] {
    std::string said;
    const ModalScript look({[&](QDialog& preview) {
      if (!preview.findChild<QWidget*>("chkBothSides")->isEnabled())
        said = preview.findChild<QLabel*>("lblOneSide")->text().toStdString();
      preview.reject();
    }});
    Trigger("mnuFilePrintPreview");
    return said;
  };
  Enter("ENG F(Lon) - NTH");
  SaveAs("con_s01.orb");
  EXPECT_THAT(reason(), HasSubstr("not resolved"));
  Resolve("ENG F(Edi)");
  SaveAs("con_s01 end.orb");
  Open(directory_.Path() / "con_s01 end.orb");
  EXPECT_TRUE(HasStages(2));
  EXPECT_EQ(reason(), "");
  std::filesystem::remove(directory_.Path() / "con_s01.orb");
  Open(directory_.Path() / "con_s01 end.orb");
  EXPECT_THAT(reason(), HasSubstr("not known"));
}

}  // namespace
}  // namespace orb::tests
