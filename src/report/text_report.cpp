#include "report/text_report.h"

#include "model/counts.h"
#include "model/files.h"
#include "model/lookups.h"
#include "report/wrapped_text.h"
#include "text/strings.h"

#include <algorithm>
#include <string_view>

namespace orb::report {
namespace {

using model::GameState;

/// One titled part of the report; a part without lines is left out.
class Section {
 public:
  explicit Section(std::string_view title) : title_(title) {}

  void AddLine(std::string_view text, std::size_t indent) { AddWrapped(text, indent, lines_); }

  /// A name and what belongs to it, the latter in a column of its own. A name that reaches into
  /// that column is followed by one blank.
  void AddRow(std::string_view name, std::string_view contents) {
    constexpr std::size_t nameWidth = 24;
    std::string row = "  ";
    row += name;
    if (!contents.empty()) row.append(nameWidth - std::min(nameWidth - 1, row.size()), ' ');
    AddLine(row.append(contents), nameWidth);
  }

  void AddTo(std::string& report) const {
    if (lines_.empty()) return;
    report.append("\n").append(title_).append("\n").append(title_.size(), '-').append("\n");
    report += lines_;
  }

 private:
  std::string_view title_;
  std::string lines_;
};

void AddToList(std::string_view item, std::string& list) {
  if (!list.empty()) list += ", ";
  list += item;
}

std::string Counted(std::string_view name, int count) {
  return std::string(name) + " (" + std::to_string(count) + ")";
}

/// "A(Lon)", as order lines spell a unit.
std::string UnitInPlace(const model::Unit& unit) {
  return unit.UnitType + "(" + unit.Location + ")";
}

/// The names of the centres that a power owns, or, without a power, of those that no power owns. An
/// owner that is none of the seven abbreviations counts as nobody. Adds their number to `count`.
std::string CentresOf(const GameState& game, const model::Country* owner, int& count) {
  std::string list;
  for (int p = 1; p <= game.Provinces.Count(); ++p) {
    const std::string& name = game.Provinces[p].Owner;
    const bool owned =
        owner != nullptr ? name == owner->Abbreviation : model::FindCountry(name) == 0;
    if (!model::IsCentre(*game.Map, p) || !owned) continue;
    ++count;
    AddToList(game.Map->Provinces[p].Name, list);
  }
  return list;
}

std::string UnitsOf(const GameState& game, const model::Country& country, int& count) {
  std::string list;
  for (const model::Unit& unit : game.Units) {
    if (unit.Power != country.Abbreviation) continue;
    ++count;
    AddToList(UnitInPlace(unit), list);
  }
  return list;
}

Section Report(const GameState& game) {
  Section section("Report");
  for (const std::string& line : game.ReportLines) {
    const std::size_t end = line.find_last_not_of(' ');
    // Continued lines stand clear of the two columns that the brackets of failed orders take.
    constexpr std::size_t indent = 6;
    if (end != std::string::npos) section.AddLine(line.substr(0, end + 1), indent);
  }
  return section;
}

Section Units(const GameState& game) {
  Section section("Units");
  for (const model::Country& country : game.Countries) {
    int count = 0;
    const std::string list = UnitsOf(game, country, count);
    section.AddRow(Counted(country.Name, count), list);
  }
  // Game files may name powers other than the seven; their units are listed, not lost.
  std::string others;
  for (const model::Unit& unit : game.Units) {
    if (model::FindCountry(unit.Power) == 0) AddToList(model::UnitText(unit), others);
  }
  if (!others.empty()) section.AddRow("Others", others);
  return section;
}

Section DislodgedUnits(const GameState& game) {
  Section section("Dislodged");
  for (const model::Unit& unit : game.Units) {
    if (unit.Status != model::Dislodged) continue;
    section.AddRow(model::UnitText(unit), "attacked from " + unit.DislodgedFrom);
  }
  return section;
}

Section SupplyCentres(const GameState& game) {
  Section section("Supply centres");
  for (const model::Country& country : game.Countries) {
    int count = 0;
    const std::string list = CentresOf(game, &country, count);
    section.AddRow(Counted(country.Name, count), list);
  }
  int count = 0;
  const std::string list = CentresOf(game, nullptr, count);
  if (count > 0) section.AddRow(Counted("Nobody", count), list);
  return section;
}

Section AdjustmentsDue(const GameState& game) {
  Section section("Adjustments due");
  if (game.Stage != model::Stage::Adjustments) return section;
  for (const model::Country& country : game.Countries) {
    const model::PowerCount count = model::CountPower(game, country.Abbreviation);
    const int builds = count.Centres - count.Units;
    const std::string number = std::to_string(std::abs(builds));
    // A power with as many units as centres has nothing due and is left out.
    if (builds > 0) section.AddRow(country.Name, "build " + number);
    if (builds < 0) section.AddRow(country.Name, "disband " + number);
  }
  return section;
}

Section Players(const GameState& game) {
  Section section("Players");
  for (const model::Country& country : game.Countries) {
    if (!country.PlayerName.empty()) section.AddRow(country.Name, country.PlayerName);
  }
  return section;
}

Section FreeText(const GameState& game) {
  Section section("Text");
  for (const std::string& line : game.TextLines)
    section.AddLine(line, 0);
  return section;
}

}  // namespace

std::string TextReport(const GameState& game, std::string_view remark) {
  std::string report;
  AddWrapped(game.Title, 0, report);
  // A title of several lines is underlined over the full width.
  report.append(std::min(game.Title.size(), TextReportWidth), '=').append("\n");
  AddWrapped(SeasonText(game).append(", ").append(StageText(game)), 0, report);
  if (!remark.empty()) AddWrapped(remark, 0, report);
  for (const Section& section :
       {Report(game), SupplyCentres(game), AdjustmentsDue(game), Units(game), DislodgedUnits(game),
        Players(game), FreeText(game)}) {
    section.AddTo(report);
  }
  return report;
}

void WriteTextReport(const GameState& game, const std::filesystem::path& file,
                     std::string_view remark) {
  const std::string report = TextReport(game, remark);
  std::string lines;
  for (std::string_view rest = report; !rest.empty();)
    lines.append(text::NextLine(rest)).append("\r\n");
  model::ReplaceFile(file, lines);
}

}  // namespace orb::report
