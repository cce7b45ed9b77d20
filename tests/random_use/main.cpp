#include "random_use/disk_watch.h"
#include "random_use/random_user.h"

#include "model/files.h"
#include "support/directories.h"
#include "ui/window/application.h"

#include <QElapsedTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <execinfo.h>
#include <filesystem>
#include <iostream>
#include <mutex>
#include <pthread.h>
#include <stop_token>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using orb::tests::RandomUser;

/// No single thing may take longer, under the sanitizers and while others keep the disk busy: each
/// save waits for it.
constexpr int LongestSeconds = 60;

void print(const RandomUser& user) {
  for (const std::string& deed : user.lastDeeds())
    std::cerr << "  " << deed << '\n';
}

/// Prints where the thread is that gets the signal.
void printStack(int /*signal*/) {
  constexpr int most = 60;
  std::array<void*, most> stack{};
  ::backtrace_symbols_fd(stack.data(), ::backtrace(stack.data(), most), STDERR_FILENO);
}

/// Ends the program when the window does not come on.
void watch(const std::stop_token& end, const RandomUser& user, pthread_t window) {
  std::mutex mutex;
  std::condition_variable_any wakeUp;
  int last = -1;
  int seconds = 0;
  while (!end.stop_requested()) {
    std::unique_lock lock(mutex);
    wakeUp.wait_for(lock, end, std::chrono::seconds(1), [] { return false; });
    seconds = user.done() == last ? seconds + 1 : 0;
    last = user.done();
    if (seconds < LongestSeconds) continue;
    std::cerr << "The window hangs:\n";
    print(user);
    ::pthread_kill(window, SIGUSR1);
    std::this_thread::sleep_for(std::chrono::seconds(1));
    std::abort();
  }
}

/// What the hidden platform cannot do, clicks beside a window, and fingers on a window that has
/// gone are no news.
constexpr std::array KnownWarnings{"This plugin does not", "Mouse event at", "skipping QEventPoint",
                                   "QGestureManager::deliverEvent"};

void printWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  const bool isKnown = std::ranges::any_of(
      KnownWarnings, [&text](const char* begin) { return text.startsWith(QLatin1String(begin)); });
  if (type != QtDebugMsg && type != QtInfoMsg && !isKnown)
    std::cerr << "Qt: " << text.toStdString() << '\n';
}

/// The games and texts that the user finds.
void fill(const fs::path& folder) {
  const fs::path examples = orb::tests::DataDirectory().parent_path() / "examples";
  fs::copy_file(examples / "1901-2-autumn-0-start.orb", folder / "moves.orb");
  fs::copy_file(examples / "1902-1-spring-1-moves.orb", folder / "retreats.orb");
  fs::copy_file(examples / "1902-2-autumn-2-retreats.orb", folder / "adjustments.orb");
  const std::string game = orb::model::ReadFile(folder / "moves.orb");
  orb::model::ReplaceFile(folder / "broken.orb", game.substr(0, game.size() / 2));
  orb::model::ReplaceFile(folder / "orders.txt",
                          "FRANCE\nA Par - Bur (or not)\nFleet Brest hold\n");
  orb::model::ReplaceFile(folder / "mail.eml",
                          "From: <img src=x> <a@b>\nSubject: orders\n\nENGLAND\nF Lon - NTH\n");
  ::mkfifo((folder / "pipe").c_str(), 0600);
  fs::create_directories(folder / "out");
}

int used(unsigned seed, int events, const fs::path& folder, const fs::path& program) {
  const orb::ui::Places places{program, folder / "config", folder / "state"};
  orb::tests::DiskWatch disk(folder, {places.config, places.state, folder / "cache"});
  orb::tests::DiskWatch data(orb::tests::DataDirectory(), {});
  RandomUser user(seed, folder, places, disk);
  std::signal(SIGUSR1, printStack);
  const std::jthread watcher(
      [&user, window = ::pthread_self()](const std::stop_token& end) { watch(end, user, window); });
  QElapsedTimer clock;
  clock.start();
  user.use(events);
  QCoreApplication::exec();

  std::vector<std::string> faults = user.faults();
  for (const std::string& fault : data.look())
    faults.push_back(fault);
  for (const std::string& fault : faults)
    std::cerr << fault << '\n';
  if (!faults.empty()) print(user);
  struct rusage usage {};
  ::getrusage(RUSAGE_SELF, &usage);
  std::cout << "random use: seed " << seed << ", " << events << " events, " << user.dialogs()
            << " dialogs, " << user.starts() << " starts, " << clock.elapsed() / 1000 << " s, "
            << usage.ru_maxrss / 1024 << " MB, " << faults.size() << " faults\n"
            << std::flush;
  return faults.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

/// Usage: use_window EVENTS SEED
int main(int argc, char* argv[]) {
  const orb::tests::TemporaryDirectory folder;
  const orb::tests::TemporaryProgram program;
  qputenv("HOME", folder.Path().c_str());
  qputenv("XDG_CACHE_HOME", (folder.Path() / "cache").c_str());
  qputenv("XDG_CONFIG_HOME", (folder.Path() / "config").c_str());
  fs::current_path(folder.Path());
  qInstallMessageHandler(printWarnings);
  const orb::ui::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 3) {
    std::cerr << "Usage: use_window EVENTS SEED\n";
    return 2;
  }
  fill(folder.Path());
  const int status = used(static_cast<unsigned>(std::stoul(argv[2])), std::stoi(argv[1]),
                          folder.Path(), program.Path());
  return status;
}
