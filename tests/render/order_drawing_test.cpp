#include "render/order_drawing.h"

#include "model/lookups.h"
#include "orders/entered_orders.h"
#include "render/drawing.h"
#include "render/labels.h"
#include "render/recorder.h"
#include "render/symbols.h"
#include "settings/map_options.h"
#include "support/boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using model::GameState;
using orders::OrderKind;
using orders::OrderOutcome;
using orders::Outcome;
using Orders = std::vector<OrderOutcome>;

constexpr double MovePen = 2.2;

/// The black-and-white map of a situation with these orders, or with those of its list.
struct DrawnOrders : Recorder {
  explicit DrawnOrders(const GameState& game) : DrawnOrders(game, orders::EnteredOrders(game)) {}
  DrawnOrders(const GameState& game, const Orders& orders) {
    RenderMap(game, {settings::MapMode::BlackWhite}, "dir", *this, orders);
  }
};

/// How far a point lies to the right of the line from one unit to another one.
double RightOf(render::Point point, std::string_view from, std::string_view to) {
  const render::Point along = render::Towards(UnitAt(from), UnitAt(to));
  const render::Point start = UnitAt(from);
  return (point.Y - start.Y) * along.X - (point.X - start.X) * along.Y;
}

bool LiesOn(render::Point point, const Stroke& line) {
  const render::Point from = line.Points[0];
  const render::Point to = line.Points[1];
  return render::LengthOf({from, point, to}) - render::LengthOf({from, to}) < 0.1;
}

/// The dots where supports end; those of supply centres have a pen of 1.
std::vector<Stroke> EndDots(const Recorder& surface) {
  auto dots = surface.All("circle");
  std::erase_if(dots, [](const Stroke& dot) { return dot.Width != 45 || dot.Pen == 1; });
  return dots;
}

/// All that was drawn but for its colours.
std::string Form(const Recorder& surface) {
  std::string form;
  for (const Stroke& stroke : surface.Strokes) {
    form += stroke.Kind + std::to_string(stroke.Pen) + std::to_string(stroke.Width);
    for (const render::Point& point : stroke.Points)
      form.append(" ").append(At(point));
  }
  return form;
}

TEST(OrderDrawing, OutcomesDifferInForm) {
  struct Case {
    std::string Stage;
    std::vector<std::string> Lines;
  };
  const std::vector<Case> cases = {{"moves", {"FRA A(Par) - Bur"}},
                                   {"moves", {"FRA A(Par) - Par"}},
                                   {"moves", {"FRA A(Par) hold"}},
                                   {"moves", {"FRA A(Gas) S A(Mar) hold"}},
                                   {"moves", {"FRA A(Gas) S A(Mar) - Bur", "FRA A(Mar) - Bur"}},
                                   {"moves", {"FRA A(Gas) S A(Mar) - Bur"}},
                                   {"moves", {"FRA A(Gas) S A(Par) - Par", "FRA A(Par) - Par"}},
                                   {"moves", {"FRA F(GOL) C A(Mar) - Pie", "FRA A(Mar) - Pie"}},
                                   {"retreats", {"FRA A(Par) <Bur RETREAT Pic", "GER A(Par)"}},
                                   {"retreats", {"FRA A(Par) <Bur DISBAND", "GER A(Par)"}},
                                   {"adjustments", {"> FRA BUILD A(Par)"}}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.Lines[0]);
    const GameState game = Board("Autumn", test.Stage, test.Lines);
    std::set<std::string> forms = {Form(DrawnOrders(game, {}))};
    Orders orders = orders::EnteredOrders(game);
    ASSERT_FALSE(orders.empty());
    std::vector<Outcome> outcomes = {Outcome::Succeeded, Outcome::Failed, Outcome::Void};
    if (orders[0].Kind == orders::OrderKind::Support) outcomes.push_back(Outcome::Cut);
    if (orders[0].Kind == orders::OrderKind::Disband) std::erase(outcomes, Outcome::Failed);
    for (const Outcome outcome : outcomes) {
      orders[0].Outcome = outcome;
      EXPECT_TRUE(forms.insert(Form(DrawnOrders(game, orders))).second)
          << static_cast<int>(outcome);
    }
  }
}

TEST(OrderDrawing, NothingIsDrawnOfWhatHasNoPlaceOrIsNoNews) {
  const GameState game = Board("Spring", "moves", {"FRA A(Par)", "FRA A(Mar)"});
  const std::string plain = Form(DrawnOrders(game, {}));
  const Orders orders = {{"FRA", "A", "Xyz", OrderKind::Hold, "", ""},
                         {"XYZ", "A", "Par", OrderKind::Hold, "", ""},
                         {"FRA", "A", "Par", OrderKind::Move, "", "(X)"},
                         {"FRA", "A", "Par", OrderKind::Support, "Xyz", ""},
                         {"FRA", "A", "Par", OrderKind::Support, "Mar", "Xy"},
                         {"FRA", "A", "Par", OrderKind::Convoy, "Mar", ""},
                         {"FRA", "A", "Par", OrderKind::None, "", "Bur"}};
  for (const OrderOutcome& order : orders)
    EXPECT_EQ(Form(DrawnOrders(game, {order})), plain) << order.Location;
  OrderOutcome hold = {"FRA", "A", "Par", OrderKind::Hold, "", "", false, Outcome::Succeeded, true};
  EXPECT_EQ(Form(DrawnOrders(game, {hold})), plain);
  hold.Outcome = Outcome::Failed;
  // Its ring has a radius of 180, and a bar across.
  EXPECT_TRUE(std::ranges::any_of(
      DrawnOrders(game, {hold}).All("line", 1.5),
      [](const Stroke& line) { return render::Distance(line.Points[1], UnitAt("Par")) < 120; }));
}

TEST(OrderDrawing, TwoUnitsThatMoveAtEachOtherGiveTwoArrows) {
  const GameState game = Board("Spring", "moves", {"FRA A(Bur) - Mun", "GER A(Mun) - Bur"});
  const DrawnOrders surface(game);
  const auto lines = surface.All("line", MovePen);
  ASSERT_EQ(lines.size(), 2U) << "straight, as no label is in the way";
  EXPECT_GT(RightOf(lines.front().Points[0], "Bur", "Mun"), 60);
  EXPECT_LT(RightOf(lines.back().Points[1], "Bur", "Mun"), -60);
  EXPECT_EQ(surface.All("polygon").size(), 2U) << "heads";
}

TEST(OrderDrawing, SupportsEndAtTheMoveOrUnitTheySupport) {
  const DrawnOrders surface(Board("Spring", "moves",
                                  {"FRA A(Mar) - Bur", "FRA A(Gas) S A(Mar) - Bur",
                                   "ITA A(Pie) S FRA A(Mar) - Bur", "RUS A(War) S A(Ukr) hold"}));
  const auto lines = surface.All("line", MovePen);
  const auto dots = EndDots(surface);
  ASSERT_EQ(dots.size(), 3U);
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_TRUE(std::ranges::any_of(
        lines, [&](const Stroke& line) { return LiesOn(dots[i].Points[0], line); }));
  }
  EXPECT_NEAR(render::Distance(dots[2].Points[0], UnitAt("Ukr")), 165, 1);
}

/// A surface of the map's own size, so that units are as near to each other as on paper.
struct NaturalSize : Recorder {
  double ScaleWidth() const override { return 15000; }
  double ScaleHeight() const override { return 12500; }
  double TextWidth(std::string_view text) const override {
    return 120.0 * static_cast<double>(text.size());
  }
  double TextHeight(std::string_view /*text*/) const override { return 218; }
};

TEST(OrderDrawing, NoSupportEndsUnderAUnit) {
  const std::shared_ptr<const model::Map> map = RealMap();
  const auto neighbours = [&map](int row) {
    std::vector<std::string> names;
    for (const int other : map->FleetAdjacency.at(static_cast<std::size_t>(row - 1))) {
      if (other != 0) names.push_back(map->Provinces[other].Name);
    }
    return names;
  };
  int seen = 0;
  for (int row = 1; row <= map->Provinces.Count(); ++row) {
    const std::string& target = map->Provinces[row].Name;
    const std::vector<std::string> around = neighbours(row);
    // Every neighbour moves there, the next one supports it, and one stands in the way of all.
    for (std::size_t i = 0; i < around.size(); ++i) {
      const std::string& supporter = around[(i + 1) % around.size()];
      GameState game = EmptyBoard("Spring", "moves");
      for (const std::string& place : around)
        AddDrawnUnit(game, "ENG F(" + place + ")");
      AddDrawnUnit(game, "FRA F(" + target + ")");
      const Orders orders = {{"ENG", "F", around[i], OrderKind::Move, "", target},
                             {"ENG", "F", supporter, OrderKind::Support, around[i], target},
                             {"ENG", "F", around[i], OrderKind::Support, target, ""}};
      NaturalSize surface;
      RenderMap(game, {settings::MapMode::BlackWhite}, "dir", surface, orders);
      for (const Stroke& dot : EndDots(surface)) {
        ++seen;
        const render::Point at = dot.Points[0];
        const render::Rectangle box = {{at.X - 45, at.Y - 45}, {at.X + 45, at.Y + 45}};
        for (const render::ShownUnit& unit : render::UnitsShown(game)) {
          const render::Point middle = render::OnSurface(surface, unit.At);
          EXPECT_EQ(render::CommonArea(box, render::UnitBox(unit.UnitType, middle, 1)), 0)
              << around[i] << " - " << target << " supported by " << supporter;
        }
      }
    }
  }
  EXPECT_GT(seen, 300);
}

TEST(OrderDrawing, ConvoyedMovesPassThroughTheirFleetsInTurn) {
  const DrawnOrders surface(
      Board("Spring", "moves",
            {"ENG A(Lon) - Bre", "FRA F(MAO) C ENG A(Lon) - Bre", "ENG F(ECH) C A(Lon) - Bre"}));
  std::vector<std::string> ends;
  for (const Stroke& line : surface.All("line", MovePen))
    ends.push_back(At(line.Points[1]));
  ASSERT_GE(ends.size(), 3U);
  EXPECT_EQ(ends[0] + ends[1], At(UnitAt("ECH")) + At(UnitAt("MAO")));
}

TEST(OrderDrawing, WhatIsVoidLiesBelowWhatCounts) {
  constexpr double voidPen = 1.5;
  const GameState game = Board("Spring", "moves", {});
  const OrderOutcome counts = {"FRA", "A",   "Par", OrderKind::Move,
                               "",    "Bur", false, Outcome::Succeeded};
  const OrderOutcome isVoid = {"GER", "A", "Mun", OrderKind::Move, "", "Tyr", false, Outcome::Void};
  for (const Orders& orders : {Orders{counts, isVoid}, Orders{isVoid, counts}}) {
    const DrawnOrders surface(game, orders);
    const auto penIs = [](double pen) {
      return [pen](const Stroke& stroke) { return stroke.Kind == "line" && stroke.Pen == pen; };
    };
    const auto first = std::ranges::find_if(surface.Strokes, penIs(MovePen));
    ASSERT_TRUE(std::ranges::any_of(surface.Strokes, penIs(voidPen)));
    EXPECT_TRUE(std::none_of(first, surface.Strokes.end(), penIs(voidPen)));
  }
}

TEST(OrderDrawing, LabelsComeBackOverLines) {
  const GameState game = Board("Spring", "moves", {});
  const Orders longMove = {{"RUS", "A", "Mos", OrderKind::Move, "", "Por"}};
  const auto last = [](const Recorder& surface) {
    return std::ranges::find_if(surface.Strokes.rbegin(), surface.Strokes.rend(),
                                [](const Stroke& stroke) { return stroke.Kind == "text"; });
  };
  const DrawnOrders surface(game, longMove);
  EXPECT_NE(last(surface)->Text, "before moves") << "the last text of the plain map";
  EXPECT_EQ(last(surface)->Fore, render::Black);
  EXPECT_GT(last(surface)->Halo, 1);
}

TEST(OrderDrawing, AttacksAreNotDrawnTwice) {
  const GameState game = Board("Spring", "retreats", {"GER A(Bur) <Mun", "FRA A(Bur)"});
  Orders orders = {{"FRA", "A", "Mun", OrderKind::Move, "", "Bur", false, Outcome::Succeeded}};
  EXPECT_EQ(DrawnOrders(game, {}).All("line", 5).size(), 1U);
  EXPECT_EQ(DrawnOrders(game, orders).All("line", 5).size(), 0U);
  orders[0].Location = "Ruh";
  EXPECT_EQ(DrawnOrders(game, orders).All("line", 5).size(), 1U);
}

TEST(OrderDrawing, DisbandsCrossOutTheUnitWhereItLies) {
  const OrderOutcome disband = {"GER", "A", "Bur", OrderKind::Disband, "", ""};
  const auto crossed = [&disband](const std::vector<std::string>& units) {
    const auto lines =
        DrawnOrders(Board("Spring", "finished", units), {disband}).All("line", MovePen);
    return render::SpotAt(lines.at(0).Points, render::LengthOf(lines.at(0).Points) / 2).At;
  };
  EXPECT_EQ(At(crossed({"GER A(Bur)"})), At(UnitAt("Bur")));
  EXPECT_EQ(At(crossed({})), At(UnitAt("Bur"))) << "removed in the adjustments";
  EXPECT_EQ(At(crossed({"FRA A(Bur)", "GER A(Bur) <Mun"})), At(LabelAt("Bur")));
  EXPECT_EQ(At(crossed({"FRA A(Bur)"})), At(LabelAt("Bur"))) << "disbanded instead of a retreat";
}

}  // namespace
}  // namespace orb::tests
