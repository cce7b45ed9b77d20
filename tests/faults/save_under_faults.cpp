// Usage: save_under_faults ORBCTL WINDOW LIBRARY EXAMPLES [all]
// Lets each call of every command that writes fail in turn, or kills the command there, by the
// LIBRARY of faulty_calls.cpp. Afterwards each file is the old or the new one, whole; no game is
// new without its report; the next save leaves no other file; a command that was not killed has
// said one sentence and has the status 1, or has done all that it should. Prints what broke, and a
// line of figures. "all" takes every error and picture.
// WINDOW is save_in_window, whose commands are tried as those of orbctl are.

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;  ///< names and bytes

/// Words of a command line; those that begin with "@" are files in the folder.
struct Command {
  std::string_view Words;
  std::string_view Game;    ///< what must not be new without
  std::string_view Report;  ///< this
};

constexpr auto Commands = std::to_array<Command>({
    {"new -o @fresh.orb", "", ""},
    {"new --blank --title T -o @moves.orb", "", ""},
    {"resolve --yes --in-place @moves.orb", "moves.orb", "stdout"},
    {"resolve --yes -o @out.orb --report @r.txt --reasons @w.txt @moves.orb", "out.orb", "r.txt"},
    {"next --no-clobber -o @fresh.orb @done.orb", "", ""},
    {"next --in-place @done.orb", "", ""},
    {"undo --yes -o @back.orb @done.orb", "", ""},
    {"map -o @map.bmp @done.orb", "", ""},
    {"map -o @map.svg @done.orb", "", ""},
    {"map -o @map.png --width 300 @done.orb", "", ""},
    {"map -o @map.pdf @done.orb", "", ""},
});
constexpr std::size_t QuickCommands = 7;

/// Each starts a window, which takes its time.
constexpr auto WindowCommands = std::to_array<Command>({
    {"save @moves.orb", "", ""},
    {"saveas @moves.orb @fresh.orb", "", ""},
    {"bitmap @done.orb @map.bmp", "", ""},
    {"text @done.orb @r.txt", "", ""},
    {"orders @moves.orb @r.txt", "", ""},
});

std::string Bytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// What is compared of a file: of a PDF, which holds the time at which it was made, that it is
/// whole.
std::string Contents(const fs::path& file) {
  std::string bytes = Bytes(file);
  const bool isWholePdf = bytes.starts_with("%PDF") && bytes.ends_with("%%EOF\n");
  return isWholePdf ? "a whole PDF" : bytes;
}

struct Outcome {
  int Status = 0;  ///< -1: killed
  std::string Err;
  Files After;
};

class Trial {
 public:
  Trial(fs::path orbctl, fs::path window, std::string library, const fs::path& examples)
      : orbctl_(std::move(orbctl)), window_(std::move(window)), library_(std::move(library)) {
    // In memory where that can be: flushing to a disk thousands of times would take minutes.
    const fs::path memory = "/dev/shm";
    const fs::path base = fs::exists(memory) ? memory : fs::temp_directory_path();
    std::string pattern = (base / "faults.XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error(pattern);
    scratch_ = pattern;
    before_["moves.orb"] = Bytes(examples / "1901-1-spring-0-start.orb");
    before_["done.orb"] = Bytes(examples / "1901-1-spring-1-moves.orb");
    for (const char* old : {"out.orb", "r.txt", "w.txt", "back.orb", "map.bmp"})
      before_[old] = "what was here before\n";
  }
  Trial(const Trial&) = delete;
  Trial& operator=(const Trial&) = delete;
  ~Trial() { fs::remove_all(scratch_); }

  void SetNamed(bool named) { named_ = named; }
  int Faults() const { return faults_; }
  int Broken() const { return broken_; }

  /// Tries the fault at every call of the command, one after another.
  void Run(const Command& command, const std::string& kind) {
    const Outcome clean = Start(command, "");
    if (clean.Status != 0) Complain(command, "without a fault", clean.Err);
    for (int nth = 1;; ++nth) {
      const std::string fault = std::to_string(nth) + " " + kind;
      const Outcome outcome = Start(command, fault);
      if (!fs::exists(scratch_ / "log")) return;
      ++faults_;
      Check(command, fault, clean, outcome);
    }
  }

 private:
  /// Runs the command in the folder as it was.
  Outcome Start(const Command& command, const std::string& fault) {
    fs::remove(scratch_ / "log");
    fs::remove_all(scratch_ / "folder");
    fs::create_directory(scratch_ / "folder");
    for (const auto& [name, bytes] : before_)
      std::ofstream(scratch_ / "folder" / name, std::ios::binary) << bytes;
    Outcome outcome;
    outcome.Status = Execute(command.Words, fault);
    outcome.Err = Bytes(scratch_ / "err");
    outcome.After = Listing();
    outcome.After["stdout"] = Bytes(scratch_ / "out");
    return outcome;
  }

  int Execute(std::string_view words, const std::string& fault) const {
    const bool isInWindow = std::ranges::any_of(
        WindowCommands, [&](const Command& command) { return command.Words == words; });
    std::vector<std::string> arguments{isInWindow ? window_.string() : orbctl_.string()};
    std::istringstream stream{std::string(words)};
    for (std::string word; stream >> word;)
      arguments.push_back(word[0] == '@' ? (scratch_ / "folder" / word.substr(1)).string() : word);
    const pid_t child = ::fork();
    if (child == 0) Become(arguments, fault);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  [[noreturn]] void Become(std::vector<std::string>& arguments, const std::string& fault) const {
    for (const auto& [file, number] : {std::pair{"out", 1}, {"err", 2}}) {
      const int opened = ::open((scratch_ / file).c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      ::dup2(opened, number);
    }
    if (!fault.empty()) {
      ::setenv("LD_PRELOAD", library_.c_str(), 1);
      ::setenv("ORB_FAULT", fault.c_str(), 1);
      ::setenv("ORB_FAULT_LOG", (scratch_ / "log").c_str(), 1);
      if (named_) ::setenv("ORB_FAULT_NAMED", "1", 1);
      // The drawing toolkit opens hundreds of files of fonts.
      if (arguments[1] == "map" || arguments[0] == window_) {
        ::setenv("ORB_FAULT_DIRECTORY", (scratch_ / "folder").c_str(), 1);
      }
    }
    std::vector<char*> texts;
    texts.reserve(arguments.size() + 1);
    for (std::string& argument : arguments)
      texts.push_back(argument.data());
    texts.push_back(nullptr);
    ::execv(texts[0], texts.data());
    ::_exit(127);
  }

  Files Listing() const {
    Files files;
    for (const auto& entry : fs::directory_iterator(scratch_ / "folder"))
      files[entry.path().filename().string()] = Contents(entry.path());
    return files;
  }

  void Check(const Command& command, const std::string& fault, const Outcome& clean,
             const Outcome& outcome) {
    const auto isNew = [&](const std::string& name) {
      const auto now = outcome.After.find(name);
      return now != outcome.After.end() && now->second == clean.After.at(name);
    };
    for (const auto& [name, bytes] : clean.After) {
      if (name == "stdout") continue;
      const auto old = before_.find(name);
      const auto now = outcome.After.find(name);
      const bool isOld = old == before_.end()
                             ? now == outcome.After.end()
                             : now != outcome.After.end() && now->second == old->second;
      if (!isOld && !isNew(name)) Complain(command, fault, name + " is neither old nor new");
      if (outcome.Status == 0 && !isNew(name)) Complain(command, fault, name + " is not done");
    }
    if (!command.Game.empty() && isNew(std::string(command.Game)) &&
        !isNew(std::string(command.Report))) {
      Complain(command, fault, "the game is resolved and its report lost");
    }
    if (outcome.Status == 0 && !isNew("stdout")) Complain(command, fault, "printed something else");
    CheckWords(command, fault, clean, outcome);
    CheckLeftovers(command, fault, outcome);
  }

  void CheckWords(const Command& command, const std::string& fault, const Outcome& clean,
                  const Outcome& outcome) {
    std::istringstream usual(clean.Err);
    std::set<std::string> known;
    for (std::string line; std::getline(usual, line);)
      known.insert(line);
    std::istringstream lines(outcome.Err);
    int sentences = 0;
    for (std::string line; std::getline(lines, line);) {
      if (known.contains(line)) continue;
      ++sentences;
      if (!line.ends_with('.')) Complain(command, fault, "no sentence: " + line);
    }
    const bool isKilled = outcome.Status == -1 && fault.find("kill") != std::string::npos;
    if (isKilled) return;
    if (outcome.Status < 0 || outcome.Status > 1 || sentences != outcome.Status) {
      Complain(command, fault,
               "status " + std::to_string(outcome.Status) + " and " + std::to_string(sentences) +
                   " sentences: " + outcome.Err);
    }
  }

  /// What a killed command left is gone after the next save; others leave nothing.
  void CheckLeftovers(const Command& command, const std::string& fault, const Outcome& outcome) {
    if (outcome.Status == -1) Execute("new -o @moves.orb", "");
    for (const auto& [name, bytes] : Listing()) {
      if (name.starts_with('.')) Complain(command, fault, name + " is left over");
    }
  }

  void Complain(const Command& command, const std::string& fault, const std::string& what) {
    ++broken_;
    std::cout << command.Words << (named_ ? " (named), " : ", ") << fault << ": " << what << '\n';
  }

  fs::path orbctl_;
  fs::path window_;
  std::string library_;
  fs::path scratch_;
  Files before_;
  bool named_ = false;
  int faults_ = 0;
  int broken_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 5) {
    std::cerr << "Usage: save_under_faults ORBCTL WINDOW LIBRARY EXAMPLES [all]\n";
    return 2;
  }
  const bool all = argc > 5 && std::string_view(argv[5]) == "all";
  std::vector<std::string> kinds{std::to_string(ENOSPC), "kill", "killed"};
  if (all) {
    for (const int error : {EIO, EACCES, EDQUOT})
      kinds.push_back(std::to_string(error));
  }
  Trial trial(argv[1], argv[2], argv[3], argv[4]);
  for (const bool named : {false, true}) {
    trial.SetNamed(named);
    const std::size_t quick = named ? 1 : QuickCommands;
    for (std::size_t i = 0; i < (all ? std::size(Commands) : quick); ++i) {
      for (const std::string& kind : kinds)
        trial.Run(Commands[i], kind);
    }
  }
  trial.SetNamed(false);
  for (const Command& command : WindowCommands) {
    for (const std::string& kind : all ? kinds : std::vector{kinds.front(), kinds.back()})
      trial.Run(command, kind);
    if (!all) break;
  }
  std::cout << trial.Faults() << " faults, " << trial.Broken() << " broken\n";
  return trial.Broken() == 0 && trial.Faults() > 0 ? 0 : 1;
}
