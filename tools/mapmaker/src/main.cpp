#include "checks.h"
#include "coverage.h"
#include "draw.h"
#include "figures.h"
#include "hit.h"
#include "land.h"
#include "palette.h"
#include "preview.h"
#include "prov_dat.h"
#include "report.h"
#include "smooth.h"
#include "style.h"
#include "tables.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <iostream>
#include <stdexcept>

using namespace mapmaker;

namespace {

/// 192 dots an inch, twice the resolution of an ordinary screen.
constexpr int DotsPerMetre = 7559;
/// Cracks between subdivisions, in square pixels.
constexpr double Crack = 0.7;
/// Takes out the detail that would only slow the next steps.
constexpr Smoothing FirstSmoothing{0.9, 0.9, 2, 0.1};
/// Creeks narrower than twice this many pixels become land.
constexpr double InletReach = 1.6;
/// Islands smaller than this many square pixels (about 240 square kilometres) go, and ponds.
constexpr double LeastIsland = 40;
constexpr double LeastPond = 150;
constexpr Smoothing LastSmoothing{2.4, 3.2, 9, 0.04};

void Save(QImage picture, const QString& path) {
  picture.setDotsPerMeterX(DotsPerMetre);
  picture.setDotsPerMeterY(DotsPerMetre);
  if (!picture.save(path, "BMP"))
    throw std::runtime_error(path.toStdString() + ": cannot be written");
}

Coverage Generalised(const Tables& tables, const Projection& projection, const QString& geometry) {
  const Coverage detailed =
      MakeCoverage(tables, projection, ReadLand(tables, projection, geometry));
  const Coverage whole = WithoutSmallParts(detailed, Crack, Crack);
  const Coverage closed = WithInletsClosed(WithSmoothBorders(whole, FirstSmoothing), InletReach);
  const Coverage smooth =
      WithSmoothBorders(WithoutSmallParts(closed, LeastIsland, LeastPond), LastSmoothing);
  return WithoutSmallParts(smooth, Crack, Crack);
}

std::vector<Line> StraitsOf(const Tables& tables, const Projection& projection) {
  std::vector<Line> straits;
  for (const NamedRing& strait : tables.Straits) {
    Line line;
    for (const Point& point : strait.Ring)
      line.push_back(projection.ToMap(point));
    straits.push_back(Smoothed(line, 1, LastSmoothing.Tolerance));
  }
  return straits;
}

/// The pictures of all styles, and of each a preview with everything that can stand on it.
void MakePictures(const QString& stylesPath, const Tables& tables, const Coverage& coverage,
                  const std::vector<Line>& straits, const QString& output, const QString& report) {
  for (const Style& style : ReadStyles(stylesPath)) {
    const QImage picture = WithPalette(DrawMap(coverage, straits, style), style.Colours);
    const QString file = QString::fromStdString(style.File);
    Save(picture, output + "/" + file);
    for (const bool withDislodged : {false, true}) {
      DrawPreview(picture, tables, withDislodged)
          .save(report + "/" + file + (withDislodged ? ".dislodged.png" : ".units.png"));
    }
  }
}

void MakeMaps(const QString& input, const QString& geometry, const QString& output,
              const QString& report) {
  const Tables tables = ReadTables(input);
  const Projection projection(tables.Frame);
  const Coverage coverage = Generalised(tables, projection, geometry);
  const QImage hit = DrawHitPicture(coverage, tables.Locations.size());
  Save(hit, output + "/maphit.bmp");
  WriteProvDat(output + "/prov.dat", tables);
  QDir().mkpath(report);
  const Contacts contacts = FindContacts(hit);
  WriteContacts(report + "/contacts.txt", contacts, tables.Locations);
  CheckContacts(contacts, tables, input + "/neighbours.txt");
  CheckUnitPoints(hit, tables);
  WriteOverlaps(report + "/overlaps.txt", FiguresOf(tables, coverage), coverage);
  MakePictures(input + "/styles.json", tables, coverage, StraitsOf(tables, projection), output,
               report);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 5) {
    std::cerr << "usage: mapmaker INPUT GEOMETRY OUTPUT REPORT (four directories)\n";
    return 2;
  }
  try {
    MakeMaps(arguments[1], arguments[2], arguments[3], arguments[4]);
  } catch (const std::exception& error) {
    std::cerr << "mapmaker: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
