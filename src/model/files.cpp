#include "model/files.h"

#include "model/descriptor.h"
#include "model/errors.h"
#include "text/encoding.h"
#include "text/strings.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace orb::model {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailForSize(const fs::path& path) {
  throw FileError("Cannot read " + text::NameInText(path.string()) + ": it is larger than " +
                  std::to_string(LargestFile / 1'000'000) + " MB.");
}

/// Opens an ordinary file, or whatever is read as well. Without waiting: a pipe would hold up the
/// opening until somebody writes into it.
Descriptor OpenToRead(const fs::path& path, Streams streams) {
  const int patience = streams == Streams::Refused ? O_NONBLOCK : 0;
  // The stream itself rather than what /dev leads to: that cannot be opened where it is a socket.
  const bool isInput = path == StandardInput && streams == Streams::Read;
  Descriptor file(isInput ? ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0)
                          : ::open(path.c_str(), O_RDONLY | O_CLOEXEC | patience));
  struct stat status {};
  if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0) FailWith("read", path, errno);
  if (S_ISDIR(status.st_mode)) FailWith("read", path, EISDIR);
  if (!S_ISREG(status.st_mode) && streams == Streams::Refused) {
    throw FileError("Cannot read " + text::NameInText(path.string()) + ": it is no ordinary file.");
  }
  // Without reading it to its end, which may be far: much of it may be a gap that takes no room.
  if (S_ISREG(status.st_mode) && static_cast<std::size_t>(status.st_size) > LargestFile) {
    FailForSize(path);
  }
  return file;
}

std::string ReadAll(const Descriptor& file, const fs::path& path) {
  // Its size is not asked for: nearly every file fits here, and a pipe has none.
  std::array<char, 65536> buffer;
  std::string bytes;
  while (true) {
    const ssize_t got = ::read(file.Number(), buffer.data(), buffer.size());
    if (got < 0 && errno != EINTR) FailWith("read", path, errno);
    if (got == 0) return bytes;
    if (got > 0) bytes.append(buffer.data(), static_cast<std::size_t>(got));
    if (bytes.size() > LargestFile) FailForSize(path);
  }
}

}  // namespace

bool WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

void FailWith(std::string_view action, const fs::path& path, int error) {
  std::string text("Cannot ");
  text.append(action).append(" ").append(text::NameInText(path.string())).append(": ");
  text.append(text::NameInText(std::generic_category().message(error)));
  throw FileError(text.append("."));
}

std::string ReadFile(const fs::path& path, Streams streams) {
  return ReadAll(OpenToRead(path, streams), path);
}

MarkedBytes ReadMarkedFile(const fs::path& path, Streams streams) {
  const Descriptor file = OpenToRead(path, streams);
  MarkedBytes read{ReadAll(file, path), {}};
  read.Mark = MarkOf(path.string(), file.Number(), read.Bytes);
  return read;
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
