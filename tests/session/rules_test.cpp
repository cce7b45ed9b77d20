#include "model/errors.h"
#include "session/commands.h"
#include "session/trial.h"
#include "session/what_if.h"
#include "support/boards.h"
#include "support/scripted_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using session::Comparing;
using session::Noting;
using session::Rules;
using session::Situation;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

Situation At(std::string_view season, std::string_view stage,
             const std::vector<std::string>& lines) {
  return Situation{Board(season, stage, lines)};
}

Situation Resolved(Situation situation, Rules rules = Rules::Orb) {
  situation.Rules = rules;
  model::Consent messages;
  session::Resolve(situation, messages, Noting::Full, Comparing::Yes);
  return situation;
}

/// The orders that came out otherwise by the other rules.
std::vector<std::string> DifferentOrders(const Situation& situation) {
  std::vector<std::string> texts;
  for (const session::Difference& difference : situation.Differences)
    texts.push_back(difference.Text);
  return texts;
}

struct Row {
  std::string Season;
  std::string Stage;
  std::vector<std::string> Board;
  std::string Own;  ///< "ENG Lon Edi": centres
  std::vector<std::string> Different;
};

TEST(Rules, TellWhichOrdersComeOutOtherwise) {
  const std::vector<Row> rows = {
      // Nothing: the same by both.
      {"Spring", "moves", {"GER A(Mun) - Bur", "FRA A(Par) - Bur"}, "", {}},
      // A broken chain: the move, and the convoy that is void by the usual rules.
      {"Spring",
       "moves",
       {"ENG A(Yor) - Spa", "ENG F(NTH) C A(Yor) - Spa"},
       "",
       {"ENG A(Yor) - Spa", "ENG F(NTH) C A(Yor) - Spa"}},
      // A coast left out; the hold that ORB supplies is told of by the line itself.
      {"Spring", "moves", {"RUS F(Stp.s)", "> RUS F(Stp) - BOT"}, "", {"RUS F(Stp) - BOT"}},
      // Dislodged by both, with other places to go to: the attack came over sea.
      {"Spring",
       "moves",
       {"FRA A(Bel) hold", "ENG A(Hol) - Bel", "ENG F(NTH) C A(Hol) - Bel",
        "ENG F(ECH) S A(Hol) - Bel"},
       "",
       {"FRA A(Bel) hold"}},
      // By ORB's own rules a unit bounces off itself.
      {"Spring",
       "moves",
       {"FRA A(Par) - Bur", "> FRA A(Par) - Bur"},
       "",
       {"FRA A(Par) - Bur", "FRA A(Par) - Bur"}},
      {"Autumn", "retreats", {"RUS F(Con) <BLA retreat Bul", "RUS A(Rum)"}, "", {}},
      {"Autumn",
       "retreats",
       {"RUS F(Arm) <Sev retreat BLA", "TUR A(Arm)", "> RUS F(Arm) disband"},
       "",
       {"RUS F(Arm) retreat BLA", "RUS F(Arm) disband"}},
      {"Autumn",
       "adjustments",
       {"> RUS build A(Sev)", "> RUS build F(Sev)", "> RUS build A(Mos)"},
       "RUS Sev Mos War",
       {"RUS build A(Sev)"}},
  };
  for (const Row& row : rows) {
    Situation situation = At(row.Season, row.Stage, row.Board);
    if (!row.Own.empty()) Own(situation.Game, row.Own);
    const Situation orb = Resolved(situation);
    EXPECT_EQ(DifferentOrders(orb), row.Different) << row.Board.front();
    const auto marked =
        std::ranges::count_if(orb.Notes, [](const auto& note) { return !note.Otherwise.empty(); });
    EXPECT_EQ(static_cast<std::size_t>(marked), row.Different.size()) << row.Board.front();
    EXPECT_EQ(DifferentOrders(Resolved(situation, Rules::Usual)), row.Different)
        << row.Board.front();
  }
}

TEST(Rules, TellWhyByBothAndForgetItWithTheReport) {
  const Situation start = At("Spring", "moves",
                             {"FRA A(Par) - Ruh", "FRA A(Bur) S A(Par) hold", "GER A(Pic) - Par",
                              "GER A(Gas) S A(Pic) - Par"});
  const Situation orb = Resolved(start);
  EXPECT_FALSE(orb.ByUsualRules);
  EXPECT_EQ(session::DifferencesText(static_cast<int>(orb.Differences.size()), orb.Rules),
            "3 orders came out otherwise than by the usual rules");
  EXPECT_EQ(orb.Notes[1].Otherwise, "By the usual rules: It supported FRA A(Par) where it stood.");
  const Situation usual = Resolved(start, Rules::Usual);
  EXPECT_TRUE(usual.ByUsualRules);
  EXPECT_THAT(usual.Notes[0].Otherwise,
              StartsWith("By ORB's own rules: It is impossible: no army can move from Par to Ruh"));
  EXPECT_EQ(session::DifferencesText(0, Rules::Usual),
            "No order came out otherwise than by ORB's own rules");
}

TEST(Rules, TellWhereAUnitMayRetreatToOtherwise) {
  const Situation orb = Resolved(At("Spring", "moves",
                                    {"FRA A(Bel) hold", "ENG A(Hol) - Bel",
                                     "ENG F(NTH) C A(Hol) - Bel", "ENG F(ECH) S A(Hol) - Bel"}));
  ASSERT_EQ(orb.Differences.size(), 1U);
  EXPECT_THAT(orb.Differences[0].There, EndsWith(" It may retreat to Bur, Pic, Ruh, Hol."));
}

TEST(Rules, TellWhatTheOthersRefuseOrChoose) {
  Situation situation = At("Autumn", "adjustments", {"ITA A(Ven)", "ITA A(Rom)", "ITA F(ION)"});
  Own(situation.Game, "ITA Ven Rom");
  EXPECT_FALSE(session::Resolve(situation, *std::make_unique<model::Consent>()));
  const Situation usual = Resolved(situation, Rules::Usual);
  EXPECT_THAT(Lines(usual.Game.ReportLines),
              ElementsAre("ADJUSTMENTS", "ITA DISBAND F(ION)  unordered"));
  ASSERT_EQ(usual.Differences.size(), 1U);
  EXPECT_EQ(usual.Differences[0].There,
            "By ORB's own rules: The stage is not resolved: Error: ITA too many units.");
}

TEST(Rules, TryingOutLeavesTheSituation) {
  const Situation start = At("Spring", "moves", {"GER A(Mun) - Bur", "FRA A(Par)"});
  const std::string before = Describe(start.Game);
  const Situation tried = session::TryOut(start);
  EXPECT_EQ(Describe(start.Game), before);
  EXPECT_EQ(tried.Game.Stage, model::Stage::Finished);
  EXPECT_THAT(DrawUnits(tried.Game), HasSubstr("GER A(Bur)"));
  EXPECT_THROW(session::TryOut(tried), model::FatalError);
}

std::vector<std::string> Drawn(const std::vector<session::Alternative>& alternatives) {
  std::vector<std::string> texts;
  for (const session::Alternative& alternative : alternatives) {
    std::string text;
    for (const std::string& order : alternative.Orders)
      text += order + "; ";
    texts.push_back(text + std::to_string(alternative.OtherChanges));
  }
  return texts;
}

TEST(WhatIf, FindsTheChangesThatMatterAndNoOthers) {
  const Situation start =
      At("Spring", "moves",
         {"GER A(Mun) - Tyr", "AUS A(Tyr) hold", "GER F(Kie) hold", "ITA A(Ven) hold"});
  const session::Question question = session::Ask(start, "GER A(Mun) - Tyr");
  EXPECT_THAT(question.Sentence, StartsWith("It failed: strength 1 is not more than strength 1"));
  const auto found = session::SingleChanges(question);
  // Nobody of its own power can help. A unit that leaves, or foreign help, would.
  EXPECT_THAT(Drawn(found),
              ElementsAre("AUS A(Tyr) - Boh; 0", "AUS A(Tyr) - Tri; 0", "AUS A(Tyr) - Vie; 0",
                          "AUS A(Tyr) - Pie; 0", "ITA A(Ven) S GER A(Mun) - Tyr; 1"));
  EXPECT_THAT(found.back().Sentence, HasSubstr("supported by ITA A(Ven)"));

  // The unit itself, where it was dislodged, and two orders together.
  const Situation lost =
      At("Spring", "moves",
         {"FRA A(Bur) hold", "GER A(Mun) - Bur", "GER A(Ruh) S A(Mun) - Bur", "FRA A(Gas) - Mar"});
  EXPECT_THAT(Drawn(session::SingleChanges(session::Ask(lost, "FRA A(Bur)"))),
              Contains("FRA A(Gas) S A(Bur) hold; 1"));
  const Situation far = At("Spring", "moves",
                           {"FRA A(Par) hold", "FRA A(Mar) hold", "GER A(Bur) hold",
                            "GER A(Mun) S A(Bur) hold", "FRA A(Gas) hold"});
  const session::Question pair = session::Ask(far, "GER A(Bur)");
  EXPECT_THAT(session::SingleChanges(pair), IsEmpty());
  EXPECT_THAT(session::PairsOfChanges(pair, "FRA", [](int, int) { return true; }), IsEmpty());
  EXPECT_THROW(session::Ask(far, "GER A(Ber)"), model::FatalError);
}

TEST(WhatIf, TellsOfEveryLineOfTheReportWhatResolvingWould) {
  const Situation start = At("Spring", "moves",
                             {"RUS F(Stp.s)", "> RUS F(Stp) - Fin", "ENG A(Nwy) - Fin",
                              "ENG F(BOT) S A(Nwy) - Fin", "GER F(Swe) - BOT"});
  const Situation resolved = Resolved(start, Rules::Usual);
  ASSERT_TRUE(resolved.BeforeMoves);
  int alternatives = 0;
  for (const session::ReportNote& note : resolved.Notes) {
    const session::Question question = session::Ask(*resolved.BeforeMoves, note.Order);
    EXPECT_EQ(question.Sentence, note.Reason);
    for (const session::Alternative& alternative : session::SingleChanges(question)) {
      Situation otherwise = *resolved.BeforeMoves;
      otherwise.Game.OrdersList = alternative.List;
      EXPECT_THAT(session::TryOut(otherwise).Notes,
                  Contains(testing::Field(&session::ReportNote::Reason, alternative.Sentence)));
      EXPECT_EQ(alternative.List.size(), 4U) << "the line for F(Stp) is that of F(Stp.s)";
      ++alternatives;
    }
  }
  EXPECT_GT(alternatives, 10);
}

TEST(WhatIf, FindsPairsOfWhichNeitherAloneWouldDo) {
  const Situation start =
      At("Spring", "moves", {"GER A(Bur) hold", "FRA A(Par) hold", "FRA A(Mar) hold"});
  const session::Question question = session::Ask(start, "GER A(Bur) hold");
  EXPECT_THAT(session::SingleChanges(question), IsEmpty());
  int steps = 0;
  const auto goOn = [&](int, int) { return ++steps > 0; };
  EXPECT_THAT(Drawn(session::PairsOfChanges(question, "FRA", goOn)),
              ElementsAre("FRA A(Par) - Bur; FRA A(Mar) S A(Par) - Bur; 0",
                          "FRA A(Par) S A(Mar) - Bur; FRA A(Mar) - Bur; 0"));
  EXPECT_GT(steps, 5);
  EXPECT_THAT(session::PairsOfChanges(question, "FRA", [](int, int) { return false; }), IsEmpty());
}

}  // namespace
}  // namespace orb::tests
