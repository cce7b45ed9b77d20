#include "end_signals.h"

#include <array>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace orb::ui {
namespace {

constexpr std::array Signals{SIGTERM, SIGHUP, SIGINT};

/// Both ends of a pipe: all that a signal's handler may do is write into it.
std::array<int, 2> ends{-1, -1};

void pass(int number) {
  const auto byte = static_cast<std::uint8_t>(number);
  [[maybe_unused]] const auto written = ::write(ends[1], &byte, 1);
}

int openPipe() {
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) ends = {-1, -1};
  return ends[0];
}

/// Ends the program as the signal would have done uncaught.
void endBy(int number) {
  ::signal(number, SIG_DFL);
  ::raise(number);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> putAway)
    : m_notifier(openPipe(), QSocketNotifier::Read) {
  QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier,
                   [putAway = std::move(putAway)] {
                     std::uint8_t number = 0;
                     if (::read(ends[0], &number, 1) != 1) return;
                     putAway();
                     endBy(number);
                   });
  for (const int number : Signals) {
    struct sigaction action {};
    // Whoever started it with a signal ignored, as nohup does, wants it so.
    if (::sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_handler = pass;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    ::sigaction(number, &action, nullptr);
  }
}

EndSignals::~EndSignals() {
  for (const int number : Signals)
    ::signal(number, SIG_DFL);
}

}  // namespace orb::ui
