#include "modal_script.h"
#include "window_fixture.h"

#include "model/game_file.h"
#include "support/boards.h"
#include "ui/widgets/order_marks.h"

#include <QLabel>
#include <QListWidget>
#include <gmock/gmock.h>

#include <cstdlib>

namespace orb::tests {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// The window on a game where an army swims to Spain by ORB's own rules alone, and a fleet names no
/// coast.
class RulesTest : public WindowTest {
 protected:
  void SetUp() override {
    const model::GameState game = Board("Spring", "moves",
                                        {"ENG A(Yor) - Spa", "ENG F(NTH) C A(Yor) - Spa",
                                         "RUS F(Stp.s)", "GER A(Mun) hold", "> RUS F(Stp) - BOT"});
    directory_.Write("game.orb", model::FormatGameFile(game));
    file_ = directory_.Path() / "game.orb";
    Open(file_);
  }

  /// Resolves by ORB's own rules, which ask about the fleet and what it leaves without an order.
  static void ResolveByOrb() {
    const ModalScript answers(
        {Answered("Warning: RUS F(Stp) - BOT\nno such unit.\nContinue?", Qt::Key_Y,
                  Qt::AltModifier),
         Answered("Warning: RUS F(Stp.s) unordered.\nContinue?", Qt::Key_Y, Qt::AltModifier),
         Answered("Convoys are not fully checked.", Qt::Key_Return)});
    Press(Qt::Key_R, Qt::AltModifier);
  }

  std::string Text(const char* label) const { return Find<QLabel>(label).text().toStdString(); }

  /// Which rows of a list bear the sign of what the other rules make otherwise.
  std::string Marked(const char* list) const {
    const auto& lines = Find<QListWidget>(list);
    std::string rows;
    for (int row = 0; row < lines.count(); ++row) {
      const int mark = lines.item(row)->data(ui::OrderMarkRole).toInt();
      rows += mark == static_cast<int>(ui::OrderMark::Otherwise) ? '#' : '.';
    }
    return rows;
  }

  std::string ToolTip(int row) const {
    return Find<QListWidget>("lstOrders").item(row)->toolTip().toStdString();
  }

  std::string ReasonOf(int row) const {
    Find<QListWidget>("lstReport").setCurrentRow(row);
    return Text("lblReason");
  }

  std::filesystem::path file_;
};

TEST_F(RulesTest, WhatTheOthersMakeOtherwiseIsMarkedBeforeAndAfterResolving) {
  EXPECT_EQ(Marked("lstOrders"), "##..");
  EXPECT_THAT(ToolTip(0), HasSubstr("By the usual rules: It is impossible"));
  EXPECT_THAT(ToolTip(3), HasSubstr("no such unit"));
  EXPECT_THAT(ToolTip(3), HasSubstr("By the usual rules: it is for RUS F(Stp.s)"));
  ResolveByOrb();
  EXPECT_THAT(Text("lblDifferences"),
              HasSubstr("3 orders came out otherwise than by the usual rules"));
  EXPECT_EQ(Marked("lstReport"), "##.#.");
  EXPECT_THAT(ReasonOf(0), StartsWith("It moved, carried by ENG F(NTH)"));
  EXPECT_THAT(ReasonOf(0), HasSubstr("\nBy the usual rules: It is impossible"));
  EXPECT_THAT(ReasonOf(2), testing::Not(HasSubstr("rules")));
}

TEST_F(RulesTest, ComparingCanBeTurnedOffForGood) {
  Trigger("mnuGameCompare");
  EXPECT_EQ(Marked("lstOrders"), "....");
  window_->close();
  Open(file_);
  EXPECT_FALSE(Find<QAction>("mnuGameCompare").isChecked());
  ResolveByOrb();
  EXPECT_TRUE(Find<QLabel>("lblDifferences").isHidden());
  EXPECT_EQ(Marked("lstReport"), ".....");
}

TEST_F(RulesTest, TheUsualRulesAreInForceForTheFileThatTheyWereChosenFor) {
  EXPECT_TRUE(Find<QLabel>("lblRules").isHidden());
  Trigger("mnuGameRulesUsual");
  EXPECT_EQ(Text("lblRules"), "By the usual rules");
  EXPECT_THAT(ToolTip(3), HasSubstr("By ORB's own rules: There is no such unit"));
  Trigger("mnuFileNew");
  EXPECT_TRUE(Find<QLabel>("lblRules").isHidden()) << "another game";
  Open(file_);
  EXPECT_TRUE(Find<QAction>("mnuGameRulesUsual").isChecked());
  EXPECT_FALSE(Find<QLabel>("lblRules").isHidden());
  Resolve();
  EXPECT_THAT(Text("lblDifferences"),
              HasSubstr("3 orders came out otherwise than by ORB's own rules"));
  EXPECT_THAT(Lines("lstReport").front(), StartsWith("[ ENG A(Yor) - Spa ]  impossible move"));
}

}  // namespace
}  // namespace orb::tests
