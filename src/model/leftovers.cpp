#include "model/leftovers.h"

#include "model/descriptor.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace orb::model {
namespace {

namespace fs = std::filesystem;

bool IsLetterOrDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// No user has given a file such a name.
bool IsUnfinishedName(std::string_view name) {
  constexpr std::size_t random = 6;
  return name.size() == UnfinishedPrefix.size() + random && name.starts_with(UnfinishedPrefix) &&
         std::ranges::all_of(name.substr(UnfinishedPrefix.size()), IsLetterOrDigit);
}

/// Removes the file if whoever wrote it has ended: a living writer holds it locked for as long as
/// it has this name.
void RemoveIfDead(const std::string& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
  const Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!file.IsOpen() || ::flock(file.Number(), LOCK_EX | LOCK_NB) != 0) return;
  ::unlink(path.c_str());
}

/// Whether it is time to look into the directory again.
bool IsDue(const std::string& directory) {
  using Clock = std::chrono::steady_clock;
  static std::set<std::string, std::less<>> seen;
  static Clock::time_point since;
  const Clock::time_point now = Clock::now();
  if (now - since > std::chrono::seconds(1)) {
    seen.clear();
    since = now;
  }
  return seen.insert(directory).second;
}

}  // namespace

void LockUnfinished(int descriptor) {
  // Where there are no locks RemoveLeftovers gets none either, and leaves the file.
  static_cast<void>(::flock(descriptor, LOCK_EX | LOCK_NB));
}

void RemoveLeftovers(const std::string& directory) {
  if (!IsDue(directory)) return;
  // A directory that cannot be listed may still be written to; what is wrong there shows then.
  std::error_code error;
  fs::directory_iterator entry(directory.empty() ? "." : directory, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (IsUnfinishedName(entry->path().filename().native())) RemoveIfDead(entry->path().native());
  }
}

}  // namespace orb::model
