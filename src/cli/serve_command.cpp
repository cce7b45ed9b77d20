#include "serve/server.h"

#include "cli/commands.h"
#include "cli/console.h"
#include "cli/paths.h"
#include "model/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <string>
#include <sys/types.h>
#include <unistd.h>

namespace orb::cli {
namespace {

constexpr auto Examples = std::to_array<Example>({
    {"answer the requests of another program, or of a file that is piped into it", "serve"},
});

/// Far more than any game needs, and little enough to be kept.
constexpr std::size_t LongestLine = 1'000'000;

/// Answers on their way out, some of them at a time: whoever reads them is woken by each writing.
class AnswerQueue {
 public:
  explicit AnswerQueue(Console& console) : console_(console) {}

  void Add(std::string_view answer) {
    waiting_.append(answer).append("\n");
    if (waiting_.size() >= Enough) Print();
  }

  void Deliver() {
    Print();
    console_.Deliver();
  }

 private:
  /// What a pipe holds.
  static constexpr std::size_t Enough = 65'536;

  void Print() {
    console_.PrintBytes(waiting_);
    waiting_.clear();
  }

  Console& console_;
  std::string waiting_;
};

/// Cuts what a descriptor brings into lines. Whoever waits for answers to what was read so far gets
/// them before this waits for more.
class LineReader {
 public:
  LineReader(int in, AnswerQueue& answers) : in_(in), answers_(answers) {}

  /// The next line, without its end, until the next call; nothing at the end of input. Of a line
  /// that is too long only the beginning is kept.
  std::optional<std::string_view> Next() {
    bytes_.erase(0, next_);
    next_ = 0;
    std::size_t end = 0;
    while ((end = bytes_.find('\n', seen_)) == std::string::npos) {
      if (bytes_.size() > LongestLine) bytes_.resize(LongestLine + 1);
      seen_ = bytes_.size();
      if (Fill()) continue;
      if (bytes_.empty()) return std::nullopt;
      end = bytes_.size();
      break;
    }
    seen_ = 0;
    next_ = std::min(end + 1, bytes_.size());
    return std::string_view(bytes_).substr(0, end);
  }

 private:
  /// Takes over what has arrived; waits for it if nothing has. False at the end of input.
  bool Fill() {
    // As much as a pipe holds: by less at a time, reading takes a tenth of all time.
    constexpr std::size_t most = 65'536;
    pollfd wanted{in_, POLLIN, 0};
    if (::poll(&wanted, 1, 0) != 1) answers_.Deliver();
    const std::size_t size = bytes_.size();
    bytes_.resize(size + most);
    ssize_t count = -1;
    do {
      count = ::read(in_, bytes_.data() + size, most);
    } while (count < 0 && errno == EINTR);
    bytes_.resize(size + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return count > 0;
  }

  int in_;
  AnswerQueue& answers_;
  std::string bytes_;
  std::size_t next_ = 0;  ///< where the next line begins
  std::size_t seen_ = 0;  ///< up to here there is no line end
};

/// Lets pipes on both sides hold more, so that nobody waits for the others so often. Where they are
/// none, or may not grow, nothing is lost.
void WidenPipes() {
#ifdef F_SETPIPE_SZ
  constexpr int bytes = 1'048'576;
  ::fcntl(STDIN_FILENO, F_SETPIPE_SZ, bytes);
  ::fcntl(STDOUT_FILENO, F_SETPIPE_SZ, bytes);
#endif
}

int Execute(const CommandLine& line, Console& console) {
  WidenPipes();
  serve::Server server(DataDirectory(line), model::ProgramDirectory());
  AnswerQueue answers(console);
  LineReader lines(STDIN_FILENO, answers);
  while (const auto request = lines.Next()) {
    answers.Add(request->size() > LongestLine ? serve::Server::TooLong(LongestLine)
                                              : server.Answer(*request));
  }
  answers.Deliver();
  return ExitDone;
}

}  // namespace

const Command ServeCommand{
    .Name = "serve",
    .Summary = "answers requests in JSON, one a line, until the end of the standard input",
    .Takes = Games::None,
    .Examples = Examples,
    .Execute = Execute,
};

}  // namespace orb::cli
