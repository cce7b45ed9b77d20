#include "model/replacement.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/leftovers.h"
#include "text/encoding.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <random>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace orb::model {
namespace {

namespace fs = std::filesystem;

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

/// A new file without a name, which vanishes with the program; none where the file system has no
/// such files.
Descriptor OpenUnnamed(const std::string& directory) {
  // It can be given a name only by way of /proc.
  static const bool canBeNamed = ::access("/proc/self/fd", X_OK) == 0;
  if (!canBeNamed) return Descriptor();
  const char* const path = directory.empty() ? "." : directory.c_str();
  Descriptor file(::open(path, O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600));
  if (file.IsOpen()) LockUnfinished(file.Number());
  return file;
}

/// A new file, whose name is put in place of the pattern "XXXXXX".
Descriptor OpenNamed(std::string& pattern) {
  Descriptor file(::mkostemp(pattern.data(), O_CLOEXEC));
  if (file.IsOpen()) LockUnfinished(file.Number());
  return file;
}

/// A path to an open file that may have no name.
std::string NumberPath(const Descriptor& file) {
  return "/proc/self/fd/" + std::to_string(file.Number());
}

/// Gives a file without a name one like those of mkostemp; false with errno where that fails.
bool GiveName(const Descriptor& file, std::string& pattern) {
  const std::string number = NumberPath(file);
  // Seeded once: that takes as long as all the rest of it.
  static std::minstd_rand random{std::random_device()()};
  constexpr int tries = 100;
  for (int i = 0; i < tries; ++i) {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
    for (char* at = &*pattern.end() - 6; at != &*pattern.end(); ++at)
      *at = letters[random() % letters.size()];
    if (::linkat(AT_FDCWD, number.c_str(), AT_FDCWD, pattern.c_str(), AT_SYMLINK_FOLLOW) == 0) {
      return true;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

/// Flushes the new name to disk as well. One who may not list a directory cannot do that, and some
/// file systems know no such thing.
bool FlushDirectory(const std::string& directory) {
  const Descriptor opened(
      ::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!opened.IsOpen()) return errno == EACCES;
  return ::fsync(opened.Number()) == 0 || errno == EINVAL;
}

}  // namespace

Replacement::TemporaryName::~TemporaryName() {
  if (!Path.empty()) ::unlink(Path.c_str());
}

Replacement::Replacement(const fs::path& path, std::string_view bytes) : path_(path) {
  const Target target = TargetOf(path);
  CheckReplaceable(target);
  target_ = target.Path;
  // In the same directory: a file can be renamed within its file system only.
  directory_ = DirectoryPrefix(target_);
  RemoveLeftovers(directory_);
  file_ = OpenUnnamed(directory_);
  if (!file_.IsOpen()) {
    std::string name = UnfinishedName();
    file_ = OpenNamed(name);
    if (!file_.IsOpen()) FailWith("write", path_, errno);
    name_.Path = std::move(name);
  }
  // Before its mode is set, since a new owner may take bits away from that.
  KeepOwner(file_.Number(), target);
  // Flushed before it is renamed, or a power failure could leave an empty file under the name.
  const bool written = WriteAll(file_.Number(), bytes) &&
                       ::fchmod(file_.Number(), FileMode(target)) == 0 &&
                       ::fsync(file_.Number()) == 0;
  if (!written) FailWith("write", path_, errno);
  mark_ = MarkOf(path_.string(), file_.Number(), bytes);
}

std::string Replacement::UnfinishedName() const {
  return (directory_ + std::string(UnfinishedPrefix)).append("XXXXXX");
}

void Replacement::TakeFreeName() {
  const bool isNamed = !name_.Path.empty();
  const int failed = isNamed ? ::renameat2(AT_FDCWD, name_.Path.c_str(), AT_FDCWD, target_.c_str(),
                                           RENAME_NOREPLACE)
                             : ::linkat(AT_FDCWD, NumberPath(file_).c_str(), AT_FDCWD,
                                        target_.c_str(), AT_SYMLINK_FOLLOW);
  if (failed != 0 && errno == EEXIST) FailForExisting(path_);
  if (failed != 0) FailWith("write", path_, errno);
}

void Replacement::TakeName() {
  if (name_.Path.empty()) {
    std::string name = UnfinishedName();
    if (!GiveName(file_, name)) FailWith("write", path_, errno);
    name_.Path = std::move(name);
  }
  if (::rename(name_.Path.c_str(), target_.c_str()) != 0) FailWith("write", path_, errno);
}

void Replacement::Commit(Existing existing) {
  existing == Existing::Kept ? TakeFreeName() : TakeName();
  name_.Path.clear();
  if (!FlushDirectory(directory_)) {
    const std::string reason = std::generic_category().message(errno);
    throw FileError(
        text::NameInText(path_.string()) +
        " was written, but a power failure could still lose it: " + text::NameInText(reason) + ".");
  }
}

void ReplaceFile(const fs::path& path, std::string_view bytes, Existing existing) {
  Replacement(path, bytes).Commit(existing);
}

void FailForExisting(const fs::path& path) {
  throw FileError(text::NameInText(path.string()) + " exists already: it is left as it is.");
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
