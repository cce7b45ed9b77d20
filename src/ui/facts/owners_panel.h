#pragma once

#include "render/qt/picture_cache.h"
#include "ui/session/desk.h"

#include <QPainter>
#include <QScrollArea>

namespace orb::ui {

/// A picture of the supply centres of every power: as wide as there is room, and as high as that
/// makes it.
class OwnersPicture : public QWidget {
  Q_OBJECT

 public:
  explicit OwnersPicture(const Desk& desk, QWidget* parent = nullptr);

  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void showOwners();
  /// Lists the owners on a painter of that size; how high the list is, in pixels.
  int paintOwners(QPainter& painter, QSize size) const;

  const Desk& m_desk;
  /// The surface asks for one; nothing here draws a picture of a file.
  mutable render::PictureCache m_noPictures;
};

/// The supply-centre ownership panel: the picture, scrolled where it is higher than the panel.
class OwnersPanel : public QScrollArea {
  Q_OBJECT

 public:
  explicit OwnersPanel(const Desk& desk, QWidget* parent = nullptr);

  /// As high as the whole list at its present width.
  QSize sizeHint() const override;

 private:
  /// More owners make the list longer.
  void fitList() { updateGeometry(); }
};

}  // namespace orb::ui
