#pragma once

#include "session/situation.h"

#include <filesystem>

namespace orb::ui {

/// Another stage of the game than the present one, as a file has it.
struct Past {
  session::Situation situation;
  std::filesystem::path file;
};

}  // namespace orb::ui
