#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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

enum class OptionId : std::uint8_t {
  Blank,
  Title,
  Orders,
  Loose,
  Power,
  AcceptDoubtful,
  Register,
  Report,
  Reasons,
  Rules,
  Compare,
  Try,
  Pairs,
  Json,
  Yes,
  Mode,
  CentreCount,
  Borders,
  CentreOwners,
  TintByOwner,
  Letters,
  Animate,
  Width,
  Format,
  NoClobber,
  FilesFrom,
  Output,
  InPlace,
  Mail,
  Data,
  Encoding,
  Help,
  Version,
};

/// The number of OptionIds; the table and a command line's values are indexed by them.
constexpr std::size_t OptionCount = static_cast<std::size_t>(OptionId::Version) + 1;

/// What an option takes, as far as reading the line and completing it must know.
enum class ValueKind : std::uint8_t { None, Text, Choice, Directory, FileToRead, FileToWrite };

/// One row of the table of options. Reading, help, manual pages and completions go by it alone.
struct Option {
  OptionId Id;
  std::string_view Name;   ///< as messages call it: "--orders"
  std::string_view Other;  ///< its other spelling: "-h"; empty where there is none
  ValueKind Kind = ValueKind::None;
  std::string_view Value;    ///< what stands for its value in the help; empty for a plain switch
  std::string_view Choices;  ///< the values that it can have, separated by blanks
  std::string_view Help;
  bool IsCommon = false;  ///< every command knows it
};

/// All options, in the order of the help.
std::span<const Option, OptionCount> AllOptions();

/// The option's row of the table.
const Option& OptionOf(OptionId id);

/// A command line that keeps to the table of options. "-" is written out in it as the path of the
/// standard input or output.
class CommandLine {
 public:
  const Command* Verb = nullptr;   ///< none when only help or the version is asked for
  std::vector<std::string> Games;  ///< GAME arguments as given

  bool Has(OptionId id) const { return values_[Index(id)].has_value(); }

  /// The value of an option, or nothing when it is not given.
  const std::optional<std::string>& Value(OptionId id) const { return values_[Index(id)]; }

  /// Throws UsageError when the option was given before with another value.
  void Set(const Option& option, std::string value);

  /// Whether it may be about more than one game, so that what is printed needs headings.
  bool IsForMany() const { return Games.size() > 1 || Has(OptionId::FilesFrom); }

 private:
  static std::size_t Index(OptionId id) { return static_cast<std::size_t>(id); }

  std::array<std::optional<std::string>, OptionCount> values_;
};

}  // namespace orb::cli
