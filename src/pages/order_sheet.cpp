#include "pages/order_sheet.h"

#include "pages/assets.h"
#include "pages/markup.h"
#include "pages/page.h"

#include "adjudication/possible_orders.h"
#include "model/errors.h"
#include "model/lookups.h"
#include "orders/exchange/check_line.h"
#include "render/svg_text.h"
#include "session/standing.h"

#include <string_view>
#include <vector>

namespace orb::pages {
namespace {

using model::GameState;

std::string Strings(const std::vector<std::string>& texts) {
  std::vector<std::string> json;
  json.reserve(texts.size());
  for (const std::string& text : texts)
    json.push_back(JsonText(text));
  return "[" + Joined(json) + "]";
}

/// The powers that the sheet is for.
std::vector<int> PowersOf(const SheetRequest& request) {
  std::vector<int> powers;
  for (int power = 1; power <= model::CountryCount; ++power) {
    if (request.Power.empty() || request.Power == model::PowerName(power)) powers.push_back(power);
  }
  return powers;
}

/// Units and what each may be ordered, without the words that all its lines begin with.
std::string UnitsData(const SheetRequest& request, const adjudication::PossibleOrders& possible) {
  const GameState& game = request.Game;
  std::vector<std::string> units;
  for (int i = 1; i <= game.Units.Count(); ++i) {
    const model::Unit& unit = game.Units[i];
    if (!request.Power.empty() && unit.Power != request.Power) continue;
    std::vector<std::string> lines = possible.OfUnit(i);
    if (lines.empty()) continue;
    const std::string begin = model::UnitText(unit) + " ";
    for (std::string& line : lines)
      line.erase(0, begin.size());
    units.push_back("{" +
                    Joined({Member("p", JsonText(unit.Power)), Member("t", JsonText(unit.UnitType)),
                            Member("at", JsonText(unit.Location)), Member("o", Strings(lines))}) +
                    "}\n");
  }
  return "[" + Joined(units) + "]";
}

/// What a power may build, or what it may remove, without the words before the unit.
std::string AdjustmentsData(const GameState& game, int power, int due,
                            const adjudication::PossibleOrders& possible) {
  const std::string begin =
      std::string(model::PowerName(power)) + (due > 0 ? " build " : " disband ");
  std::vector<std::string> units;
  for (const std::string& line : possible.OfPower(power)) {
    if (game.Stage == model::Stage::Adjustments && line.starts_with(begin)) {
      units.push_back(line.substr(begin.size()));
    }
  }
  return Strings(units);
}

std::string PowersData(const SheetRequest& request, const adjudication::PossibleOrders& possible) {
  const GameState& game = request.Game;
  const session::Standings standings = session::StandingsOf({.Game = game});
  std::vector<std::string> powers;
  for (const int power : PowersOf(request)) {
    const model::Country& country = game.Countries[power];
    const int due = game.Stage == model::Stage::Adjustments ? standings.Powers[power].Due : 0;
    powers.push_back(
        JsonText(country.Abbreviation) + ":{" +
        Joined({Member("name", JsonText(country.Name)),
                Member("colour", JsonText(render::ColourText(country.Colour))),
                Member("edge", JsonText(render::ColourText(country.TextColour))),
                Member("due", std::to_string(due)),
                Member("units", AdjustmentsData(game, power, due, possible)),
                Member("check", JsonText(exchange::CheckLineText(game, country.Abbreviation)))}) +
        "}");
  }
  return "{" + Joined(powers) + "}";
}

std::string Chooser(const SheetRequest& request) {
  std::string options;
  for (const int power : PowersOf(request)) {
    const model::Country& country = request.Game.Countries[power];
    options.append(
        Element("option", {{"value", country.Abbreviation}}, Text(country.Name)).append("\n"));
  }
  const std::string select = Element("select", {{"id", "power"}}, options);
  // The script shows it where there is a choice.
  return "<p class=\"row\" hidden><label for=\"power\">Your power</label> " + select + "</p>\n";
}

/// The units that stand on the map, in words.
std::string Position(const GameState& game) {
  std::string rows;
  for (const model::Country& country : game.Countries) {
    std::string units;
    for (const model::Unit& unit : game.Units) {
      if (unit.Power != country.Abbreviation) continue;
      units.append(units.empty() ? "" : ", ").append(unit.UnitType + "(" + unit.Location + ")");
      if (unit.Status == model::Dislodged) units.append(" dislodged");
    }
    rows.append("<tr>").append(Element("th", {{"scope", "row"}}, Text(country.Name)));
    rows.append(Element("td", Text(units))).append("</tr>\n");
  }
  return "<details><summary>All units</summary><table><tbody>\n" + rows +
         "</tbody></table></details>\n";
}

/// What the page has without a script: the map, and that it needs one.
constexpr std::string_view EntryForm =
    "<noscript><p class=\"remark\">Orders are entered by a script in this page; here it may not "
    "run. Open the page in another browser, or write the orders by hand.</p></noscript>\n"
    "<section class=\"words\" aria-labelledby=\"orders\" hidden id=\"entry\">\n"
    "<h2 id=\"orders\">Your orders</h2>\n<p id=\"count\" class=\"remark\"></p>\n"
    "<ul id=\"given\" class=\"given\"></ul>\n"
    "<div role=\"status\" aria-label=\"What is still to be looked at\"><ul id=\"doubts\" "
    "class=\"doubts\"></ul></div>\n"
    "<h2 id=\"send\">Send them</h2>\n"
    "<p><label for=\"result\">The text for your game master</label></p>\n"
    "<textarea id=\"result\" class=\"result\" readonly></textarea>\n"
    "<p class=\"row\"><button type=\"button\" id=\"copy\" class=\"primary\">Copy</button> "
    "<a id=\"mail\" href=\"mailto:\">Send by mail</a> <button type=\"button\" id=\"clear\">Clear "
    "all</button></p>\n<p role=\"status\" id=\"done\" class=\"remark\"></p>\n</section>\n";

constexpr std::string_view Steps =
    "<div class=\"steps\" id=\"steps\" hidden><p role=\"status\" id=\"step\"></p>\n"
    "<div class=\"row\" role=\"group\" aria-label=\"What the unit does\" "
    "id=\"actions\"></div></div>\n";

std::string_view StageTitle(model::Stage stage) {
  if (stage == model::Stage::Retreats) return "Retreats";
  return stage == model::Stage::Adjustments ? "Adjustments" : "Orders";
}

}  // namespace

std::string OrderSheet(const SheetRequest& request, Maps& maps) {
  const GameState& game = request.Game;
  if (!model::HasOrders(game.Stage)) {
    throw model::FatalError("There are no orders to enter: the game is in the stage \"" +
                            std::string(model::StageText(game)) + "\".");
  }
  const std::string season = SeasonText(game);
  std::string heading = std::string(StageTitle(game.Stage)) + ", " + season;
  if (!request.Power.empty()) {
    heading.append(", ").append(game.Countries[model::FindCountry(request.Power)].Name);
  }
  const std::string map =
      "<figure class=\"map\">\n<div class=\"pan\">" +
      Element("svg",
              {{"class", "board"},
               {"viewBox", maps.ViewBox()},
               {"role", "group"},
               {"aria-label", "Map, " + season}},
              "<g fill=\"none\" stroke-linecap=\"round\">" + Maps::Ground() +
                  "<g class=\"layer\">\n" + maps.Layer(game, {}, "m-") + "</g></g>") +
      "</div>\n" + std::string(Steps) + "</figure>\n";
  const adjudication::PossibleOrders possible(game);
  PageParts parts;
  parts.Title = game.Title + ", " + heading;
  parts.Body =
      "<header class=\"top\">" + Element("h1", Text(game.Title)) + Element("p", Text(heading)) +
      "</header>\n<main class=\"sheet\">\n" + Chooser(request) + "<div class=\"columns\">\n" + map +
      std::string(EntryForm) + "</div>\n" + Position(game) +
      "</main>\n<footer><p>Made by ORB. What you enter stays in this page.</p></footer>\n" +
      maps.Definitions();
  parts.Data = "{" +
               Joined({Member("places", maps.Places(*game.Map)),
                       Member("powers", PowersData(request, possible)),
                       Member("units", UnitsData(request, possible)),
                       Member("stage", JsonText(model::StageName(game.Stage))),
                       Member("season", JsonText(season)), Member("title", JsonText(game.Title)),
                       Member("address", JsonText(request.Mail))}) +
               "}";
  parts.Script = SheetScript;
  parts.Hash = SheetScriptHash;
  return Page(parts);
}

}  // namespace orb::pages
