#include "model/files.h"

#include "model/errors.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
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
  text.append(action).append(" ").append(text::NameInText(path.string())).append(": ");
  text.append(text::NameInText(std::generic_category().message(error)));
  throw FileError(text.append("."));
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

/// Where a file is to be written, links followed, and what is known of the file that is there.
struct Target {
  fs::path Path;
  std::optional<struct stat> Status;
};

/// Follows links step by step: the file at their end need not exist. Nothing where they lead in a
/// circle.
std::optional<Target> FindTarget(fs::path path) {
  constexpr int longestChain = 40;
  for (int i = 0; i < longestChain; ++i) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) return Target{std::move(path), std::nullopt};
    if (!S_ISLNK(status.st_mode)) return Target{std::move(path), status};
    std::error_code ignored;
    path = path.parent_path() / fs::read_symlink(path, ignored);
  }
  return std::nullopt;
}

Target TargetOf(const fs::path& path) {
  if (auto target = FindTarget(path)) return std::move(*target);
  throw FileError("Cannot write " + text::NameInText(path.string()) +
                  ": it is a link that leads to itself.");
}

/// A file that exists must be an ordinary one with permission to write: renaming over it would not
/// ask for any.
void CheckReplaceable(const Target& target) {
  if (!target.Status) return;
  if (!S_ISREG(target.Status->st_mode)) {
    throw FileError("Cannot write " + text::NameInText(target.Path.string()) +
                    ": it is no ordinary file.");
  }
  if (::access(target.Path.c_str(), W_OK) != 0) Fail("write", target.Path, errno);
}

/// The mode that the finished file is to have: that of the file it replaces, else the usual one.
mode_t FileMode(const Target& target) {
  if (target.Status) return target.Status->st_mode & 07777;
  // The mask can only be asked for by setting it.
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// Leaves the file to whom it belonged, in a folder that several people share: to its owner and
/// group where that is allowed, else at least to its group, else to whoever writes it.
void KeepOwner(int descriptor, const Target& target) {
  if (!target.Status) return;
  const uid_t owner = target.Status->st_uid;
  const gid_t group = target.Status->st_gid;
  if (owner == ::geteuid() && group == ::getegid()) return;
  constexpr auto unchanged = static_cast<uid_t>(-1);
  const bool isKept =
      ::fchown(descriptor, owner, group) == 0 || ::fchown(descriptor, unchanged, group) == 0;
  static_cast<void>(isKept);
}

/// The path without the file's own name, "/" included.
std::string_view DirectoryPrefix(const fs::path& path) {
  return std::string_view(path.native()).substr(0, path.native().rfind('/') + 1);
}

}  // namespace

std::string ReadFile(const fs::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Number() < 0) Fail("read", path, errno);
  // Its size is not asked for: nearly every file fits here, and a pipe has none.
  std::array<char, 65536> buffer;
  std::string bytes;
  while (true) {
    const ssize_t got = ::read(file.Number(), buffer.data(), buffer.size());
    if (got < 0 && errno != EINTR) Fail("read", path, errno);
    if (got == 0) return bytes;
    if (got > 0) bytes.append(buffer.data(), static_cast<std::size_t>(got));
    if (bytes.size() > LargestFile) {
      throw FileError("Cannot read " + text::NameInText(path.string()) + ": it is larger than " +
                      std::to_string(LargestFile / 1'000'000) + " MB.");
    }
  }
}

Replacement::Replacement(const fs::path& path, std::string_view bytes) : path_(path) {
  const Target target = TargetOf(path);
  CheckReplaceable(target);
  target_ = target.Path;
  // In the same directory: a file can be renamed within its file system only.
  std::string beside(DirectoryPrefix(target_));
  beside += ".orb-XXXXXX";
  Descriptor file(::mkostemp(beside.data(), O_CLOEXEC));
  if (file.Number() < 0) Fail("write", path_, errno);
  // Before its mode is set, since a new owner may take bits away from that.
  KeepOwner(file.Number(), target);
  // Flushed before it is renamed, or a power failure could leave an empty file under the name.
  const bool written = WriteAll(file.Number(), bytes) &&
                       ::fchmod(file.Number(), FileMode(target)) == 0 &&
                       ::fsync(file.Number()) == 0 && file.Close();
  if (!written) {
    const int error = errno;
    ::unlink(beside.c_str());
    Fail("write", path_, error);
  }
  written_ = std::move(beside);
}

Replacement::~Replacement() {
  if (!written_.empty()) ::unlink(written_.c_str());
}

void Replacement::Commit() {
  if (::rename(written_.c_str(), target_.c_str()) != 0) Fail("write", path_, errno);
  written_.clear();
}

void ReplaceFile(const fs::path& path, std::string_view bytes) {
  Replacement(path, bytes).Commit();
}

bool CanReplaceFile(const fs::path& path) {
  const auto target = FindTarget(path);
  if (!target) return false;
  const fs::path directory = target->Path.has_parent_path() ? target->Path.parent_path() : ".";
  if (::access(directory.c_str(), W_OK | X_OK) != 0) return false;
  if (!target->Status) return true;
  return S_ISREG(target->Status->st_mode) && ::access(target->Path.c_str(), W_OK) == 0;
}

bool IsLink(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
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
