#pragma once

#include <filesystem>

namespace orb::ui {

/// The directories that the window works with. Tests give it some of their own.
struct Places {
  std::filesystem::path program;     ///< of the program file, and of the data files beside it
  std::filesystem::path config;      ///< the user's own for this program; need not exist yet
  std::filesystem::path state = {};  ///< for copies of games not saved; empty: none are kept
};

}  // namespace orb::ui
