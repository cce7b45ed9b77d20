#include "render/parts.h"

#include <string>

namespace orb::render {
namespace {

std::string UnitText(const std::string& power, const std::string& type, const std::string& place) {
  return power + " " + type + "(" + place + ")";
}

std::string ProvinceTitle(const model::GameState& game, int row) {
  const model::Province& province = game.Map->Provinces[row];
  const std::string& owner = game.Provinces[row].Owner;
  const std::string& name = province.FullName.empty() ? province.Name : province.FullName;
  return province.IsSupplyCentre == 0 || owner.empty() ? name : name + " (" + owner + ")";
}

std::string_view OutcomeText(orders::Outcome outcome) {
  switch (outcome) {
    case orders::Outcome::Failed:
      return ": failed";
    case orders::Outcome::Cut:
      return ": cut";
    case orders::Outcome::Void:
      return ": void";
    default:
      return "";
  }
}

std::string OrderTitle(const orders::OrderOutcome& order) {
  using orders::OrderKind;
  std::string title = UnitText(order.Power, order.UnitType, order.Location);
  const auto add = [&title](const std::string& word) {
    if (!word.empty()) title.append(" ").append(word);
  };
  if (order.Kind == OrderKind::Build) {
    title = order.Power + " BUILD " + order.UnitType + "(" + order.Location + ")";
  } else if (order.Kind == OrderKind::Hold) {
    add("hold");
  } else {
    add(std::string(orders::KindWord(order.Kind)));
  }
  if (order.Kind == OrderKind::Support || order.Kind == OrderKind::Convoy) {
    add(order.OtherLocation);
    add(order.Destination.empty() ? "hold" : "-");
  }
  add(order.Destination);
  return title.append(OutcomeText(order.Outcome));
}

}  // namespace

DrawnPart::DrawnPart(Surface& surface, const model::GameState& game, int province)
    : surface_(surface) {
  surface.BeginPart(Surface::Part::Province, game.Map->Provinces[province].Name,
                    ProvinceTitle(game, province));
}

DrawnPart::DrawnPart(Surface& surface, const model::Unit& unit) : surface_(surface) {
  const bool isDislodged = unit.Status == model::Dislodged;
  const std::string title = UnitText(unit.Power, unit.UnitType, unit.Location);
  surface.BeginPart(Surface::Part::Unit, isDislodged ? unit.Location + "-dislodged" : unit.Location,
                    isDislodged ? title + ", dislodged" : title);
}

DrawnPart::DrawnPart(Surface& surface, const orders::OrderOutcome& order) : surface_(surface) {
  surface.BeginPart(Surface::Part::Order, order.Power + "-" + order.Location, OrderTitle(order));
}

DrawnPart::DrawnPart(Surface& surface, const model::GameState& game) : surface_(surface) {
  surface.BeginPart(Surface::Part::Caption, "game", game.Title + ", " + SeasonText(game));
}

}  // namespace orb::render
