#include "model/files.h"

#include "model/errors.h"
#include "text/strings.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

// Standard C++ cannot flush a file to disk; this file alone speaks to the operating system.

namespace orb::model {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(std::string_view action, const fs::path& path, int error) {
  std::string text("Cannot ");
  text.append(action).append(" ").append(path.string()).append(": ");
  throw FileError(text.append(std::generic_category().message(error)).append("."));
}

/// An open file that is closed on every way out.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  int Number() const { return number_; }
  bool Close() { return ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// The mode the finished file shall have: that of the file it replaces, else the usual one.
mode_t FileMode(const fs::path& target) {
  struct stat status {};
  if (::stat(target.c_str(), &status) == 0) return status.st_mode & 07777;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// Where a link leads, step by step: the file at its end need not exist.
fs::path FollowLinks(fs::path path) {
  constexpr int longestChain = 40;
  std::error_code error;
  for (int i = 0; i < longestChain && fs::is_symlink(path, error); ++i) {
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return path;
}

/// A file that is there must be an ordinary one that may be written: renaming over it would not
/// ask.
void CheckReplaceable(const fs::path& target) {
  std::error_code ignored;
  if (!fs::exists(target, ignored)) return;
  if (!fs::is_regular_file(target, ignored)) {
    throw FileError("Cannot write " + target.string() + ": it is no ordinary file.");
  }
  if (::access(target.c_str(), W_OK) != 0) Fail("write", target, errno);
}

}  // namespace

std::string ReadFile(const fs::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Number() < 0) Fail("read", path, errno);
  struct stat status {};
  if (::fstat(file.Number(), &status) != 0) Fail("read", path, errno);
  constexpr std::size_t smallest = 4096;
  std::string bytes(std::max(static_cast<std::size_t>(status.st_size) + 1, smallest), '\0');
  std::size_t size = 0;
  while (true) {
    const ssize_t got = ::read(file.Number(), bytes.data() + size, bytes.size() - size);
    if (got < 0 && errno != EINTR) Fail("read", path, errno);
    if (got == 0) break;
    if (got > 0) size += static_cast<std::size_t>(got);
    if (size == bytes.size()) bytes.resize(2 * bytes.size());
  }
  bytes.resize(size);
  return bytes;
}

void ReplaceFile(const fs::path& path, std::string_view bytes) {
  const fs::path target = FollowLinks(path);
  CheckReplaceable(target);
  std::string beside = (target.parent_path() / ".orb-XXXXXX").string();
  Descriptor file(::mkostemp(beside.data(), O_CLOEXEC));
  if (file.Number() < 0) Fail("write", path, errno);
  const bool written =
      WriteAll(file.Number(), bytes) && ::fchmod(file.Number(), FileMode(target)) == 0 &&
      ::fsync(file.Number()) == 0 && file.Close() && ::rename(beside.c_str(), target.c_str()) == 0;
  if (!written) {
    const int error = errno;
    ::unlink(beside.c_str());
    Fail("write", path, error);
  }
}

bool CanReplaceFile(const fs::path& path) {
  const fs::path target = FollowLinks(path);
  const fs::path directory = target.has_parent_path() ? target.parent_path() : ".";
  if (::access(directory.c_str(), W_OK | X_OK) != 0) return false;
  std::error_code ignored;
  if (!fs::exists(target, ignored)) return true;
  return fs::is_regular_file(target, ignored) && ::access(target.c_str(), W_OK) == 0;
}

fs::path LowerCaseName(const fs::path& path) {
  return path.parent_path() / text::LowerCase(path.filename().string());
}

fs::path FileInAnyCase(const fs::path& path) {
  const fs::path lower = LowerCaseName(path);
  std::error_code ignored;
  return !fs::exists(lower, ignored) && fs::exists(path, ignored) ? path : lower;
}

fs::path ProgramDirectory() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::current_path() : program.parent_path();
}

}  // namespace orb::model
