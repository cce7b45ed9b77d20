#pragma once

#include "ui/map/map_picture.h"

#include <QPoint>
#include <QScrollArea>

#include <optional>

namespace orb::ui {

/// The view of the map: fits it in, or shows a part of it enlarged, scrolled with the middle
/// button or a finger. The left button and taps belong to the map; the wheel with Ctrl zooms, and
/// so do two fingers.
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
  QSize minimumSizeHint() const override { return {200, 170}; }

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
  /// A point of the map, in fractions of its size, comes to lie under the anchor.
  void zoomTo(double zoom, QPointF anchor, QPointF fraction);
  /// What is under a point of the viewport, in fractions of the map.
  QPointF fractionAt(QPointF point) const;
  void resizeMap();
  void scrollBy(QPointF way);
  bool scrollByDragging(QEvent& event);
  bool scrollByFinger(QMouseEvent& mouse);
  bool zoomByFingers(QEvent& event);

  MapPicture* m_map;
  std::optional<double> m_zoom;
  std::optional<QPoint> m_grip;
  std::optional<QPoint> m_finger;  ///< where it is, as long as it touches the map
  // When two fingers came down: the zoom, and what was between them, in fractions of the map.
  double m_zoomBefore = 1;
  QPointF m_pinched;
};

}  // namespace orb::ui
