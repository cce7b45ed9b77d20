#include "ui/widgets/scroll_accessibility.h"

#include <QAccessibleWidget>
#include <QScrollArea>

namespace orb::ui {
namespace {

/// Qt's own looks for a child without counting: a reader that asks for the last one while a scroll
/// bar vanishes ends the program.
QAccessibleInterface* accessibleArea(const QString& /*name*/, QObject* object) {
  auto* area = qobject_cast<QScrollArea*>(object);
  return area == nullptr ? nullptr : new QAccessibleWidget(area, QAccessible::Client);
}

}  // namespace

void makeScrollAreasAccessible() {
  // A factory that is installed already is not installed again.
  QAccessible::installFactory(accessibleArea);
}

}  // namespace orb::ui
