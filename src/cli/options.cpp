#include "cli/options.h"

#include <utility>

namespace orb::cli {
namespace {

/// The one place where options are described: both the reader and the help go by this table.
constexpr std::array<Option, OptionCount> Table{{
    {OptionId::Data, "--data", "DIR",
     "the directory of the data files (default: the program's own)"},
    {OptionId::Help, "--help", "", "print this help and exit"},
    {OptionId::Version, "--version", "", "print the version and exit"},
    {OptionId::Blank, "--blank", "", "the blank position: no units, every province at home"},
    {OptionId::Title, "--title", "TEXT", "the title of the game"},
    {OptionId::Orders, "--orders", "PATH", "the orders, one per line (in a directory: NAME.txt)"},
    {OptionId::Loose, "--loose", "", "read the orders as people write them: mails, chats, files"},
    {OptionId::Power, "--power", "ABC", "with --loose: the power of lines that name none"},
    {OptionId::AcceptDoubtful, "--accept-doubtful", "",
     "with --loose: file also orders that something speaks against"},
    {OptionId::Report, "--report", "PATH", "write the report to PATH (in a directory: NAME.txt)"},
    {OptionId::Reasons, "--reasons", "PATH", "write to PATH why each order came out as it did"},
    {OptionId::Rules, "--rules", "RULES", "orb (ORB's own, the default) or usual"},
    {OptionId::Compare, "--compare", "", "tell which orders come out otherwise by the other rules"},
    {OptionId::Try, "--try", "", "only try it out: no question is asked, nothing is written"},
    {OptionId::Pairs, "--pairs", "", "also changes of two orders of one power"},
    {OptionId::Yes, "--yes", "", "answer Yes to every question (else No, abandoning the game)"},
    {OptionId::Mode, "--mode", "MODE", "colour3d (the default), colour, grey or bw"},
    {OptionId::CentreCount, "--centre-count", "", "show how many centres each power owns"},
    {OptionId::Borders, "--borders", "", "colour the borders by owner"},
    {OptionId::CentreOwners, "--centre-owners", "", "mark the centres with their owners"},
    {OptionId::Width, "--width", "PIXELS", "the width of the picture (default: that of the map)"},
    {OptionId::Output, "-o", "PATH", "the file to write (in a directory: NAME.orb)"},
    {OptionId::InPlace, "--in-place", "", "write over the game file that was read"},
}};

}  // namespace

std::span<const Option, OptionCount> AllOptions() {
  return Table;
}

bool IsCommonOption(OptionId id) {
  return id == OptionId::Data || id == OptionId::Help || id == OptionId::Version;
}

void CommandLine::Set(const Option& option, std::string value) {
  auto& slot = values_[Index(option.Id)];
  if (slot && *slot != value) {
    throw UsageError("The option " + std::string(option.Name) + " is given twice.");
  }
  slot = std::move(value);
}

}  // namespace orb::cli
