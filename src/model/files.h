#pragma once

#include "model/file_mark.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace orb::model {

/// The most that is read of a file, in bytes: far beyond any that the program can use.
constexpr std::size_t LargestFile = 100'000'000;

/// The path that stands for what is piped into the program.
constexpr std::string_view StandardInput = "/dev/stdin";

/// Whether pipes and devices are read as well as ordinary files. They may keep the reader waiting
/// for ever, which is what a user of a terminal expects and one of a window does not.
enum class Streams : std::uint8_t { Refused, Read };

/// The whole contents of a file. Throws FileError with the system's reason, for what is no ordinary
/// file unless that is to be read, and for what has no end or is larger than LargestFile.
std::string ReadFile(const std::filesystem::path& path, Streams streams = Streams::Refused);

/// A file's contents, and the mark by which a later change is known.
struct MarkedBytes {
  std::string Bytes;
  FileMark Mark;
};

/// The same with the file's mark.
MarkedBytes ReadMarkedFile(const std::filesystem::path& path, Streams streams = Streams::Refused);

/// What becomes of a file that is there already when a new one is to take its place.
enum class Existing : std::uint8_t { Replaced, Kept };

/// Replaces a file whole or not at all; throws FileError with the system's reason, also where there
/// is a file that is to be kept. A link is followed; anything but an ordinary file is refused.
void ReplaceFile(const std::filesystem::path& path, std::string_view bytes,
                 Existing existing = Existing::Replaced);

/// Throws the FileError that says that the file exists and is kept.
[[noreturn]] void FailForExisting(const std::filesystem::path& path);

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
