#include "ui/replay/animation_picture.h"

#include "model/errors.h"
#include "settings/map_options.h"
#include "ui/map/picture_painting.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace orb::ui {
namespace {

/// The map below must not take clicks; its view scrolls with the middle button.
void keepFromMap(QMouseEvent& event) {
  const bool scrolls = event.button() == Qt::MiddleButton || event.buttons() == Qt::MiddleButton;
  event.setAccepted(!scrolls);
}

}  // namespace

AnimationPicture::AnimationPicture(MapPicture& map, std::filesystem::path dataDirectory)
    : QWidget(&map), m_map(map), m_dataDirectory(std::move(dataDirectory)) {
  setObjectName(QStringLiteral("picAnimate"));
  setAccessibleName(tr("Animated map"));
  // Every pixel is painted: Qt need not paint the map below, nor clear anything, for each frame.
  setAttribute(Qt::WA_OpaquePaintEvent);
  setGeometry(map.rect());
  map.installEventFilter(this);
}

void AnimationPicture::setReplay(const history::Replay& replay,
                                 const settings::MapOptions& options) {
  auto picture = std::make_unique<render::ReplayPicture>(replay, options, m_dataDirectory,
                                                         m_map.fittingPixelWidth(), m_pictures);
  m_still = QPixmap::fromImage(picture->Still());
  m_replay = std::move(picture);
  m_options = options;
  setProgress(0);
}

void AnimationPicture::setProgress(double progress) {
  m_progress = progress;
  update();
}

void AnimationPicture::drawAgain() {
  const double progress = m_progress;
  try {
    setReplay(history::Replay(m_replay->Content()), m_options);
  } catch (const model::FatalError&) {
    // The bitmap vanished meanwhile: the old picture, scaled, will do to the end.
  }
  m_progress = progress;
}

void AnimationPicture::paintEvent(QPaintEvent* /*event*/) {
  if (m_replay == nullptr) return;
  if (m_still.width() != m_map.fittingPixelWidth()) drawAgain();
  QPainter painter(this);
  const QRectF drawn = paintFilling(*this, m_still, painter);
  m_replay->PaintMoving(painter, drawn, m_progress);
}

void AnimationPicture::mousePressEvent(QMouseEvent* event) {
  keepFromMap(*event);
}

void AnimationPicture::mouseMoveEvent(QMouseEvent* event) {
  keepFromMap(*event);
}

void AnimationPicture::mouseReleaseEvent(QMouseEvent* event) {
  keepFromMap(*event);
}

void AnimationPicture::mouseDoubleClickEvent(QMouseEvent* event) {
  keepFromMap(*event);
}

bool AnimationPicture::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(m_map.rect());
  return QWidget::eventFilter(watched, event);
}

}  // namespace orb::ui
