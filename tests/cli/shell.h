#pragma once

#include "cli/console.h"
#include "support/directories.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::tests {

/// What a command line gave. The shell's directory is written as "@".
struct Outcome {
  int Status = 0;
  std::string Out;
  std::string Err;
};

/// A temporary directory in which commands run on the real map unless they name another with
/// --data. "@NAME" stands for a file in it.
class Shell {
 public:
  const TemporaryDirectory& Directory() const { return directory_; }

  /// Runs a command line whose arguments are separated by single blanks.
  Outcome Run(std::string_view line) const;
  Outcome Run(const std::vector<std::string>& arguments,
              const cli::Terminals& terminals = {}) const;

  void Write(std::string_view name, std::string_view bytes) const { directory_.Write(name, bytes); }
  void MakeDirectory(std::string_view name) const;

  /// The bytes of a file; "none" where there is none.
  std::string Read(std::string_view name) const;

  /// Names of all files and directories in it, sorted, each followed by a blank.
  std::string Listing() const;

 private:
  std::string Expanded(std::string text) const;
  std::string Shortened(std::string text) const;

  TemporaryDirectory directory_;
};

/// A game file with these units ("FRA A(Bur)", dislodged "FRA A(Bur) <Mun"), one per line, and
/// owned centres: "FRA Par Mar".
std::string GameFile(std::string_view season, std::string_view stage, std::string_view units,
                     std::string_view owners = "");

}  // namespace orb::tests
