#include "orders/parser.h"

#include "support/boards.h"
#include "support/drawn_cases.h"
#include "support/scripted_messages.h"
#include "text/strings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orb::tests {
namespace {

using orders::OrderTable;

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
  for (const auto& [line, fields] : LoadDrawnRows("orders/lines.txt", "parts"))
    EXPECT_EQ(Fields(text::Trim(line)), fields) << line;
  EXPECT_EQ(Fields(""), "||X||||||");
  EXPECT_EQ(Fields("ENG\tA(Lon) - Wal"), "ENG\tA(Lon)|- Wal |X||||||") << "a tab is no blank";
  EXPECT_EQ(Fields("eng a(lon) \xfc"), "eng|a|lon||||||");
  EXPECT_EQ(Parse({"  ENG A(Lon)  hold "})[1].Text, "ENG A(Lon)  hold");
}

TEST(Syntax, OnlyTheTextFormIsCorrect) {
  for (const auto& [line, verdict] : LoadDrawnRows("orders/lines.txt", "faults")) {
    SCOPED_TRACE(line);
    const bool correct = verdict == "correct";
    OrderTable table = Parse({line});
    EXPECT_EQ(orders::FaultText(table[1], model::Stage::Moves), correct ? "" : verdict);
    ScriptedMessages messages;
    orders::Questions questions(messages);
    EXPECT_TRUE(orders::CheckOrderSyntax(table, questions));
    EXPECT_EQ(ResultWord(table[1].Result), correct ? "" : "syntax error");
    EXPECT_EQ(table[1].Active, correct);
    EXPECT_EQ(table[1].Failed, !correct);
    EXPECT_EQ(messages.Questions.size(), correct ? 0U : 1U);
  }
}

}  // namespace
}  // namespace orb::tests
