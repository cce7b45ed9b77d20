#pragma once

#include <filesystem>
#include <string>

namespace orb::model {

/// A function of a module, which is loaded for good when the first one is asked for. Throws
/// FatalError, which begins with `failure` and has the system's reason.
void* ModuleFunction(const std::filesystem::path& module, const char* function,
                     const std::string& failure);

}  // namespace orb::model
