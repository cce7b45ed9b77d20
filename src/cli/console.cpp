#include "cli/console.h"

#include "model/errors.h"
#include "text/encoding.h"

#include <algorithm>

namespace orb::cli {
namespace {

/// Up to this many games are done before anybody could read how far the run has come.
constexpr std::size_t ShortRun = 50;

bool IsBeyondAscii(char c) {
  return static_cast<unsigned char>(c) >= 0x80;
}

/// What a terminal would take for a command, as a character that it shows. Names of files and texts
/// of games come from others.
char Harmless(char c) {
  return static_cast<unsigned char>(c) < ' ' || c == '\x7f' ? '?' : c;
}

/// A message as one line, so that a script reads each message as one line of standard error.
std::string OnOneLine(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    // Message boxes have their lines separated by CR alone, files by CR LF.
    if (text.substr(i, 2) == "\r\n") ++i;
    line += text[i] == '\r' || text[i] == '\n' ? ' ' : Harmless(text[i]);
  }
  return line;
}

}  // namespace

void Console::Print(std::string_view bytes) {
  ClearProgress();
  out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

void Console::Deliver() {
  if (!out_.flush()) throw model::FileError("The standard output could not be written.");
}

void Console::Say(std::string_view subject, std::string_view text) {
  ClearProgress();
  // The subject is a path, which is written as it was given. If it holds UTF-8, the message is
  // converted as well: a line in two encodings could not be read anywhere.
  const bool utf8 = text::IsUtf8(subject) && std::ranges::any_of(subject, IsBeyondAscii);
  std::string line(subject);
  std::ranges::transform(line, line.begin(), Harmless);
  line.append(": ").append(utf8 ? text::ToUtf8(OnOneLine(text)) : OnOneLine(text)).append("\n");
  err_.write(line.data(), static_cast<std::streamsize>(line.size()));
  err_.flush();
}

void Console::ShowProgress(std::size_t done, std::size_t total) {
  if (!showProgress_ || total <= ShortRun) return;
  // A hundred updates are enough for the eye; the terminal is slower than the work.
  if (done % std::max<std::size_t>(total / 100, 1) != 0) return;
  const std::string line = std::to_string(done) + " of " + std::to_string(total) + " games";
  err_ << '\r' << line << std::flush;
  // The number only grows, so the line never gets shorter and needs no blanks to cover its old end.
  progressWidth_ = line.size();
}

void Console::ClearProgress() {
  if (progressWidth_ == 0) return;
  err_ << '\r' << std::string(progressWidth_, ' ') << '\r' << std::flush;
  progressWidth_ = 0;
}

bool ConsoleMessages::Warn(const std::string& text) {
  console_.Say(subject_, text);
  return yes_;
}

model::Answer ConsoleMessages::Ask(const std::string& text) {
  console_.Say(subject_, text);
  // A plain Yes would only bring the same question for the next unit; the answer would be the same.
  return yes_ ? model::Answer::YesToAll : model::Answer::No;
}

void ConsoleMessages::Show(const std::string& text, model::Icon /*icon*/) {
  console_.Say(subject_, text);
}

}  // namespace orb::cli
