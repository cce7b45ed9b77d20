#include "ui/replay/playhead.h"

#include <algorithm>
#include <cmath>

namespace orb::ui {
namespace {

/// A season that has hardly begun counts as not begun, so that going back twice goes back twice.
constexpr double NearSeconds = 0.5;

}  // namespace

void Playhead::advance(double seconds) {
  m_seconds += seconds;
  while (m_seconds >= length() && m_season + 1 < seasonCount()) {
    m_seconds -= length();
    ++m_season;
  }
  m_seconds = std::min(m_seconds, length());
}

void Playhead::moveTo(double position) {
  const double within = std::clamp<double>(position, 0, seasonCount());
  m_season = std::min(static_cast<int>(std::floor(within)), seasonCount() - 1);
  m_seconds = (within - m_season) * length();
}

void Playhead::back() {
  moveTo(m_seconds > NearSeconds ? m_season : m_season - 1);
}

void Playhead::forward() {
  moveTo(m_season + 1);
}

}  // namespace orb::ui
