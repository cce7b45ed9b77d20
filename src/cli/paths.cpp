#include "cli/paths.h"

#include "cli/command.h"
#include "model/files.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <map>
#include <system_error>
#include <unordered_set>

namespace orb::cli {
namespace {

namespace fs = std::filesystem;

/// What the program itself reads: whoever writes over one of them breaks it for all games.
constexpr std::array<std::string_view, 12> DataFiles{
    "prov.dat", "conna.dat",   "connf.dat", "fixnames.dat", "start.dat",   "fixpaste.dat",
    "map.bmp",  "mapgrey.bmp", "mapbw.bmp", "maphit.bmp",   "orbhelp.txt", "orb.ini"};

bool IsDirectory(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

// What is done for each of thousands of games works on the texts of the paths: taking apart and
// joining std::filesystem::path objects would cost as much as part of the adjudication.

/// The part of a path behind its last "/".
std::string_view FileName(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

/// The file's own name without its extension; a name that begins with its only dot has none.
std::string_view Stem(std::string_view path) {
  const std::string_view name = FileName(path);
  const std::size_t dot = name.rfind('.');
  return dot == 0 || name == ".." ? name : name.substr(0, dot);
}

/// An option that names a file, or a directory with a file for each game in it.
class PathOption {
 public:
  PathOption(const CommandLine& line, OptionId id, std::string_view extension)
      : extension_(extension) {
    if (!line.Has(id)) return;
    path_ = *line.Value(id);
    if (path_.empty()) throw UsageError("A path cannot be empty.");
    inDirectory_ = IsDirectory(path_);
    prefix_ = (path_ / "").string();
    // Texts of several games can be told apart where they are printed, by their headings.
    const bool isPrinted = path_ == StandardOutput && id != OptionId::Output;
    if (!inDirectory_ && !isPrinted && line.IsForMany()) {
      throw UsageError("With several games " + path_.string() + " must be an existing directory.");
    }
  }

  bool InDirectory() const { return inDirectory_; }

  fs::path For(const std::string& game) const {
    if (!inDirectory_) return path_;
    return prefix_ + std::string(Stem(game)).append(extension_);
  }

 private:
  fs::path path_;
  std::string prefix_;  ///< of the files in the directory
  std::string_view extension_;
  bool inDirectory_ = false;
};

/// Gives every file one name, however the paths to it are written: two paths name the same file if
/// these names are equal. Each directory is looked up only once.
class FileNames {
 public:
  std::string Of(const std::string& path) {
    std::error_code error;
    // Only a link needs to be looked up by itself; the directory of all others is known.
    if (model::IsLink(path)) {
      fs::path target = fs::weakly_canonical(path, error);
      if (!error) return target.string();
    }
    const std::string_view name = FileName(path);
    std::string_view directory = std::string_view(path).substr(0, path.size() - name.size());
    auto known = directories_.find(directory);
    if (known == directories_.end()) {
      const fs::path parent = fs::path(path).parent_path();
      fs::path full = fs::weakly_canonical(parent.empty() ? "." : parent, error);
      known = directories_.emplace(directory, full.string() + "/").first;
    }
    return known->second + std::string(name);
  }

 private:
  std::map<std::string, std::string, std::less<>> directories_;
};

/// Refuses a plan in which a file would be written twice, or be read after it has been written:
/// either way somebody would lose what they wanted. It runs before the first game is read, so that
/// nothing has been done when it throws.
void CheckOverlaps(const std::vector<GamePaths>& plan, bool mayReplace, const fs::path& data) {
  FileNames names;
  std::unordered_set<std::string> written;
  std::vector<std::string> read;
  const auto add = [&](const fs::path& path, std::string name) {
    if (written.insert(std::move(name)).second) return;
    throw UsageError(path.string() + " would be written twice.");
  };
  const auto addText = [&](const fs::path& path) {
    if (!path.empty() && !IsStream(path) && !IsDevice(path)) add(path, names.Of(path));
  };
  for (const GamePaths& paths : plan) {
    if (paths.Output.empty() || paths.Output == StandardOutput) continue;
    std::string game = names.Of(paths.Game);
    std::string output = paths.Output.native() == paths.Game ? game : names.Of(paths.Output);
    // A game written over itself is safe: it is read whole before.
    if (output != game || !mayReplace) read.push_back(std::move(game));
    add(paths.Output, std::move(output));
    addText(paths.Report);
    addText(paths.Reasons);
    if (!paths.Orders.empty()) read.push_back(names.Of(paths.Orders));
  }
  if (!written.empty()) {
    for (const std::string_view file : DataFiles)
      read.push_back(names.Of((data / file).string()));
  }
  // Compared only now that all outputs are known: a later game may be written over an earlier one.
  std::erase_if(read, [&](const std::string& name) { return !written.contains(name); });
  if (read.empty()) return;
  throw UsageError(*std::ranges::min_element(read) + " would be both read and written.");
}

/// Refuses a plan in which the standard output would have to hold two things.
void CheckStreams(const CommandLine& line, const std::vector<GamePaths>& plan) {
  for (const GamePaths& paths : plan) {
    if (paths.Output == model::StandardInput) {
      throw UsageError("A game from the standard input cannot be replaced: -o names another file.");
    }
    if (paths.Output != StandardOutput) continue;
    const bool reports = Knows(*line.Verb, OptionId::Report);
    if (reports && (paths.Report.empty() || paths.Report == StandardOutput)) {
      throw UsageError(
          "The game and its report cannot both go to the standard output: "
          "--report names another place.");
    }
    if (paths.Reasons == StandardOutput) {
      throw UsageError("The game and its reasons cannot both go to the standard output.");
    }
  }
}

/// The names that a list holds: one per line, or each ended by NUL as "find -print0" writes them.
std::vector<std::string> ListedNames(std::string_view list) {
  const char end = list.find('\0') == std::string_view::npos ? '\n' : '\0';
  std::vector<std::string> names;
  while (!list.empty()) {
    const std::size_t length = std::min(list.find(end), list.size());
    if (length > 0) names.emplace_back(list.substr(0, length));
    list.remove_prefix(std::min(length + 1, list.size()));
  }
  return names;
}

}  // namespace

void AddListedGames(CommandLine& line) {
  const auto& file = line.Value(OptionId::FilesFrom);
  if (!file) return;
  auto names = ListedNames(model::ReadFile(*file, model::Streams::Read));
  std::ranges::move(names, std::back_inserter(line.Games));
}

bool IsStream(const fs::path& path) {
  return path == model::StandardInput || path == StandardOutput || path == StandardError;
}

bool IsDevice(const fs::path& path) {
  // What these lead to may be an ordinary file, but one that somebody has opened to be written on.
  const bool isOpened =
      path.native().starts_with("/dev/fd/") || path.native().starts_with("/proc/self/fd/");
  if (isOpened) return true;
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
    paths.HasHeading = line.IsForMany();
    if (line.Has(OptionId::NoClobber)) paths.Existing = model::Existing::Kept;
  }
  CheckStreams(line, plan);
  CheckOverlaps(plan, Knows(*line.Verb, OptionId::InPlace), DataDirectory(line));
  return plan;
}

std::vector<GamePaths> PlanOneOutput(const CommandLine& line) {
  const PathOption orders(line, OptionId::Orders, ".txt");
  const fs::path output = *line.Value(OptionId::Output);
  if (output.empty()) throw UsageError("A path cannot be empty.");
  FileNames names;
  std::vector<GamePaths> plan;
  for (const std::string& game : line.Games) {
    GamePaths& paths = plan.emplace_back();
    paths.Game = game;
    if (line.Has(OptionId::NoClobber)) paths.Existing = model::Existing::Kept;
    paths.Output = output;
    paths.Orders = orders.For(game);
    paths.OrdersMayLack = orders.InDirectory();
    if (IsStream(output)) continue;
    const std::string written = names.Of(output.string());
    if (names.Of(game) == written || (!paths.Orders.empty() && names.Of(paths.Orders) == written)) {
      throw UsageError(output.string() + " would be both read and written.");
    }
  }
  CheckNoDataFile(output, DataDirectory(line));
  return plan;
}

void CheckNoDataFile(const fs::path& output, const fs::path& data) {
  FileNames names;
  const std::string written = names.Of(output.string());
  const bool isData = std::ranges::any_of(DataFiles, [&](std::string_view file) {
    return names.Of((data / file).string()) == written;
  });
  if (isData) throw UsageError(output.string() + " is one of the program's own data files.");
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
