#pragma once

#include "render/qt/replay_picture.h"
#include "settings/map_options.h"
#include "ui/map/map_picture.h"

#include <QPixmap>
#include <QWidget>

#include <filesystem>
#include <memory>

namespace orb::ui {

/// A replay in the map's place: it covers the map at whatever size that has, and scrolls with it.
/// What does not move is drawn once, as a picture; each frame only adds the units on their way.
class AnimationPicture : public QWidget {
  Q_OBJECT

 public:
  /// Hidden at first. The map must outlive it.
  AnimationPicture(MapPicture& map, std::filesystem::path dataDirectory);

  /// Shows the beginning of a replay. Throws FatalError; the one shown so far is kept then.
  void setReplay(const history::Replay& replay, const settings::MapOptions& options);

  /// How far the replay has come, 0..1.
  void setProgress(double progress);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  /// Follows the size of the map.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void drawAgain();

  MapPicture& m_map;
  std::filesystem::path m_dataDirectory;
  render::PictureCache m_pictures;
  std::unique_ptr<render::ReplayPicture> m_replay;
  settings::MapOptions m_options;
  /// The map without the moving units, for the map's present size.
  QPixmap m_still;
  double m_progress = 0;
};

}  // namespace orb::ui
