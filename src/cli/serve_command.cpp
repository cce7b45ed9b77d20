#include "serve/server.h"

#include "cli/commands.h"
#include "cli/console.h"
#include "cli/paths.h"
#include "model/files.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <istream>
#include <optional>
#include <string>

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

/// Cuts a stream into lines. Whoever waits for answers to what was read so far gets them before
/// this waits for more.
class LineReader {
 public:
  LineReader(std::istream& in, AnswerQueue& answers) : in_(*in.rdbuf()), answers_(answers) {}

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
    using Traits = std::char_traits<char>;
    if (in_.in_avail() <= 0) answers_.Deliver();
    if (Traits::eq_int_type(in_.sgetc(), Traits::eof())) return false;
    const auto count = std::max<std::streamsize>(in_.in_avail(), 1);
    const std::size_t size = bytes_.size();
    bytes_.resize(size + static_cast<std::size_t>(count));
    bytes_.resize(size + static_cast<std::size_t>(in_.sgetn(bytes_.data() + size, count)));
    return true;
  }

  std::streambuf& in_;
  AnswerQueue& answers_;
  std::string bytes_;
  std::size_t next_ = 0;  ///< where the next line begins
  std::size_t seen_ = 0;  ///< up to here there is no line end
};

int Execute(const CommandLine& line, Console& console) {
  serve::Server server(DataDirectory(line), model::ProgramDirectory());
  AnswerQueue answers(console);
  LineReader lines(std::cin, answers);
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
