#include "letters/received.h"

#include "model/errors.h"
#include "orders/exchange/read_orders.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using letters::Receipt;
using testing::ElementsAre;

TEST(Received, EntriesComeBackWhateverTheyHold) {
  const TemporaryDirectory directory;
  const std::filesystem::path game = directory.Path() / "league.s01.orb";
  EXPECT_TRUE(letters::ReadRegister(game).empty());
  const std::vector<Receipt> receipts = {
      {"2026-11-22 18:03:07",
       "Autumn 1903, moves",
       "FRA",
       "Anna <a@b>: == 1",
       {"FRA A(Par) - Bur"},
       {"A Mar: unclear"},
       "A Par - Bur\nA Mar\n"},
      // A text cannot begin another entry or claim what was filed.
      {"2026-11-22 18:04:00", "", "", "", {}, {}, "== 2026\nFiled: FRA A(Par) hold\n\n| x\n"},
  };
  for (const Receipt& receipt : receipts)
    letters::Register(game, receipt);
  EXPECT_EQ(letters::ReadRegister(game), receipts);
  EXPECT_TRUE(std::filesystem::exists(directory.Path() / "league.s01.received.txt"));
}

TEST(Received, TextsOfEitherEncodingStandThereInOne) {
  const Receipt receipt{"t", "", "", "J\xF6rg\n== 2", {}, {}, "z\xFCge\r\nA\fB"};
  EXPECT_EQ(letters::FormatReceipt(receipt),
            "== t\nSource: J\xC3\xB6rg == 2\n| z\xC3\xBCge\n| A B\n\n");
}

TEST(Received, ThePowerOfAllThatWasFiledIsTold) {
  struct PowerCase {
    std::string Chosen;
    std::vector<std::string> Filed;
    std::string Told;
  };
  for (const auto& [chosen, filed, told] :
       {PowerCase{"", {"FRA A(Par) - Bur", "FRA F(Bre) hold"}, "Power: FRA\n"},
        PowerCase{"GER", {"FRA A(Par) - Bur"}, "Power: GER\n"},
        PowerCase{"", {"FRA A(Par) - Bur", "GER A(Mun) hold"}, ""},
        PowerCase{"", {"syntax"}, ""}}) {
    std::string entry = "== t\n" + told;
    for (const std::string& order : filed)
      entry.append("Filed: ").append(order).append("\n");
    EXPECT_EQ(letters::FormatReceipt({"t", "", chosen, "", filed, {}, ""}), entry + "\n");
  }
}

TEST(Received, WhatBecameOfEachLineIsTold) {
  const model::GameState game =
      Board("Spring", "moves", {"FRA A(Par)", "FRA A(Mar)", "FRA F(Bre)"});
  const auto lines =
      exchange::ReadOrders(game, "Dear all,\nA Par - Bur\nA Mar - \nF Bre - MAO", {"FRA", {}});
  std::vector<exchange::ReadLine> filed;
  for (const exchange::ReadLine& line : lines) {
    if (line.Order == "FRA A(Par) - Bur") filed.push_back(line);
  }
  const Receipt receipt = letters::ReceiptOf(game, lines, filed);
  EXPECT_EQ(receipt.Stage, "Spring 1901, moves");
  EXPECT_THAT(receipt.Filed, ElementsAre("FRA A(Par) - Bur"));
  EXPECT_THAT(receipt.NotFiled,
              ElementsAre(testing::StartsWith("A Mar -: "), "F Bre - MAO: left out"));
}

TEST(Received, IsSearchedByAllItsWords) {
  const Receipt receipt{"2026-11-22", "Autumn 1903", "FRA", "Anna", {}, {}, "Hold Paris!\n"};
  for (const char* words : {"", "anna", "PARIS fra", "1903  hold"})
    EXPECT_TRUE(letters::Mentions(receipt, words)) << words;
  for (const char* words : {"berta", "anna london"})
    EXPECT_FALSE(letters::Mentions(receipt, words)) << words;
}

TEST(Received, WhatCannotBeWrittenIsSaidAndLeavesTheFile) {
  const TemporaryDirectory directory;
  const std::filesystem::path game = directory.Path() / "league.orb";
  std::filesystem::create_directory(letters::RegisterOf(game));
  EXPECT_THROW(letters::Register(game, {}), model::FileError);
  EXPECT_THROW(letters::Register("/dev/full/league.orb", {}), model::FileError);
}

}  // namespace
}  // namespace orb::tests
