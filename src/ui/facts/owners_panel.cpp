#include "ui/facts/owners_panel.h"

#include "colour/qt/colours.h"
#include "model/counts.h"
#include "render/ownership.h"
#include "render/qt/painter_surface.h"
#include "text/qt/text_codec.h"

#include <QImage>
#include <QVBoxLayout>

#include <cmath>

namespace orb::ui {

using render::TwipsPerPixel;
using session::Changes;

OwnersPicture::OwnersPicture(const Desk& desk, QWidget* parent) : QWidget(parent), m_desk(desk) {
  setObjectName(QStringLiteral("picOwners"));
  setAccessibleName(tr("Ownership of supply centres"));
  // The width alone decides how high the list is; what does not fit is scrolled to.
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  m_desk.whenShownChanged(Changes::Position | Changes::Powers, this, &OwnersPicture::showOwners);
  showOwners();
}

/// A picture says nothing to a screen reader: its description does.
void OwnersPicture::showOwners() {
  QStringList groups;
  for (const model::CentreGroup& group : model::CentreGroups(m_desk.shown().Game)) {
    QStringList centres;
    for (const std::string& centre : group.Centres)
      centres << text::ToQString(centre);
    groups << QStringLiteral("%1 (%2): %3")
                  .arg(text::ToQString(group.Heading))
                  .arg(centres.size())
                  .arg(centres.join(QLatin1Char(' ')));
  }
  setAccessibleDescription(groups.join(QLatin1Char('\n')));
  updateGeometry();
  update();
}

void OwnersPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintOwners(painter, size());
}

int OwnersPicture::heightForWidth(int width) const {
  QImage scratch(1, 1, QImage::Format_RGB32);
  QPainter painter(&scratch);
  return paintOwners(painter, {width, 1});
}

int OwnersPicture::paintOwners(QPainter& painter, QSize size) const {
  // The drawing knows no themes: it is given the font and the colours of the one in use.
  render::PainterSurface surface(painter, QRect({}, size), QSizeF(size) * TwipsPerPixel,
                                 m_noPictures);
  surface.SetPaper(palette().color(QPalette::Base));
  surface.SetFontFamily(font().family());
  surface.FontSize = QFontInfo(font()).pixelSize() * TwipsPerPixel / render::TwipsPerPoint;
  surface.ForeColour = colour::ToColour(palette().color(QPalette::Text));
  const double height = render::ShowCentreOwnership(m_desk.shown().Game, surface) / TwipsPerPixel;
  return static_cast<int>(std::ceil(height));
}

OwnersPanel::OwnersPanel(const Desk& desk, QWidget* parent) : QScrollArea(parent) {
  setObjectName(QStringLiteral("fraOwners"));
  setAccessibleName(tr("Supply centres"));
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  // The drawing breaks its lines at whatever width it gets.
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* page = new QWidget;
  page->setBackgroundRole(QPalette::Base);
  page->setAutoFillBackground(true);
  auto* margins = new QVBoxLayout(page);
  margins->addWidget(new OwnersPicture(desk));
  desk.whenShownChanged(Changes::Position, this, &OwnersPanel::fitList);
  setWidget(page);
}

QSize OwnersPanel::sizeHint() const {
  return {QScrollArea::sizeHint().width(), widget()->heightForWidth(maximumViewportSize().width())};
}

}  // namespace orb::ui
