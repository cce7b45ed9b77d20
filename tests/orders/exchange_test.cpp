#include "model/errors.h"
#include "model/new_game.h"
#include "orders/exchange/order_files.h"
#include "orders/exchange/read_orders.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

using exchange::LineKind;
using testing::HasSubstr;
using testing::IsEmpty;

model::GameState StartingGame(std::string_view stage = "moves") {
  model::GameState game = EmptyBoard("Spring", "moves");
  model::NewGame(game, DataDirectory());
  game.Stage = model::StageOf(stage);
  return game;
}

TEST(OrderFiles, UnderstoodLinesAreFiledByTheRuleOfTypedOnes) {
  model::GameState game = StartingGame();
  game.OrdersList = {"FRA A(Par) hold", "no order", "GER A(Mun) hold"};
  auto lines = exchange::ReadOrders(
      game, "a mar - spa\na par - bur (?)\nger a mun - tyr\nf bre - xyz\nA Lvp - Yor", {});
  EXPECT_EQ(exchange::FileOrders(game, lines), 3) << "nothing doubtful";
  EXPECT_EQ(exchange::OrdersText(game),
            "FRA A(Par) hold\r\nno order\r\nFRA A(Mar) - Spa\r\nGER A(Mun) - Tyr\r\n"
            "ENG A(Lvp) - Yor\r\n");
  exchange::AcceptDoubtful(lines);
  EXPECT_EQ(exchange::FileOrders(game, lines), 4);
  EXPECT_THAT(game.OrdersList, testing::Contains("FRA A(Par) - Bur"));
}

TEST(OrderFiles, NamesAreOfTheSeasonAndTheStage) {
  model::GameState game = StartingGame();
  EXPECT_EQ(exchange::ProposedOrdersFile(game), "s01_orders.txt");
  game.Season = "Autumn";
  game.Year = 1912;
  game.Stage = model::Stage::Adjustments;
  EXPECT_EQ(exchange::ProposedOrdersFile(game), "a12_adjustments.txt");
}

TEST(OrderFiles, ATextTellsWhoseOrdersItHolds) {
  const model::GameState game = StartingGame();
  const std::vector<std::pair<std::string_view, std::string_view>> cases{
      {"Hi\nOrders for Italy:\nA Par - Bur\nFrance", "ITA"},
      {"A Par - Bur\nA Mar - Spa", "FRA"},
      {"A Par - Bur\nA Mun - Ruh", ""},
      {"nothing", ""}};
  for (const auto& [text, power] : cases)
    EXPECT_EQ(exchange::PowerOf(exchange::ReadOrders(game, text, {})), power) << text;
}

TEST(OrderFiles, TextsInUtf16AreConvertedAndNoOthersWithNulsTaken) {
  using namespace std::string_literals;
  const std::vector<std::pair<std::string, std::string>> cases{
      {"A Par \x96 Bur", "A Par \x96 Bur"},
      {"\xFF\xFE"
       "A\0\x13\x20\xE9\0\r\0\n\0"s,
       "A\xE2\x80\x93\xC3\xA9\r\n"},
      {"\xFE\xFF\0A\xD8\x3D\xDE\x00"s, "A\xF0\x9F\x98\x80"},
      {"\xFE\xFF\xD8\x3D\0A\xDE\0\xD8\x3D"s,
       "\xEF\xBF\xBD"
       "A\xEF\xBF\xBD\xEF\xBF\xBD"},
  };
  for (const auto& [bytes, text] : cases)
    EXPECT_EQ(exchange::OrdersFileText(bytes, "f"), text);
  for (const std::string& bytes : {"A\0P\0"s, "\xFF\xFE\0\0"s})
    EXPECT_THROW(exchange::OrdersFileText(bytes, "f"), model::FileError);
}

TEST(ReadOrder, IsOneOrderWhateverItLooksLike) {
  const model::GameState game = StartingGame();
  const auto kind = [&](std::string_view text) {
    return exchange::ReadOrder(game, text, {"FRA", {}}).Kind;
  };
  EXPECT_EQ(kind("a par - bur"), LineKind::Order);
  EXPECT_EQ(kind("FRA A(Xyz) - Bur"), LineKind::NotUnderstood);
  EXPECT_EQ(kind("f bre - nor"), LineKind::Ambiguous);
  EXPECT_EQ(kind("France:"), LineKind::NotUnderstood);
  EXPECT_EQ(kind("Hello"), LineKind::NotUnderstood);
  EXPECT_EQ(kind("a par - bur, a mar - spa"), LineKind::NotUnderstood);
  EXPECT_EQ(kind(" \t"), LineKind::PassedOver);
  const auto before = exchange::ReadOrders(game, "a mun - bur", {});
  EXPECT_EQ(exchange::ReadOrder(game, "A Mar supports Bur", {}, before).Order,
            "FRA A(Mar) S GER A(Mun) - Bur");
}

TEST(ReadOrders, NamesThePowerAndThePlaceOfEachOrder) {
  const model::GameState game = StartingGame();
  const std::string text = "France: A Par - Bur;  A Mar \x96 Xyz\r\n\r\nGER A Mun H\r";
  const auto lines = exchange::ReadOrders(game, text, {"ENG", {}});
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0].Power + lines[1].Power + lines[2].Power + lines[3].Power, "FRAFRAENGGER");
  EXPECT_EQ(lines[1].Written, "A Mar \x96 Xyz");
  EXPECT_EQ(lines[1].ReasonPlace.Offset, text.find("Xyz"));
  EXPECT_EQ(lines[3].Number, 3);
  EXPECT_EQ(lines[3].Place.Offset, text.find("GER"));
}

TEST(TextRepairs, AFileWithFaultsSaysWhere) {
  const auto error = [](const std::string& bytes) -> std::string {
    try {
      exchange::LoadTextRepairs(bytes, "f");
    } catch (const model::FileError& problem) {
      return problem.what();
    }
    return {};
  };
  std::string full;
  for (int i = 0; i < exchange::TextRepairBound; ++i)
    full += "\"a\",\"\"\r\n";
  EXPECT_THAT(error(full), IsEmpty());
  EXPECT_THAT(error(full + "\"b\",\"\""), HasSubstr("f, line 201: expected at most 200 pairs"));
  EXPECT_THAT(error("\"a\",\"b\"\n\"\",\"b\""), HasSubstr("f, line 2: expected a text to repair"));
  EXPECT_THAT(error("\"a\""), HasSubstr("the text that takes its place"));
  EXPECT_THAT(error("\"a\",\"" + std::string(81, 'b') + "\""), HasSubstr("at most 80 characters"));
}

TEST(TextRepairs, WholeWordsInAnyCaseOnePairAfterTheOther) {
  const auto repairs = exchange::LoadTextRepairs(
      "\"ab\",\"xy\"\r\n\"xy z\",\"xy-z\"\r\n\"=2\",\"\"\r\n\"\xe9t\xe9\",\"e\"\r\n", "f");
  const auto repaired = [&](std::string_view text) {
    exchange::PlainText line = exchange::ToPlain(text, 0);
    EXPECT_TRUE(exchange::Repair(line, repairs));
    EXPECT_EQ(line.Text.size(), line.Origins.size());
    return line.Text;
  };
  EXPECT_EQ(repaired("AB z aB, cab abc ab"), "xy-z xy, cab abc xy");
  EXPECT_EQ(repaired("a=2b=2"), "ab");
  EXPECT_EQ(repaired("\xc3\xa9t\xc3\xa9 \xe2\x80\x93"), "e -");
  exchange::PlainText longLine = exchange::ToPlain(std::string(exchange::LineBound, 'a'), 0);
  EXPECT_TRUE(exchange::Repair(longLine, {}));
  longLine = exchange::ToPlain(std::string(exchange::LineBound + 1, 'a'), 0);
  EXPECT_FALSE(exchange::Repair(longLine, {}));
  // Back and forth.
  std::string pairs;
  for (int i = 0; i < 50; ++i)
    pairs += "\"-\",\"+\"\n\"+\",\"-\"\n";
  exchange::PlainText line = exchange::ToPlain("F Lon - NTH", 0);
  EXPECT_FALSE(exchange::Repair(line, exchange::LoadTextRepairs(pairs, "f")));
}

}  // namespace
}  // namespace orb::tests
