#include "model/replacement.h"

#include "model/errors.h"
#include "model/files.h"
#include "text/encoding.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace orb::model {
namespace {

namespace fs = std::filesystem;

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
  if (::access(target.Path.c_str(), W_OK) != 0) FailWith("write", target.Path, errno);
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

Replacement::Replacement(const fs::path& path, std::string_view bytes) : path_(path) {
  const Target target = TargetOf(path);
  CheckReplaceable(target);
  target_ = target.Path;
  // In the same directory: a file can be renamed within its file system only.
  std::string beside(DirectoryPrefix(target_));
  beside += ".orb-XXXXXX";
  file_ = Descriptor(::mkostemp(beside.data(), O_CLOEXEC));
  if (!file_.IsOpen()) FailWith("write", path_, errno);
  // Before its mode is set, since a new owner may take bits away from that.
  KeepOwner(file_.Number(), target);
  // Flushed before it is renamed, or a power failure could leave an empty file under the name.
  const bool written = WriteAll(file_.Number(), bytes) &&
                       ::fchmod(file_.Number(), FileMode(target)) == 0 &&
                       ::fsync(file_.Number()) == 0;
  if (!written) {
    const int error = errno;
    ::unlink(beside.c_str());
    FailWith("write", path_, error);
  }
  written_ = std::move(beside);
  mark_ = MarkOf(path_.string(), file_.Number(), bytes);
}

Replacement::~Replacement() {
  if (!written_.empty()) ::unlink(written_.c_str());
}

void Replacement::Commit() {
  if (::rename(written_.c_str(), target_.c_str()) != 0) FailWith("write", path_, errno);
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

}  // namespace orb::model
