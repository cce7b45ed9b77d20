#include "support/directories.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace orb::tests {

namespace fs = std::filesystem;

fs::path DataDirectory() {
  return fs::path(ORB_SOURCE_DIR) / "data";
}

fs::path TestFile(std::string_view name) {
  return fs::path(ORB_SOURCE_DIR) / "tests" / name;
}

TemporaryDirectory::TemporaryDirectory() {
  std::string pattern = (fs::temp_directory_path() / "orb-test-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
  path_ = pattern;
}

TemporaryDirectory::~TemporaryDirectory() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

fs::path TemporaryDirectory::Write(std::string_view name, std::string_view bytes) const {
  fs::path file = path_ / name;
  // In place of a link, never through it: it may lead to the data of the source tree.
  if (fs::is_symlink(file)) fs::remove(file);
  std::ofstream(file, std::ios::binary) << bytes;
  return file;
}

std::ptrdiff_t TemporaryDirectory::EntryCount() const {
  return std::distance(fs::directory_iterator(path_), fs::directory_iterator());
}

TemporaryProgram::TemporaryProgram() {
  for (const auto& file : std::filesystem::directory_iterator(DataDirectory())) {
    // Settings left there by hand are nobody else's.
    if (file.path().extension() == ".ini") continue;
    std::filesystem::create_symlink(file.path(), Path() / file.path().filename());
  }
}

}  // namespace orb::tests
