#include "session/session.h"

#include "model/errors.h"
#include "model/files.h"
#include "session/queries.h"
#include "session/session_fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace orb::tests {
namespace {

using model::Answer;
using session::Changes;
using session::Command;
using session::Editing;
using session::Situation;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;

constexpr int FrenchArmy = 4;
constexpr int GermanArmy = 7;

TEST_F(Session, AGameIsPlayed) {
  Edit(Editing::Units);
  EXPECT_EQ(Move(FrenchArmy, "Bur") + Move(GermanArmy, "Ruh"), "");
  EXPECT_EQ(Edit(Editing::None).Changed, Changes::Editing);

  ASSERT_TRUE(FileAll({"GER A(Mun) - Bur", "GER A(Ruh) S GER A(Mun) - Bur", "FRA A(Bur) - ?"}));
  EXPECT_FALSE(FileAll({"no unit"}));
  const session::Effect stopped = Resolve({Answer::No});
  EXPECT_FALSE(stopped.Done);
  EXPECT_EQ(stopped.Changed, Changes::Orders);
  EXPECT_EQ(Now().Stopped, (session::StoppedLine{2, orders::OrderResult::SyntaxError}));
  session_.Run([](Situation& next) { return session::DeleteOrder(next, 2); });
  EXPECT_FALSE(Now().Stopped) << "the list is another";

  EXPECT_EQ(Resolve({Answer::YesToAll}).Changed,
            Changes::Season | Changes::Position | Changes::Orders | Changes::Report);
  EXPECT_THAT(messages_->Questions, ElementsAre(HasSubstr("unordered")));
  ASSERT_EQ(Game().Stage, model::Stage::Retreats);
  ASSERT_TRUE(FileAll({"FRA A(Bur) retreat Par"}));
  EXPECT_EQ(session::SeasonOrders(Now()).size(), 23U);
  Resolve();
  ASSERT_EQ(Game().Stage, model::Stage::Finished);

  const auto file = directory_.Path() / "game.orb";
  EXPECT_EQ(SaveAs(file).Changed, Changes::File);
  const std::string saved = Describe(Game());
  Edit(Editing::Units);
  EXPECT_TRUE(Undo().Done);
  EXPECT_EQ(Now().Editing, Editing::None);
  EXPECT_THAT(DrawUnits(Game()), HasSubstr("FRA A(Bur)\n"));
  EXPECT_THAT(Now().Notes, IsEmpty());
  EXPECT_THAT(Now().Outcomes, IsEmpty());
  EXPECT_FALSE(Now().BeforeMoves);
  Open(file);
  EXPECT_THROW(session_.Run([](Situation& next) { session::SaveGame(next); }), model::FatalError)
      << "only read";
  EXPECT_THAT(DrawUnits(Game()), HasSubstr("FRA A(Par)\n"));

  session_.Run(session::NextSeason);
  EXPECT_EQ(Game().Season + std::string(StageText(Game())) + Game().FileName, "Autumnmoves");
  ASSERT_TRUE(FileAll({"GER F(Kie) - Den"}));
  Resolve({Answer::YesToAll});
  ASSERT_EQ(Game().Stage, model::Stage::Adjustments);
  ASSERT_TRUE(FileAll({"GER build A(Kie)", "GER build A(Ber)"}));
  const std::string before = All(Now());
  EXPECT_FALSE(Resolve().Done) << "one unit too many";
  EXPECT_EQ(All(Now()), before);
  session_.Run([](Situation& next) { return session::DeleteOrder(next, 0); });
  EXPECT_TRUE(Resolve().Done);
  session_.Run(session::NextSeason);
  EXPECT_EQ(Game().Season + std::to_string(Game().Year), "Spring1902");
  EXPECT_EQ(Game().Units.Count(), 23);
}

TEST_F(Session, NotesTellOfEveryLineOfTheReportThroughTheYear) {
  session_.Run([](Situation& next) {
    model::SeasonFacts autumn = model::SeasonFactsOf(next.Game);
    autumn.Season = "Autumn";
    session::EditSeason(next, autumn);
  });
  FileAll({"AUS A(Vie) - Tyr", "ENG F(Lon) - ECH", "FRA F(Bre) - ECH"});
  Resolve();
  const auto& notes = Now().Notes;
  ASSERT_EQ(notes.size(), 22U);
  EXPECT_TRUE(!notes[0].Failed && notes[1].Failed && notes[2].Failed);
  const std::string whyBounced = notes[1].Reason;
  EXPECT_THAT(whyBounced, HasSubstr("FRA F(Bre)"));
  EXPECT_THAT(notes[1].Locations, ElementsAre("Lon", "Bre"));

  FileAll({"AUS disband A(Boh)"});
  Resolve();
  ASSERT_EQ(Game().Stage, model::Stage::Finished);
  ASSERT_EQ(notes.size(), 24U);
  EXPECT_EQ(notes[1].Reason, whyBounced);
  EXPECT_TRUE(notes[1].Failed && notes[23].Failed);
  EXPECT_THAT(notes[23].Reason, Not(IsEmpty()));
}

TEST_F(Session, StepsOfEditingGoBackAndForth) {
  FileAll({"GER A(Mun) hold"});
  Edit(Editing::Units);
  EXPECT_FALSE(session_.CanUndoEdit()) << "the order is none of the editing's steps";
  const std::string start = DrawUnits(Game());
  EXPECT_EQ(Move(FrenchArmy, "Bur"), "");
  const std::string moved = DrawUnits(Game());
  EXPECT_THAT(Move(GermanArmy, "Bur"), Not(IsEmpty()));
  EXPECT_EQ(DrawUnits(Game()), moved);
  EXPECT_EQ(session_.TakeBack().Changed, Changes::Position | Changes::Editing);
  EXPECT_EQ(DrawUnits(Game()), start);
  EXPECT_EQ(Now().Editing, Editing::Units);
  EXPECT_TRUE(session_.CanRedoEdit());
  session_.DoAgain();
  EXPECT_EQ(DrawUnits(Game()), moved);
  session_.WithdrawEdit();
  EXPECT_EQ(DrawUnits(Game()), start);
  EXPECT_FALSE(session_.CanRedoEdit());
  EXPECT_FALSE(session_.WithdrawEdit().Done) << "no edit is left";

  EXPECT_EQ(Move(FrenchArmy, "Bur"), "");
  Edit(Editing::None);
  Edit(Editing::Provinces);
  EXPECT_FALSE(session_.CanUndoEdit()) << "the editing had ended";
  session_.TakeBack();
  EXPECT_EQ(DrawUnits(Game()), start) << "but not the game";
}

TEST_F(Session, EveryCommandIsTakenBackAndDoneAgain) {
  const auto file = directory_.Path() / "other.orb";
  SaveAs(file);
  const std::vector<std::pair<const char*, Command>> commands{
      {"file", File("FRA A(Mar) - Spa")},
      {"refile", File("FRA A(Mar) hold")},
      {"delete", [](Situation& next) { return session::DeleteOrder(next, 0); }},
      {"import",
       [](Situation& next) {
         session::ReplaceOrders(next, {"AUS A(Vie) - Tyr", "ENG F(Lon) - ECH", "FRA F(Bre) - ECH"});
       }},
      {"rules", [](Situation& next) { session::SetRules(next, session::Rules::Usual); }},
      {"resolve",
       [](Situation& next) {
         model::Consent yes;
         return session::Resolve(next, yes, session::Noting::Full, session::Comparing::Yes);
       }},
      {"undo season", [&](Situation& next) { return session::UndoSeason(next, *messages_); }},
      {"resolve",
       [](Situation& next) {
         model::Consent yes;
         return session::Resolve(next, yes);
       }},
      {"next", session::NextSeason},
      {"title", [](Situation& next) { session::SetTitle(next, "X"); }},
      {"edit",
       [](Situation& next) {
         session::Edit(next,
                       [](model::GameState& game) { return model::MoveUnit(game, 1, "NTH"); });
       }},
      {"blank", [](Situation& next) { session::BlankGame(next, DataDirectory()); }},
      {"new", [](Situation& next) { session::NewGame(next, DataDirectory()); }},
      {"open",
       [&](Situation& next) { session::OpenGame(next, file, true, DataDirectory(), *messages_); }},
  };
  // What a step brings back, the file and the mark of unsaved changes included.
  const auto all = [this] {
    return All(Now()) + "\n" + Game().FileName + (session::IsModified(Now()) ? " modified " : " ") +
           std::to_string(static_cast<int>(Now().Rules)) + std::to_string(Now().Differences.size());
  };
  std::vector<std::string> states{all()};
  for (const auto& [name, command] : commands) {
    ASSERT_TRUE(session_.Run(command, {name}).Done) << name;
    states.push_back(all());
    EXPECT_NE(states.back(), states.rbegin()[1]) << name;
  }
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = commands.size(); i-- > 0;) {
      EXPECT_EQ(session_.Steps().Last()->Name.Text, commands[i].first);
      session_.TakeBack();
      EXPECT_EQ(all(), states[i]) << commands[i].first;
    }
    EXPECT_EQ(session_.TakeBack().Done, false) << "there is nothing before";
    for (std::size_t i = 0; i < commands.size(); ++i) {
      EXPECT_EQ(session_.Steps().Next()->Name.Text, commands[i].first);
      session_.DoAgain();
      EXPECT_EQ(all(), states[i + 1]) << commands[i].first;
    }
    EXPECT_EQ(session_.DoAgain().Done, false) << "nothing was done after that";
  }
  session_.TakeBack();
  session_.Run(File("ENG A(Lvp) hold"), {"file"});
  EXPECT_EQ(session_.Steps().Next(), nullptr) << "another way was taken";
}

TEST_F(Session, TakingBackKeepsWhatIsNoneOfTheGame) {
  const auto file = directory_.Path() / "game.orb";
  const auto run = [this](const Command& command) { session_.Run(command, {"step"}); };
  run(File("ENG A(Lvp) hold"));
  SaveAs(file);
  model::CountryTable colours = Game().Countries;
  colours[1].Colour = 77;
  session_.Run([&](Situation& next) { session::SetColours(next, colours); });
  session_.TakeBack();
  EXPECT_EQ(Game().FileName, file.string()) << "it is saved there from now on";
  EXPECT_TRUE(session::IsModified(Now())) << "the file has the order";
  EXPECT_EQ(Game().Countries[1].Colour, 77U);
  session_.DoAgain();
  EXPECT_FALSE(session::IsModified(Now()));

  // The same file, opened again and written over.
  session_.Run(
      [&](Situation& next) {
        session::OpenGame(next, directory_.Path() / "./game.orb", false, DataDirectory(),
                          *messages_);
      },
      {"open", session::StepKind::Another});
  EXPECT_EQ(session_.Steps().LeftBehind(), nullptr) << "all of it is in the file";
  run(File("FRA A(Mar) hold"));
  session_.Run([](Situation& next) { session::SaveGame(next); });
  run([](Situation& next) { session::NewGame(next, DataDirectory()); });
  session_.TakeBack();
  EXPECT_FALSE(session::IsModified(Now()));
  session_.TakeBack();
  session_.TakeBack();
  EXPECT_THAT(Game().OrdersList, ElementsAre("ENG A(Lvp) hold"));
  EXPECT_TRUE(session::IsModified(Now())) << "the file has another order by now";
  session_.Run([](Situation& next) { session::SaveGame(next); });
  EXPECT_FALSE(session::IsModified(Now())) << "nobody else has changed it";

  run(File("RUS A(Mos) hold"));
  session_.Run([](Situation& next) { session::BlankGame(next, DataDirectory()); },
               {"blank", session::StepKind::Another});
  ASSERT_NE(session_.Steps().LeftBehind(), nullptr);
  EXPECT_EQ(session_.Steps().LeftBehind()->There.Game.OrdersList.back(), "RUS A(Mos) hold");
  session_.SetReview([](const Situation& next) {
    if (next.Game.Units.Count() > 0) throw model::FileError("It cannot be drawn.");
  });
  EXPECT_THROW(session_.TakeBack(), model::FileError);
  EXPECT_EQ(Game().Units.Count(), 0);
  session_.SetReview([](const Situation&) {});
  session_.TakeBack();
  EXPECT_EQ(session_.Steps().LeftBehind(), nullptr);
}

TEST_F(Session, WhatFailsOrIsDeclinedLeavesEverything) {
  FileAll({"ENG A(Lvp) - Yor"});
  Resolve();
  session_.Run(session::NextSeason);
  FileAll({"ENG A(Yor) - Edi"});
  const std::string before = All(Now());
  const auto broken = directory_.Write("broken.orb", "\"ORB v5.5\"\r\n\"X\",\"Spring\",1901");
  EXPECT_THROW(Open(directory_.Path() / "missing.orb"), model::FileError);
  EXPECT_THROW(Open(broken), model::FileError);
  EXPECT_THROW(SaveAs(directory_.Path() / "no" / "directory.orb"), model::FileError);
  EXPECT_THROW(session_.Run([](Situation& next) { session::BlankGame(next, "/nowhere"); }),
               model::FileError);
  EXPECT_THROW(session_.Run(session::NextSeason), model::FatalError);
  EXPECT_FALSE(Resolve({Answer::No}).Done);
  EXPECT_EQ(All(Now()), before);

  session_.SetReview([](const Situation& next) {
    if (next.Game.Stage != model::Stage::Moves) throw model::FileError("It cannot be drawn.");
  });
  EXPECT_THROW(Resolve(), model::FileError);
  EXPECT_EQ(All(Now()), before);
}

TEST_F(Session, AFileThatSomebodyElseHasChangedIsNotReplacedUnasked) {
  using model::FileChange;
  const auto file = directory_.Path() / "game.orb";
  const auto save = [&](session::Overwrite overwrite = session::Overwrite::Unchanged) {
    session_.Run([&](Situation& next) { session::SaveGame(next, overwrite); });
  };
  const auto bytes = [&] { return model::ReadFile(file); };
  SaveAs(file);
  const std::string first = bytes();
  FileAll({"ENG A(Lvp) - Yor"});
  save();
  const std::string second = bytes();
  ASSERT_NE(first, second);

  for (const bool reopened : {false, true}) {
    directory_.Write("game.orb", second);
    if (reopened) Open(file, false);
    EXPECT_EQ(session::OwnFileChange(Now()), FileChange::None) << "the same bytes, only newer";
    // Of the same length, and so soon that the time may be the same.
    std::string others = second;
    others.replace(others.find("Yor"), 3, "Wal");
    directory_.Write("game.orb", others);
    EXPECT_EQ(session::OwnFileChange(Now()), FileChange::Changed);
    for (const auto& command :
         {Command([](Situation& next) { session::SaveGame(next); }), Command([&](Situation& next) {
            session::SaveGameAs(next, directory_.Path() / "./game.orb");
          })}) {
      EXPECT_THROW(session_.Run(command), model::FileChangedError);
      EXPECT_EQ(bytes(), others);
    }
    EXPECT_EQ(directory_.EntryCount(), 1);
    save(session::Overwrite::Anything);
    EXPECT_EQ(bytes(), second);
    EXPECT_EQ(session::OwnFileChange(Now()), FileChange::None);
  }
  std::filesystem::remove(file);
  EXPECT_EQ(session::OwnFileChange(Now()), FileChange::Gone);
  save();
  EXPECT_EQ(bytes(), second);

  directory_.Write("other.orb", "precious");
  SaveAs(directory_.Path() / "other.orb");
  EXPECT_EQ(session::OwnFileChange(Now()), FileChange::None);
  directory_.Write("other.orb", "changed");
  session_.Run([](Situation& next) { session::NewGame(next, DataDirectory()); });
  EXPECT_EQ(session::OwnFileChange(Now()), FileChange::None) << "it is another game";
}

TEST_F(Session, AnUnknownLocationBeginsANewGame) {
  FileAll({"ENG A(Lvp) - Yor"});
  Open(directory_.Write(
      "old.orb", "\"ORB v5.5\"\n\"T\",\"Autumn\",1910,\"moves\"\n0\n1\n\"Xyz\",\"\",0,\"\"\n"));
  EXPECT_THAT(messages_->Shown,
              ElementsAre(Pair("Unknown province: Xyz", model::Icon::Exclamation)));
  EXPECT_EQ(Game().Title + Game().Season + std::string(StageText(Game())) + Game().FileName,
            "CONCORDATSpringmoves");
  EXPECT_EQ(Game().Units.Count(), 22);
  EXPECT_THAT(Game().OrdersList, IsEmpty());
}

}  // namespace
}  // namespace orb::tests
