#include "smooth.h"

#include <algorithm>
#include <cmath>

namespace mapmaker {
namespace {

constexpr double SampleStep = 0.4;

bool IsClosed(const Line& line) {
  return line.front().X == line.back().X && line.front().Y == line.back().Y;
}

/// Points at even distances along `line`, its two ends among them.
Line Resampled(const Line& line) {
  double length = 0;
  for (std::size_t i = 1; i < line.size(); ++i)
    length += std::hypot(line[i].X - line[i - 1].X, line[i].Y - line[i - 1].Y);
  const auto count = std::max<std::size_t>(4, static_cast<std::size_t>(length / SampleStep));
  const double step = length / static_cast<double>(count);
  Line samples{line.front()};
  double walked = 0;
  for (std::size_t i = 1; i < line.size(); ++i) {
    const double piece = std::hypot(line[i].X - line[i - 1].X, line[i].Y - line[i - 1].Y);
    while (samples.size() < count && static_cast<double>(samples.size()) * step <= walked + piece) {
      const double t = (static_cast<double>(samples.size()) * step - walked) / piece;
      samples.push_back({line[i - 1].X + t * (line[i].X - line[i - 1].X),
                         line[i - 1].Y + t * (line[i].Y - line[i - 1].Y)});
    }
    walked += piece;
  }
  samples.push_back(line.back());
  return samples;
}

/// The sample at any index: rings go round, open lines go on mirrored through their end.
Point SampleAt(const Line& samples, long index, bool closed) {
  const long last = static_cast<long>(samples.size()) - 1;
  const auto at = [&](long i) {
    return samples[static_cast<std::size_t>(std::clamp(i, 0L, last))];
  };
  if (closed) return at(((index % last) + last) % last);
  if (index >= 0 && index <= last) return at(index);
  const Point end = index < 0 ? at(0) : at(last);
  const Point mirrored = index < 0 ? at(-index) : at(2 * last - index);
  return {2 * end.X - mirrored.X, 2 * end.Y - mirrored.Y};
}

Line Blurred(const Line& samples, double reach, bool closed) {
  const long radius = std::lround(3 * reach / SampleStep);
  Line blurred(samples.size());
  for (long i = 0; i < static_cast<long>(samples.size()); ++i) {
    Point sum;
    double weights = 0;
    for (long k = -radius; k <= radius; ++k) {
      const double distance = static_cast<double>(k) * SampleStep / reach;
      const double weight = std::exp(-0.5 * distance * distance);
      const Point sample = SampleAt(samples, i + k, closed);
      sum = {sum.X + weight * sample.X, sum.Y + weight * sample.Y};
      weights += weight;
    }
    blurred[static_cast<std::size_t>(i)] = {sum.X / weights, sum.Y / weights};
  }
  return blurred;
}

double Reach(const Arc& arc, const Coverage& coverage, const Smoothing& smoothing) {
  if (arc.First < 0 || arc.Second < 0) return 0;
  const bool first = IsLand(coverage[static_cast<std::size_t>(arc.First)]);
  const bool second = IsLand(coverage[static_cast<std::size_t>(arc.Second)]);
  if (first != second) return smoothing.Coast;
  return first ? smoothing.LandBorder : smoothing.SeaBorder;
}

}  // namespace

Line Smoothed(const Line& line, double reach, double tolerance) {
  const bool closed = IsClosed(line);
  const Line samples = Resampled(line);
  const Line calm = Blurred(samples, reach, closed);
  Line lost(samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i)
    lost[i] = {samples[i].X - calm[i].X, samples[i].Y - calm[i].Y};
  const Line regained = Blurred(lost, reach, closed);
  Line smooth(samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i)
    smooth[i] = {calm[i].X + regained[i].X, calm[i].Y + regained[i].Y};
  if (closed) {
    smooth.back() = smooth.front();
  } else {
    smooth.front() = line.front();
    smooth.back() = line.back();
  }
  return Shape::LineString(smooth).Simplified(tolerance).Lines().front();
}

Coverage WithSmoothBorders(const Coverage& coverage, const Smoothing& smoothing) {
  std::vector<Arc> arcs = ArcsOf(coverage);
  for (Arc& arc : arcs) {
    const double reach = Reach(arc, coverage, smoothing);
    if (reach > 0) arc.Course = Smoothed(arc.Course, reach, smoothing.Tolerance);
  }
  return Rebuilt(coverage, arcs);
}

}  // namespace mapmaker
