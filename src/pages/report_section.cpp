#include "pages/report_section.h"

#include "pages/markup.h"

#include "model/counts.h"
#include "model/lookups.h"
#include "render/svg_text.h"
#include "report/report_lines.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orb::pages {
namespace {

using model::GameState;
using report::ReportLine;

std::string Chip(std::string_view kind, std::string_view text) {
  return Element("span", {{"class", std::string("chip ").append(kind)}}, Text(text));
}

/// The place that the line's unit was ordered in: "Nwy" of "ENG A(Nwy) - Swe".
std::string OwnPlace(const std::string& order) {
  const std::size_t begin = order.find('(');
  const std::size_t end = order.find(')', begin);
  return end == std::string::npos ? std::string() : order.substr(begin + 1, end - begin - 1);
}

/// Where those units began the season that stood in the place after its moves.
std::vector<std::string> BeginningsOf(const Season& season, const std::string& place) {
  std::vector<std::string> beginnings;
  for (const history::Journey& journey : season.Journeys) {
    if ((history::HasMoved(journey) ? journey.Aim : journey.From) == place) {
      beginnings.push_back(journey.From);
    }
  }
  return beginnings;
}

/// Whose order a line is, where its unit stood and stands, and where those began that had a part.
std::vector<Attribute> EntryAttributes(const Season& season, const std::string& order,
                                       const session::ReportNote& note, std::string_view power) {
  std::vector<Attribute> attributes = {{"class", note.Failed ? "entry failed" : "entry"}};
  const std::string own = OwnPlace(order);
  if (own.empty()) return attributes;
  attributes.push_back({"data-power", std::string(power)});
  attributes.push_back({"data-at", own});
  std::string others;
  for (std::size_t i = 0; i < note.Locations.size(); ++i) {
    if (i == 0 && note.Locations[0] != own) attributes.push_back({"data-to", note.Locations[0]});
    if (i == 0) continue;
    for (const std::string& place : BeginningsOf(season, note.Locations[i]))
      others.append(others.empty() ? "" : " ").append(place);
  }
  if (!others.empty()) attributes.push_back({"data-with", std::move(others)});
  return attributes;
}

std::string Entry(const Season& season, const ReportLine& line, const session::ReportNote& note,
                  std::string_view power) {
  std::string content = Element("span", {{"class", "order-text"}}, Text(line.Order));
  if (!line.Result.empty()) {
    content.append(" ").append(Chip(note.Failed ? "bad" : "plain", line.Result));
  } else if (note.Failed) {
    content.append(" ").append(Chip("bad", "failed"));
  }
  if (!note.Reason.empty()) content.append(Element("p", {{"class", "why"}}, Text(note.Reason)));
  return Element("li", EntryAttributes(season, line.Order, note, power), content).append("\n");
}

std::string PowerHeading(const model::Country& country) {
  std::string heading = PowerSign(country) + Text(country.Name);
  if (!country.PlayerName.empty()) {
    heading.append(" ").append(Element("span", {{"class", "player"}}, Text(country.PlayerName)));
  }
  return Element("h4", heading).append("\n");
}

/// Lines under the headings that they belong to.
class Groups {
 public:
  void Begin(std::string heading) {
    End();
    heading_ = std::move(heading);
  }

  void Add(std::string_view entry) { entries_.append(entry); }

  void End() {
    if (!entries_.empty()) {
      markup_.append("<div class=\"group\">").append(heading_);
      markup_.append("<ul>\n").append(entries_).append("</ul></div>\n");
    }
    heading_.clear();
    entries_.clear();
  }

  const std::string& Markup() const { return markup_; }

 private:
  std::string heading_, entries_, markup_;
};

std::string Listed(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words)
    list.append(list.empty() ? "" : ", ").append(word);
  return list;
}

std::vector<std::string> UnitsOf(const GameState& game, const std::string& power) {
  std::vector<std::string> units;
  for (const model::Unit& unit : game.Units) {
    if (unit.Power != power) continue;
    units.push_back(unit.UnitType + "(" + unit.Location + ")" +
                    (unit.Status == model::Dislodged ? " dislodged" : ""));
  }
  return units;
}

std::vector<std::string> CentresOf(const GameState& game, const std::string& power) {
  std::vector<std::string> centres;
  for (int row = 1; row <= game.Map->Provinces.Count(); ++row) {
    if (model::IsCentre(*game.Map, row) && game.Provinces[row].Owner == power) {
      centres.push_back(game.Map->Provinces[row].Name);
    }
  }
  return centres;
}

/// Where a journey's unit stands last.
const std::string& LastPlace(const history::Journey& journey) {
  if (!journey.Retreat.empty()) return journey.Retreat;
  return history::HasMoved(journey) ? journey.Aim : journey.From;
}

}  // namespace

std::string PowerSign(const model::Country& country) {
  return "<svg class=\"sign\" aria-hidden=\"true\"><use href=\"#sign-" + country.Abbreviation +
         "\"/></svg>";
}

std::string PowerSigns(const model::CountryTable& countries) {
  std::string signs = "<svg class=\"shared\" width=\"0\" height=\"0\" aria-hidden=\"true\">";
  for (const model::Country& country : countries) {
    signs.append("<symbol id=\"sign-").append(country.Abbreviation);
    signs.append("\" viewBox=\"0 0 10 10\"><circle cx=\"5\" cy=\"5\" r=\"4.4\" fill=\"");
    signs.append(render::ColourText(country.Colour)).append("\" stroke=\"");
    signs.append(render::ColourText(country.TextColour)).append("\"/></symbol>");
  }
  return signs.append("</svg>\n");
}

std::string ReportSection(const Season& season) {
  const GameState& game = season.End;
  Groups groups;
  int present = -1;
  for (int i = 1; i <= game.ReportLines.Count(); ++i) {
    const ReportLine line = report::TakeApart(game.ReportLines[i]);
    if (line.Order.empty()) continue;
    const auto note = static_cast<std::size_t>(i - 1);
    const session::ReportNote nothing;
    if (line.Power == 0 && line.Order.find(' ') == std::string::npos) {
      // A heading within the report: "ADJUSTMENTS".
      groups.Begin({});
      groups.Add(Element("li", {{"class", "part"}}, Text(line.Order)).append("\n"));
      present = -1;
      continue;
    }
    if (line.Power != present) {
      groups.Begin(line.Power == 0 ? std::string() : PowerHeading(game.Countries[line.Power]));
    }
    present = line.Power;
    groups.Add(Entry(season, line, note < season.Notes.size() ? season.Notes[note] : nothing,
                     model::PowerName(line.Power)));
  }
  groups.End();
  std::string remark;
  if (!season.Remark.empty()) {
    remark = Element("p", {{"class", "remark"}}, Text(season.Remark + "."));
  }
  return remark + Element("div", {{"class", "groups"}}, groups.Markup());
}

std::string MovementsSection(const Season& season) {
  Groups groups;
  for (int power = 1; power <= model::CountryCount; ++power) {
    const model::Country& country = season.End.Countries[power];
    groups.Begin(PowerHeading(country));
    for (const history::Journey& journey : season.Journeys) {
      if (journey.Power != country.Abbreviation) continue;
      std::string text = journey.UnitType + "(" + journey.From + ")";
      if (journey.Appears) text.append(" built");
      if (!journey.Aim.empty()) text.append(" - ").append(journey.Aim);
      if (journey.Bounces) text.append(", failed");
      if (journey.Dislodged || journey.DislodgedAtFirst) text.append(", dislodged");
      if (!journey.Retreat.empty()) text.append(", retreats to ").append(journey.Retreat);
      if (journey.Vanishes) text.append(", disbanded");
      groups.Add(Element("li",
                         {{"class", "entry"},
                          {"data-power", journey.Power},
                          {"data-at", journey.From},
                          {"data-to", LastPlace(journey)}},
                         Element("span", {{"class", "order-text"}}, Text(text)))
                     .append("\n"));
    }
  }
  groups.End();
  return Element("div", {{"class", "groups"}}, groups.Markup());
}

std::string PowersSection(const GameState& game) {
  const bool hasPlayers = std::ranges::any_of(
      game.Countries, [](const model::Country& country) { return !country.PlayerName.empty(); });
  std::string rows;
  for (const model::Country& country : game.Countries) {
    const model::PowerCount count = model::CountPower(game, country.Abbreviation);
    rows.append("<tr>");
    rows.append(Element("th", {{"scope", "row"}}, PowerSign(country) + Text(country.Name)));
    if (hasPlayers) rows.append(Element("td", {{"class", "name"}}, Text(country.PlayerName)));
    rows.append(Element("td", {{"class", "number"}}, std::to_string(count.Centres)));
    rows.append(Element("td", {{"class", "number"}}, std::to_string(count.Units)));
    rows.append(
        Element("td", {{"class", "places"}}, Text(Listed(CentresOf(game, country.Abbreviation)))));
    rows.append(
        Element("td", {{"class", "places"}}, Text(Listed(UnitsOf(game, country.Abbreviation)))));
    rows.append("</tr>\n");
  }
  struct Column {
    std::string_view Title, Class;
  };
  constexpr std::array<Column, 6> columns = {{{"Power", "name"},
                                              {"Player", "name"},
                                              {"Centres", "number"},
                                              {"Units", "number"},
                                              {"Its centres", "places"},
                                              {"Its units", "places"}}};
  std::string head;
  for (const auto& [title, kind] : columns) {
    if (!hasPlayers && title == "Player") continue;
    head.append(Element("th", {{"scope", "col"}, {"class", std::string(kind)}}, title));
  }
  return "<div class=\"scrolls\" tabindex=\"0\" role=\"region\" aria-label=\"Powers, centres and "
         "units\"><table class=\"powers\"><thead><tr>" +
         head + "</tr></thead><tbody>\n" + rows + "</tbody></table></div>\n";
}

}  // namespace orb::pages
