#pragma once

#include "ui/editing/editing_panel.h"

#include <optional>

namespace orb::ui {

/// Adds, moves, changes and removes units.
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

  int unitAt(const MapSpot& spot) const;
  void popUp(QMenu* menu, render::Point at);
  void add(const model::Unit& unit);
  void addByDialog();
  void remove();
  void moveTo(int unit, const MapSpot& at);
  void move(int unit, const std::string& location);
  void tellPlace(const std::string& location);
  void endDrag();

  QPushButton* m_add;
  QPushButton* m_properties;
  QPushButton* m_remove;
  std::string m_lastPower;  ///< of the unit added last
  std::optional<Drag> m_drag;
};

}  // namespace orb::ui
