#pragma once

#include <array>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orb::cli {

struct Command;

constexpr int ExitDone = 0;
constexpr int ExitRefused = 1;  ///< at least one game was abandoned or refused
constexpr int ExitUsage = 2;    ///< the command line is wrong; nothing was done

/// The command line is wrong: a sentence for the user.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class OptionId {
  Data,
  Help,
  Version,
  Blank,
  Title,
  Orders,
  Loose,
  Power,
  AcceptDoubtful,
  Report,
  Reasons,
  Rules,
  Compare,
  Try,
  Pairs,
  Yes,
  Mode,
  CentreCount,
  Borders,
  CentreOwners,
  Width,
  Output,
  InPlace,
};

/// The number of OptionIds; the table and a command line's values are indexed by them.
constexpr std::size_t OptionCount = 23;

/// One row of the table of options.
struct Option {
  OptionId Id;
  std::string_view Name;   ///< as it is written: "--orders"
  std::string_view Value;  ///< what stands for its value in the help; empty for a plain switch
  std::string_view Help;
};

/// All options, in the order of the help.
std::span<const Option, OptionCount> AllOptions();

/// Whether every command knows the option.
bool IsCommonOption(OptionId id);

/// A command line that keeps to the table of options.
class CommandLine {
 public:
  const Command* Verb = nullptr;   ///< none when only help or the version is asked for
  std::vector<std::string> Games;  ///< GAME arguments as given

  bool Has(OptionId id) const { return values_[Index(id)].has_value(); }

  /// The value of an option, or nothing when it is not given.
  const std::optional<std::string>& Value(OptionId id) const { return values_[Index(id)]; }

  /// Throws UsageError when the option was given before with another value.
  void Set(const Option& option, std::string value);

 private:
  static std::size_t Index(OptionId id) { return static_cast<std::size_t>(id); }

  std::array<std::optional<std::string>, OptionCount> values_;
};

}  // namespace orb::cli
