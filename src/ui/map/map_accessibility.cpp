#include "ui/map/map_accessibility.h"

#include "model/lookups.h"
#include "orders/order_list.h"
#include "orders/parser.h"
#include "render/map_walk.h"
#include "text/qt/text_codec.h"
#include "text/strings.h"
#include "ui/map/map_picture.h"
#include "ui/widgets/place_text.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <map>
#include <string>

namespace orb::ui {
namespace {

using text::ToQString;

/// The orders of the stage for what stands in a place.
QStringList ordersIn(const model::GameState& game, int row) {
  QStringList found;
  for (const std::string& line : orders::StageList(game)) {
    const orders::OrderLine order = orders::ParseLine(*game.Map, game.Stage, line);
    if (model::IsSamePlace(*game.Map, order.Location, row)) found << ToQString(line).trimmed();
  }
  return found;
}

QString neighboursOf(const model::Map& map, int row) {
  QStringList names;
  for (int other = 1; other <= map.Provinces.Count(); ++other) {
    const bool borders = model::IsAdjacent(map, model::UnitType::Army, row, other) ||
                         model::IsAdjacent(map, model::UnitType::Fleet, row, other);
    if (borders) names << ToQString(map.Provinces[other].FullName);
  }
  return names.join(QStringLiteral(", "));
}

/// What a screen reader hears of one location.
class PlaceAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  PlaceAccessible(MapPicture& map, int row) : m_map(map), m_row(row) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return m_map.window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(&m_map);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }

  QString text(QAccessible::Text kind) const override {
    const model::GameState& game = m_map.desk().shown().Game;
    if (kind == QAccessible::Name) return placeText(game, m_row);
    if (kind != QAccessible::Description) return {};
    QStringList parts;
    const QStringList orders = ordersIn(game, m_row);
    if (!orders.isEmpty())
      parts << MapPicture::tr("Orders: %1.").arg(orders.join(QStringLiteral(", ")));
    parts << MapPicture::tr("Neighbours: %1.").arg(neighboursOf(*game.Map, m_row));
    return parts.join(QLatin1Char(' '));
  }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

  QRect rect() const override {
    constexpr int reach = 12;  // pixels
    const QPoint middle = m_map.mapToGlobal(m_map.pointOf(m_row));
    return {middle.x() - reach, middle.y() - reach, 2 * reach, 2 * reach};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.focused = m_map.hasFocus() && m_map.stop() == m_row;
    state.selectable = true;
    state.invisible = !m_map.isVisible();
    state.disabled = !m_map.isEnabled();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }

  // The three clicks of order entry.
  QStringList actionNames() const override {
    return {pressAction(), QStringLiteral("Support"), QStringLiteral("Convoy"), setFocusAction()};
  }
  QString localizedActionDescription(const QString& name) const override {
    if (name == pressAction())
      return MapPicture::tr("Begins or goes on with an order, as a click does");
    if (name == QLatin1String("Support")) return MapPicture::tr("Begins a support");
    if (name == QLatin1String("Convoy")) return MapPicture::tr("Begins a convoy");
    return QAccessibleActionInterface::localizedActionDescription(name);
  }
  void doAction(const QString& name) override {
    if (name == setFocusAction()) {
      m_map.setFocus(Qt::OtherFocusReason);
      return m_map.goTo(m_row);
    }
    Qt::KeyboardModifiers modifiers;
    if (name == QLatin1String("Support")) modifiers = Qt::ShiftModifier;
    if (name == QLatin1String("Convoy")) modifiers = Qt::ControlModifier;
    m_map.clickOn(m_row, modifiers);
  }
  QStringList keyBindingsForAction(const QString& name) const override {
    if (name == pressAction()) return {QStringLiteral("Return")};
    if (name == QLatin1String("Support")) return {QStringLiteral("Shift+Return")};
    if (name == QLatin1String("Convoy")) return {QStringLiteral("Ctrl+Return")};
    return {};
  }

 private:
  MapPicture& m_map;
  int m_row;
};

/// The map as the list of its locations.
class MapAccessible : public QAccessibleWidget {
 public:
  explicit MapAccessible(MapPicture& map) : QAccessibleWidget(&map, QAccessible::List), m_map(map) {
    const model::Map& places = *map.desk().game().Map;
    for (int row = 1; row <= places.Provinces.Count(); ++row) {
      if (render::IsStop(places, row)) m_rows.push_back(row);
    }
  }
  ~MapAccessible() override {
    for (const auto& [row, id] : m_ids)
      QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return static_cast<int>(m_rows.size()); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return childOf(m_rows[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int index = 0; index < childCount(); ++index) {
      if (child(index) == wanted) return index;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const int row = m_map.locationAt(QPointF(m_map.mapFromGlobal(QPoint(x, y))));
    return row == 0 ? nullptr : childOf(row);
  }
  QAccessibleInterface* focusChild() const override {
    return m_map.hasFocus() && m_map.stop() != 0 ? childOf(m_map.stop()) : nullptr;
  }

  QAccessibleInterface* childOf(int row) const {
    const auto [found, isNew] = m_ids.try_emplace(row, 0U);
    if (isNew) {
      found->second = QAccessible::registerAccessibleInterface(new PlaceAccessible(m_map, row));
    }
    return QAccessible::accessibleInterface(found->second);
  }

 private:
  MapPicture& m_map;
  std::vector<int> m_rows;
  /// Made when they are asked for, and kept by Qt under these numbers.
  mutable std::map<int, QAccessible::Id> m_ids;
};

QAccessibleInterface* accessibleOf(const QString& /*name*/, QObject* object) {
  auto* map = qobject_cast<MapPicture*>(object);
  return map == nullptr ? nullptr : new MapAccessible(*map);
}

}  // namespace

void makeMapsAccessible() {
  // A factory that is installed already is not installed again.
  QAccessible::installFactory(accessibleOf);
}

void tellFocus(MapPicture& map) {
  if (!QAccessible::isActive() || !map.hasFocus() || map.stop() == 0) return;
  auto* list = static_cast<MapAccessible*>(QAccessible::queryAccessibleInterface(&map));
  if (list == nullptr) return;
  QAccessibleEvent event(list->childOf(map.stop()), QAccessible::Focus);
  QAccessible::updateAccessibility(&event);
}

}  // namespace orb::ui
