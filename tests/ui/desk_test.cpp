#include "ui/session/desk.h"

#include "model/errors.h"
#include "support/directories.h"
#include "support/scripted_messages.h"
#include "support/situation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace orb::tests {
namespace {

using model::GameState;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr auto Orders = &GameState::OrdersList;

class DeskTest : public testing::Test {
 protected:
  ScriptedMessages messages_;
  TemporaryDirectory directory_;
  ui::Desk desk_{ui::startSituation({DataDirectory(), {}}, {}, messages_), DataDirectory(),
                 messages_, nullptr};
};

TEST_F(DeskTest, ACommandThatFailsLeavesEverythingAndSaysWhy) {
  desk_.fileOrder(Orders, "ENG A(Lvp) - Yor");
  const auto broken = directory_.Write("broken.orb", "\"ORB v5.5\"\r\n\"X\",\"Spring\",1901");
  const std::string before = Describe(desk_.game());

  desk_.openGame(directory_.Path() / "missing.orb", true);
  desk_.openGame(broken, true);
  desk_.saveGameAs(directory_.Path() / "no" / "directory.orb");

  EXPECT_EQ(Describe(desk_.game()), before);
  EXPECT_FALSE(desk_.now().readOnly);
  const auto stop = [](const char* about) {
    return testing::Pair(HasSubstr(about), model::Icon::Stop);
  };
  EXPECT_THAT(messages_.Shown,
              ElementsAre(stop("missing.orb"), stop("broken.orb"), stop("directory.orb")));
}

TEST_F(DeskTest, NotesTellOfEveryLineOfTheReportThroughTheYear) {
  desk_.nextSeason();
  for (const char* order : {"AUS A(Vie) - Tyr", "ENG F(Lon) - ECH", "FRA F(Bre) - ECH"})
    desk_.fileOrder(Orders, order);
  desk_.resolve();
  const auto& notes = desk_.now().reportNotes;
  ASSERT_EQ(notes.size(), 22U);
  EXPECT_TRUE(!notes[0].failed && notes[1].failed && notes[2].failed);
  const std::string whyBounced = notes[1].reason;
  EXPECT_THAT(whyBounced, HasSubstr("FRA F(Bre)"));
  EXPECT_THAT(notes[1].locations, ElementsAre("Lon", "Bre"));

  ASSERT_EQ(desk_.game().Stage, "adjustments");
  desk_.fileOrder(&GameState::AdjustmentsList, "AUS build A(Vie)");
  desk_.resolve();
  EXPECT_EQ(desk_.game().Stage, "adjustments") << "one unit too many";
  desk_.deleteOrder(&GameState::AdjustmentsList, 0);
  desk_.fileOrder(&GameState::AdjustmentsList, "AUS disband A(Boh)");
  desk_.resolve();
  ASSERT_EQ(desk_.game().Stage, "finished");
  const auto& later = desk_.now().reportNotes;
  ASSERT_EQ(later.size(), 24U);
  EXPECT_EQ(later[1].reason, whyBounced);
  EXPECT_TRUE(later[1].failed && later[23].failed);
  EXPECT_THAT(later[23].reason, Not(IsEmpty()));
  desk_.nextSeason();
  EXPECT_THAT(desk_.now().reportNotes, IsEmpty());
}

TEST_F(DeskTest, ASavedGameIsTheSameWhenOpened) {
  desk_.fileOrder(Orders, "ENG A(Lvp) - Yor");
  const auto file = directory_.Path() / "game.orb";
  desk_.saveGameAs(file);
  const std::string saved = Describe(desk_.game());
  desk_.newGame();
  EXPECT_NE(Describe(desk_.game()), saved);
  desk_.openGame(file, true);
  EXPECT_EQ(Describe(desk_.game()), saved);
  EXPECT_TRUE(desk_.now().readOnly);

  const ui::Situation start =
      ui::startSituation({DataDirectory(), {}}, directory_.Path() / "GAME.orb", messages_);
  EXPECT_EQ(Describe(start.game), saved) << "a name on the command line may be in any case";
  EXPECT_THAT(messages_.Shown, IsEmpty());
}

}  // namespace
}  // namespace orb::tests
