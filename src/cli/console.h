#pragma once

#include "model/messages.h"

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace orb::cli {

/// The two output streams of a command. Texts are 8-bit and go out byte for byte. What a command is
/// asked for goes to standard output; messages and progress go to standard error, so that the
/// output of a long run can be redirected and still be watched.
class Console {
 public:
  /// `showProgress`: standard error is a terminal.
  Console(std::ostream& out, std::ostream& err, bool showProgress)
      : out_(out), err_(err), showProgress_(showProgress) {}
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  ~Console() { ClearProgress(); }

  /// Writes bytes to standard output.
  void Print(std::string_view bytes);

  /// Brings everything that was printed to where it goes; throws FileError where it cannot.
  void Deliver();

  /// One line on standard error: the subject, ": ", the text with every line break as one blank.
  void Say(std::string_view subject, std::string_view text);

  /// Shows how many games of a long run are done. The line is overwritten in place and removed
  /// before anything else is written; nothing is shown for short runs.
  void ShowProgress(std::size_t done, std::size_t total);

 private:
  void ClearProgress();

  std::ostream& out_;
  std::ostream& err_;
  bool showProgress_;
  std::size_t progressWidth_ = 0;
};

/// Prints each message box as a line on standard error. Questions are answered No, or all Yes.
class ConsoleMessages : public model::Messages {
 public:
  ConsoleMessages(Console& console, std::string subject, bool yes)
      : console_(console), subject_(std::move(subject)), yes_(yes) {}

  bool Warn(const std::string& text) override;
  model::Answer Ask(const std::string& text) override;
  void Show(const std::string& text, model::Icon icon) override;

 private:
  Console& console_;
  std::string subject_;
  bool yes_;
};

}  // namespace orb::cli
