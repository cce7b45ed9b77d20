#include "ui/map_picture.h"

#include "model/errors.h"
#include "render/qt/map_file.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace orb::ui {

MapPicture::MapPicture(const Desk& desk, QWidget* parent) : QWidget(parent), m_desk(desk) {
  setObjectName(QStringLiteral("picMap"));
  setAccessibleName(tr("Map"));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void MapPicture::draw(const Situation& situation) {
  const QImage image = render::MapImage(situation.game, situation.mapOptions,
                                        m_desk.dataDirectory(), fittingPixelWidth(), m_pictures);
  m_picture = QPixmap::fromImage(image);
  m_picture.setDevicePixelRatio(devicePixelRatioF());
  m_aspect = static_cast<double>(image.width()) / image.height();
  leaveSpareWidth();
  update();
}

void MapPicture::paintEvent(QPaintEvent* /*event*/) {
  if (m_picture.width() != fittingPixelWidth()) {
    try {
      draw(m_desk.now());
    } catch (const model::FatalError&) {
      // A bitmap that vanished meanwhile is reported by the next command; till then the old picture
      // stays.
    }
  }
  const double ratio = devicePixelRatioF();
  const double left = std::floor((width() * ratio - m_picture.width()) / 2) / ratio;
  const double top = std::floor((height() * ratio - m_picture.height()) / 2) / ratio;
  QPainter(this).drawPixmap(QPointF(left, top), m_picture);
}

void MapPicture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  leaveSpareWidth();
}

int MapPicture::fittingPixelWidth() const {
  const double fitting = std::min<double>(width(), height() * m_aspect) * devicePixelRatioF();
  return std::clamp(static_cast<int>(fitting), 1, render::MaxPixelWidth);
}

/// What the map cannot use goes to its neighbours.
void MapPicture::leaveSpareWidth() {
  setMaximumWidth(
      std::max(minimumSizeHint().width(), static_cast<int>(std::ceil(height() * m_aspect))));
}

}  // namespace orb::ui
