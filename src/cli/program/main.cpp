#include "cli/run.h"

#include <iostream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

/// Whether two descriptors lead to the same terminal, file or pipe.
bool IsSameFile(int a, int b) {
  struct stat first {};
  struct stat second {};
  if (::fstat(a, &first) != 0 || ::fstat(b, &second) != 0) return false;
  return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // The output is flushed before each message only where both streams go to the same place, since
  // only there does their order show; a run of thousands of games is faster without.
  if (!IsSameFile(STDOUT_FILENO, STDERR_FILENO)) std::cerr.tie(nullptr);
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return orb::cli::Run(arguments, std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1);
}
