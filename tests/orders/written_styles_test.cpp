#include "model/lookups.h"
#include "model/place.h"
#include "orders/exchange/exact_line.h"
#include "orders/exchange/read_orders.h"
#include "orders/parser.h"
#include "support/boards.h"
#include "text/strings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using exchange::LineKind;
using exchange::PlainOrder;
using model::Unit;
using orders::OrderKind;
using Spellings = std::vector<std::string>;

/// Makes orders that the syntax allows and writes them in one of the ways that people do.
class Writer {
 public:
  explicit Writer(unsigned seed) : random_(seed) {}

  const std::string& Any(const Spellings& spellings) { return spellings[Below(spellings.size())]; }
  OrderKind AnyKind(const std::vector<OrderKind>& kinds) { return kinds[Below(kinds.size())]; }
  std::size_t Below(std::size_t bound) { return random_() % bound; }
  bool Sometimes() { return Below(2) == 0; }

  std::string AnyLocation() { return map_.Provinces[static_cast<int>(Below(81)) + 1].Name; }

  Unit AnyUnit() {
    const auto power = static_cast<int>(Below(model::CountryCount)) + 1;
    return {powers_[power].Abbreviation, Any({"A", "F"}), AnyLocation(), {}, {}, {}};
  }

  std::string Place(const std::string& location) {
    const std::string province = location.substr(0, 3);
    std::string full = map_.Provinces[model::FindProvince(map_, province)].FullName;
    if (location.size() == 3) return Any({location, location, full, location + "."});
    const std::string letter = location.substr(4);
    const std::string coast = letter == "n" ? "north" : letter == "s" ? "south" : "east";
    return Any({location, province + "(" + letter + "c)", province + "/" + letter + "c",
                province + " " + letter + "c", full + " (" + coast + " coast)"});
  }

  std::string UnitText(const Unit& unit, bool mayLackType) {
    const std::string name = unit.UnitType == "A" ? "army" : "fleet";
    std::string place = Place(unit.Location);
    if (mayLackType && Below(4) == 0) return place;
    return Any({unit.UnitType + "(" + place + ")", unit.UnitType + " " + place,
                name + " in " + place, unit.UnitType + " [" + place + "]"});
  }

  std::string Dash() {
    return Any({" - ", "-", "->", " => ", " \xE2\x80\x93 ", "\xA0\x96 ", " to ", " moves to ",
                " attacks ", " \xE2\x86\x92 "});
  }

  /// The power before an order: an abbreviation, a name or a people.
  std::string Power(const std::string& power) {
    const model::Country& country = powers_[model::FindCountry(power)];
    return Any({power + " ", country.Name + ": ", country.Name + " - ", power + ": "});
  }

  std::string Decorated(const std::string& order) {
    std::string line = Any({"", "", "1. ", "- ", "* ", "(2) "}) + order +
                       Any({"", "", ".", ";", " (as agreed)", " // good luck", " please"});
    return Any({line, text::LowerCase(line), text::UpperCase(line)});
  }

 private:
  const model::Map& map_ = *RealMap();
  const model::CountryTable powers_ = model::FixedCountries();
  std::mt19937 random_;
};

bool HasCoasts(const std::string& location) {
  return location == "Stp" || location == "Spa" || location == "Bul";
}

/// An order of the stage; its units are put on the board.
PlainOrder AnyOrder(Writer& writer, model::GameState& game, model::Stage stage) {
  Unit unit = writer.AnyUnit();
  if (stage == model::Stage::Retreats) unit.Status = model::Dislodged;
  PlainOrder order;
  order.Power = unit.Power;
  order.UnitType = unit.UnitType;
  order.Location = unit.Location;
  order.Kind = stage == model::Stage::Moves
                   ? writer.AnyKind({OrderKind::Move, OrderKind::Move, OrderKind::Hold,
                                     OrderKind::Support, OrderKind::Support, OrderKind::Convoy})
               : stage == model::Stage::Retreats
                   ? writer.AnyKind({OrderKind::Retreat, OrderKind::Retreat, OrderKind::Disband})
                   : writer.AnyKind({OrderKind::Build, OrderKind::Disband});
  if (order.Kind == OrderKind::Move || order.Kind == OrderKind::Retreat)
    order.Target = writer.AnyLocation();
  if (order.Kind != OrderKind::Build) game.Units.Append(unit);
  if (order.Kind != OrderKind::Support && order.Kind != OrderKind::Convoy) return order;
  Unit other = writer.AnyUnit();
  if (writer.Sometimes()) other.Power = unit.Power;
  if (order.Kind == OrderKind::Convoy) other.UnitType = "A";
  game.Units.Append(other);
  order.Power2 = other.Power;
  order.UnitType2 = other.UnitType;
  order.Target = other.Location;
  order.Kind2 = order.Kind == OrderKind::Support
                    ? writer.AnyKind({OrderKind::Hold, OrderKind::Move})
                    : OrderKind::Move;
  if (order.Kind2 == OrderKind::Move) order.Target2 = writer.AnyLocation();
  return order;
}

/// Whether only its exact form can be meant: a fleet's coast that is not told, two units in one
/// place, and what the syntax does not allow.
bool OnlyExact(const model::GameState& game, const PlainOrder& order) {
  const bool moves = order.Kind == OrderKind::Move || order.Kind == OrderKind::Retreat;
  if (order.UnitType == "F" && (moves || order.Kind == OrderKind::Build) &&
      HasCoasts(moves ? order.Target : order.Location)) {
    return true;
  }
  if (order.UnitType2 == "F" && HasCoasts(order.Target2)) return true;
  if (!order.UnitType2.empty() && model::SamePlace(order.Location, order.Target)) return true;
  return game.Stage == model::Stage::Moves &&
         orders::ReadParts(*game.Map, WordsOf(order), game.Stage).Fault !=
             orders::SyntaxFault::None;
}

std::string Written(Writer& writer, const PlainOrder& order, bool withPower) {
  const std::string unit = writer.UnitText(
      {order.Power, order.UnitType, order.Location, {}, {}, {}}, order.Kind != OrderKind::Build);
  const std::string other =
      (order.Power2 == order.Power ? "" : writer.Any({order.Power2 + " ", ""})) +
      writer.UnitText(
          {order.Power2, order.UnitType2, order.Target.empty() ? "Par" : order.Target, {}, {}, {}},
          true);
  std::string text = withPower ? writer.Power(order.Power) : "";
  if (order.Kind == OrderKind::Build || (order.Kind == OrderKind::Disband && writer.Sometimes())) {
    return text +
           (order.Kind == OrderKind::Build ? writer.Any({"build ", "builds "})
                                           : writer.Any({"disband ", "Remove "})) +
           unit;
  }
  text += unit;
  if (order.Kind == OrderKind::Move) {
    const bool convoyed = order.UnitType == "A" && writer.Below(4) == 0;
    return text + writer.Dash() + writer.Place(order.Target) + (convoyed ? " via convoy" : "");
  }
  if (order.Kind == OrderKind::Hold) return text + writer.Any({" H", " hold", " holds", " stands"});
  if (order.Kind == OrderKind::Retreat) {
    return text + writer.Any({" R ", " retreats to ", " retreat ", " -> "}) +
           writer.Place(order.Target);
  }
  if (order.Kind == OrderKind::Disband)
    return text + writer.Any({" disband", " disbands", " removed"});
  text += order.Kind == OrderKind::Support ? writer.Any({" S ", " supports ", " sup "})
                                           : writer.Any({" C ", " convoys "});
  if (order.Kind2 == OrderKind::Move)
    return text + other + writer.Dash() + writer.Place(order.Target2);
  return text + other + writer.Any({" H", " hold", " holds"});
}

void ExpectReadAs(const model::GameState& game, const std::string& written,
                  const std::string& power, const std::string& line) {
  const auto read = exchange::ReadOrders(game, written, {power, {}});
  ASSERT_FALSE(read.empty()) << written;
  EXPECT_EQ(read[0].Kind, LineKind::Order) << written << "\n" << read[0].Reason;
  EXPECT_EQ(read[0].Order, line) << written;
}

TEST(WrittenStyles, EveryOrderReadsBackAsItself) {
  Writer writer(1901);
  for (int round = 0; round < 4000; ++round) {
    const model::Stage stage = round % 4 == 0   ? model::Stage::Retreats
                               : round % 4 == 1 ? model::Stage::Adjustments
                                                : model::Stage::Moves;
    model::GameState game =
        EmptyBoard("Autumn", stage == model::Stage::Retreats      ? "retreats"
                             : stage == model::Stage::Adjustments ? "adjustments"
                                                                  : "moves");
    const PlainOrder order = AnyOrder(writer, game, stage);
    const std::string line = exchange::FormatOrder(order, stage);
    const bool isSyntax =
        stage != model::Stage::Moves ||
        orders::ReadParts(*game.Map, WordsOf(order), stage).Fault == orders::SyntaxFault::None;
    if (isSyntax) ExpectReadAs(game, line, "", line);
    if (OnlyExact(game, order)) continue;
    const bool withPower = writer.Sometimes();
    const std::string written = writer.Decorated(Written(writer, order, withPower));
    ExpectReadAs(game, written, withPower ? "" : order.Power, line);
  }
}

TEST(WrittenStyles, NoOrderIsSureNextToWordsThatMayChangeIt) {
  Writer writer(1903);
  for (int round = 0; round < 600; ++round) {
    model::GameState game = EmptyBoard("Autumn", "moves");
    const PlainOrder order = AnyOrder(writer, game, model::Stage::Moves);
    if (OnlyExact(game, order)) continue;
    const std::string written =
        Written(writer, order, true) +
        writer.Any({" (tentative)", " (I mean Pic)", " # draft", " (?)", ", see below", " (or so)",
                    " -- this is only a first idea", " (2nd choice)", " unless Tom objects",
                    " (Tom will tell you)", " [EDIT: Ukr]", " // waiting for Anna",
                    " \xE2\x9D\x8C"});
    for (const auto& line : exchange::ReadOrders(game, written, {}))
      EXPECT_NE(line.Kind, LineKind::Order) << written;
  }
}

/// Whether two of the units that the orders name stand in one place.
bool IsCrowded(const model::GameState& game) {
  for (const Unit& unit : game.Units) {
    if (std::count_if(game.Units.begin(), game.Units.end(), [&](const Unit& other) {
          return model::SamePlace(unit.Location, other.Location);
        }) > 1) {
      return true;
    }
  }
  return false;
}

TEST(WrittenStyles, OrdersRunTogetherAreReadSingly) {
  Writer writer(1902);
  int tried = 0;
  int understood = 0;
  for (int round = 0; round < 2000; ++round) {
    model::GameState game = EmptyBoard("Autumn", "moves");
    const PlainOrder first = AnyOrder(writer, game, model::Stage::Moves);
    const PlainOrder second = AnyOrder(writer, game, model::Stage::Moves);
    if (IsCrowded(game) || OnlyExact(game, first) || OnlyExact(game, second)) continue;
    const std::string text =
        Written(writer, first, writer.Sometimes()) + " " + Written(writer, second, true);
    const auto lines = exchange::ReadOrders(game, text, {});
    ++tried;
    if (lines.size() == 1 && lines[0].Kind == LineKind::NotUnderstood) continue;
    ++understood;
    ASSERT_EQ(lines.size(), 2U) << text << "\n" << lines[0].Order << lines[0].Reason;
    EXPECT_EQ(lines[0].Order, exchange::FormatOrder(first, model::Stage::Moves)) << text;
    EXPECT_EQ(lines[1].Order, exchange::FormatOrder(second, model::Stage::Moves)) << text;
  }
  EXPECT_GT(understood * 10, tried * 8) << tried;
}

}  // namespace
}  // namespace orb::tests
