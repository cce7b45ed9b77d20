#pragma once

#include <utility>
#include <vector>

namespace orb::ui {

/// Where an animation of several seasons stands. The end of a season and the beginning of the next
/// one are two places, so that the last season alone can stand at its end.
class Playhead {
 public:
  /// At the beginning. The length of each season is in seconds and above 0; there is at least one.
  explicit Playhead(std::vector<double> lengths) : m_lengths(std::move(lengths)) {}

  int seasonCount() const { return static_cast<int>(m_lengths.size()); }
  int season() const { return m_season; }

  /// Of the season, 0..1.
  double progress() const { return m_seconds / length(); }

  /// Seasons passed, 0..seasonCount().
  double position() const { return m_season + progress(); }

  bool atEnd() const { return m_season == seasonCount() - 1 && m_seconds >= length(); }

  /// Lets time pass, over the ends of seasons, up to the end of the last one.
  void advance(double seconds);
  /// To a position as position() gives it; beyond either end it is the end.
  void moveTo(double position);

  /// To the season's beginning, or, next to it, to the beginning of the season before.
  void back();

  /// To the beginning of the next season, or to the end of the last.
  void forward();

 private:
  double length() const { return m_lengths[static_cast<std::size_t>(m_season)]; }

  std::vector<double> m_lengths;
  int m_season = 0;
  double m_seconds = 0;  ///< since the season's beginning
};

}  // namespace orb::ui
