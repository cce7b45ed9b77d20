#pragma once

#include <filesystem>
#include <string_view>

namespace orb::model {

/// Writes the bytes at the end of a file, which is made where there is none, and onto the disk. A
/// file to which not all of them can be written stays as it was. Throws FileError, also for what is
/// no ordinary file.
void AppendToFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace orb::model
