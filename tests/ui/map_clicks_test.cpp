#include "support/boards.h"
#include "ui/modal_script.h"
#include "ui/window_fixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <gmock/gmock.h>

namespace orb::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MapClicksTest : public WindowTest {
 protected:
  /// Where the unit of a place is drawn, in pixels of the map.
  QPoint At(const char* place) const {
    const auto& map = *RealMap();
    const model::Province& province = map.Provinces[model::FindProvince(map, place)];
    const QSize size = Find<QWidget>("picMap").size();
    return {qRound(static_cast<double>(province.UnitX) * size.width()),
            qRound(static_cast<double>(province.UnitY) * size.height())};
  }

  void Click(const char* place, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(&Find<QWidget>("picMap"), Qt::LeftButton, modifiers, At(place));
  }

  /// Clicks the places one after the other and files what has come of it.
  void Order(const std::vector<const char*>& places) const {
    for (const char* place : places)
      Click(place);
    Press(Qt::Key_Return);
  }

  void Push(const char* button) const {
    QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
  }

  void PushAgreeing(const char* button) const {
    const ModalScript answers(
        {Answered("Warning: ENG F(Lon) unordered.\nContinue?", Qt::Key_A, Qt::AltModifier)});
    Push(button);
  }
};

TEST_F(MapClicksTest, TheKeyboardWalksTheMapAndClicks) {
  auto& map = Find<QWidget>("picMap");
  map.setFocus(Qt::TabFocusReason);
  const auto type = [&](const char* letters) {
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(&map, QLatin1String(letters));
  };
  const auto& box = Find<QLineEdit>("txtOrder");
  type("lon");
  EXPECT_THAT(Find<QLabel>("lblStatus").text().toStdString(), HasSubstr("London (Lon)"));
  QTest::keyClick(&map, Qt::Key_Return);
  QTest::keyClick(&map, Qt::Key_Up);
  QTest::keyClick(&map, Qt::Key_Return);
  EXPECT_EQ(box.text(), QLatin1String("ENG F(Lon) - Yor "));
  EXPECT_EQ(Find<QLabel>("lblStatus").text(), box.text()) << "it is told where the keyboard is";
  EXPECT_TRUE(map.hasFocus());
  QTest::mouseClick(&Find<QPushButton>("butOrderOK"), Qt::LeftButton);
  map.setFocus(Qt::TabFocusReason);
  type("vie");
  QTest::keyClick(&map, Qt::Key_Return, Qt::ShiftModifier);
  type("budapest");
  QTest::keyClick(&map, Qt::Key_Return);
  QTest::keyClick(&map, Qt::Key_Return);
  EXPECT_EQ(box.text(), QLatin1String("AUS A(Vie) S A(Bud) hold "));
  QTest::keyClick(&map, Qt::Key_Return);
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("ENG F(Lon) - Yor ", "AUS A(Vie) S A(Bud) hold "));
  EXPECT_EQ(Find<QLabel>("lblStatus").text(), "Filed: AUS A(Vie) S A(Bud) hold");
  EXPECT_TRUE(map.hasFocus()) << "to walk on";
  type("vie");
  QTest::keyClick(&map, Qt::Key_Return, Qt::ShiftModifier);
  type("budapest");
  QTest::keyClick(&map, Qt::Key_Return);
  type("ser");
  QTest::keyClick(&map, Qt::Key_Enter);
  EXPECT_EQ(box.text(), QLatin1String("AUS A(Vie) S A(Bud) - Ser "));
  QTest::mouseClick(&Find<QPushButton>("butOrderCancel"), Qt::LeftButton);
  map.setFocus(Qt::TabFocusReason);
  // A coast is a stop of its own.
  const int width = map.width();
  type("mid-atlantic ocean");
  EXPECT_EQ(map.width(), width) << "the hyphen does not zoom";
  EXPECT_THAT(Find<QLabel>("lblStatus").text().toStdString(), HasSubstr("(MAO)"));
  type("stp.s");
  QTest::keyClick(&map, Qt::Key_Return);
  type("bot");
  QTest::keyClick(&map, Qt::Key_Return);
  EXPECT_EQ(box.text(), QLatin1String("RUS F(Stp.s) - BOT "));
}

TEST_F(MapClicksTest, AYearIsPlayedByMouse) {
  Order({"Vie", "Tyr"});
  Order({"Con", "Bul"});
  Order({"NAO"});
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("AUS A(Vie) - Tyr ", "TUR A(Con) - Bul "));
  PushAgreeing("butOrdersResolve");
  Push("butNextSeason");

  Click("Tri", Qt::ShiftModifier);
  Order({"Tyr", "Ven"});
  Order({"Tyr", "Ven"});
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("AUS F(Tri) S A(Tyr) - Ven ", "AUS A(Tyr) - Ven "));
  PushAgreeing("butOrdersResolve");
  EXPECT_EQ(StagePanel(), "fraRetreats");
  Order({"Ven", "Tus"});
  Push("butRetreatsResolve");

  EXPECT_EQ(StagePanel(), "fraAdjustments");
  Order({"Vie"});
  Order({"Con"});
  Order({"Tus"});
  Push("butAdjustmentsResolve");
  EXPECT_EQ(StagePanel(), "fraSeasonFinished");
  const std::vector<std::string> report = Lines("lstReport");
  ASSERT_GT(report.size(), 3U);
  EXPECT_THAT(std::vector<std::string>(report.end() - 4, report.end()),
              ElementsAre("ADJUSTMENTS", "AUS build A(Vie)  ", "TUR build A(Con)  ",
                          "ITA disband A(Tus)  "));
}

TEST_F(MapClicksTest, AMapThatIsOnlyViewedChangesNothing) {
  Open(examples_ / "1902-1-spring-1-moves.orb");
  Click("Bur");
  Trigger("mnuMapViewOnly");
  Click("Pic");
  Press(Qt::Key_Return);
  Press(Qt::Key_R, Qt::AltModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(StagePanel(), "") << "no panel to click in";
  Trigger("mnuMapViewOnly");
  EXPECT_EQ(StagePanel(), "fraRetreats");
  EXPECT_THAT(Lines("lstRetreats"), IsEmpty());
  EXPECT_EQ(Find<QLineEdit>("txtRetreat").text(), "GER A(Bur) ");
  Click("Pic");
  EXPECT_EQ(Find<QLineEdit>("txtRetreat").text(), "GER A(Bur) retreat Pic");
}

TEST_F(MapClicksTest, ThePlaceUnderThePointerIsNamed) {
  const auto& status = Find<QLabel>("lblStatus");
  QTest::mouseMove(&Find<QWidget>("picMap"), At("Stp.s"));
  EXPECT_THAT(status.text().toStdString(),
              testing::AllOf(HasSubstr("St Petersburg"), HasSubstr("supply centre of Russia"),
                             HasSubstr("fleet of Russia")));
  QTest::mouseMove(&Find<QWidget>("picMap"), At("NAO"));
  EXPECT_THAT(status.text().toStdString(), HasSubstr("(NAO)"));
}

TEST_F(MapClicksTest, TheWheelEnlargesAroundThePointerAndTheMiddleButtonScrolls) {
  auto& map = Find<QWidget>("picMap");
  // Large enough to be scrolled in both directions.
  for (const char* entry : {"mnuMapZoom100", "mnuMapZoomIn", "mnuMapZoomIn"})
    Trigger(entry);
  const QPointF before = map.mapToGlobal(QPointF(At("Vie")));
  for (int i = 0; i < 3; ++i) {
    QWheelEvent event(map.mapToParent(At("Vie")), map.mapToGlobal(At("Vie")), {}, {0, 120},
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(map.parentWidget(), &event);
  }
  EXPECT_NEAR(map.width(), 3052, 2) << "five steps of a quarter";
  const QPointF after = map.mapToGlobal(QPointF(At("Vie")));
  EXPECT_LT((after - before).manhattanLength(), 12) << "the place stays under the pointer";

  const QPoint held = At("Vie");
  const QPoint corner = map.pos();
  QTest::mousePress(&map, Qt::MiddleButton, {}, held);
  const QPoint grip = map.mapToGlobal(held);
  for (const QPoint way : {QPoint(20, 15), QPoint(30, 20)})
    QTest::mouseMove(&map, map.mapFromGlobal(grip - way));
  QTest::mouseRelease(&map, Qt::MiddleButton, {}, held);
  EXPECT_EQ(map.pos(), corner - QPoint(30, 20)) << "as far as the pointer went";
  Click("Vie");
  EXPECT_EQ(Find<QLineEdit>("txtOrder").text(), "AUS A(Vie) ") << "clicks follow the zoom";
}

}  // namespace
}  // namespace orb::tests
