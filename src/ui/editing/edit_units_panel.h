#pragma once

#include "ui/editing/editing_panel.h"

#include <optional>

namespace orb::ui {

/// Adds, moves, changes and removes units: by clicks, drags and double clicks on the map, or from
/// the list by buttons and keys.
class EditUnitsPanel : public EditingPanel {
  Q_OBJECT

 public:
  EditUnitsPanel(Desk& desk, MapPicture& map, QWidget* parent = nullptr);

  void mapClicked(const MapSpot& at) override;
  bool mapDoubleClicked(const MapSpot& at) override;
  bool mapDragStarted(const MapSpot& from) override;
  void mapDragMoved(const MapSpot& over) override;
  void mapDropped(const MapSpot& at) override;

 protected:
  std::vector<Entry> entries() const override;
  void openProperties() override;
  void selectionChanged() override;
  void paintOver(QPainter& painter, render::Surface& surface) override;
  void hideEvent(QHideEvent* event) override;

 private:
  /// A unit on its way over the map.
  struct Drag {
    int unit;
    render::Point at;
    int target = 0;  ///< row of the location that it would stand in; 0: none
    bool possible = true;
  };

  // Units are named by their row in the game's table, from 1; 0 is none.
  int unitAt(const MapSpot& spot) const;
  void popUp(QMenu* menu, render::Point at);
  // Each is one step, and says in the status bar why it was refused.
  void add(const model::Unit& unit);
  void addByDialog();
  void remove();
  void moveTo(int unit, const MapSpot& at);
  void move(int unit, const std::string& location);
  /// Says in the status bar what stands in the place now.
  void tellPlace(const std::string& location);
  void endDrag();

  QPushButton* m_add;
  QPushButton* m_properties;
  QPushButton* m_remove;
  std::string m_lastPower;  ///< of the unit added last
  std::optional<Drag> m_drag;
};

}  // namespace orb::ui
