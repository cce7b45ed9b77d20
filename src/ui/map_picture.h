#pragma once

#include "render/qt/picture_cache.h"
#include "ui/desk.h"

#include <QPixmap>
#include <QWidget>

namespace orb::ui {

/// The map, as large as its place allows, drawn at the screen's own resolution.
class MapPicture : public QWidget {
  Q_OBJECT

 public:
  explicit MapPicture(const Desk& desk, QWidget* parent = nullptr);

  /// Draws a situation whole. Throws FatalError, the picture shown so far kept.
  void draw(const Situation& situation);

  QSize sizeHint() const override { return {300, 250}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int fittingPixelWidth() const;
  void leaveSpareWidth();

  const Desk& m_desk;
  render::PictureCache m_pictures;
  QPixmap m_picture;
  double m_aspect = 1.2;
};

}  // namespace orb::ui
