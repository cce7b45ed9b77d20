#include "pages/season_page.h"

#include "pages/chart.h"
#include "pages/markup.h"

#include "adjudication/possible_orders.h"
#include "model/counts.h"
#include "model/map_files.h"
#include "model/new_game.h"
#include "render/qt/qt_svg_material.h"
#include "session/commands.h"
#include "session/trial.h"
#include "support/boards.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <regex>
#include <string>
#include <vector>

namespace orb::tests {
namespace {

using pages::Season;
using pages::Source;
using session::Situation;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string PageOf(const std::vector<Season>& seasons) {
  // Kept for all pages: making the background takes longer than all the rest.
  static auto* const pictures = new render::PictureCache;
  static auto* const material = new render::QtSvgMaterial(*pictures);
  pages::Maps maps(*material, {settings::MapMode::Colour, false, true, true}, DataDirectory());
  return pages::SeasonPage(seasons, maps);
}

Situation NewGame() {
  Situation situation;
  situation.Game = model::EmptyGame(RealMap());
  session::NewGame(situation, DataDirectory());
  return situation;
}

/// Fills the stage's list with some possible order of every unit, or some adjustments.
void OrderAtRandom(Situation& situation, std::mt19937& random) {
  const adjudication::PossibleOrders possible(situation.Game);
  std::vector<std::string> lines;
  const auto take = [&](const std::vector<std::string>& orders) {
    if (!orders.empty()) lines.push_back(orders[random() % orders.size()]);
  };
  for (int unit = 1; unit <= situation.Game.Units.Count(); ++unit)
    take(possible.OfUnit(unit));
  for (int power = 1; power <= model::CountryCount; ++power) {
    const auto count = model::CountPower(situation.Game, model::PowerName(power));
    std::vector<std::string> orders = possible.OfPower(power);
    std::erase_if(orders, [&](const std::string& line) {
      return (line.find("build") == std::string::npos) == (count.Centres > count.Units);
    });
    std::shuffle(orders.begin(), orders.end(), random);
    orders.resize(
        std::min(orders.size(), static_cast<std::size_t>(std::abs(count.Centres - count.Units))));
    lines.insert(lines.end(), orders.begin(), orders.end());
  }
  session::ReplaceOrders(situation, std::move(lines));
}

/// The beginning of each season with its orders, and its end.
std::vector<Source> PlayedSeasons(int count, unsigned seed) {
  std::mt19937 random(seed);
  std::vector<Source> sources;
  Situation now = NewGame();
  now.Rules = session::Rules::Usual;
  for (int season = 0; season < count; ++season) {
    OrderAtRandom(now, random);
    while (model::HasOrders(now.Game.Stage)) {
      sources.push_back({now});
      now = session::TryOut(now, session::Noting::None);
      OrderAtRandom(now, random);
    }
    now.Game.ReportLines.SetCount(0);
    sources.push_back({now});
    session::NextSeason(now);
  }
  return sources;
}

TEST(SeasonPage, HoldsTwentySeasonsWithTheirReasonsInLittleRoom) {
  std::vector<Source> sources = PlayedSeasons(20, 7);
  std::shuffle(sources.begin(), sources.end(), std::mt19937(1));
  const std::vector<Season> seasons = pages::SeasonsOf(std::move(sources));
  ASSERT_EQ(seasons.size(), 20U);
  EXPECT_EQ(seasons[19].Name, "Autumn 1910");
  for (const Season& season : seasons) {
    // What only files tell was found out again: which orders, by which rules, and why.
    EXPECT_GT(season.Orders.size(), 10U) << season.Name;
    ASSERT_GE(season.Notes.size(), 10U) << season.Name;
    EXPECT_FALSE(season.Notes[0].Reason.empty()) << season.Name;
    EXPECT_EQ(season.Remark, "Resolved by the usual rules") << season.Name;
    EXPECT_EQ(season.Start.Stage, model::Stage::Moves);
  }
  const std::string page = PageOf(seasons);
  EXPECT_LE(page.size(), 1'500'000U);
  EXPECT_LT(page.find("Autumn 1910"), page.find("Spring 1901"));
}

TEST(SeasonPage, OrdersThatNobodyKnowsToBeCarriedOutAreNotTold) {
  Situation start = NewGame();
  session::ReplaceOrders(start, {"FRA A(Par) - Bur", "ENG F(Lon) - NTH"});
  const auto names = [](const std::vector<Season>& seasons) {
    return seasons.back().Orders.size() + seasons.back().Journeys.size() -
           static_cast<std::size_t>(seasons.back().Start.Units.Count());
  };
  EXPECT_EQ(names(pages::SeasonsOf({{start}})), 0U);
  EXPECT_THAT(PageOf(pages::SeasonsOf({{start}})), Not(HasSubstr("Par) - Bur")));
  EXPECT_THAT(PageOf(pages::SeasonsOf({{start, true}})), HasSubstr("FRA A(Par) - Bur"));
  // A file of the same stage shows nothing, even if the orders would leave it as it is.
  Situation holding = NewGame();
  session::ReplaceOrders(holding, {"FRA A(Par) hold"});
  EXPECT_TRUE(pages::SeasonsOf({{holding}, {NewGame()}}).back().Orders.empty());
  // Another game's end does not make them orders that were carried out.
  Situation other = start;
  session::ReplaceOrders(other, {"FRA A(Mar) - Spa"});
  other = session::TryOut(other);
  other.Game.ReportLines.SetCount(0);
  other.Notes.clear();
  other.Outcomes.clear();
  const std::string page = PageOf(pages::SeasonsOf({{start}, {other}}));
  EXPECT_THAT(page, AllOf(Not(HasSubstr("Par) - Bur")), HasSubstr("A(Mar) - Spa"),
                          HasSubstr("what the positions tell")));
}

TEST(SeasonPage, TakesNoTextForMarkupOrScript) {
  Situation situation = NewGame();
  model::GameState& game = situation.Game;
  game.Title = "\"></title><script>alert(1)</script>\x01\x81\x80";
  game.Season = "</script><script>alert(2)</script>";
  game.Countries[1].PlayerName = "<img src=x onerror=alert(3)>";
  game.Countries[2].Name = "'\"<b>&amp;";
  game.TextLines.Append("<!-- <script>alert(4)</script> ]]>");
  game.Provinces[4].Owner = "ENG";
  session::ReplaceOrders(situation, {"ENG F(Lon) - <svg/onload=alert(5)>"});
  const std::string page = PageOf(pages::SeasonsOf({{situation, true}}));
  std::size_t scripts = 0;
  for (std::size_t at = page.find("<script"); at != std::string::npos;
       at = page.find("<script", at + 1))
    ++scripts;
  EXPECT_EQ(scripts, 2U) << "the page's data and its own script";
  EXPECT_THAT(page, AllOf(Not(HasSubstr("<img")), Not(HasSubstr("<svg/")), Not(HasSubstr("<!-- <")),
                          HasSubstr("&lt;img src=x onerror=alert(3)&gt;"),
                          HasSubstr("&#39;&quot;&lt;b&gt;&amp;amp;"),
                          HasSubstr("alert(1)&lt;/script&gt;?\?\u20AC")));
}

TEST(CentresChart, KeepsTheNamesOfEqualPowersApartAndInside) {
  Season season;
  season.End = Board("Autumn", "finished", {});
  for (const char* centres :
       {"ENG Lon Edi Lvp Nwy", "FRA Par Bre Mar Spa", "GER Ber Kie Mun Den", "RUS Mos Sev Stp War",
        "TUR Ank Con Smy Bul", "AUS Vie Bud Tri Ser", "ITA Rom Nap Ven Tun"})
    Own(season.End, centres);
  Season next = season;
  ++next.End.Year;
  const std::string chart = pages::CentresChart({season, next});
  std::vector<int> heights;
  const std::regex name("y=\"(-?\\d+)\">[A-Z]{3}<");
  for (std::sregex_iterator found(chart.begin(), chart.end(), name), end; found != end; ++found)
    heights.push_back(std::stoi((*found)[1]));
  ASSERT_EQ(heights.size(), 7U);
  EXPECT_GE(heights.back(), 12);
  for (std::size_t i = 1; i < heights.size(); ++i)
    EXPECT_GE(heights[i - 1] - heights[i], 15);
}

TEST(PageMarkup, TextsInJsonCannotEndTheirElement) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"plain", "\"plain\""},
      {"a\"b\\c", "\"a\\u0022b\\u005cc\""},
      {"</script>", "\"\\u003c/script\\u003e\""},
      {"\n\x01\x7F\xE9", "\"\\u000a\\u0001\\u007f\u00E9\""}};
  for (const auto& [text, json] : cases)
    EXPECT_EQ(pages::JsonText(text), json);
}

}  // namespace
}  // namespace orb::tests
