#include "pages/season_page.h"

#include "pages/assets.h"
#include "pages/chart.h"
#include "pages/markup.h"
#include "pages/page.h"
#include "pages/report_section.h"

#include "render/svg_text.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orb::pages {
namespace {

using model::GameState;

std::string_view StageRemark(model::Stage stage) {
  switch (stage) {
    case model::Stage::Moves:
      return "before the moves";
    case model::Stage::Retreats:
      return "before the retreats";
    case model::Stage::Adjustments:
      return "before the adjustments";
    default:
      return "";
  }
}

std::string IdOf(std::size_t season) {
  return "s" + std::to_string(season);
}

/// Whether anything of the season has been carried out, so that there is a before and an after.
bool HasHappened(const Season& season) {
  return season.End.Stage != model::Stage::Moves;
}

std::string View(const std::string& id, std::string_view kind, std::string_view label,
                 bool isChosen) {
  const std::string input = id + "-" + std::string(kind);
  return std::string("<input type=\"radio\" class=\"view ")
             .append(kind)
             .append("\" name=\"")
             .append(id)
             .append("-view\" id=\"")
             .append(input)
             .append(isChosen ? "\" checked>" : "\">") +
         Element("label", {{"for", input}}, label) + "\n";
}

/// The season's map: both layers, of which the view chosen above shows one. It needs no script.
std::string MapFigure(const Season& season, std::size_t index, Maps& maps) {
  const std::string id = IdOf(index);
  std::string views;
  std::string layers = Maps::Ground();
  if (HasHappened(season)) {
    // Without orders the map before them has nothing to say that the last one has not.
    const bool isOrdered = !season.Orders.empty();
    views = View(id, "orders", isOrdered ? "Orders and outcome" : "Before", isOrdered) +
            View(id, "result", "Position afterwards", !isOrdered);
    layers.append("<g class=\"layer before\">\n")
        .append(maps.Layer(season.Start, season.Orders, id + "b-"))
        .append("</g>\n");
  }
  layers.append("<g class=\"layer after\">\n")
      .append(maps.Layer(season.End, {}, id + "a-"))
      .append("</g>\n");
  return "<figure class=\"map\">\n" + views + "<div class=\"pan\">" +
         Element("svg",
                 {{"class", "board"},
                  {"viewBox", maps.ViewBox()},
                  {"role", "group"},
                  {"aria-label", "Map, " + season.Name + "; the same in words beside it"}},
                 "<g fill=\"none\" stroke-linecap=\"round\">" + layers + "</g>") +
         "</div></figure>\n";
}

std::string NotesSection(const Season& season) {
  std::string text;
  for (const std::string& line : season.End.TextLines)
    text.append(Text(line)).append("\n");
  if (text.empty()) return {};
  return "<h3>Notes</h3>\n" + Element("div", {{"class", "notes"}}, text);
}

std::string ReportPart(const Season& season) {
  if (season.End.ReportLines.Count() > 0) {
    return "<h3>Orders and report</h3>\n" + ReportSection(season);
  }
  if (!HasHappened(season)) {
    return "<h3>Orders and report</h3>\n<p class=\"remark\">The orders of this season are not "
           "resolved yet.</p>\n";
  }
  return "<h3>Movements</h3>\n<p class=\"remark\">The report of this season is not among the "
         "game's files; this is what the positions tell.</p>\n" +
         MovementsSection(season);
}

/// About how high the words of a season come out on paper, in millimetres: the report in four
/// columns, free text and the table of powers below it. At size 1 letters are smallest.
double PrintedHeight(const Season& season, double size) {
  const auto rows = [&](std::size_t letters, double fitting) {
    return std::ceil(static_cast<double>(letters) * size / fitting);
  };
  constexpr double orderLetters = 30;
  constexpr double reasonLetters = 40;
  double report = 7 * 4.5;  // the powers' headings
  for (const std::string& line : season.End.ReportLines)
    report += 3.1 * rows(line.size(), orderLetters);
  for (const session::ReportNote& note : season.Notes)
    report += 2.4 * rows(note.Reason.size(), reasonLetters) + 0.4;
  double below = 8 * 3.2 + 8;
  for (const std::string& line : season.End.TextLines)
    below += 3.1 * rows(line.size() + 1, 4 * orderLetters);
  return size * (report / 4 * 1.05 + below);
}

/// The classes of a season: how large it is printed, so that it fills one sheet and no more.
std::string_view PrintedSize(const Season& season) {
  constexpr double room = 155;  // below the map
  if (PrintedHeight(season, 1.45) < room) return "season largest";
  if (PrintedHeight(season, 1.3) < room) return "season larger";
  return PrintedHeight(season, 1.14) < room ? "season large" : "season";
}

std::string SeasonSection(const Season& season, std::size_t index, Maps& maps) {
  const std::string id = IdOf(index);
  std::string heading = Text(season.Name);
  if (const std::string_view remark = StageRemark(season.End.Stage); !remark.empty()) {
    heading.append(" ").append(Element("small", remark));
  }
  return Element("section",
                 {{"class", std::string(PrintedSize(season))},
                  {"id", id},
                  {"aria-labelledby", id + "-heading"}},
                 Element("h2", {{"id", id + "-heading"}}, heading) + "\n<div class=\"columns\">\n" +
                     MapFigure(season, index, maps) + "<div class=\"words\">\n" +
                     ReportPart(season) + "</div></div>\n" + NotesSection(season) +
                     "<h3>Powers</h3>\n" + PowersSection(season.End)) +
         "\n";
}

/// One journey for the script: the unit's drawing, and its points on the map.
std::string JourneyData(const history::Journey& journey, const GameState& start,
                        const std::string& id, const Maps& maps) {
  const model::Map& map = *start.Map;
  const std::string layer = journey.Appears ? "a-" : "b-";
  const std::string aside = journey.DislodgedAtFirst ? "-dislodged" : "";
  std::vector<std::string> way = {journey.DislodgedAtFirst ? maps.AsidePoint(map, journey.From)
                                                           : maps.UnitPoint(map, journey.From)};
  for (const std::string& fleet : journey.Fleets)
    way.push_back(maps.UnitPoint(map, fleet));
  if (!journey.Aim.empty()) way.push_back(maps.UnitPoint(map, journey.Aim));
  std::vector<std::string> members = {
      Member("unit", JsonText(id + layer + "unit-" + render::IdText(journey.From) + aside)),
      Member("way", "[" + Joined(way) + "]")};
  if (journey.Bounces) members.push_back(Member("bounces", "1"));
  if (journey.DislodgedAtFirst) members.push_back(Member("aside", "1"));
  if (journey.Dislodged) {
    const std::string& place = history::HasMoved(journey) ? journey.Aim : journey.From;
    members.push_back(Member("pushed", maps.AsidePoint(map, place)));
  }
  if (!journey.Retreat.empty()) {
    members.push_back(Member("retreat", maps.UnitPoint(map, journey.Retreat)));
  }
  if (journey.Appears) members.push_back(Member("appears", "1"));
  if (journey.Vanishes) members.push_back(Member("vanishes", "1"));
  return "{" + Joined(members) + "}";
}

/// Units that stay where they are need no telling.
bool IsSeen(const history::Journey& journey) {
  return !journey.Aim.empty() || journey.DislodgedAtFirst || journey.Dislodged ||
         !journey.Retreat.empty() || journey.Appears || journey.Vanishes;
}

std::string SeasonData(const Season& season, std::size_t index, const Maps& maps) {
  std::vector<std::string> journeys;
  for (const history::Journey& journey : season.Journeys) {
    if (IsSeen(journey)) {
      journeys.push_back(JourneyData(journey, season.Start, IdOf(index), maps));
    }
  }
  std::vector<std::string> owners;
  for (int row = 1; row <= season.End.Map->Provinces.Count(); ++row) {
    const std::string& owner = season.End.Provinces[row].Owner;
    if (!owner.empty()) {
      owners.push_back(
          JsonText(season.End.Map->Provinces[row].Name).append(":").append(JsonText(owner)));
    }
  }
  return "{" +
         Joined({Member("id", JsonText(IdOf(index))), Member("name", JsonText(season.Name)),
                 Member("journeys", "[" + Joined(journeys) + "]"),
                 Member("owners", "{" + Joined(owners) + "}")}) +
         "}\n";
}

std::string PowersData(const GameState& game) {
  std::vector<std::string> powers;
  for (const model::Country& country : game.Countries)
    powers.push_back(JsonText(country.Abbreviation).append(":").append(JsonText(country.Name)));
  return "{" + Joined(powers) + "}";
}

/// Only with a script there is anything to steer.
constexpr std::string_view Steering =
    "<nav class=\"steering\" aria-label=\"Seasons\" hidden>\n"
    "<button type=\"button\" id=\"previous\" aria-label=\"Previous season\">&#9664;</button>\n"
    "<label class=\"slider\"><span class=\"quiet\">Season</span>"
    "<input type=\"range\" id=\"season\" min=\"0\" step=\"1\"></label>\n"
    "<button type=\"button\" id=\"next\" aria-label=\"Next season\">&#9654;</button>\n"
    "<output id=\"season-name\" for=\"season\"></output>\n"
    "<button type=\"button\" id=\"play\">Play</button>\n</nav>\n";

constexpr std::string_view Reading =
    "<details class=\"reading\"><summary>How to read the map</summary><ul>\n"
    "<li>An arrow is a move; a bar stops one that failed, its rest is dashed. A retreat has long "
    "dashes.</li>\n"
    "<li>A dashed line with a dot supports the move or unit at its end; two slanting strokes cut "
    "it.</li>\n"
    "<li>A ring is a unit that holds, waves are a convoy. What is dotted, with a cross, took no "
    "part.</li>\n"
    "<li>A small unit beside its place is dislodged. A shield shows who owns a centre.</li>\n"
    "</ul></details>\n";

}  // namespace

std::string SeasonPage(const std::vector<Season>& seasons, Maps& maps) {
  const GameState& last = seasons.back().End;
  // The last season first: it is what a reader without scripts wants.
  std::string sections;
  std::vector<std::string> data(seasons.size());
  for (std::size_t i = seasons.size(); i-- > 0;) {
    sections.append(SeasonSection(seasons[i], i, maps));
    data[i] = SeasonData(seasons[i], i, maps);
  }
  PageParts parts;
  parts.Title = last.Title + ", " + seasons.back().Name;
  parts.Body = "<header class=\"top\">" + Element("h1", Text(last.Title)) + "</header>\n" +
               std::string(Steering) +
               "<main>\n<p id=\"place\" class=\"place\" role=\"status\" hidden></p>\n" + sections +
               std::string(Reading) + CentresChart(seasons) +
               "</main>\n<footer><p>Made by ORB.</p></footer>\n" + PowerSigns(last.Countries) +
               maps.Definitions();
  parts.Data = "{" +
               Joined({Member("places", maps.Places(*last.Map)), Member("powers", PowersData(last)),
                       Member("seasons", "[" + Joined(data) + "]")}) +
               "}";
  parts.Script = SeasonScript;
  parts.Hash = SeasonScriptHash;
  return Page(parts);
}

}  // namespace orb::pages
