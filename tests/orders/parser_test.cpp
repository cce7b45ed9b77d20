#include "orders/parser.h"

#include "model/errors.h"
#include "support/scripted_messages.h"
#include "support/situation.h"
#include "text/strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using orders::OrderTable;
using testing::ElementsAre;

OrderTable Parse(const std::vector<std::string>& lines) {
  OrderTable table;
  orders::SetOrderTexts(lines, table);
  orders::ParseOrders(*RealMap(), model::Stage::Moves, table);
  return table;
}

/// Every part that a line of the moves stage is cut into, separated by bars.
std::string Fields(std::string_view line) {
  std::string work;
  const orders::OrderWords order = orders::CutOrder(line, model::Stage::Moves, work);
  std::string fields(order.Power);
  for (const std::string_view field :
       {order.UnitType, order.Location, orders::KindWord(order.Kind), order.Power2, order.UnitType2,
        order.Target, orders::KindWord(order.Kind2), order.Target2}) {
    fields.append("|").append(field);
  }
  return fields;
}

TEST(Parser, SplitsALineIntoItsFields) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"ENG A(Lon) - Wal", "ENG|A|Lon|-|||Wal||"},
      {"  ENG F(Stp.n) - BAR  ", "ENG|F|Stp.n|-|||BAR||"},
      {"ENG A(Lon) Hold", "ENG|A|Lon|HOLD|||||"},
      {"ENG A(Lon) hold - Wal", "ENG|A|Lon|HOLD|||||"},
      {"ENG A(Lon) s A(Wal) hold", "ENG|A|Lon|S|ENG|A|Wal|HOLD|"},
      {"ENG A(Lon) S A(Wal) hOLD - Yor", "ENG|A|Lon|S|ENG|A|Wal|HOLD|"},
      {"ENG A(Lon) S FRA A(Wal) - Yor", "ENG|A|Lon|S|FRA|A|Wal|-|Yor"},
      {"ENG F(NTH) C A(Lon) - Nwy", "ENG|F|NTH|C|ENG|A|Lon|-|Nwy"},
      {"ENG F(NTH) c FRA A(Lon) hold x", "ENG|F|NTH|C|FRA|A|Lon||x"},
      {"ENG A(Lon) -", "ENG|A|Lon|-|||(X)||"},
      {"ENG A(Lon)", "ENG|A|Lon||||||"},
      {"ENG A(Lon) S", "ENG|A|Lon|S|ENG||X||"},
      {"ENG A(Lon) C", "ENG|A|Lon|C|ENG||X||(X)"},
      {"ENG", "ENG||X||||||"},
      {"", "||X||||||"},
      {"ENG  A (Lon)-  Wal", "ENG|A |Lon|-|||Wal||"},
      {"ENG A(Lon)- Wal", "ENG|A|Lon|-|||Wal||"},
      {"ENG A(Lon) -Wal", "ENG|A|Lon||||||"},
      {"ENG A( Lon ) - Wal", "ENG|A|Lon |-|||Wal||"},
      {"ENG\tA(Lon) - Wal", "ENG\tA(Lon)|- Wal |X||||||"},
      {"ENG A(Lon) S  FRA  A(Wal)  -  Yor", "ENG|A|Lon|S|FRA|A|Wal|-|Yor"},
      {"ENG A(Lon) S(Wal) hold", "ENG|A|Lon||||||"},
      {"ENG A(Lon) S (Wal) hold", "ENG|A|Lon|S|ENG||Wal|HOLD|"},
      {"eng a(lon) \xfc", "eng|a|lon||||||"},
  };
  for (const auto& [line, fields] : cases) {
    EXPECT_EQ(Fields(text::Trim(line)), fields) << line;
  }
  EXPECT_EQ(Parse({"  ENG A(Lon)  hold "})[1].Text, "ENG A(Lon)  hold");
}

TEST(Parser, TakesEightyLines) {
  EXPECT_EQ(Parse(std::vector<std::string>(80, "x")).Count(), 80);
  EXPECT_THROW(Parse(std::vector<std::string>(81, "x")), model::IndexOutOfRange);
}

TEST(Syntax, OnlyTheTextFormIsCorrect) {
  const std::vector<std::pair<std::string, bool>> cases = {
      {"ENG A(Lon) - Wal", true},
      {"ENG A(Lon) - Wal by sea", true},
      {"ENG F(Stp.n) - Spa.s", true},
      {"eng A(Lon) - Wal", false},
      {"XXX A(Lon) - Wal", false},
      {"ENG a(Lon) - Wal", false},
      {"ENG A (Lon) - Wal", false},
      {"ENG (Lon) - Wal", false},
      {"ENG A(LON) - Wal", false},
      {"ENG A(Lon) - wal", false},
      {"ENG A(Lon) - ", false},
      {"ENG A(Lon) -", false},
      {"ENG A(Lon)", false},
      {"", false},
      {"ENG A(Lon) HOLD", true},
      {"ENG A(Lon) hold", true},
      {"ENG A(Lon) Hold", true},
      {"ENG A(Lon) holds", false},
      {"ENG A(Lon) retreat Wal", false},
      {"ENG A(Lon) s A(Wal) hold", true},
      {"ENG A(Lon) S FRA A(Wal) Hold", true},
      {"ENG A(Lon) S A(Wal) - Yor", true},
      {"ENG A(Lon) S fra A(Wal) - Yor", false},
      {"ENG A(Lon) S a(Wal) - Yor", false},
      {"ENG A(Lon) S A(Xyz) - Yor", false},
      {"ENG A(Lon) S A(Wal) - yor", false},
      {"ENG A(Lon) S A(Wal) -", false},
      {"ENG A(Lon) S A(Wal) S A(Yor) hold", false},
      {"ENG A(Lon) S A(Wal)", false},
      {"ENG F(NTH) C A(Lon) - Nwy", true},
      {"ENG F(NTH) c FRA A(Lon) - Nwy", true},
      {"ENG F(Lon) C A(Lon) - Nwy", false},
      {"ENG A(NTH) C A(Lon) - Nwy", false},
      {"ENG F(NTH) C F(Lon) - Nwy", false},
      {"ENG F(NTH) C A(Lon) hold", false},
      {"ENG F(NTH) C A(Lon) - Xyz", false},
      {"ENG F(NTH) C XXX A(Lon) - Nwy", false},
      {"ENG F(NTH) C A(Lon)", false},
  };
  for (const auto& [line, correct] : cases) {
    OrderTable table = Parse({line});
    ScriptedMessages messages;
    orders::Questions questions(messages);
    EXPECT_TRUE(orders::CheckOrderSyntax(table, questions));
    EXPECT_EQ(ResultWord(table[1].Result), correct ? "" : "syntax error") << line;
    EXPECT_EQ(table[1].Active, correct) << line;
    EXPECT_EQ(table[1].Failed, !correct) << line;
    EXPECT_EQ(messages.Questions.size(), correct ? 0U : 1U) << line;
  }
}

TEST(Syntax, EveryFaultIsAskedAboutUntilANo) {
  const std::vector<std::string> lines = {" no order ", "ENG A(Lon) hold", "ENG A(Lon) -", "x"};
  OrderTable table = Parse(lines);
  ScriptedMessages messages({model::Answer::Yes, model::Answer::No});
  orders::Questions questions(messages);
  EXPECT_FALSE(orders::CheckOrderSyntax(table, questions));
  EXPECT_EQ(questions.StoppedAt(), 3);
  EXPECT_THAT(messages.Questions, ElementsAre("Warning: no order\rsyntax error.\rContinue?",
                                              "Warning: ENG A(Lon) -\rsyntax error.\rContinue?"));
  EXPECT_EQ(table[4].Result, orders::OrderResult::None) << "not looked at any more";
}

}  // namespace
}  // namespace orb::tests
