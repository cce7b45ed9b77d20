#pragma once

#include "render/animation_view.h"
#include "render/qt/canvas.h"
#include "render/qt/picture_cache.h"
#include "settings/map_options.h"

#include <QImage>
#include <QPainter>
#include <QRectF>

#include <filesystem>

namespace orb::render {

/// A replay at one size: the still map, drawn once, and the units that are painted over it.
class ReplayPicture {
 public:
  /// Draws the still, some pixels wide (0: the background's own width). Throws FileError as
  /// MapImage does. The cache must outlive the picture.
  ReplayPicture(history::Replay replay, const settings::MapOptions& options,
                const std::filesystem::path& dataDirectory, int pixelWidth, PictureCache& pictures);

  const history::Replay& Content() const { return replay_; }

  /// The map without its units and what lies over them.
  const QImage& Still() const { return still_; }

  /// Paints those at a progress of 0..1 over a still that fills the rectangle.
  void PaintMoving(QPainter& painter, const QRectF& target, double progress) const;

  /// A frame whole.
  QImage Frame(double progress) const;

 private:
  history::Replay replay_;
  settings::MapOptions options_;
  PictureCache& pictures_;
  Canvas canvas_;
  QImage still_;
};

}  // namespace orb::render
