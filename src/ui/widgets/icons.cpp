#include "ui/widgets/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include <utility>

/// Resources in a static library come along only when they are asked for, outside any namespace.
static void bringIcons() {
  Q_INIT_RESOURCE(orb);
}

namespace orb::ui {
namespace {

/// Draws an icon anew for every size and palette, so that it is sharp and follows the theme while
/// the program runs.
class GlyphEngine : public QIconEngine {
 public:
  explicit GlyphEngine(QByteArray drawing) : m_drawing(std::move(drawing)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    // The palette is asked at every painting: a theme can change while the program runs.
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor ink = QGuiApplication::palette().color(group, QPalette::ButtonText);
    QByteArray drawing = m_drawing;
    QSvgRenderer renderer(drawing.replace("currentColor", ink.name().toLatin1()));
    renderer.render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new GlyphEngine(m_drawing); }

 private:
  QByteArray m_drawing;
};

}  // namespace

QIcon newIcon(const QString& name) {
  bringIcons();
  QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
  // A resource of the program: it is there or the build is broken.
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new GlyphEngine(file.readAll()));
}

QIcon programIcon() {
  bringIcons();
  return QIcon(QStringLiteral(":/orb.svg"));
}

}  // namespace orb::ui
