#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orb::model {

/// "ORB v" and the version that CMakeLists.txt names: the caption of every message box.
extern const std::string_view ProgramName;

enum class Icon { None, Exclamation, Information, Stop };

enum class Answer { Yes, No, YesToAll };

/// The port for message boxes: a window shows them, a terminal prints them, a test answers from a
/// script. Lines of a text are separated by a lone carriage return.
class Messages {
 public:
  Messages() = default;
  Messages(const Messages&) = delete;
  Messages& operator=(const Messages&) = delete;
  virtual ~Messages() = default;

  /// Yes or No with the exclamation icon; true for Yes.
  virtual bool Warn(const std::string& text) = 0;

  /// Yes, No or Yes to all.
  virtual Answer Ask(const std::string& text) = 0;

  /// A box with OK only that offers no choice. The command may go on after it.
  virtual void Show(const std::string& text, Icon icon) = 0;
};

/// Consents to everything and keeps what was shown: for trying out what nobody is asked about.
class Consent : public Messages {
 public:
  bool Warn(const std::string& /*text*/) override { return true; }
  Answer Ask(const std::string& /*text*/) override { return Answer::YesToAll; }
  void Show(const std::string& text, Icon /*icon*/) override { Shown.push_back(text); }

  std::vector<std::string> Shown;
};

/// "Warning: ", the subject, the problem and "Continue?", one below the other.
std::string WarningText(std::string_view subject, std::string_view problem);

/// "Warning: ", the subject and "Continue?" below it.
std::string WarningText(std::string_view subject);

}  // namespace orb::model
