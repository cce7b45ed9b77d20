#include "pages/chart.h"

#include "pages/markup.h"
#include "pages/report_section.h"

#include "history/timeline.h"
#include "render/svg_text.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace orb::pages {
namespace {

constexpr long Width = 640, Height = 260, Left = 34, Right = 52, Top = 12, Bottom = 30;

using Rows = std::vector<history::SeasonCentres>;

/// How many centres a power owns, season by season.
std::vector<int> CountsOf(const Rows& rows, int power) {
  std::vector<int> counts;
  for (const history::SeasonCentres& row : rows)
    counts.push_back(row.Centres.at(static_cast<std::size_t>(power) - 1));
  return counts;
}

class Chart {
 public:
  Chart(std::size_t seasons, int most) : steps_(static_cast<long>(seasons) - 1), most_(most) {}

  long X(std::size_t season) const {
    return Left + static_cast<long>(season) * (Width - Left - Right) / steps_;
  }
  long Y(int centres) const { return Height - Bottom - centres * (Height - Top - Bottom) / most_; }

 private:
  long steps_;
  long most_;
};

std::string Number(long value) {
  return std::to_string(value);
}

std::string Line(const Chart& chart, const model::Country& country, const std::vector<int>& counts,
                 long nameY) {
  std::string path;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    path.append(i == 0 ? "M" : "L").append(Number(chart.X(i))).append(" ");
    path.append(Number(chart.Y(counts[i])));
  }
  const auto line = [&](std::string_view kind, model::Colour colour) {
    return std::string("<path class=\"")
               .append(kind)
               .append("\" d=\"")
               .append(path)
               .append("\" stroke=\"") +
           render::ColourText(colour) + "\"/>";
  };
  // Light colours are told from light ground by their dark edge.
  return "<g>" + line("edge", country.TextColour) + line("core", country.Colour) + "<text x=\"" +
         Number(Width - Right + 8) + "\" y=\"" + Number(nameY) + "\">" +
         Text(country.Abbreviation) + "</text></g>\n";
}

/// The heights of the names at the ends of the lines, with their powers, from the bottom upwards.
std::vector<std::pair<long, int>> NamePlaces(const Chart& chart, const Rows& rows) {
  constexpr long distance = 15, highest = Top + 4;
  std::vector<std::pair<long, int>> names;
  for (int power = 1; power <= model::CountryCount; ++power)
    names.emplace_back(chart.Y(CountsOf(rows, power).back()) + 4, power);
  std::ranges::sort(names, std::greater<>());
  // They give way upwards, and where the chart ends there, down again.
  for (std::size_t i = 1; i < names.size(); ++i)
    names[i].first = std::min(names[i].first, names[i - 1].first - distance);
  long least = highest;
  for (std::size_t i = names.size(); i-- > 0; least = names[i].first + distance)
    names[i].first = std::max(names[i].first, least);
  return names;
}

std::string Axes(const Chart& chart, const Rows& rows, int most) {
  std::string axes;
  for (int centres = 0; centres <= most; centres += most > 12 ? 4 : 2) {
    const std::string y = Number(chart.Y(centres));
    axes.append("<path class=\"grid\" d=\"M").append(Number(Left)).append(" ").append(y);
    axes.append("H").append(Number(Width - Right)).append("\"/><text class=\"end\" x=\"");
    axes.append(Number(Left - 7)).append("\" y=\"").append(Number(chart.Y(centres) + 4));
    axes.append("\">").append(Number(centres)).append("</text>");
  }
  int last = -1;
  const std::size_t every = 1 + rows.size() / 24;
  std::size_t years = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const int year = rows[i].Year;
    if (year == last) continue;
    last = year;
    if (years++ % every != 0) continue;
    axes.append("<text class=\"middle\" x=\"").append(Number(chart.X(i))).append("\" y=\"");
    axes.append(Number(Height - 8)).append("\">").append(std::to_string(year)).append("</text>");
  }
  return axes + "\n";
}

std::string Table(const Rows& seasons, const model::CountryTable& countries) {
  std::string head = Element("th", {{"scope", "col"}}, "Season");
  for (const model::Country& country : countries)
    head.append(Element("th", {{"scope", "col"}}, Text(country.Abbreviation)));
  std::string rows;
  for (const history::SeasonCentres& season : seasons) {
    rows.append("<tr>").append(Element("th", {{"scope", "row"}}, Text(season.Season)));
    for (const int centres : season.Centres)
      rows.append(Element("td", {{"class", "number"}}, std::to_string(centres)));
    rows.append("</tr>\n");
  }
  return "<details><summary>The same in figures</summary><div class=\"scrolls\" tabindex=\"0\" "
         "role=\"region\" aria-label=\"Centres in figures\"><table class=\"counts\"><thead><tr>" +
         head + "</tr></thead><tbody>\n" + rows + "</tbody></table></div></details>\n";
}

}  // namespace

std::string CentresChart(const std::vector<Season>& seasons) {
  if (seasons.size() < 2) return {};
  const model::CountryTable& countries = seasons.front().End.Countries;
  std::vector<history::Moment> ends;
  ends.reserve(seasons.size());
  for (const Season& season : seasons)
    ends.push_back(history::MomentOf(season.End));
  const Rows rows = history::CentresOverTime(ends);
  int most = 4;
  for (const history::SeasonCentres& row : rows)
    most = std::max(most, *std::ranges::max_element(row.Centres) + 1);
  const Chart chart(rows.size(), most);
  std::string lines;
  for (const auto& [y, power] : NamePlaces(chart, rows))
    lines.append(Line(chart, countries[power], CountsOf(rows, power), y));
  return "<section class=\"chart\" aria-labelledby=\"centres\"><h2 id=\"centres\">Centres over the "
         "years</h2>\n<svg class=\"lines\" viewBox=\"0 0 " +
         Number(Width) + " " + Number(Height) +
         "\" role=\"img\" aria-label=\"Centres of each power over the years; the same in figures "
         "below\">\n" +
         Axes(chart, rows, most) + lines + "</svg>\n" + Table(rows, countries) + "</section>\n";
}

}  // namespace orb::pages
