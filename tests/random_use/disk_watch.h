#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace orb::tests {

/// Watches the files of a folder for changes that nobody has asked for.
class DiskWatch {
 public:
  /// `own` are folders in which the program may write at any time.
  DiskWatch(std::filesystem::path folder, std::set<std::filesystem::path> own);

  enum class As { Game, Anything };

  /// The user has said that this file may be written, from now on to the next look.
  void allow(const std::filesystem::path& file, As as);

  /// What is wrong with the files now: changed, new or missing without permission, left over from
  /// writing, or a game that was written and cannot be read.
  std::vector<std::string> look();

 private:
  std::map<std::filesystem::path, std::size_t> contents() const;
  std::string faultOf(const std::filesystem::path& file, bool isThere) const;

  std::filesystem::path m_folder;
  std::set<std::filesystem::path> m_own;
  std::map<std::filesystem::path, std::size_t> m_known;
  std::map<std::filesystem::path, As> m_allowed;
};

}  // namespace orb::tests
