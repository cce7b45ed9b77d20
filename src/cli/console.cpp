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

void Write(std::ostream& stream, std::string_view bytes) {
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Encoded(std::string_view text, Encoding encoding) {
  return encoding == Encoding::Utf8 ? text::ToUtf8(text) : std::string(text);
}

/// A text of some lines as a terminal shows it.
std::string Shown(std::string_view text) {
  std::string shown(text);
  std::ranges::transform(shown, shown.begin(),
                         [](char c) { return c == '\n' || c == '\t' ? c : Harmless(c); });
  return shown;
}

}  // namespace

Console::Console(std::ostream& out, std::ostream& err, const Terminals& terminals)
    : out_(out), err_(err), terminals_(terminals) {
  const auto encodingOf = [&](bool isTerminal) {
    return isTerminal && terminals.Utf8 ? Encoding::Utf8 : Encoding::Windows1252;
  };
  outEncoding_ = encodingOf(terminals.Out);
  errEncoding_ = encodingOf(terminals.Err);
}

void Console::UseEncoding(Encoding encoding) {
  outEncoding_ = errEncoding_ = fileEncoding_ = encoding;
}

std::string Console::ForFile(std::string_view text) const {
  return Encoded(text, fileEncoding_);
}

void Console::PrintObject(std::string_view json) {
  PrintBytes(json);
  PrintBytes("\n");
}

void Console::Print(std::string_view text) {
  if (isForObjects_) return PrintToErr(text);
  // Nearly always: thousands of reports go to a file byte for byte.
  if (!terminals_.Out && outEncoding_ == Encoding::Windows1252) return PrintBytes(text);
  PrintBytes(Encoded(terminals_.Out ? Shown(text) : std::string(text), outEncoding_));
}

void Console::PrintFailure(std::string_view line) {
  if (!HasColours()) return Print(line);
  PrintBytes("\x1b[31m");
  Print(line.substr(0, line.find('\n')));
  PrintBytes("\x1b[0m\n");
}

void Console::PrintPath(std::string_view path) {
  if (isForObjects_) return Write(err_, Shown(path));
  PrintBytes(terminals_.Out ? Shown(path) : std::string(path));
}

void Console::PrintBytes(std::string_view bytes) {
  ClearProgress();
  Write(out_, bytes);
}

void Console::PrintToErr(std::string_view text) {
  ClearProgress();
  Write(err_, Encoded(terminals_.Err ? Shown(text) : std::string(text), errEncoding_));
  if (!err_.flush()) throw model::FileError("The standard error could not be written.");
}

void Console::Deliver() {
  if (!out_.flush()) throw model::FileError("The standard output could not be written.");
}

void Console::Say(std::string_view subject, std::string_view text) {
  ClearProgress();
  // The subject is a path, which is written as it was given. If it holds UTF-8, the message is
  // converted as well: a line in two encodings could not be read anywhere.
  const bool utf8 = errEncoding_ == Encoding::Utf8 ||
                    (text::IsUtf8(subject) && std::ranges::any_of(subject, IsBeyondAscii));
  std::string line(subject);
  std::ranges::transform(line, line.begin(), Harmless);
  line.append(": ").append(utf8 ? text::ToUtf8(OnOneLine(text)) : OnOneLine(text)).append("\n");
  Write(err_, line);
  err_.flush();
}

void Console::ShowProgress(std::size_t done, std::size_t total) {
  if (!terminals_.Err || total <= ShortRun) return;
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
  return NotedMessages::Warn(text);
}

model::Answer ConsoleMessages::Ask(const std::string& text) {
  console_.Say(subject_, text);
  return NotedMessages::Ask(text);
}

void ConsoleMessages::Show(const std::string& text, model::Icon icon) {
  console_.Say(subject_, text);
  NotedMessages::Show(text, icon);
}

bool ConsoleMessages::HasDeclined() const {
  return std::ranges::any_of(
      All(), [](const json::Message& message) { return !message.Answer.value_or(true); });
}

}  // namespace orb::cli
