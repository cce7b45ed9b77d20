#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <iostream>
#include <stdexcept>

#include "coverage.h"
#include "draw.h"
#include "hit.h"
#include "land.h"
#include "palette.h"
#include "prov_dat.h"
#include "report.h"
#include "smooth.h"
#include "style.h"
#include "tables.h"

using namespace mapmaker;

namespace {

/// 192 dots an inch, twice the resolution of an ordinary screen.
constexpr int DotsPerMetre = 7559;
/// Creeks narrower than twice this many pixels become land.
constexpr double InletReach = 1.3;
/// Parts smaller than this many square pixels (about 75 square kilometres) go to a neighbour.
constexpr double LeastPart = 12;
/// Cracks between subdivisions, in square pixels.
constexpr double Crack = 0.7;
constexpr Smoothing BorderSmoothing{1.5, 2.2, 9};

void Save(QImage picture, const QString& path) {
  picture.setDotsPerMeterX(DotsPerMetre);
  picture.setDotsPerMeterY(DotsPerMetre);
  if (!picture.save(path, "BMP"))
    throw std::runtime_error(path.toStdString() + ": cannot be written");
}

Coverage Generalised(const Tables& tables, const Projection& projection, const QString& geometry) {
  const Coverage detailed =
      MakeCoverage(tables, projection, ReadLand(tables, projection, geometry));
  const Coverage closed = WithInletsClosed(WithoutSmallParts(detailed, Crack), InletReach);
  const Coverage smooth = WithSmoothBorders(WithoutSmallParts(closed, LeastPart), BorderSmoothing);
  return WithoutSmallParts(smooth, LeastPart);
}

std::vector<Line> StraitsOf(const Tables& tables, const Projection& projection) {
  std::vector<Line> straits;
  for (const NamedRing& strait : tables.Straits) {
    Line line;
    for (const Point& point : strait.Ring) line.push_back(projection.ToMap(point));
    straits.push_back(Smoothed(line, 1));
  }
  return straits;
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
  WriteContacts(report + "/contacts.txt", FindContacts(hit), tables.Locations);
  const std::vector<Line> straits = StraitsOf(tables, projection);
  for (const Style& style : ReadStyles(input + "/styles.json"))
    Save(WithPalette(DrawMap(coverage, straits, style)),
         output + "/" + QString::fromStdString(style.File));
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
