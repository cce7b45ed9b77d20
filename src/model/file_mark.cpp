#include "model/file_mark.h"

#include "model/errors.h"
#include "model/files.h"

#include <cerrno>
#include <chrono>
#include <functional>
#include <sys/stat.h>
#include <utility>

namespace orb::model {
namespace {

FileMark MarkOf(const struct stat& status) {
  constexpr std::int64_t second = 1'000'000'000;
  FileMark mark;
  mark.Device = status.st_dev;
  mark.Inode = status.st_ino;
  mark.Size = static_cast<std::uint64_t>(status.st_size);
  mark.Modified = status.st_mtim.tv_sec * second + status.st_mtim.tv_nsec;
  return mark;
}

/// Whether a file with this time may be changed once more without getting another one: file systems
/// count in steps of up to two seconds.
bool IsTooLate(std::int64_t modified) {
  using std::chrono::nanoseconds;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return nanoseconds(modified) > now - std::chrono::seconds(2);
}

bool HasBytesOf(const FileMark& mark) {
  const std::string bytes = ReadFile(mark.Path);
  return bytes.size() == mark.Size && std::hash<std::string_view>()(bytes) == mark.Hash;
}

}  // namespace

FileMark MarkOf(std::string path, int descriptor, std::string_view bytes) {
  struct stat status {};
  FileMark mark;
  if (::fstat(descriptor, &status) == 0) mark = MarkOf(status);
  if (IsTooLate(mark.Modified)) mark.Modified = 0;
  mark.Path = std::move(path);
  mark.Size = bytes.size();
  mark.Hash = std::hash<std::string_view>()(bytes);
  return mark;
}

FileChange ChangeSince(const FileMark& mark) {
  struct stat status {};
  if (::stat(mark.Path.c_str(), &status) != 0) {
    return errno == ENOENT || errno == ENOTDIR ? FileChange::Gone : FileChange::Changed;
  }
  const FileMark now = MarkOf(status);
  if (now.Size != mark.Size || !S_ISREG(status.st_mode)) return FileChange::Changed;
  const bool isUntouched = now.Device == mark.Device && now.Inode == mark.Inode &&
                           mark.Modified != 0 && now.Modified == mark.Modified;
  if (isUntouched) return FileChange::None;
  try {
    return HasBytesOf(mark) ? FileChange::None : FileChange::Changed;
  } catch (const FileError&) {
    // It cannot be told to be the same.
    return FileChange::Changed;
  }
}

}  // namespace orb::model
