#pragma once

#include "render/qt/picture_cache.h"
#include "ui/map/map_overlay.h"
#include "ui/map/map_tool.h"
#include "ui/session/desk.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

namespace orb::ui {

/// The map, drawn at the screen's own resolution for whatever size it has.
///
/// The picture of the situation is drawn once and kept; marks, rings and whatever a panel adds are
/// painted over it each time. The mouse is turned into places on the map and passed to a tool, so
/// that the map itself knows nothing of orders and of editing. The keyboard does the same from a
/// stop, a location that the arrow keys and names lead over the map.
class MapPicture : public QWidget {
  Q_OBJECT

 public:
  /// The desk and the messages must outlive the map.
  MapPicture(const Desk& desk, model::Messages& messages, QWidget* parent = nullptr);

  /// Takes the size at which the map is meant to be seen from its background. Throws FatalError.
  void measure(const View& view);

  /// Draws a situation whole. Throws FatalError, the picture shown so far kept.
  void draw(const session::Situation& situation, const View& view);

  /// The size at which the map is meant to be seen, in pixels at 96 dpi.
  QSize naturalSize() const { return m_naturalSize; }

  /// The width of a picture that is drawn for the map's size now.
  int fittingPixelWidth() const;

  /// What the left mouse button means from now on; the tool must outlive the map or be replaced.
  void setTool(MapTool* tool) { m_tool = tool; }

  /// Rings the units at these locations till the next call.
  void setMarks(std::vector<std::string> locations);

  /// Paints over the map from now on, on a surface that lies over all of it; empty: no longer.
  void setOverlay(MapOverlay overlay);

  /// The row of the location under a point of the widget, as an army sees it; 0: none.
  int locationAt(QPointF position);

  const Desk& desk() const { return m_desk; }

  /// The row of the location that the keyboard is at; 0 as long as it never was on the map.
  int stop() const { return m_stop; }
  void goTo(int stop);

  /// Whether the left button is down and may still become a click or a drag.
  bool isPressed() const { return m_pressed.has_value(); }
  /// No click comes of it any more.
  void forgetPress() { m_pressed.reset(); }

  /// Where a location's units stand, in pixels of the widget.
  QPoint pointOf(int location) const;

  /// Does what a click with these keys there does, and keeps the keyboard where it is.
  void clickOn(int location, Qt::KeyboardModifiers modifiers);

 signals:
  /// The keyboard went to another stop.
  void walked();
  /// A location was clicked without the mouse; what came of it is told nowhere yet.
  void clickedWithoutMouse();

  /// The mouse has come over the location with this row; 0: over none.
  void hovered(int location);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  std::filesystem::path backgroundFile(const View& view) const;
  void drawAgain();
  void paintMarks(render::Surface& surface) const;
  const render::HitMap& hitMap();
  void hover(int location);
  double aspect() const;
  /// Whether the next letter goes on with what was typed.
  bool isTyping() const;
  /// False where the text that is typed leads nowhere.
  bool goToNamed(const QString& letters);
  MapSpot spotAt(QPointF position, Qt::KeyboardModifiers modifiers);

  const Desk& m_desk;
  model::Messages& m_messages;
  render::PictureCache m_pictures;
  std::optional<render::HitMap> m_hitMap;
  QPixmap m_picture;
  QSize m_naturalSize;
  MapTool* m_tool = nullptr;
  MapOverlay m_overlay;
  int m_hovered = 0;
  /// Where the left button went down, as long as it may become a click or a drag.
  std::optional<QPointF> m_pressed;
  bool m_dragging = false;
  std::vector<std::string> m_marks;
  int m_stop = 0;
  QString m_typed;  ///< of a name, as long as the letters come fast
  QElapsedTimer m_lastLetter;
};

}  // namespace orb::ui
