#include "model/files.h"
#include "model/game_file.h"
#include "support/boards.h"
#include "support/scripted_messages.h"
#include "ui/modal_script.h"
#include "ui/session/desk.h"
#include "ui/window_fixture.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>

#include <array>
#include <functional>

namespace orb::tests {
namespace {

using session::Situation;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// A stage of the example game with its orders, and an order more that changes what comes of it.
struct Stage {
  const char* Game;
  const char* Orders;
  const char* Other;
};

constexpr std::array Stages{
    Stage{"1903-2-autumn-0-start.orb", "1903-2-autumn-1-moves.txt", "FRA A(Ruh) hold"},
    Stage{"1903-1-spring-1-moves.orb", "1903-1-spring-2-retreats.txt", "ENG F(NTH) disband"},
    Stage{"1903-2-autumn-2-retreats.orb", "1903-2-autumn-3-adjustments.txt", "RUS build F(Sev)"},
};

/// The desk with a drawing that tells what it was to draw.
class TrialTest : public testing::Test {
 protected:
  TrialTest() {
    desk_.setDrawing([this](const Situation& shown, const ui::View& view) {
      drawn_ = Describe(shown.Game);
      drawnOrders_ = view.showOrders;
    });
  }

  void Open(const Stage& stage) {
    desk_.openGame(examples_ / stage.Game, false);
    desk_.fileOrders(
        exchange::ReadOrders(desk_.game(), model::ReadFile(examples_ / stage.Orders), {}),
        QStringLiteral("Paste Orders"));
  }

  /// All that the game is, in the window and in its file.
  std::string Game() const {
    return Describe(desk_.game()) + model::FormatGameFile(desk_.game()) +
           (desk_.isModified() ? "modified" : "");
  }

  /// Resolves a copy, whatever is asked, and expects to be shown just that.
  void ExpectOutcome() const {
    Situation wanted = desk_.now();
    model::Consent consent;
    session::Resolve(wanted, consent, session::Noting::Full, session::Comparing::Yes);
    ASSERT_NE(wanted.Game.Stage, desk_.game().Stage);
    EXPECT_EQ(Describe(desk_.shown().Game), Describe(wanted.Game));
    EXPECT_EQ(desk_.shown().Notes, wanted.Notes);
    EXPECT_EQ(desk_.shown().Differences, wanted.Differences);
    EXPECT_EQ(drawn_, Describe(wanted.Game));
    EXPECT_TRUE(drawnOrders_);
  }

  const std::filesystem::path examples_ = DataDirectory().parent_path() / "examples";
  ScriptedMessages messages_;
  TemporaryDirectory directory_;
  ui::Desk desk_{ui::startProgram({DataDirectory(), {}}, {}, messages_), DataDirectory(), messages_,
                 nullptr};
  std::string drawn_;
  bool drawnOrders_ = false;
};

TEST_F(TrialTest, ShowsTheOutcomeOfAnyStageFollowsItsOrdersAndChangesNothing) {
  for (const Stage& stage : Stages) {
    SCOPED_TRACE(stage.Orders);
    Open(stage);
    const std::string before = Game();
    int changes = 0;
    const auto counting = QObject::connect(&desk_, &ui::Desk::changed, [&] { ++changes; });
    desk_.tryOut();
    ExpectOutcome();
    const std::string outcome = drawn_;
    EXPECT_EQ(Game(), before);
    EXPECT_EQ(changes, 0) << "what copies the game for recovery is told of no change";
    QObject::disconnect(counting);
    EXPECT_TRUE(desk_.fileOrder(stage.Other));
    ExpectOutcome();
    EXPECT_NE(drawn_, outcome);
    desk_.setRules(session::Rules::Usual);
    ExpectOutcome();
    desk_.setRules(session::Rules::Orb);
    const std::string changed = Game();
    desk_.endTrial();
    EXPECT_EQ(Game(), changed);
    EXPECT_EQ(drawn_, Describe(desk_.game()));
    EXPECT_FALSE(drawnOrders_);
  }
  EXPECT_THAT(messages_.Questions, IsEmpty());
  EXPECT_THAT(messages_.Shown, IsEmpty());
}

TEST_F(TrialTest, AnyOtherChangeOfTheGameEndsIt) {
  using Command = std::function<void(ui::Desk&)>;
  const Stage& retreats = Stages[1];
  const std::vector<std::pair<const char*, Command>> commands{
      {"resolve", [](ui::Desk& desk) { desk.resolve(); }},
      {"undo", [](ui::Desk& desk) { desk.undoSeason(); }},
      {"new", [](ui::Desk& desk) { desk.newGame(); }},
      {"open", [&](ui::Desk& desk) { desk.openGame(examples_ / Stages[0].Game, false); }},
      {"edit", [](ui::Desk& desk) { desk.setEditing(session::Editing::Units); }},
      {"season",
       [](ui::Desk& desk) {
         desk.editSeason({"T", "Spring", 1905, model::Stage::Moves, {}, {}});
       }},
  };
  for (const auto& [name, command] : commands) {
    Open(retreats);
    desk_.tryOut();
    ASSERT_TRUE(desk_.trial());
    command(desk_);
    EXPECT_FALSE(desk_.trial()) << name;
    EXPECT_EQ(drawn_, Describe(desk_.game())) << name;
    if (desk_.now().Editing != session::Editing::None) desk_.setEditing(session::Editing::None);
  }
}

TEST_F(TrialTest, WhatCannotBeResolvedSaysWhyAndCanStillBeOrdered) {
  desk_.openGame(examples_ / Stages[2].Game, false);
  desk_.tryOut();
  EXPECT_EQ(desk_.trial()->objection, "Error: ENG too many units.");
  EXPECT_EQ(drawn_, Describe(desk_.game()));
  desk_.fileOrder("ENG disband F(HEL)");
  EXPECT_EQ(desk_.trial()->objection, "");
  ExpectOutcome();
}

/// The window on a game where Germany has taken Burgundy and could have taken Vienna.
class WhatIfTest : public WindowTest {
 protected:
  void SetUp() override {
    const model::GameState game = Board(
        "Spring", "moves",
        {"FRA A(Bur) hold", "FRA A(Par) hold", "FRA A(Gas) - Spa", "GER A(Mun) - Bur",
         "GER A(Ruh) S A(Mun) - Bur", "GER A(Boh) hold", "GER A(Tyr) hold", "AUS A(Vie) hold"});
    directory_.Write("game.orb", model::FormatGameFile(game));
    Open(directory_.Path() / "game.orb");
  }

  /// The report with its reasons, in any order.
  std::vector<std::string> Reasons() const {
    std::vector<std::string> texts;
    auto& report = Find<QListWidget>("lstReport");
    for (int row = 0; row < report.count(); ++row) {
      report.setCurrentRow(row);
      texts.push_back(report.item(row)->text().toStdString() + " " +
                      Find<QLabel>("lblReason").text().toStdString());
    }
    std::ranges::sort(texts);
    return texts;
  }

  void Select(const char* list, const char* begin) const {
    auto& lines = Find<QListWidget>(list);
    const auto found = lines.findItems(QLatin1String(begin), Qt::MatchContains);
    ASSERT_THAT(found, testing::Not(IsEmpty())) << begin;
    lines.setCurrentItem(found.first());
  }

  /// The answers, each by its orders; a heading by its text.
  std::vector<std::string> Answers() const {
    std::vector<std::string> texts;
    for (const std::string& line : Lines("lstWhatIf"))
      texts.push_back(line.substr(0, line.find('\n')));
    return texts;
  }

  void Click(const char* button) const { Find<QPushButton>(button).click(); }
};

TEST_F(WhatIfTest, AnAnswerShowsWhatResolvingWithThatOrderWouldBring) {
  Resolve();
  const std::vector<std::string> resolved = Reasons();
  Select("lstReport", "FRA A(Bur)");
  Click("butWhatIf");
  EXPECT_THAT(Find<QLabel>("lblWhatIf").text().toStdString(),
              StartsWith("FRA A(Bur) hold\nIt was dislodged by \"GER A(Mun) - Bur\": "));
  EXPECT_EQ(Answers().front(), "France") << "the own power first";
  EXPECT_THAT(Answers(), Contains("GER A(Ruh) hold"));
  Select("lstWhatIf", "FRA A(Gas) S A(Bur) hold");
  EXPECT_TRUE(Find<QWidget>("fraTrial").isVisible());
  EXPECT_EQ(Find<QLabel>("lblTrial").text(), "With FRA A(Gas) S A(Bur) hold");
  EXPECT_FALSE(Find<QWidget>("butTrialResolve").isVisible());
  const std::vector<std::string> tried = Reasons();

  Click("butTrialBack");
  EXPECT_EQ(StagePanel(), "fraRetreats");
  EXPECT_EQ(Reasons(), resolved);

  Open(directory_.Path() / "game.orb");
  Enter(QStringLiteral("FRA A(Gas) S A(Bur) hold"));
  Resolve();
  EXPECT_EQ(Reasons(), tried);
}

TEST_F(WhatIfTest, KeysLeadIntoATrialAndOutOfIt) {
  auto& banner = Find<QWidget>("fraTrial");
  Press(Qt::Key_T, Qt::ControlModifier);
  Type(QStringLiteral("FRA X"));
  Press(Qt::Key_Escape);
  EXPECT_TRUE(banner.isVisible()) << "the box is emptied first";
  Press(Qt::Key_Up);
  Press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_THAT(Find<QLabel>("lblWhatIf").text().toStdString(), StartsWith("AUS A(Vie) hold\n"));
  Press(Qt::Key_Escape);
  EXPECT_TRUE(banner.isVisible()) << "the stage is tried out as before";
  EXPECT_EQ(StagePanel(), "fraOrders");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(banner.isVisible());
  EXPECT_THAT(Lines("lstReport"), IsEmpty());
  Trigger("mnuGameTryOut");
  Enter(QStringLiteral("FRA A(Par) S A(Bur) hold"));
  EXPECT_THAT(Lines("lstReport"), Contains("[ GER A(Mun) - Bur ]  "));
  Click("butTrialResolve");
  EXPECT_FALSE(banner.isVisible());
  EXPECT_EQ(StagePanel(), "fraSeasonFinished");
  EXPECT_FALSE(Find<QAction>("mnuGameTryOut").isEnabled());
}

TEST_F(WhatIfTest, PairsOfChangesAreSearchedOnRequest) {
  Trigger("mnuGameTryOut");
  Select("lstReport", "AUS A(Vie)");
  Click("butWhatIf");
  EXPECT_THAT(Answers(), ElementsAre("No change of a single order would have changed this."));
  auto& power = Find<QComboBox>("cboWhatIfPower");
  EXPECT_EQ(power.currentText(), "Austria-Hungary");
  power.setCurrentText(QStringLiteral("Germany"));
  Click("butWhatIfPairs");
  EXPECT_TRUE(Find<QWidget>("butWhatIfCancel").isVisible());
  ASSERT_TRUE(QTest::qWaitFor([this] { return Answers().size() > 1; }, 60'000));
  EXPECT_THAT(Answers(), Contains("Germany: two orders"));
  EXPECT_THAT(Answers(), Contains("GER A(Boh) S A(Tyr) - Vie, GER A(Tyr) - Vie"));
}

}  // namespace
}  // namespace orb::tests
