#include "ui/editing/edit_units_panel.h"

#include "model/lookups.h"
#include "model/place.h"
#include "model/position_edit.h"
#include "text/qt/text_codec.h"
#include "ui/editing/unit_dialog.h"
#include "ui/editing/unit_menus.h"
#include "ui/widgets/controls.h"
#include "ui/widgets/place_text.h"
#include "ui/widgets/power_choice.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orb::ui {
namespace {

using model::GameState;
using model::Unit;
using text::ToQString;

/// How far a unit's symbol reaches, in pixels of the map's natural size.
constexpr double SymbolReach = 10;

EditingTexts unitTexts() {
  return {QStringLiteral("fraEditUnits"),
          QStringLiteral("lstUnits"),
          QObject::tr("Edit units"),
          QObject::tr("Click an empty place to add a unit, drag a unit to move it, double-click it "
                      "for its properties. Delete removes it."),
          QStringLiteral("butUnitsUndo"),
          QStringLiteral("butUnitsRedo"),
          QStringLiteral("butUnitsDone"),
          QStringLiteral("butUnitsHelp")};
}

/// "FRA A(Par)  Paris".
QString unitLine(const GameState& game, const Unit& unit) {
  const int row = model::FindProvince(*game.Map, unit.Location);
  QString line = ToQString(model::UnitText(unit));
  if (row != 0) line += QStringLiteral("  ") + ToQString(game.Map->Provinces[row].FullName);
  if (unit.Status != model::Dislodged) return line;
  if (unit.DislodgedFrom.empty()) return QObject::tr("%1, dislodged").arg(line);
  return QObject::tr("%1, dislodged from %2").arg(line, ToQString(unit.DislodgedFrom));
}

/// The unit whose symbol the spot is on, the nearest where they overlap; 0: none. The size is the
/// map's natural size, in which the reach of symbols is given.
int nearestSymbol(const GameState& game, const MapSpot& spot, const QSizeF& size) {
  int nearest = 0;
  double least = SymbolReach;
  for (int u = 1; u <= game.Units.Count(); ++u) {
    const render::Point symbol = unitPoint(*spot.game.Map, game.Units[u]);
    // Divided by the scale, so that a smaller symbol is also a smaller target.
    const double away = std::hypot((spot.point.X - symbol.X) * size.width(),
                                   (spot.point.Y - symbol.Y) * size.height()) /
                        unitScale(game.Units[u]);
    if (away < least) {
      nearest = u;
      least = away;
    }
  }
  return nearest;
}

}  // namespace

EditUnitsPanel::EditUnitsPanel(Desk& desk, MapPicture& map, QWidget* parent)
    : EditingPanel(desk, map, unitTexts(), parent),
      m_add(newButton(QStringLiteral("butUnitAdd"), tr("&Add..."))),
      m_properties(newButton(QStringLiteral("butUnitProperties"), tr("Propert&ies..."))),
      m_remove(newButton(QStringLiteral("butUnitRemove"), tr("&Remove"))),
      m_lastPower(desk.game().Countries[1].Abbreviation) {
  layOut(nullptr, {m_add, m_properties, m_remove});
  connect(m_add, &QPushButton::clicked, this, &EditUnitsPanel::addByDialog);
  connect(m_properties, &QPushButton::clicked, this, &EditUnitsPanel::openProperties);
  connect(m_remove, &QPushButton::clicked, this, &EditUnitsPanel::remove);
  addKey(Qt::Key_Insert, [this] { addByDialog(); });
  addKey(Qt::Key_Delete, [this] { remove(); });
  // The mouse button is still held then; letting it go no longer drops anything.
  addKey(Qt::Key_Escape, [this] { endDrag(); });
}

/// By power, as the map's legend has them; units of one power as the game has them.
std::vector<EditingPanel::Entry> EditUnitsPanel::entries() const {
  std::vector<int> order(static_cast<std::size_t>(game().Units.Count()));
  std::iota(order.begin(), order.end(), 1);
  const auto power = [this](int unit) { return model::FindCountry(game().Units[unit].Power); };
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return power(a) < power(b); });
  std::vector<Entry> found;
  found.reserve(order.size());
  for (const int unit : order) {
    found.push_back(
        {unit, unitLine(game(), game().Units[unit]), powerIcon(game().Countries, power(unit))});
  }
  return found;
}

void EditUnitsPanel::selectionChanged() {
  // What is dragged may be gone.
  endDrag();
  m_properties->setEnabled(selected() != 0);
  m_remove->setEnabled(selected() != 0);
}

void EditUnitsPanel::hideEvent(QHideEvent* event) {
  EditingPanel::hideEvent(event);
  endDrag();
}

/// The unit whose symbol is there, also where it reaches into a neighbouring place, or else the one
/// that stands in place there.
int EditUnitsPanel::unitAt(const MapSpot& spot) const {
  const int symbol = nearestSymbol(game(), spot, map().naturalSize());
  const int place = spot.locationFor("A");
  if (symbol != 0 || place == 0) return symbol;
  for (int u = 1; u <= game().Units.Count(); ++u) {
    const Unit& unit = game().Units[u];
    const bool there = model::SamePlace(unit.Location, spot.game.Map->Provinces[place].Name);
    if (there && unit.Status != model::Dislodged) return u;
  }
  return 0;
}

void EditUnitsPanel::mapClicked(const MapSpot& at) {
  const int unit = unitAt(at);
  select(unit);
  const int place = at.locationFor("A");
  if (unit != 0 || place == 0) return;
  const std::string& name = at.game.Map->Provinces[place].Name;
  // The power of the last unit comes first: units are mostly set up power by power.
  QMenu* menu = newAddMenu(
      game(), name, m_lastPower, [this](const Unit& chosen) { add(chosen); }, this);
  if (menu != nullptr) return popUp(menu, at.point);
  // No unit of any kind fits; what is said of an army explains it.
  const std::string fault = model::UnitFault(game(), model::NewUnit(m_lastPower, "A", name), 0);
  emit statusText(ToQString(fault));
}

bool EditUnitsPanel::mapDoubleClicked(const MapSpot& at) {
  const int unit = unitAt(at);
  if (unit == 0) return false;
  select(unit);
  openProperties();
  return true;
}

void EditUnitsPanel::popUp(QMenu* menu, render::Point at) {
  const QPointF point(at.X * map().width(), at.Y * map().height());
  menu->popup(map().mapToGlobal(point.toPoint()));
}

void EditUnitsPanel::add(const Unit& unit) {
  if (!edit([&](GameState& game) { return model::AddUnit(game, unit); })) return;
  m_lastPower = unit.Power;
  // A new unit is the last one of the table.
  select(game().Units.Count());
  tellPlace(unit.Location);
}

void EditUnitsPanel::addByDialog() {
  UnitDialog dialog(game(), model::NewUnit(m_lastPower, "A", {}), 0, this);
  if (dialog.exec() == QDialog::Accepted) add(dialog.unit());
}

void EditUnitsPanel::openProperties() {
  const int unit = selected();
  if (unit == 0) return;
  UnitDialog dialog(game(), game().Units[unit], unit, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const Unit wanted = dialog.unit();
  edit([&](GameState& game) { return model::ChangeUnit(game, unit, wanted); });
}

/// The next unit of the list is selected, so that several can be removed in a row.
void EditUnitsPanel::remove() {
  const int unit = selected();
  if (unit == 0) return;
  const int row = list().currentRow();
  edit([&](GameState& game) {
    model::RemoveUnit(game, unit);
    return std::string();
  });
  list().setCurrentRow(std::min(row, list().count() - 1));
}

bool EditUnitsPanel::mapDragStarted(const MapSpot& from) {
  const int unit = unitAt(from);
  if (unit == 0) return false;
  select(unit);
  m_drag = Drag{unit, from.point};
  map().setCursor(Qt::ClosedHandCursor);
  return true;
}

void EditUnitsPanel::mapDragMoved(const MapSpot& over) {
  if (!m_drag) return;
  const Unit& unit = game().Units[m_drag->unit];
  m_drag->at = over.point;
  m_drag->target = over.locationFor(unit.UnitType);
  const std::string fault =
      m_drag->target == 0
          ? std::string()
          : model::MoveFault(game(), m_drag->unit, over.game.Map->Provinces[m_drag->target].Name);
  m_drag->possible = m_drag->target != 0 && fault.empty();
  // The cursor and the status bar show what would happen before the unit is dropped.
  map().setCursor(m_drag->possible ? Qt::ClosedHandCursor : Qt::ForbiddenCursor);
  map().update();
  const QString goal = m_drag->target == 0
                           ? tr("There is no place.")
                           : ToQString(model::PlaceName(*over.game.Map, m_drag->target));
  emit statusText(fault.empty() ? goal : ToQString(fault));
}

void EditUnitsPanel::mapDropped(const MapSpot& at) {
  if (!m_drag) return;
  const int unit = m_drag->unit;
  endDrag();
  moveTo(unit, at);
}

void EditUnitsPanel::endDrag() {
  if (!m_drag) return;
  m_drag.reset();
  map().unsetCursor();
  map().update();
}

/// Within its own province a fleet goes to the coast that is nearest; into another one with several
/// coasts it is asked which.
void EditUnitsPanel::moveTo(int unit, const MapSpot& at) {
  const Unit& moved = game().Units[unit];
  const int target = at.locationFor(moved.UnitType);
  if (target == 0) return;
  const std::string& name = at.game.Map->Provinces[target].Name;
  std::vector<int> coasts = model::StandingPlaces(*at.game.Map, moved.UnitType, name);
  const bool ask = coasts.size() > 1 && !model::SamePlace(name, moved.Location) &&
                   model::MoveFault(game(), unit, name).empty();
  if (!ask) return move(unit, name);
  // The coast nearest to the pointer comes first in the menu.
  std::stable_partition(coasts.begin(), coasts.end(), [&](int row) { return row == target; });
  popUp(newPlaceMenu(
            *at.game.Map, coasts, [this, unit](const std::string& coast) { move(unit, coast); },
            this),
        at.point);
}

void EditUnitsPanel::move(int unit, const std::string& location) {
  if (edit([&](GameState& game) { return model::MoveUnit(game, unit, location); }))
    tellPlace(location);
}

void EditUnitsPanel::tellPlace(const std::string& location) {
  emit statusText(placeText(game(), model::FindProvince(*game().Map, location)));
}

void EditUnitsPanel::paintOver(QPainter& painter, render::Surface& surface) {
  const model::Map& places = *game().Map;
  // A dislodged unit is drawn smaller, and so is its ring.
  if (selected() != 0) {
    const Unit& unit = game().Units[selected()];
    drawRing(surface, unitPoint(places, unit), BoldRing, unitScale(unit));
  }
  if (!m_drag) return;
  // The symbol follows the pointer half transparent, and a ring marks the place it would go to.
  Unit ghost = game().Units[m_drag->unit];
  if (m_drag->target != 0 && places.Provinces[m_drag->target].Name != ghost.Location) {
    ghost.Location = places.Provinces[m_drag->target].Name;
    m_drag->possible ? drawRing(surface, unitPoint(places, ghost), ThinRing, unitScale(ghost))
                     : drawForbiddenRing(surface, unitPoint(places, ghost));
  }
  drawGhost(painter, surface, render::StyleOf(game().Countries, desk().view().mapOptions), ghost,
            m_drag->at);
}

}  // namespace orb::ui
