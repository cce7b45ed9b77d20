#include "ui/output/print_pages.h"

#include "model/errors.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QObject>
#include <QPdfWriter>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace orb::ui {
namespace {

constexpr double PointsPerInch = 72;
// Sizes of fonts in points; the report's shrinks for long lines down to the smallest.
constexpr double ReportPoints = 10;
constexpr double LeastPoints = 7;
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

/// Lines indented this far belong to the row above them.
constexpr qsizetype HangingIndent = 8;

qsizetype indentOf(const QString& line) {
  const auto letter = std::find_if(line.begin(), line.end(), [](QChar c) { return !c.isSpace(); });
  return letter - line.begin();
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

/// The font in which a full line, and any that came out wider, fits the width; not below the
/// smallest size.
QFont reportFont(QPagedPaintDevice& device, const QStringList& lines, double width) {
  QFont font = fixedFont(ReportPoints);
  const QFontMetricsF metrics(font, &device);
  double widest = metrics.horizontalAdvance(QString(ReportColumns, QLatin1Char('M')));
  for (const QString& line : lines)
    widest = std::max(widest, metrics.horizontalAdvance(line));
  if (widest > width)
    font.setPointSizeF(std::max(LeastPoints, std::floor(10 * ReportPoints * width / widest) / 10));
  return font;
}

/// Breaks the lines that are too long for the width even so, at blanks where there are any.
QStringList fitted(const QStringList& lines, qsizetype columns) {
  QStringList result;
  for (QString line : lines) {
    const QString hanging(indentOf(line) + HangingIndent, QLatin1Char(' '));
    while (line.size() > columns) {
      const qsizetype blank = line.lastIndexOf(QLatin1Char(' '), columns);
      const bool isInside = blank > hanging.size();
      result << line.left(isInside ? blank : columns);
      line = hanging + line.mid(isInside ? blank + 1 : columns);
    }
    result << line;
  }
  return result;
}

double lineHeight(const Job& job) {
  return QFontMetricsF(job.reportFont, &job.device).lineSpacing();
}

/// The maps as large as the page allows, in its middle, one below or beside the other.
std::vector<QRectF> mapPlaces(const Job& job) {
  const auto count = static_cast<double>(job.game.maps.size());
  const double gaps = (count - 1) * lineHeight(job);
  const QSizeF row(job.body.width(), (job.body.height() - gaps) / count);
  const QSizeF column((job.body.width() - gaps) / count, job.body.height());
  const QSizeF below = job.game.mapShape.scaled(row, Qt::KeepAspectRatio);
  const QSizeF beside = job.game.mapShape.scaled(column, Qt::KeepAspectRatio);
  const bool isBelow = below.width() >= beside.width();
  const QSizeF& size = isBelow ? below : beside;
  const double across = isBelow ? size.width() : count * size.width() + gaps;
  const QPointF step = isBelow ? QPointF(0, size.height() + lineHeight(job))
                               : QPointF(size.width() + lineHeight(job), 0);
  std::vector<QRectF> places;
  QPointF place((job.body.width() - across) / 2, 0);
  for (std::size_t i = 0; i < job.game.maps.size(); ++i, place += step)
    places.emplace_back(place, size);
  return places;
}

int roomForLines(const Job& job, double top) {
  return static_cast<int>((job.body.bottom() - top) / lineHeight(job));
}

double reportTop(const Job& job) {
  return mapPlaces(job).back().bottom() + lineHeight(job);
}

bool isUnderline(const QString& line) {
  return !line.isEmpty() && (line.count(QLatin1Char('-')) == line.size() ||
                             line.count(QLatin1Char('=')) == line.size());
}

/// Where a page that begins with one line and could hold the lines up to another ends best: after a
/// section, or else anywhere but right after a heading and within a row.
qsizetype pageEnd(const QStringList& lines, qsizetype begin, qsizetype end) {
  if (end >= lines.size()) return lines.size();
  for (qsizetype i = end; i > begin + 1 && i >= end - LinesToSpare; --i) {
    if (lines[i].isEmpty()) return i;
  }
  qsizetype best = end;
  const auto tears = [&lines](qsizetype i) {
    return isUnderline(lines[i]) || isUnderline(lines[i - 1]) ||
           indentOf(lines[i]) >= HangingIndent;
  };
  while (best > begin + 1 && tears(best))
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

std::vector<LineRange> pagesOf(const Job& job) {
  return paginate(job.lines, roomForLines(job, reportTop(job)), roomForLines(job, 0));
}

void printPages(const Job& job) {
  const std::vector<LineRange> pages = pagesOf(job);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    if (i > 0 && !job.device.newPage()) {
      throw model::FileError("The printer takes no further page.");
    }
    if (i == 0) {
      const std::vector<QRectF> places = mapPlaces(job);
      for (std::size_t map = 0; map < places.size(); ++map)
        job.game.maps[map](job.painter, places[map]);
    }
    job.painter.setPen(Qt::black);
    printLines(job, pages[i], i == 0 ? reportTop(job) : 0);
    printFooter(job, i + 1, pages.size());
  }
}

Job jobOf(QPagedPaintDevice& device, QPainter& painter, const PrintedGame& game) {
  const QFont footerFont = fixedFont(FooterPoints);
  // The footer's line, the rule above it, and some air between them and the report.
  const double footer = 2.75 * QFontMetricsF(footerFont, &device).lineSpacing();
  const double width = device.width();
  const QStringList lines = printableLines(game.report);
  const QFont font = reportFont(device, lines, width);
  const double letter = QFontMetricsF(font, &device).horizontalAdvance(QLatin1Char('M'));
  const auto columns =
      std::max(3 * HangingIndent, static_cast<qsizetype>(std::floor(width / letter + 0.01)));
  return {device,
          painter,
          game,
          fitted(lines, columns),
          font,
          footerFont,
          {0, 0, width, device.height() - footer}};
}

/// How well a page of this layout is used.
struct Use {
  std::size_t pages = 0;
  double mapWidth = 0;
};

Use useOf(const QPageLayout& layout, const PrintedGame& game) {
  QBuffer nowhere;
  nowhere.open(QIODevice::WriteOnly);
  QPdfWriter writer(&nowhere);
  writer.setPageLayout(layout);
  QPainter none;
  const Job job = jobOf(writer, none, game);
  return {pagesOf(job).size(), mapPlaces(job).front().width()};
}

}  // namespace

QPageLayout bestLayout(QPageLayout layout, const PrintedGame& game) {
  QPageLayout wide = layout;
  layout.setOrientation(QPageLayout::Portrait);
  wide.setOrientation(QPageLayout::Landscape);
  const Use upright = useOf(layout, game);
  const Use across = useOf(wide, game);
  return across.mapWidth > upright.mapWidth && across.pages <= upright.pages ? wide : layout;
}

void printGame(QPagedPaintDevice& device, const PrintedGame& game) {
  QPainter painter;
  if (!painter.begin(&device)) throw model::FileError("The printer takes no job.");
  printPages(jobOf(device, painter, game));
}

}  // namespace orb::ui
