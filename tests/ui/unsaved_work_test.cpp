#include "ui/window/unsaved_work.h"

#include "model/files.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "support/scripted_messages.h"
#include "ui/modal_script.h"
#include "ui/recovery/recovery_copy.h"
#include "ui/window_fixture.h"

#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class UnsavedWorkTest : public WindowTest {
 protected:
  /// The copies kept by windows, whether these are still there or not.
  int Copies() const {
    const fs::path folder = directory_.Path() / "state/recovery";
    if (!fs::exists(folder)) return 0;
    return static_cast<int>(
        std::count_if(fs::directory_iterator(folder), fs::directory_iterator(),
                      [](const auto& entry) { return entry.path().extension() == ".copy"; }));
  }

  bool Closes(std::deque<ModalScript::Step> steps) const {
    const ModalScript answers(std::move(steps));
    return window_->close();
  }

  /// What a killed program leaves, and a new start of it.
  void DieAndOpen(std::deque<ModalScript::Step> steps) {
    window_->keepAll();
    EXPECT_THAT(model::ReadFile(directory_.Path() / "config" / "window.ini"),
                testing::HasSubstr("geometry"));
    Open();
    Offer(std::move(steps));
  }

  void Offer(std::deque<ModalScript::Step> steps) const {
    const ModalScript answers(std::move(steps));
    window_->offerRecovery();
  }

  /// A step for the offer: expects to be told of the game, and presses the button.
  static ModalScript::Step Offered(const char* game, const char* button) {
    return [=](QDialog& dialog) {
      EXPECT_THAT(dynamic_cast<QMessageBox&>(dialog).text().toStdString(), HasSubstr(game));
      for (auto* pressed : dialog.findChildren<QPushButton*>()) {
        if (pressed->text() == QLatin1String(button)) return pressed->click();
      }
      ADD_FAILURE() << "no button " << button;
      dialog.reject();
    };
  }
};

TEST_F(UnsavedWorkTest, ClosingAsksWhereSomethingWouldBeLost) {
  EXPECT_TRUE(Closes({})) << "a new game";
  const auto file = directory_.Path() / "game.orb";
  const auto open = [&] {
    fs::copy_file(examples_ / "1901-2-autumn-0-start.orb", file,
                  fs::copy_options::overwrite_existing);
    Open(file);
    Enter("FRA A(Mar) hold");
    EXPECT_TRUE(window_->isWindowModified());
  };
  open();
  const std::string before = model::ReadFile(file);
  EXPECT_FALSE(Closes({Pressed("frmClosing", QMessageBox::Cancel)}));
  EXPECT_TRUE(window_->isVisible());
  EXPECT_TRUE(Closes({Pressed("frmClosing", QMessageBox::Discard)}));
  EXPECT_EQ(model::ReadFile(file), before);

  open();
  const auto enter = [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); };
  EXPECT_TRUE(Closes({enter})) << "the safe answer is the first one";
  EXPECT_THAT(model::ReadFile(file), HasSubstr("FRA A(Mar) hold"));

  open();
  Trigger("mnuFileSave");
  EXPECT_FALSE(window_->isWindowModified());
  EXPECT_TRUE(Closes({}));

  open();
  Press(Qt::Key_D, Qt::AltModifier);
  EXPECT_FALSE(window_->isWindowModified()) << "typed and taken out again";
  Enter("FRA A(Mar) hold");
  Trigger("mnuFileNew");
  EXPECT_FALSE(window_->isWindowModified());
  Enter("FRA A(Par) - Bur");
  const auto other = directory_.Path() / "other.orb";
  EXPECT_FALSE(
      Closes({Pressed("frmClosing", QMessageBox::Save), [](QDialog& dialog) { dialog.reject(); }}))
      << "no file was named";
  EXPECT_TRUE(Closes({Pressed("frmClosing", QMessageBox::Save),
                      FileChosen(QString::fromStdString(other.string()))}));
  EXPECT_THAT(model::ReadFile(other), HasSubstr("FRA A(Par) - Bur"));
}

TEST_F(UnsavedWorkTest, WhatNoFileKeepsIsNotLostUnawares) {
  Open(examples_ / "1902-1-spring-1-moves.orb");
  Enter("AUS A(Ser) disband");
  ASSERT_THAT(Lines("lstRetreats"), ElementsAre("AUS A(Ser) disband"));
  const auto text = [](QDialog& dialog) {
    EXPECT_THAT(dynamic_cast<QMessageBox&>(dialog).text().toStdString(), HasSubstr("retreats"));
    dialog.reject();
  };
  EXPECT_FALSE(Closes({text}));
  DieAndOpen({Offered("Spring 1902", "&Recover")});
  EXPECT_THAT(Lines("lstRetreats"), ElementsAre("AUS A(Ser) disband"));
}

TEST_F(UnsavedWorkTest, AKilledWindowsGameIsOfferedUntilItIsTakenOrDiscarded) {
  Enter("FRA A(Par) - Bur");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Copies() == 1; }, 5000)) << "after five seconds";
  {
    // A window that is still there.
    const auto first = std::move(window_);
    Open();
    Offer({});
  }
  Offer({Offered("CONCORDAT, Spring 1901", "&Later")});
  Offer({[](QDialog& dialog) { dialog.reject(); }});
  Open(examples_ / "1901-2-autumn-0-start.orb");
  Offer({Offered("CONCORDAT, Spring 1901", "&Recover")});
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur"));
  EXPECT_EQ(Find<QLabel>("lblFileName").text(), "") << "it had none";
  EXPECT_TRUE(window_->isWindowModified());
  EXPECT_EQ(Copies(), 1) << "this window's own";

  Enter("ENG F(Lon) - NTH");
  DieAndOpen({Offered("CONCORDAT, Spring 1901", "&Recover")});
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur", "ENG F(Lon) - NTH"));
  const auto file = directory_.Path() / "saved.orb";
  {
    const ModalScript answers({FileChosen(QString::fromStdString(file.string()))});
    Trigger("mnuFileSave");
  }
  EXPECT_EQ(Copies(), 0) << "it is saved";

  Enter("GER A(Ber) - Kie");
  DieAndOpen({Offered(file.c_str(), "&Discard")});
  EXPECT_EQ(Copies(), 0);
  Offer({});
  Enter("FRA A(Par) - Bur");
  window_->keepAll();
  EXPECT_EQ(Copies(), 1);
  EXPECT_TRUE(Closes({Pressed("frmClosing", QMessageBox::Discard)}));
  EXPECT_EQ(Copies(), 0) << "it was not wanted";
}

TEST_F(UnsavedWorkTest, AGameThatAnotherTookThePlaceOfIsKeptUntilItIsBack) {
  Enter("FRA A(Par) - Bur");
  Trigger("mnuFileNew");
  EXPECT_EQ(Copies(), 1) << "at once";
  Trigger("mnuFileBlank");
  Enter("ENG F(Lon) - NTH");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Copies() == 2; }, 5000));
  for (const char* what : {"order", "Blank", "New"}) {
    EXPECT_EQ(Copies(), *what == 'o' ? 2 : 1) << what;
    Trigger("mnuEditTakeBack");
  }
  EXPECT_EQ(Copies(), 0);
  EXPECT_TRUE(window_->isWindowModified());
  Trigger("mnuFileNew");
  DieAndOpen({Offered("CONCORDAT, Spring 1901", "&Recover")});
  EXPECT_THAT(Lines("lstOrders"), ElementsAre("FRA A(Par) - Bur"));
  Trigger("mnuFileNew");
  EXPECT_TRUE(Closes({})) << "nobody is asked about it";
  EXPECT_EQ(Copies(), 0);
}

TEST_F(UnsavedWorkTest, TheEndOfTheSessionAsksOrKeepsACopy) {
  auto& work = *window_->findChild<ui::UnsavedWork*>();
  const auto ends = [&](bool mayAsk, std::deque<ModalScript::Step> steps) {
    const ModalScript answers(std::move(steps));
    return work.endSession(mayAsk);
  };
  Enter("FRA A(Par) - Bur");
  EXPECT_FALSE(ends(true, {Pressed("frmClosing", QMessageBox::Cancel)}));
  EXPECT_TRUE(ends(false, {}));
  EXPECT_EQ(Copies(), 1);
  Enter("ENG F(Lon) - NTH");
  EXPECT_FALSE(Closes({Pressed("frmClosing", QMessageBox::Cancel)})) << "it did not end";
  EXPECT_TRUE(ends(false, {}));
  EXPECT_TRUE(Closes({})) << "it does";
  EXPECT_EQ(Copies(), 1);
  Open();
  Offer({Offered("CONCORDAT, Spring 1901", "&Discard")});
}

TEST(RecoveryCopy, HoldsAllThatAFileDoesAndMore) {
  ScriptedMessages none;
  const model::GameState base = EmptyBoard("Autumn", "adjustments");
  ui::RecoveryCopy copy{{base}, QDateTime::currentDateTime()};
  model::GameState& game = copy.situation.Game;
  game.Title = "<b>\xe4 & [*]";
  game.FileName = "/tmp/a \"b\"\n\xff/g.orb";
  game.OrdersList = {"FRA A(Par) - Bur"};
  game.AdjustmentsList = {"FRA build A(Par)", "\x80\x81 odd"};
  game.Units.Append({"FRA", "A", "Par", "dislodged", "Bur", "Gas"});
  copy.situation.ReadOnly = true;
  const std::string bytes = ui::formatRecoveryCopy(copy.situation, copy.time);

  const auto back = ui::parseRecoveryCopy(bytes, base);
  ASSERT_TRUE(back);
  EXPECT_EQ(Describe(back->situation.Game), Describe(game));
  EXPECT_EQ(back->situation.Game.FileName, game.FileName);
  EXPECT_EQ(back->situation.Game.AdjustmentsList, game.AdjustmentsList);
  EXPECT_TRUE(back->situation.ReadOnly);
  EXPECT_EQ(back->time.secsTo(copy.time), 0);
  for (std::size_t size = 0; size < bytes.size(); size += 7) {
    const auto cut = ui::parseRecoveryCopy(bytes.substr(0, size), base);
    // The last sections of a game file may be missing.
    EXPECT_TRUE(!cut || cut->situation.Game.OrdersList == game.OrdersList) << size;
  }
}

}  // namespace
}  // namespace orb::tests
