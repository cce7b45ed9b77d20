#include "render/ownership.h"

#include "model/counts.h"

#include <string_view>
#include <utility>

namespace orb::render {
namespace {

void PrintHeading(const model::CentreGroup& group, Surface& surface) {
  surface.FontUnderline = true;
  surface.Print(group.Heading);
  surface.FontUnderline = false;
  surface.PrintLine(" (" + std::to_string(group.Centres.size()) + ")");
}

/// The list's last line stays open.
void PrintCentres(const model::CentreGroup& group, Surface& surface) {
  for (const std::string& name : group.Centres) {
    if (surface.CurrentX + surface.TextWidth(" " + name) > surface.ScaleWidth()) {
      surface.PrintLine("");
    }
    surface.Print(name + " ");
  }
}

}  // namespace

double ShowCentreOwnership(const model::GameState& game, Surface& surface) {
  surface.Clear();
  surface.PrintLine("OWNERSHIP OF SUPPLY CENTRES");
  for (const model::CentreGroup& group : model::CentreGroups(game)) {
    // Ends the list before it; before the first group this leaves an empty line.
    surface.PrintLine("");
    PrintHeading(group, surface);
    PrintCentres(group, surface);
  }
  const double openLine = surface.CurrentX > 0 ? surface.TextHeight("") : 0;
  return surface.CurrentY + openLine;
}

}  // namespace orb::render
