#include "ui/history/centres_dialog.h"

#include "colour/qt/colours.h"
#include "text/qt/text_codec.h"
#include "ui/widgets/help_request.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orb::ui {
namespace {

// Pixels.
constexpr double Edge = 4;    ///< the dark one of a line
constexpr double Core = 2.4;  ///< the power's own colour on it
constexpr double NameGap = 8;

/// In the words that a screen reader reads: "England: 3, 4, 5".
QString inWords(const model::CountryTable& countries,
                const std::vector<history::SeasonCentres>& seasons) {
  QStringList lines;
  for (int power = 1; power <= model::CountryCount; ++power) {
    QStringList counts;
    for (const history::SeasonCentres& season : seasons)
      counts << QString::number(season.Centres.at(static_cast<std::size_t>(power) - 1));
    lines << QStringLiteral("%1: %2").arg(text::ToQString(countries[power].Name),
                                          counts.join(QLatin1String(", ")));
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

CentresChart::CentresChart(model::CountryTable countries,
                           std::vector<history::SeasonCentres> seasons)
    : m_countries(std::move(countries)), m_seasons(std::move(seasons)) {
  setObjectName(QStringLiteral("picCentres"));
  setAccessibleName(tr("Centres of each power over the years"));
  setAccessibleDescription(inWords(m_countries, m_seasons));
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
  setMinimumSize(320, 200);
  for (const history::SeasonCentres& season : m_seasons)
    m_most = std::max(m_most, *std::ranges::max_element(season.Centres) + 1);
}

QSize CentresChart::sizeHint() const {
  return {720, 380};
}

QPointF CentresChart::pointOf(std::size_t season, double centres) const {
  const double line = fontMetrics().height();
  const double left = line * 2, right = line * 3, top = line, bottom = line * 2;
  const double steps = std::max<double>(1, static_cast<double>(m_seasons.size()) - 1);
  return {left + static_cast<double>(season) * (width() - left - right) / steps,
          height() - bottom - centres * (height() - top - bottom) / m_most};
}

void CentresChart::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintGrid(painter);
  paintPowers(painter);
}

void CentresChart::paintGrid(QPainter& painter) const {
  const QColor ink = palette().color(QPalette::Text);
  QColor faint = ink;
  faint.setAlphaF(0.15F);
  const double left = pointOf(0, 0).x();
  const double right = pointOf(m_seasons.size() - 1, 0).x();
  const double line = fontMetrics().height();
  for (int centres = 0; centres <= m_most; centres += m_most > 12 ? 4 : 2) {
    const double y = pointOf(0, centres).y();
    painter.setPen(faint);
    painter.drawLine(QPointF(left, y), QPointF(right, y));
    painter.setPen(ink);
    painter.drawText(QRectF(0, y - line, left - NameGap, 2 * line),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(centres));
  }
  double free = 0;
  for (std::size_t i = 0; i < m_seasons.size(); ++i) {
    if (i > 0 && m_seasons[i].Year == m_seasons[i - 1].Year) continue;
    const QString year = QString::number(m_seasons[i].Year);
    const double width = fontMetrics().horizontalAdvance(year);
    const QPointF foot = pointOf(i, 0);
    if (foot.x() - width / 2 < free) continue;
    painter.drawText(QPointF(foot.x() - width / 2, foot.y() + line * 1.3), year);
    free = foot.x() + width / 2 + NameGap;
  }
}

/// Light colours are told from a light ground by their dark edge, lines that meet by their names.
void CentresChart::paintPowers(QPainter& painter) const {
  std::vector<std::pair<double, int>> names;
  for (int power = 1; power <= model::CountryCount; ++power) {
    const model::Country& country = m_countries[power];
    // Lines of the same height lie side by side.
    const double aside = (power - 4) * 1.2;
    QPolygonF points;
    for (std::size_t i = 0; i < m_seasons.size(); ++i) {
      const int centres = m_seasons[i].Centres.at(static_cast<std::size_t>(power) - 1);
      points << pointOf(i, centres) + QPointF(0, aside);
    }
    const auto draw = [&](const QColor& colour, double width) {
      painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPolyline(points);
    };
    draw(palette().color(QPalette::Text), Edge);
    draw(colour::ToQColor(country.Colour), Core);
    names.emplace_back(points.back().y(), power);
  }
  std::ranges::sort(names);
  painter.setPen(palette().color(QPalette::Text));
  const double line = fontMetrics().height();
  const double x = pointOf(m_seasons.size() - 1, 0).x() + NameGap;
  // Names keep their distance, and all of them stay in the picture.
  double next = 0;
  double room = height() - line * static_cast<double>(names.size());
  for (const auto& [y, power] : names) {
    next = std::clamp(y - line / 2, next, std::max(next, room));
    painter.drawText(QRectF(x, next, width() - x, line), Qt::AlignLeft | Qt::AlignVCenter,
                     text::ToQString(m_countries[power].Abbreviation));
    next += line;
    room += line;
  }
}

CentresDialog::CentresDialog(const model::CountryTable& countries,
                             std::vector<history::SeasonCentres> seasons, QWidget* parent)
    : QDialog(parent) {
  setObjectName(QStringLiteral("frmCentres"));
  setWindowTitle(tr("Centres over the years"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(new CentresChart(countries, std::move(seasons)), 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::helpRequested, this,
          [this] { askForHelp(*this, tr("History of the game")); });
  column->addWidget(buttons);
}

}  // namespace orb::ui
