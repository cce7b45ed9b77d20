#include "support/boards.h"
#include "support/scripted_messages.h"
#include "ui/entry/power_cell.h"
#include "ui/facts/report_panel.h"
#include "ui/modal_script.h"
#include "ui/widgets/hanging_delegate.h"
#include "ui/window_fixture.h"

#include <QFontDatabase>
#include <QListWidget>
#include <QSplitter>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace orb::tests {
namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class ColumnTest : public WindowTest {
 protected:
  std::string Told(const char* cell) const {
    return Find<ui::PowerCell>(cell).accessibleName().toStdString();
  }
  /// The lines of a list that are not hidden.
  std::vector<std::string> Seen(const char* list) const {
    std::vector<std::string> seen;
    const auto& lines = Find<QListWidget>(list);
    for (int row = 0; row < lines.count(); ++row) {
      if (!lines.isRowHidden(row)) seen.push_back(lines.item(row)->text().toStdString());
    }
    return seen;
  }
};

TEST_F(ColumnTest, ThePowersTellWhereTheyStandAndShowTheirLinesAlone) {
  EXPECT_EQ(Told("butPowerENG"), "England: 0 of 3 orders");
  Enter("lon - nth");
  EXPECT_THAT(Find<QLabel>("lblStatus").text().toStdString(), HasSubstr("Alt+1"));
  Press(Qt::Key_Escape);
  Enter("ENG F(Lon) - NTH");
  Enter("ENG A(Lvp) - Par");
  Enter("FRA A(Par) - Bur");
  EXPECT_EQ(Told("butPowerENG"), "England: 2 of 3 orders, 1 doubtful");
  Press(Qt::Key_2, Qt::AltModifier);
  EXPECT_THAT(Seen("lstOrders"), testing::ElementsAre("FRA A(Par) - Bur"));
  EXPECT_THAT(Seen("lstOrdersOpen"), Each(StartsWith("FRA ")));
  EXPECT_EQ(Lines("lstOrders").size(), 3U) << "hidden lines stay orders";
  Enter("mar - spa");
  EXPECT_EQ(Told("butPowerFRA"), "France: 2 of 3 orders");
  Enter("gas - mar");
  EXPECT_EQ(Find<QLabel>("lblStatus").text().toStdString(), "Not filed: no unit stands there.");
  Press(Qt::Key_Escape);
  Enter("ENG F(Edi) - NWG");
  EXPECT_EQ(Seen("lstOrders").size(), 5U) << "all again, as it is of another power";
  Press(Qt::Key_1, Qt::AltModifier);
  EXPECT_TRUE(Find<ui::PowerCell>("butPowerENG").isChecked());
  Press(Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(Seen("lstOrders").size(), 5U);

  Find<ui::PowerCell>("butPowerENG").setFocus();
  Press(Qt::Key_Right);
  Press(Qt::Key_Space);
  EXPECT_THAT(Seen("lstOrders"), Each(StartsWith("FRA ")));
  Open(examples_ / "1901-2-autumn-1-moves.orb");
  EXPECT_THAT(Lines("lstAdjustmentsOpen"), Not(IsEmpty()));
  Enter("ITA waives");
  EXPECT_THAT(Find<QLabel>("lblStatus").text().toStdString(), StartsWith("Nothing to file: "));
  Press(Qt::Key_Escape);
  EXPECT_EQ(Find<QLabel>("lblStatus").text().toStdString(), "") << "of a line given up";
  EXPECT_TRUE(Find<ui::PowerCell>("butPowerENG").isVisible());
}

TEST_F(ColumnTest, TheKeyboardGoesFromTopToBottomAndFromAreaToArea) {
  Open(examples_ / "1902-1-spring-1-moves.orb");
  const auto path = [&](Qt::Key key, int times, Qt::KeyboardModifiers modifiers = {}) {
    std::string names;
    for (int i = 0; i < times; ++i) {
      Press(key, modifiers);
      names += QApplication::focusWidget()->objectName().toStdString() + " ";
    }
    return names;
  };
  EXPECT_EQ(path(Qt::Key_F6, 3), "picMap sldHistory txtRetreat ");
  EXPECT_EQ(path(Qt::Key_F6, 2, Qt::ShiftModifier), "sldHistory picMap ");
  Find<ui::PowerCell>("butPowerITA").setFocus();
  EXPECT_EQ(path(Qt::Key_Tab, 10),
            "lstRetreatsOpen txtRetreat butRetreatOK butRetreatRetreat butRetreatDisband "
            "butRetreatCancel butRetreatDelete butRetreatsHelp butRetreatsResolve "
            "qt_tabwidget_tabbar ");
  Trigger("mnuMapViewOnly");
  EXPECT_EQ(path(Qt::Key_F6, 2), "picMap picMap ");
}

TEST(Report, TellsThatThereIsNoneAndLeadsToWhatIsNew) {
  session::Situation situation{EmptyBoard("Autumn", "adjustments")};
  for (int line = 0; line < 40; ++line)
    situation.Game.ReportLines.Append("  FRA A(Par) hold");
  situation.Notes.resize(40);
  ScriptedMessages messages;
  ui::Desk desk({situation}, DataDirectory(), messages, nullptr);
  ui::ReportPanel panel(desk);
  panel.resize(300, 300);
  panel.show();
  const auto& lines = *panel.findChild<QListWidget*>();
  const auto& none = *panel.findChild<QLabel*>();
  EXPECT_FALSE(none.isVisible());
  desk.resolve();
  EXPECT_EQ(lines.item(40)->text(), "ADJUSTMENTS");
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return lines.viewport()->rect().contains(lines.visualItemRect(lines.item(40))); }));
  desk.blankGame();
  EXPECT_TRUE(none.isVisible());
  EXPECT_EQ(none.text(), "No report yet.");
}

TEST_F(ColumnTest, ItsWidthAndSharesAreRemembered) {
  window_->showNormal();
  // Newer versions of Qt restore no window that is larger than the screen, here of 800 by 800.
  window_->resize(780, 700);
  auto& facts = Find<QWidget>("tabFacts");
  auto* shares = qobject_cast<QSplitter*>(facts.parentWidget());
  auto* sides = window_->centralWidget()->findChild<QSplitter*>();
  const auto drag = [](QSplitter& splitter, QPoint by) {
    QWidget* handle = splitter.handle(1);
    QTest::mousePress(handle, Qt::LeftButton);
    QTest::mouseMove(handle, handle->rect().center() + by);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, handle->rect().center() + by);
  };
  drag(*sides, {-40, 0});
  drag(*shares, {0, -40});
  const QSize size = facts.size();
  window_->close();
  Open();
  EXPECT_EQ(Find<QWidget>("tabFacts").size(), size);
  for (const char* editing : {"mnuGameEditUnits", "mnuGameEditUnits"})
    Trigger(editing);
  EXPECT_EQ(Find<QWidget>("tabFacts").size(), size) << "whatever was shown between";
}

TEST(HangingLines, AreBrokenAtBlanksAndIndented) {
  const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  const std::vector<std::tuple<const char*, int, const char*>> cases = {
      {"  ENG A(Lvp) - Yor  ", 30, "  ENG A(Lvp) - Yor  "},
      {"  ENG A(Lvp) - Yor  cut", 18, "  ENG A(Lvp) - Yor|      cut"},
      {"  ENG A(Lvp) S F(Lon) - Wal", 12, "  ENG A(Lvp)|      S|      F(Lon)|      - Wal"},
      {"  unbreakable word ", 4, "  unbreakable|      word"},
  };
  for (const auto& [text, columns, broken] : cases) {
    QString lines = ui::hung(QLatin1String(text), metrics,
                             metrics.horizontalAdvance(QString(columns, QLatin1Char('x'))));
    lines.replace(QChar(QChar::LineSeparator), QLatin1Char('|'));
    EXPECT_EQ(lines.toStdString(), broken);
  }
}

}  // namespace
}  // namespace orb::tests
