#include "orders/click_entry.h"

#include "support/boards.h"
#include "support/drawn_cases.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace orb::orders {
namespace {

/// Clicks on these places one after the other; "Lon^" with Shift, "Lon*" with Ctrl, "Lon^*" both.
OrderEntry ClickAll(const model::GameState& game, OrderEntry entry, std::string_view places) {
  for (std::string place : tests::Words(places)) {
    ClickKeys keys;
    keys.Ctrl = place.ends_with('*');
    if (keys.Ctrl) place.pop_back();
    keys.Shift = place.ends_with('^');
    if (keys.Shift) place.pop_back();
    entry = ClickOrder(game, entry, place, keys);
  }
  return entry;
}

TEST(ClickEntry, ClicksWriteAnOrder) {
  const model::GameState game = tests::Board(
      "Spring", "moves",
      {"ENG A(Lvp)", "ENG F(NTH)", "FRA F(Bre)", "RUS F(Stp.s)", "GER A(Bur) <Par", "FRA A(Bur)"});
  for (const auto& [clicks, order] : tests::LoadDrawnRows("orders/lines.txt", "clicks"))
    EXPECT_EQ(ClickAll(game, {}, clicks).Text, order + " ") << clicks;
  EXPECT_EQ(ClickAll(game, {"ENG A(Lvp) - ", false, "Lvp"}, "Yor").Text, "ENG A(Lvp) - Yor ");
  EXPECT_EQ(ClickAll(game, {"ENG F(NTH) S ", true, {}}, "Lvp").Text, "ENG F(NTH) S A(Lvp) ");
  EXPECT_EQ(ClickAll(game, {"ENG F(NTH) S A(Lvp) - Yor", true, {}}, "Yor Bre MAO").Text,
            "FRA F(Bre) - MAO ");
}

TEST(ClickEntry, ClicksWriteARetreat) {
  const model::GameState game =
      tests::Board("Spring", "retreats", {"ENG F(Stp.n) <Fin", "RUS A(Stp)", "GER A(Kie)"});
  for (const auto& [row, after] : tests::LoadDrawnRows("orders/lines.txt", "retreat clicks")) {
    const auto plus = row.find('+');
    EXPECT_EQ(ClickRetreat(game, row.substr(0, plus), row.substr(plus + 1)) + "|", after) << row;
  }
}

TEST(ClickEntry, ClicksWriteAnAdjustment) {
  const model::GameState game =
      tests::Board("Autumn", "adjustments", {"ENG A(Lvp)", "RUS F(Stp.s)"});
  for (const auto& [row, after] : tests::LoadDrawnRows("orders/lines.txt", "adjustment clicks")) {
    const auto plus = row.find('+');
    EXPECT_EQ(ClickAdjustment(game, row.substr(0, plus), row.substr(plus + 1), "F") + "|", after)
        << row;
  }
}

TEST(ClickEntry, TheTypeOfAUnitIsReadAndReplaced) {
  EXPECT_EQ(LastUnitType("ENG F(NTH) C A(Yor) - Nwy "), "A");
  EXPECT_EQ(LastUnitType("ENG F(NTH)"), "F");
  EXPECT_EQ(LastUnitType("ENG"), "");
  const model::Map& map = *tests::RealMap();
  const std::vector<std::array<const char*, 3>> cases{
      {"ENG build A(Lon)", "F", "ENG build F(Lon)"},
      {"ENG build F(", "A", "ENG build A("},
      {"ENG build", "A", "ENG build A("},
      {" ", "A", " "},
      {"RUS build F(Stp.n)", "A", "RUS build A(Stp)"},
      {"RUS build A(Stp)", "F", "RUS build F(Stp."},
      {"RUS build F(Stp.", "A", "RUS build A(Stp"},
      {"RUS build F(Stp.n)", "F", "RUS build F(Stp.n)"},
      {"RUS build A(Mos)", "F", "RUS build F(Mos)"}};
  for (const auto& [line, type, expected] : cases)
    EXPECT_EQ(WithUnitType(map, line, type), expected) << line;
  EXPECT_EQ(CoastsToChoose(map, "RUS build F(Stp."), "Stp.n, Stp.s");
  EXPECT_EQ(CoastsToChoose(map, "RUS build F(Stp.n)") + CoastsToChoose(map, "RUS build F(Mos."),
            "");
}

}  // namespace
}  // namespace orb::orders
