#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orb::tests {

/// The data directory of the source tree.
std::filesystem::path DataDirectory();

/// A file of the tests' own, by its path below tests/.
std::filesystem::path TestFile(std::string_view name);

/// A new directory that goes away with all it holds.
class TemporaryDirectory {
 public:
  TemporaryDirectory();
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory();

  const std::filesystem::path& Path() const { return path_; }

  /// Writes a file in it and returns its path.
  std::filesystem::path Write(std::string_view name, std::string_view bytes) const;

  /// How many entries it holds.
  std::ptrdiff_t EntryCount() const;

 private:
  std::filesystem::path path_;
};

/// The data files of the source tree as links in a directory of their own, in which a program may
/// also write.
class TemporaryProgram : public TemporaryDirectory {
 public:
  TemporaryProgram();
};

}  // namespace orb::tests
