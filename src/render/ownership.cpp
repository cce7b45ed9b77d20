#include "render/ownership.h"

#include <string_view>
#include <utility>

namespace orb::render {
namespace {

void AddGroup(const model::GameState& game, std::string_view owner, std::string_view heading,
              std::vector<CentreGroup>& groups) {
  CentreGroup group{std::string(heading), {}};
  for (int p = 1; p <= game.Provinces.Count(); ++p) {
    const model::Province& province = game.Map->Provinces[p];
    if (province.IsSupplyCentre != 0 && game.Provinces[p].Owner == owner)
      group.Centres.push_back(province.Name);
  }
  if (!group.Centres.empty()) groups.push_back(std::move(group));
}

void PrintHeading(const CentreGroup& group, Surface& surface) {
  surface.FontUnderline = true;
  surface.Print(group.Heading);
  surface.FontUnderline = false;
  surface.PrintLine(" (" + std::to_string(group.Centres.size()) + ")");
}

/// The list's last line stays open.
void PrintCentres(const CentreGroup& group, Surface& surface) {
  for (const std::string& name : group.Centres) {
    if (surface.CurrentX + surface.TextWidth(" " + name) > surface.ScaleWidth()) {
      surface.PrintLine("");
    }
    surface.Print(name + " ");
  }
}

}  // namespace

std::vector<CentreGroup> CentreGroups(const model::GameState& game) {
  std::vector<CentreGroup> groups;
  for (const model::Country& country : game.Countries)
    AddGroup(game, country.Abbreviation, country.Name, groups);
  AddGroup(game, "", "Neutral", groups);
  return groups;
}

double ShowCentreOwnership(const model::GameState& game, Surface& surface) {
  surface.Clear();
  surface.PrintLine("OWNERSHIP OF SUPPLY CENTRES");
  for (const CentreGroup& group : CentreGroups(game)) {
    // Ends the list before it; before the first group this leaves an empty line.
    surface.PrintLine("");
    PrintHeading(group, surface);
    PrintCentres(group, surface);
  }
  const double openLine = surface.CurrentX > 0 ? surface.TextHeight("") : 0;
  return surface.CurrentY + openLine;
}

}  // namespace orb::render
