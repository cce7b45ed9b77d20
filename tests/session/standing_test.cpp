#include "session/standing.h"

#include "support/boards.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using session::Rules;
using session::Standing;
using testing::ElementsAreArray;

struct Position {
  const char* Stage;
  std::vector<std::string> Lines;
  std::string Own;  ///< "ENG Lon Edi": centres
  const char* Figure;
  Standing Word;
  const char* Sentence;           ///< of England
  std::vector<std::string> Open;  ///< of all powers
  session::Rules Rules = Rules::Orb;
};

const std::vector<Position> Rows = {
    {"moves", {}, "", "-", Standing::Idle, "England: no units", {}},
    {"moves", {"ENG A(Lvp) - Yor"}, "", "1/1", Standing::Complete, "England: 1 of 1 order", {}},
    {"moves",
     {"FRA A(Par)", "ENG A(Lvp)", "ENG F(Lon) - NTH"},
     "",
     "1/2",
     Standing::Missing,
     "England: 1 of 2 orders",
     {"ENG A(Lvp)|ENG A(Lvp) ", "FRA A(Par)|FRA A(Par) "}},
    {"moves",
     {"ENG A(Lvp)", "ENG F(Lon) - Mun", "> ENG A(Wal) hold", "> nonsense"},
     "",
     "1/2",
     Standing::Doubtful,
     "England: 1 of 2 orders, 2 doubtful",
     {"ENG A(Lvp)|ENG A(Lvp) "}},
    {"moves",
     {"> ENG A(Wal) hold"},
     "",
     "-",
     Standing::Doubtful,
     "England: no units, 1 doubtful",
     {}},
    {"retreats",
     {"ENG A(Lvp) <Wal", "ENG F(Lon)", "GER A(Wal)", "GER F(Cly)", "FRA A(Tun) <WES", "GER A(Naf)"},
     "",
     "0/1",
     Standing::Missing,
     "England: 0 of 1 retreat",
     {"ENG A(Lvp) retreat Edi, Yor or disband|ENG A(Lvp) ", "FRA A(Tun) disband|FRA A(Tun) "}},
    {"retreats",
     {"ENG A(Lvp) <Wal retreat Wal", "ENG F(Lon)"},
     "",
     "1/1",
     Standing::Doubtful,
     "England: 1 of 1 retreat, 1 doubtful",
     {}},
    {"retreats", {"ENG F(Lon)"}, "", "-", Standing::Idle, "England: no retreats", {}},
    {"adjustments",
     {"> eng BUILD F(Edi)"},
     "ENG Lon Edi Nwy",
     "+1/+2",
     Standing::Missing,
     "England: 1 of 2 builds",
     {"ENG may build 1: Lon|ENG build "}},
    {"adjustments",
     {"ENG A(Lon)", "> ENG build F(Edi)"},
     "ENG Lon Edi Nwy Den Hol",
     "+1/+1",
     Standing::Complete,
     "England: 1 of 1 build",
     {}},
    {"adjustments",
     {"ENG F(Nwy)", "ENG A(Yor)", "ENG F(NTH)"},
     "ENG Lon",
     "0/-2",
     Standing::Missing,
     "England: 0 of 2 disbands",
     {"ENG must disband 2|ENG disband "}},
    {"adjustments",
     {"ENG F(Nwy)", "ENG A(Yor)", "> ENG disband A(Yor)", "> ENG disband F(Nwy)"},
     "ENG Lon",
     "-2/-1",
     Standing::Doubtful,
     "England: 2 of 1 disband, 1 too many",
     {}},
    {"adjustments",
     {"ENG F(Nwy)", "> ENG build A(Lon)"},
     "ENG Lon",
     "+1/0",
     Standing::Doubtful,
     "England: 1 build, 1 too many",
     {}},
    {"adjustments",
     {"> ENG build A(Par)", "FRA A(Mar)"},
     "ENG Lon",
     "0/+1",
     Standing::Doubtful,
     "England: 0 of 1 build, 1 doubtful",
     {"ENG may build 1: Lon|ENG build ", "FRA must disband 1|FRA disband "}},
    {"finished", {"ENG F(Nwy)"}, "", "-", Standing::Idle, "England: nothing to order", {}},
    // Without its coast a fleet is known by the usual rules only.
    {"moves",
     {"ENG F(Spa.s)", "> ENG F(Spa) hold"},
     "",
     "1/1",
     Standing::Complete,
     "England: 1 of 1 order",
     {},
     Rules::Usual},
};

TEST(Standings, TellWhatIsThereInDoubtAndOpen) {
  for (const Position& row : Rows) {
    SCOPED_TRACE(std::string(row.Stage) + ", " + row.Sentence);
    session::Situation situation{Board("Autumn", row.Stage, row.Lines)};
    situation.Rules = row.Rules;
    if (!row.Own.empty()) Own(situation.Game, row.Own);
    const model::Stage stage = situation.Game.Stage;
    const session::Standings standings = StandingsOf(situation);
    const session::PowerStanding& england = standings.Powers[1];
    EXPECT_EQ(FigureOf(england, stage), row.Figure);
    EXPECT_EQ(england.InOneWord(), row.Word);
    EXPECT_EQ(SentenceOf("England", england, stage), row.Sentence);
    std::vector<std::string> open;
    for (const session::OpenOrder& order : standings.Open)
      open.push_back(TextOf(order, stage) + "|" + order.Begin());
    EXPECT_THAT(open, ElementsAreArray(row.Open));
  }
}

}  // namespace
}  // namespace orb::tests
