#include "cli/paths.h"

#include "cli/command.h"
#include "model/files.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <unordered_map>

namespace orb::cli {
namespace {

namespace fs = std::filesystem;

bool IsDirectory(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

/// An option that names a file, or a directory with a file for each game in it.
class PathOption {
 public:
  PathOption(const CommandLine& line, OptionId id, std::string_view extension)
      : extension_(extension) {
    if (!line.Has(id)) return;
    path_ = *line.Value(id);
    if (path_.empty()) throw UsageError("An empty text is no path.");
    inDirectory_ = IsDirectory(path_);
    if (!inDirectory_ && line.Games.size() > 1) {
      throw UsageError("With several games " + path_.string() + " must be an existing directory.");
    }
  }

  bool InDirectory() const { return inDirectory_; }

  fs::path For(const fs::path& game) const {
    if (!inDirectory_) return path_;
    fs::path name = game.stem();
    return path_ / (name += extension_);
  }

 private:
  fs::path path_;
  std::string_view extension_;
  bool inDirectory_ = false;
};

/// Tells whether two paths name the same file; directories are looked up once.
class FileNames {
 public:
  std::string Of(const fs::path& path) {
    std::error_code error;
    if (fs::is_symlink(path, error)) {
      fs::path target = fs::weakly_canonical(path, error);
      if (!error) return target.string();
    }
    const fs::path parent = path.parent_path();
    auto [known, isNew] = directories_.try_emplace(parent.string());
    if (isNew) known->second = fs::weakly_canonical(parent.empty() ? "." : parent, error).string();
    return known->second + "/" + path.filename().string();
  }

 private:
  std::unordered_map<std::string, std::string> directories_;
};

/// A file that is written twice, or read after it was written, would lose what somebody wanted.
void CheckOverlaps(const std::vector<GamePaths>& plan, bool mayReplace) {
  FileNames names;
  std::set<std::string> written;
  std::set<std::string> read;
  const auto add = [&](const fs::path& path, std::string name) {
    if (written.insert(std::move(name)).second) return;
    throw UsageError(path.string() + " would be written twice.");
  };
  const auto addText = [&](const fs::path& path) {
    if (!path.empty() && path != StandardOutput && !IsDevice(path)) add(path, names.Of(path));
  };
  for (const GamePaths& paths : plan) {
    if (paths.Output.empty()) continue;
    const std::string game = names.Of(paths.Game);
    std::string output = paths.Output == paths.Game ? game : names.Of(paths.Output);
    if (output != game || !mayReplace) read.insert(game);
    add(paths.Output, std::move(output));
    addText(paths.Report);
    addText(paths.Reasons);
    if (!paths.Orders.empty()) read.insert(names.Of(paths.Orders));
  }
  for (const std::string& name : read) {
    if (written.contains(name)) throw UsageError(name + " would be both read and written.");
  }
}

}  // namespace

bool IsDevice(const fs::path& path) {
  std::error_code ignored;
  const fs::file_type type = fs::status(path, ignored).type();
  return type == fs::file_type::character || type == fs::file_type::fifo;
}

std::vector<GamePaths> PlanPaths(const CommandLine& line) {
  const PathOption output(line, OptionId::Output, ".orb");
  const PathOption orders(line, OptionId::Orders, ".txt");
  const PathOption report(line, OptionId::Report, ".txt");
  const PathOption reasons(line, OptionId::Reasons, ".txt");
  std::vector<GamePaths> plan;
  plan.reserve(line.Games.size());
  for (const std::string& game : line.Games) {
    GamePaths& paths = plan.emplace_back();
    paths.Game = game;
    paths.Output = line.Has(OptionId::InPlace) ? fs::path(game) : output.For(game);
    paths.Orders = orders.For(game);
    paths.Report = report.For(game);
    paths.Reasons = reasons.For(game);
    paths.OrdersMayLack = orders.InDirectory();
  }
  const auto options = line.Verb->Options;
  CheckOverlaps(plan, std::ranges::find(options, OptionId::InPlace) != options.end());
  return plan;
}

fs::path DataDirectory(const CommandLine& line) {
  if (!line.Has(OptionId::Data)) return model::ProgramDirectory();
  fs::path directory = *line.Value(OptionId::Data);
  if (!IsDirectory(directory)) {
    throw UsageError("The data directory " + directory.string() + " does not exist.");
  }
  return directory;
}

}  // namespace orb::cli
