#pragma once

#include "ui/map/map_picture.h"

#include <QPoint>
#include <QScrollArea>

#include <optional>

namespace orb::ui {

/// The view of the map: fits it in, or shows a part of it enlarged, scrolled with the middle
/// button. The left button belongs to the map, the wheel with Ctrl zooms.
class MapView : public QScrollArea {
  Q_OBJECT

 public:
  /// Takes the map over.
  explicit MapView(MapPicture* map, QWidget* parent = nullptr);

  /// 1: the map's natural size; nothing: as large as the view allows.
  std::optional<double> zoom() const { return m_zoom; }
  void setZoom(std::optional<double> zoom);
  void zoomIn();
  void zoomOut();

  /// The width of a view of that height that shows the map's whole width, as it is zoomed now.
  int fittingWidth(int height) const;

  QSize sizeHint() const override { return {300, 250}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 signals:
  void zoomChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  double shownZoom() const;
  void zoomTo(double zoom, QPointF anchor);
  void resizeMap();
  bool scrollByDragging(QEvent& event);

  MapPicture* m_map;
  std::optional<double> m_zoom;
  std::optional<QPoint> m_grip;
};

}  // namespace orb::ui
