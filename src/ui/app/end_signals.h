#pragma once

#include <QSocketNotifier>

#include <functional>

namespace orb::ui {

/// Catches the signals that ask a program to end (SIGTERM, SIGHUP, SIGINT), so that it can put its
/// work away first. A second one ends it at once.
class EndSignals {
 public:
  /// `putAway` is called from the event loop, not within the signal. Then the program ends by the
  /// signal, so that whoever started it sees why. One per program.
  explicit EndSignals(std::function<void()> putAway);
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  ~EndSignals();

 private:
  QSocketNotifier m_notifier;
};

}  // namespace orb::ui
