#include "render/qt/replay_picture.h"

#include "render/map_view.h"
#include "render/qt/painter_surface.h"
#include "settings/map_options.h"

#include <utility>

namespace orb::render {

ReplayPicture::ReplayPicture(history::Replay replay, const settings::MapOptions& options,
                             const std::filesystem::path& dataDirectory, int pixelWidth,
                             PictureCache& pictures)
    : replay_(std::move(replay)),
      options_(options),
      pictures_(pictures),
      canvas_(PlanCanvas(BackgroundFile(dataDirectory, options.Mode), pixelWidth, pictures)),
      still_(NewImage(canvas_)) {
  QPainter painter(&still_);
  PainterSurface surface(painter, QRectF(still_.rect()), canvas_.Twips, pictures_);
  DrawStill(replay_, options_, dataDirectory, surface);
}

void ReplayPicture::PaintMoving(QPainter& painter, const QRectF& target, double progress) const {
  PainterSurface surface(painter, target, canvas_.Twips, pictures_);
  DrawMoving(replay_, options_, progress, surface);
}

QImage ReplayPicture::Frame(double progress) const {
  QImage frame = still_.copy();
  QPainter painter(&frame);
  PaintMoving(painter, QRectF(frame.rect()), progress);
  return frame;
}

}  // namespace orb::render
