// The least that a program can do that resolves game files: reads each, writes a file of the size
// of the resolved one beside its place, flushes it to disk, renames it and flushes the directory.
// orbctl is measured against it.
//
// Usage: bare_rewrite SIZE OUTPUT_DIRECTORY GAME...

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

bool ReadWhole(const char* path) {
  const int file = ::open(path, O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  std::array<char, 65536> buffer{};
  ssize_t got = 0;
  do {
    got = ::read(file, buffer.data(), buffer.size());
  } while (got > 0);
  ::close(file);
  return got == 0;
}

bool Flush(const char* directory) {
  const int opened = ::open(directory, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool isFlushed = opened >= 0 && ::fsync(opened) == 0;
  if (opened >= 0) ::close(opened);
  return isFlushed;
}

bool Replace(const std::string& path, std::string_view bytes) {
  std::string beside = path + ".XXXXXX";
  const int file = ::mkostemp(beside.data(), O_CLOEXEC);
  if (file < 0) return false;
  const bool written =
      ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()) &&
      ::fsync(file) == 0;
  return ::close(file) == 0 && written && ::rename(beside.c_str(), path.c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fputs("Usage: bare_rewrite SIZE OUTPUT_DIRECTORY GAME...\n", stderr);
    return 2;
  }
  const std::string bytes(std::strtoul(argv[1], nullptr, 10), 'x');
  for (int i = 3; i < argc; ++i) {
    const std::string_view game = argv[i];
    const std::string output =
        std::string(argv[2]) + "/" + std::string(game.substr(game.rfind('/') + 1));
    if (!ReadWhole(argv[i]) || !Replace(output, bytes) || !Flush(argv[2])) {
      std::perror(argv[i]);
      return 1;
    }
  }
  return 0;
}
