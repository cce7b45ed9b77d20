#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace orb::model {

/// The most that is read of a file, in bytes: far beyond any that the program can use.
constexpr std::size_t LargestFile = 100'000'000;

/// The whole contents of a file or pipe. Throws FileError with the system's reason, and for what
/// has no end or is larger than LargestFile.
std::string ReadFile(const std::filesystem::path& path);

/// The new contents of a file, written next to it and flushed to disk, that take its place at
/// Commit. Where they are dropped before, the old file stays and nothing lies next to it. All but
/// the renaming is done by then, so that what must come between can still stop it.
class Replacement {
 public:
  /// Throws FileError with the system's reason. A link is followed; anything but an ordinary file
  /// is refused.
  Replacement(const std::filesystem::path& path, std::string_view bytes);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  /// Takes the old file's place; throws FileError. To be called once.
  void Commit();

 private:
  std::filesystem::path path_;    ///< as given, for error texts
  std::filesystem::path target_;  ///< links followed
  std::string written_;           ///< the file with the new contents; empty once it took its place
};

/// Replaces a file whole or not at all, as a Replacement that is committed at once.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes);

/// Whether ReplaceFile may write the file, as far as permissions tell.
bool CanReplaceFile(const std::filesystem::path& path);

/// Whether it is a symbolic link; it may lead nowhere.
bool IsLink(const std::string& path);

/// The path with the file's own name in small letters; directories stay as given.
std::filesystem::path LowerCaseName(const std::filesystem::path& path);

/// The file meant by a user who may not care about letter case: the one with its own name in small
/// letters, unless only the name as given exists.
std::filesystem::path FileInAnyCase(const std::filesystem::path& path);

/// The directory of the running program's file, links resolved.
std::filesystem::path ProgramDirectory();

}  // namespace orb::model
