#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orb::model {

/// The whole contents of a file. Throws FileError with the system's reason.
std::string ReadFile(const std::filesystem::path& path);

/// Replaces a file whole or not at all: writes beside it, flushes to disk, renames over it. On
/// failure throws FileError with the system's reason; the old file stays and nothing lies beside
/// it. A link is followed; anything but an ordinary file is refused.
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
