#include "render/ownership.h"

#include <string>
#include <string_view>

namespace orb::render {
namespace {

bool IsCentreOf(const model::GameState& game, int province, std::string_view owner) {
  return game.Map->Provinces[province].IsSupplyCentre != 0 &&
         game.Provinces[province].Owner == owner;
}

int CountCentres(const model::GameState& game, std::string_view owner) {
  int count = 0;
  for (int p = 1; p <= game.Provinces.Count(); ++p)
    count += IsCentreOf(game, p, owner) ? 1 : 0;
  return count;
}

void PrintHeading(std::string_view heading, int count, Surface& surface) {
  surface.FontUnderline = true;
  surface.Print(heading);
  surface.FontUnderline = false;
  surface.PrintLine(" (" + std::to_string(count) + ")");
}

/// The list's last line stays open.
void PrintCentres(const model::GameState& game, std::string_view owner, Surface& surface) {
  for (int p = 1; p <= game.Provinces.Count(); ++p) {
    if (!IsCentreOf(game, p, owner)) continue;
    const std::string& name = game.Map->Provinces[p].Name;
    if (surface.CurrentX + surface.TextWidth(" " + name) > surface.ScaleWidth()) {
      surface.PrintLine("");
    }
    surface.Print(name + " ");
  }
}

void PrintGroup(const model::GameState& game, std::string_view owner, std::string_view heading,
                Surface& surface) {
  const int count = CountCentres(game, owner);
  if (count == 0) return;
  // Ends the list before it; before the first group this leaves an empty line.
  surface.PrintLine("");
  PrintHeading(heading, count, surface);
  PrintCentres(game, owner, surface);
}

}  // namespace

double ShowCentreOwnership(const model::GameState& game, Surface& surface) {
  surface.Clear();
  surface.PrintLine("OWNERSHIP OF SUPPLY CENTRES");
  for (const model::Country& country : game.Countries)
    PrintGroup(game, country.Abbreviation, country.Name, surface);
  PrintGroup(game, "", "Neutral", surface);
  const double openLine = surface.CurrentX > 0 ? surface.TextHeight("") : 0;
  return surface.CurrentY + openLine;
}

}  // namespace orb::render
