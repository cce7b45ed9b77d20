#include "random_use/disk_watch.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/game_file.h"
#include "model/map_files.h"
#include "support/directories.h"

#include <functional>
#include <utility>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

/// Whether a game that the program has written is one that it opens.
bool isWhole(const fs::path& file) {
  static const auto map = model::LoadMap(DataDirectory());
  model::GameState game = model::EmptyGame(map);
  try {
    return !model::ParseGameFile(model::ReadFile(file), file.string(), game);
  } catch (const model::FatalError&) {
    return false;
  }
}

}  // namespace

DiskWatch::DiskWatch(fs::path folder, std::set<fs::path> own)
    : m_folder(std::move(folder)), m_own(std::move(own)), m_known(contents()) {}

std::map<fs::path, std::size_t> DiskWatch::contents() const {
  std::map<fs::path, std::size_t> found;
  for (fs::recursive_directory_iterator entry(m_folder), end; entry != end; ++entry) {
    if (m_own.contains(entry->path())) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      found[entry->path()] = std::hash<std::string>()(model::ReadFile(entry->path()));
    }
  }
  return found;
}

void DiskWatch::allow(const fs::path& file, As as) {
  // What was exported over a game need not be one any more.
  As& allowed = m_allowed.try_emplace(file.lexically_normal(), as).first->second;
  if (as == As::Anything) allowed = as;
}

std::string DiskWatch::faultOf(const fs::path& file, bool isThere) const {
  const std::string name = file.filename().string();
  if (name.starts_with(".orb-")) return "left over: " + file.string();
  // What orders came in is written down beside the game unasked.
  if (isThere && name.ends_with(".received.txt")) return {};
  const auto allowed = m_allowed.find(file);
  if (allowed == m_allowed.end()) return "changed unasked: " + file.string();
  if (!isThere) return "gone: " + file.string();
  return allowed->second == As::Game && !isWhole(file) ? "no game: " + file.string()
                                                       : std::string();
}

std::vector<std::string> DiskWatch::look() {
  std::map<fs::path, std::size_t> now = contents();
  std::vector<std::string> faults;
  const auto judge = [&](const fs::path& file, bool isThere) {
    if (std::string fault = faultOf(file, isThere); !fault.empty())
      faults.push_back(std::move(fault));
  };
  for (const auto& [file, hash] : now) {
    const auto before = m_known.find(file);
    if (before == m_known.end() || before->second != hash) judge(file, true);
  }
  for (const auto& [file, hash] : m_known) {
    if (!now.contains(file)) judge(file, false);
  }
  m_known = std::move(now);
  m_allowed.clear();
  return faults;
}

}  // namespace orb::tests
