#include "render/qt/map_file.h"

#include "model/errors.h"
#include "render/map_view.h"
#include "render/qt/canvas.h"
#include "render/qt/painter_surface.h"
#include "render/qt/qt_svg_material.h"
#include "render/svg_surface.h"
#include "settings/map_options.h"
#include "text/qt/text_codec.h"

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>

#include <string>

namespace orb::render {
namespace {

/// What is drawn and how large.
struct Job {
  const model::GameState& Game;
  const settings::MapOptions& Options;
  const std::filesystem::path& DataDirectory;
  PictureCache& Pictures;
  Canvas Size;
  std::span<const orders::OrderOutcome> Orders;
};

Job Plan(const model::GameState& game, const settings::MapOptions& options,
         const std::filesystem::path& dataDirectory, int pixelWidth, PictureCache& pictures,
         std::span<const orders::OrderOutcome> orders) {
  return {game,
          options,
          dataDirectory,
          pictures,
          PlanCanvas(BackgroundFile(dataDirectory, options.Mode), pixelWidth, pictures),
          orders};
}

void Draw(const Job& job, QPainter& painter, const QRectF& target) {
  PainterSurface surface(painter, target, job.Size.Twips, job.Pictures);
  RenderMap(job.Game, job.Options, job.DataDirectory, surface, job.Orders);
}

QImage DrawImage(const Job& job) {
  QImage image = NewImage(job.Size);
  QPainter painter(&image);
  Draw(job, painter, QRectF(image.rect()));
  return image;
}

void WriteImage(const Job& job, QBuffer& buffer, const char* format) {
  if (!DrawImage(job).save(&buffer, format)) {
    throw model::FileError("The map cannot be written in this format.");
  }
}

/// The drawing's unit is the canvas's pixel; the resolution tells viewers how large one is.
void WriteSvg(const Job& job, QBuffer& buffer) {
  QtSvgMaterial material(job.Pictures);
  SvgDefinitions definitions(material, job.Size.Twips.width() / job.Size.Pixels.width());
  SvgSurface surface(definitions, {job.Size.Twips.width(), job.Size.Twips.height()});
  RenderMap(job.Game, job.Options, job.DataDirectory, surface, job.Orders);
  const std::string file =
      SvgDocument(surface, definitions, job.Game.Title, job.Size.Pixels.width(),
                  job.Size.Pixels.height(), job.Size.PixelsPerInch);
  buffer.write(file.data(), static_cast<qint64>(file.size()));
}

/// One page of just the map's size, at the background's own resolution, without margins.
void WritePdf(const Job& job, QBuffer& buffer) {
  constexpr double pointsPerInch = 72;
  QPdfWriter writer(&buffer);
  writer.setTitle(text::ToQString(job.Game.Title));
  writer.setPageSize(QPageSize(QSizeF(job.Size.Pixels) * (pointsPerInch / job.Size.PixelsPerInch),
                               QPageSize::Point, QString(), QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter(&writer);
  Draw(job, painter, QRectF(0, 0, writer.width(), writer.height()));
}

}  // namespace

QImage MapImage(const model::GameState& game, const settings::MapOptions& options,
                const std::filesystem::path& dataDirectory, int pixelWidth, PictureCache& pictures,
                std::span<const orders::OrderOutcome> orders) {
  return DrawImage(Plan(game, options, dataDirectory, pixelWidth, pictures, orders));
}

void PrintMap(const model::GameState& game, const settings::MapOptions& options,
              const std::filesystem::path& dataDirectory, PictureCache& pictures, QPainter& painter,
              const QRectF& target, std::span<const orders::OrderOutcome> orders) {
  const QImage& picture = pictures.Picture(BackgroundFile(dataDirectory, options.Mode));
  const double inches = target.width() / painter.device()->logicalDpiX();
  PainterSurface surface(painter, target, TwipsForPaper(NaturalSize(picture), inches), pictures);
  RenderMap(game, options, dataDirectory, surface, orders);
}

std::string MapBytes(const model::GameState& game, const settings::MapOptions& options,
                     const std::filesystem::path& dataDirectory, int pixelWidth,
                     PictureCache& pictures, MapFormat format,
                     std::span<const orders::OrderOutcome> orders) {
  const Job job = Plan(game, options, dataDirectory, pixelWidth, pictures, orders);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  switch (format) {
    case MapFormat::Bmp:
      WriteImage(job, buffer, "BMP");
      break;
    case MapFormat::Png:
      WriteImage(job, buffer, "PNG");
      break;
    case MapFormat::Svg:
      WriteSvg(job, buffer);
      break;
    case MapFormat::Pdf:
      WritePdf(job, buffer);
      break;
  }
  return buffer.data().toStdString();
}

}  // namespace orb::render
