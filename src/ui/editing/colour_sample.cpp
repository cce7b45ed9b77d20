#include "ui/editing/colour_sample.h"

#include "render/qt/painter_surface.h"
#include "render/symbols.h"
#include "settings/map_options.h"

#include <QPainter>

namespace orb::ui {
namespace {

// In pixels.
constexpr QSize Size(116, 28);
constexpr double Corner = 4;

/// Like the land on the map, in light and dark themes alike.
constexpr QColor Paper(238, 232, 214);

}  // namespace

ColourSample::ColourSample(const model::CountryTable& colours, int power, QWidget* parent)
    : QWidget(parent), m_colours(colours), m_power(power) {}

QSize ColourSample::sizeHint() const {
  return Size;
}

void ColourSample::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Paper);
  painter.drawRoundedRect(rect(), Corner, Corner);
  render::PainterSurface surface(painter, rect(), QSizeF(size()) * render::TwipsPerPixel,
                                 m_noPictures);
  const render::SymbolStyle style{m_colours, settings::MapMode::Colour3D};
  // Places are fractions of the sample's width and height.
  render::DrawArmy(surface, style, {0.17, 0.5}, m_power, 1);
  render::DrawFleet(surface, style, {0.45, 0.5}, m_power, 1);
  const double side = 0.4 * surface.ScaleHeight();
  const render::Point corner{0.68 * surface.ScaleWidth(), 0.3 * surface.ScaleHeight()};
  surface.FillColour = m_colours[m_power].Colour;
  surface.Box(corner, side, side);
  surface.ForeColour = m_colours[m_power].TextColour;
  surface.FontSize = 10;
  surface.CurrentX = corner.X + 1.5 * side;
  surface.CurrentY = (surface.ScaleHeight() - surface.TextHeight("3")) / 2;
  surface.Print("3");
}

}  // namespace orb::ui
