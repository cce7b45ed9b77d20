#include "cli/run.h"

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <langinfo.h>
#include <string>
#include <string_view>
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

/// Whether the user's locale is in UTF-8. The program's own stays "C", by which texts are compared
/// and numbers written.
bool IsUtf8Locale() {
  const locale_t locale = ::newlocale(LC_CTYPE_MASK, "", nullptr);
  if (locale == nullptr) return false;
  const std::string_view codes = ::nl_langinfo_l(CODESET, locale);
  const bool isUtf8 = codes == "UTF-8";
  ::freelocale(locale);
  return isUtf8;
}

std::string_view Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

orb::cli::Terminals FindTerminals() {
  const bool out = ::isatty(STDOUT_FILENO) == 1;
  const bool err = ::isatty(STDERR_FILENO) == 1;
  // Asked for only where it matters: a new locale takes longer than to read a game.
  if (!out && !err) return {};
  const bool colours = Environment("NO_COLOR").empty() && Environment("TERM") != "dumb";
  return {out, err, IsUtf8Locale(), colours};
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  // The output is flushed before each message only where both streams go to the same place, since
  // only there does their order show; a run of thousands of games is faster without.
  if (!IsSameFile(STDOUT_FILENO, STDERR_FILENO)) std::cerr.tie(nullptr);
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return orb::cli::Run(arguments, std::cout, std::cerr, FindTerminals());
}
