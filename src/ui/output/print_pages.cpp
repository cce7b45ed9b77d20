#include "ui/output/print_pages.h"

#include "model/errors.h"

#include <QFont>
#include <QFontMetricsF>
#include <QObject>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace orb::ui {
namespace {

constexpr double PointsPerInch = 72;
// Sizes of fonts in points; the report's is the largest that is used, and shrinks for long lines.
constexpr double ReportPoints = 10;
constexpr double FooterPoints = 8;
constexpr qsizetype ReportColumns = 78;

/// Less room than this below the map is left empty.
constexpr int FewestLinesBelowMap = 6;

/// How many lines of a page may stay empty so that a section is not torn.
constexpr int LinesToSpare = 10;

/// The lines of one page: the first and the one after the last.
struct LineRange {
  qsizetype begin = 0;
  qsizetype end = 0;
};

/// All that one job is printed with; lengths are units of the painter.
struct Job {
  QPagedPaintDevice& device;
  QPainter& painter;
  const PrintedGame& game;
  QStringList lines;
  QFont reportFont;
  QFont footerFont;
  QRectF body;  ///< a page's room above its footer
};

/// A typewriter's font, which every system has under some name; the first are alike in width.
QFont fixedFont(double points) {
  QFont font(QStringList{QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                         QStringLiteral("DejaVu Sans Mono")});
  font.setStyleHint(QFont::TypeWriter);
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPointSizeF(points);
  return font;
}

/// The report's lines without what would spoil their columns on paper.
QStringList printableLines(QString report) {
  for (QChar& character : report) {
    if (character < QLatin1Char(' ') && character != QLatin1Char('\n'))
      character = QLatin1Char(' ');
  }
  QStringList lines = report.split(QLatin1Char('\n'));
  while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
    lines.removeLast();
  return lines;
}

/// The font in which a full line, and any that came out wider, fits the width.
QFont reportFont(QPagedPaintDevice& device, const QStringList& lines, double width) {
  QFont font = fixedFont(ReportPoints);
  const QFontMetricsF metrics(font, &device);
  double widest = metrics.horizontalAdvance(QString(ReportColumns, QLatin1Char('M')));
  for (const QString& line : lines)
    widest = std::max(widest, metrics.horizontalAdvance(line));
  if (widest > width) font.setPointSizeF(ReportPoints * width / widest);
  return font;
}

/// The map as wide as the page, or as its height allows, in the middle.
QRectF mapPlace(const Job& job) {
  const QSizeF size = job.game.mapShape.scaled(job.body.size(), Qt::KeepAspectRatio);
  return {QPointF((job.body.width() - size.width()) / 2, 0), size};
}

double lineHeight(const Job& job) {
  return QFontMetricsF(job.reportFont, &job.device).lineSpacing();
}

int roomForLines(const Job& job, double top) {
  return static_cast<int>((job.body.bottom() - top) / lineHeight(job));
}

double reportTop(const Job& job) {
  return mapPlace(job).bottom() + lineHeight(job);
}

bool isUnderline(const QString& line) {
  return !line.isEmpty() && (line.count(QLatin1Char('-')) == line.size() ||
                             line.count(QLatin1Char('=')) == line.size());
}

/// Where a page that begins with one line and could hold the lines up to another ends best: after a
/// section, or else anywhere but right after a heading.
qsizetype pageEnd(const QStringList& lines, qsizetype begin, qsizetype end) {
  if (end >= lines.size()) return lines.size();
  for (qsizetype i = end; i > begin + 1 && i >= end - LinesToSpare; --i) {
    if (lines[i].isEmpty()) return i;
  }
  qsizetype best = end;
  while (best > begin + 1 && (isUnderline(lines[best]) || isUnderline(lines[best - 1])))
    --best;
  return best;
}

/// Divides the lines into pages. The first page is the map's, and may have no lines at all; empty
/// lines at the top of a page are dropped.
std::vector<LineRange> paginate(const QStringList& lines, int roomBelowMap, int roomOnPage) {
  std::vector<LineRange> pages;
  qsizetype next = 0;
  if (roomBelowMap >= FewestLinesBelowMap) next = pageEnd(lines, 0, roomBelowMap);
  pages.push_back({0, next});
  while (next < lines.size()) {
    if (lines[next].isEmpty()) {
      ++next;
      continue;
    }
    const qsizetype end = pageEnd(lines, next, next + std::max(1, roomOnPage));
    pages.push_back({next, end});
    next = end;
  }
  return pages;
}

void printLines(const Job& job, LineRange range, double top) {
  const QFontMetricsF metrics(job.reportFont, &job.device);
  job.painter.setFont(job.reportFont);
  double baseline = top + metrics.ascent();
  for (qsizetype i = range.begin; i < range.end; ++i) {
    job.painter.drawText(QPointF(0, baseline), job.lines[i]);
    baseline += metrics.lineSpacing();
  }
}

/// A thin line across the page with the title and the page's number below it.
void printFooter(const Job& job, std::size_t page, std::size_t pages) {
  const QFontMetricsF metrics(job.footerFont, &job.device);
  const double bottom = job.device.height();
  const double rule = bottom - metrics.lineSpacing() * 1.25;
  job.painter.setFont(job.footerFont);
  job.painter.setPen(QPen(Qt::black, metrics.lineWidth() / 2));
  job.painter.drawLine(QPointF(0, rule), QPointF(job.body.width(), rule));
  const QString number = QObject::tr("Page %1 of %2").arg(page).arg(pages);
  const double numberLeft = job.body.width() - metrics.horizontalAdvance(number);
  const double baseline = bottom - metrics.descent();
  job.painter.drawText(QPointF(numberLeft, baseline), number);
  const QString title = metrics.elidedText(job.game.footer, Qt::ElideRight,
                                           numberLeft - 2 * metrics.averageCharWidth());
  job.painter.drawText(QPointF(0, baseline), title);
}

void printPages(const Job& job) {
  const std::vector<LineRange> pages =
      paginate(job.lines, roomForLines(job, reportTop(job)), roomForLines(job, 0));
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0 && !job.device.newPage()) {
      throw model::FileError("The printer takes no further page.");
    }
    if (i == 0) job.game.paintMap(job.painter, mapPlace(job));
    job.painter.setPen(Qt::black);
    printLines(job, pages[i], i == 0 ? reportTop(job) : 0);
    printFooter(job, i + 1, pages.size());
  }
}

}  // namespace

void printGame(QPagedPaintDevice& device, const PrintedGame& game) {
  QPainter painter;
  if (!painter.begin(&device)) throw model::FileError("The printer takes no job.");
  const QFont footerFont = fixedFont(FooterPoints);
  // The footer's line, the rule above it, and some air between them and the report.
  const double footer = 2.75 * QFontMetricsF(footerFont, &device).lineSpacing();
  const QStringList lines = printableLines(game.report);
  const double width = device.width();
  printPages({device, painter, game, lines, reportFont(device, lines, width), footerFont,
              QRectF(0, 0, width, device.height() - footer)});
}

}  // namespace orb::ui
