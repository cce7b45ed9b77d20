#pragma once

#include "json/messages.h"

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace orb::cli {

/// What is known of where the two output streams lead.
struct Terminals {
  bool Out = false;  ///< standard output is a terminal
  bool Err = false;  ///< standard error is one: long runs show their progress there
  bool Utf8 = false;
  bool Colours = false;
};

/// How the characters of texts are written; game files keep their own form.
enum class Encoding : std::uint8_t { Windows1252, Utf8 };

/// The two output streams of a command. Texts are 8-bit inside and go out byte for byte, or in
/// UTF-8 where a terminal or the user asks for that. What a command is asked for goes to standard
/// output; messages and progress go to standard error, so that the output of a long run can be
/// redirected and still be watched.
class Console {
 public:
  Console(std::ostream& out, std::ostream& err, const Terminals& terminals);
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  ~Console() { ClearProgress(); }

  /// Has the standard output to objects alone: texts for people go to standard error.
  void UseObjects() { isForObjects_ = true; }
  bool IsForObjects() const { return isForObjects_; }

  /// Writes an object in JSON, as a line of its own.
  void PrintObject(std::string_view json);

  /// Has all texts written in one encoding, wherever they go.
  void UseEncoding(Encoding encoding);

  /// A text as a file of texts holds it.
  std::string ForFile(std::string_view text) const;

  /// Writes text to standard output.
  void Print(std::string_view text);

  /// Writes a line of the report that tells of a failure; in colour on a terminal.
  void PrintFailure(std::string_view line);

  /// Writes the path of a game to standard output, as it was given.
  void PrintPath(std::string_view path);

  /// Writes the contents of a file to standard output.
  void PrintBytes(std::string_view bytes);

  /// Writes text to standard error, not as a message but as a file would hold it.
  void PrintToErr(std::string_view text);

  /// Brings everything that was printed to where it goes; throws FileError where it cannot.
  void Deliver();

  /// One line on standard error: the subject, ": ", the text with every line break as one blank.
  void Say(std::string_view subject, std::string_view text);

  /// Shows how many games of a long run are done. The line is overwritten in place and removed
  /// before anything else is written; nothing is shown for short runs.
  void ShowProgress(std::size_t done, std::size_t total);

  /// Whether failures are shown in colour.
  bool HasColours() const { return terminals_.Out && terminals_.Colours && !isForObjects_; }

  /// Whether somebody would see the bytes of a file as they are.
  bool IsTerminal() const { return terminals_.Out; }

 private:
  void ClearProgress();

  std::ostream& out_;
  std::ostream& err_;
  Terminals terminals_;
  Encoding outEncoding_;
  Encoding errEncoding_;
  Encoding fileEncoding_ = Encoding::Windows1252;
  std::size_t progressWidth_ = 0;
  bool isForObjects_ = false;
};

/// Prints each message box as a line on standard error. Questions are answered No, or all Yes.
class ConsoleMessages : public json::NotedMessages {
 public:
  ConsoleMessages(Console& console, std::string subject, bool yes)
      : NotedMessages(yes), console_(console), subject_(std::move(subject)) {}

  bool Warn(const std::string& text) override;
  model::Answer Ask(const std::string& text) override;
  void Show(const std::string& text, model::Icon icon) override;

  /// Whether a question was answered No, so that --yes would have gone on.
  bool HasDeclined() const;

 private:
  Console& console_;
  std::string subject_;
};

}  // namespace orb::cli
