#include "ui/session/desk.h"

#include "model/errors.h"
#include "support/boards.h"
#include "support/directories.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using session::Changes;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

class DeskTest : public testing::Test {
 protected:
  DeskTest() {
    QObject::connect(&desk_, &ui::Desk::changed, &desk_, [this](Changes c) { told_.push_back(c); });
    QObject::connect(&desk_, &ui::Desk::viewChanged, &desk_, [this] { ++viewChanges_; });
  }

  ScriptedMessages messages_;
  TemporaryDirectory directory_;
  ui::Desk desk_{ui::startProgram({DataDirectory(), {}}, {}, messages_), DataDirectory(), messages_,
                 nullptr};
  std::vector<Changes> told_;
  int viewChanges_ = 0;
};

TEST_F(DeskTest, TellsWhatChanged) {
  desk_.fileOrder("ENG A(Lvp) - Yor");
  desk_.fileOrder("no unit");
  desk_.setShowOrders(true);
  EXPECT_THAT(told_, ElementsAre(Changes::Orders, Changes::None));
  EXPECT_EQ(viewChanges_, 1);

  const auto file = directory_.Path() / "game.orb";
  desk_.saveGameAs(file);
  EXPECT_EQ(told_.back(), Changes::File);
  const ui::Start start =
      ui::startProgram({DataDirectory(), {}}, directory_.Path() / "GAME.orb", messages_);
  EXPECT_EQ(Describe(start.situation.Game), Describe(desk_.game()))
      << "a name on the command line may be in any case";
  EXPECT_THAT(messages_.Shown, IsEmpty());
}

TEST_F(DeskTest, WhatFailsIsToldInABoxAndShownAsItWas) {
  const auto stop = [](const char* about) { return Pair(HasSubstr(about), model::Icon::Stop); };
  const std::string before = Describe(desk_.game());
  desk_.openGame(directory_.Path() / "missing.orb", true);
  desk_.setDrawing([](const session::Situation&, const ui::View&) {
    throw model::FileError("It cannot be drawn.");
  });
  desk_.blankGame();
  desk_.setViewOnly(true);
  desk_.setDrawing([](const session::Situation&, const ui::View&) { throw std::bad_alloc(); });
  EXPECT_FALSE(desk_.fileOrder("ENG A(Lvp) - Yor"));
  EXPECT_EQ(Describe(desk_.game()), before);
  EXPECT_FALSE(desk_.view().viewOnly);
  EXPECT_THAT(told_, ElementsAre(Changes::All, Changes::All, Changes::All));
  EXPECT_EQ(viewChanges_, 1);
  EXPECT_THAT(messages_.Shown, ElementsAre(stop("missing.orb"), stop("drawn"), stop("drawn"),
                                           stop("not enough memory")));
}

}  // namespace
}  // namespace orb::tests
