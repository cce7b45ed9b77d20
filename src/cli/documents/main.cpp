#include "completions.h"
#include "manual.h"

#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

/// Prints one of the documents that are made from the tables of commands and options.
int main(int argc, char** argv) {
  using namespace orb::cli;
  static const std::map<std::string_view, std::function<std::string()>> documents{
      {"manual", ManualSections},
      {"bash", BashCompletion},
      {"zsh", ZshCompletion},
      {"fish", FishCompletion}};
  const auto found = documents.find(argc == 2 ? argv[1] : "");
  if (found == documents.end()) {
    std::cerr << "Usage: orb_documents manual|bash|zsh|fish\n";
    return 2;
  }
  std::cout << found->second() << std::flush;
  return std::cout ? EXIT_SUCCESS : EXIT_FAILURE;
}
