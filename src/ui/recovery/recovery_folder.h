#pragma once

#include <QLockFile>

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

namespace orb::ui {

/// A copy that nobody but the holder of its lock may touch.
class LockedCopy {
 public:
  /// Locks it for this program. The lock of a program that has ended, however it did, is void.
  explicit LockedCopy(std::filesystem::path file);

  const std::filesystem::path& file() const { return m_file; }

  /// Whether this program has the lock, or got it just now. Makes the folder when it is missing.
  bool lock();

  /// Removes the copy, and then gives the lock back.
  void remove();

 private:
  std::filesystem::path m_file;
  std::unique_ptr<QLockFile> m_lock;
};

/// The folder with the copies of all windows, each beside its lock.
class RecoveryFolder {
 public:
  explicit RecoveryFolder(std::filesystem::path folder) : m_folder(std::move(folder)) {}

  /// A copy of its own for one window, under a name that no other has; not written yet.
  LockedCopy newCopy() const;

  /// The copies that windows left behind which are no longer there, the latest first.
  std::vector<LockedCopy> leftBehind() const;

 private:
  std::filesystem::path m_folder;
};

}  // namespace orb::ui
