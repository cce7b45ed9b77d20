#include "ui/window/map_menu.h"

#include "settings/map_options.h"
#include "ui/map/map_view.h"
#include "ui/widgets/controls.h"

#include <QActionGroup>

namespace orb::ui {

using settings::MapMode;
using settings::MapOptions;

MapMenu::MapMenu(Desk& desk, MapView& view, QWidget* parent)
    : QMenu(tr("&Map"), parent), m_desk(desk), m_view(view), m_modeGroup(new QActionGroup(this)) {
  setObjectName(QStringLiteral("mnuMap"));
  addMode(QStringLiteral("mnuMapColour3D"), tr("Colour &3D"), MapMode::Colour3D);
  addMode(QStringLiteral("mnuMapColour"), tr("&Colour"), MapMode::Colour);
  addMode(QStringLiteral("mnuMapGrey"), tr("&Grey"), MapMode::Grey);
  addMode(QStringLiteral("mnuMapBlackWhite"), tr("&Black/white"), MapMode::BlackWhite);
  addSeparator();
  addToggle(QStringLiteral("mnuShowCentreCount"), tr("Show ce&ntre count"),
            &MapOptions::ShowCentreCount);
  addToggle(QStringLiteral("mnuMapColourBordersByOwner"), tr("&Colour borders by owner"),
            &MapOptions::ColourBordersByOwner);
  addToggle(QStringLiteral("mnuShowCentreOwners"), tr("Show centre &owners"),
            &MapOptions::ShowCentreOwners);
  m_viewOnly = newEntry(*this, QStringLiteral("mnuMapViewOnly"), tr("&View only"));
  m_viewOnly->setCheckable(true);
  connect(m_viewOnly, &QAction::triggered, &m_desk, &Desk::setViewOnly);
  addSeparator();
  addZoomEntries();
  addSeparator();
  m_showOrders =
      newEntry(*this, QStringLiteral("mnuMapShowOrders"), tr("Show o&rders"), Qt::CTRL | Qt::Key_D);
  m_showOrders->setCheckable(true);
  connect(m_showOrders, &QAction::triggered, &m_desk, &Desk::setShowOrders);
  addToggle(QStringLiteral("mnuMapTintByOwner"), tr("&Tint by owner"), &MapOptions::TintByOwner);
  addToggle(QStringLiteral("mnuMapUnitLetters"), tr("&Letters on units"), &MapOptions::UnitLetters);
  m_showHistory = newEntry(*this, QStringLiteral("mnuMapShowHistory"), tr("Show &history"));
  m_showHistory->setCheckable(true);
  connect(&m_desk, &Desk::viewChanged, this, &MapMenu::showState);
  connect(&m_desk, &Desk::trialChanged, this, &MapMenu::showState);
  showState();
}

void MapMenu::addZoomEntries() {
  m_zoomIn = newEntry(*this, QStringLiteral("mnuMapZoomIn"), tr("Zoom &in"));
  // On many keyboards "+" is "=" with Shift, and nobody presses Shift to zoom.
  m_zoomIn->setShortcuts({QKeySequence::ZoomIn, Qt::CTRL | Qt::Key_Equal});
  m_zoomOut =
      newEntry(*this, QStringLiteral("mnuMapZoomOut"), tr("Zoom o&ut"), QKeySequence::ZoomOut);
  m_zoomToFit = newEntry(*this, QStringLiteral("mnuMapZoomFit"), tr("&Fit map to window"),
                         Qt::CTRL | Qt::Key_0);
  QAction* natural =
      newEntry(*this, QStringLiteral("mnuMapZoom100"), tr("&100 %"), Qt::CTRL | Qt::Key_1);
  connect(m_zoomIn, &QAction::triggered, &m_view, &MapView::zoomIn);
  connect(m_zoomOut, &QAction::triggered, &m_view, &MapView::zoomOut);
  connect(m_zoomToFit, &QAction::triggered, &m_view, [this] { m_view.setZoom(std::nullopt); });
  connect(natural, &QAction::triggered, &m_view, [this] { m_view.setZoom(1.0); });
}

void MapMenu::addMode(const QString& name, const QString& caption, MapMode mode) {
  QAction* entry = newEntry(*this, name, caption);
  entry->setCheckable(true);
  m_modeGroup->addAction(entry);
  m_modes.emplace_back(entry, mode);
  connect(entry, &QAction::triggered, this, [this, mode] { choose(mode); });
}

void MapMenu::addToggle(const QString& name, const QString& caption, Toggle toggle) {
  QAction* entry = newEntry(*this, name, caption);
  entry->setCheckable(true);
  m_toggles.emplace_back(entry, toggle);
  connect(entry, &QAction::triggered, this, [this, toggle](bool on) { set(toggle, on); });
}

void MapMenu::choose(MapMode mode) {
  MapOptions options = m_desk.view().mapOptions;
  options.Mode = mode;
  m_desk.setMapOptions(options);
}

void MapMenu::set(Toggle toggle, bool on) {
  MapOptions options = m_desk.view().mapOptions;
  options.*toggle = on;
  m_desk.setMapOptions(options);
}

void MapMenu::showState() {
  const MapOptions& options = m_desk.view().mapOptions;
  for (const auto& [entry, mode] : m_modes)
    entry->setChecked(options.Mode == mode);
  for (const auto& [entry, toggle] : m_toggles)
    entry->setChecked(options.*toggle);
  m_viewOnly->setChecked(m_desk.view().viewOnly);
  // What is tried out is always shown with its orders.
  m_showOrders->setChecked(m_desk.shownView().showOrders);
  m_showOrders->setEnabled(!m_desk.trial());
}

}  // namespace orb::ui
