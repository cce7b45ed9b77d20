#include "cli/run.h"

#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  return orb::cli::Run(arguments, std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1);
}
