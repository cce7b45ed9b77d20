#include "cli/options.h"

#include <utility>

namespace orb::cli {
namespace {

using enum OptionId;

constexpr std::array<Option, OptionCount> Table{{
    {Blank, "--blank", "", ValueKind::None, "", "",
     "the blank position: no units, every province at home"},
    {Title, "--title", "", ValueKind::Text, "TEXT", "", "the title of the game"},
    {Orders, "--orders", "", ValueKind::FileToRead, "PATH", "",
     "the orders, one per line (in a directory: NAME.txt)"},
    {Loose, "--loose", "", ValueKind::None, "", "",
     "read the orders as people write them: mails, chats, files"},
    {Power, "--power", "", ValueKind::Choice, "ABC", "ENG FRA GER RUS TUR AUS ITA",
     "with --loose: the power of lines that name none"},
    {AcceptDoubtful, "--accept-doubtful", "", ValueKind::None, "", "",
     "with --loose: file also orders that something speaks against"},
    {Register, "--register", "", ValueKind::None, "", "",
     "add the text of the orders to the register beside the game"},
    {Report, "--report", "", ValueKind::FileToWrite, "PATH", "",
     "write the report to PATH (in a directory: NAME.txt)"},
    {Reasons, "--reasons", "", ValueKind::FileToWrite, "PATH", "",
     "write to PATH why each order came out as it did"},
    {Rules, "--rules", "", ValueKind::Choice, "RULES", "orb usual",
     "orb (ORB's own, the default) or usual"},
    {Compare, "--compare", "", ValueKind::None, "", "",
     "tell which orders come out otherwise by the other rules"},
    {Try, "--try", "", ValueKind::None, "", "",
     "only try it out: no question is asked, no game is written"},
    {Pairs, "--pairs", "", ValueKind::None, "", "", "also changes of two orders of one power"},
    {Json, "--json", "", ValueKind::None, "", "",
     "print an object in JSON for each game; texts go to standard error"},
    {Yes, "--yes", "", ValueKind::None, "", "",
     "answer Yes to every question (else No, abandoning the game)"},
    {Mode, "--mode", "", ValueKind::Choice, "MODE", "colour3d colour grey bw",
     "colour3d (the default), colour, grey or bw"},
    {CentreCount, "--centre-count", "", ValueKind::None, "", "",
     "show how many centres each power owns"},
    {Borders, "--borders", "", ValueKind::None, "", "", "colour the borders by owner"},
    {CentreOwners, "--centre-owners", "", ValueKind::None, "", "",
     "mark the centres with their owners"},
    {TintByOwner, "--tint-by-owner", "", ValueKind::None, "", "",
     "show the lands in the tints of their owners"},
    {Letters, "--letters", "", ValueKind::None, "", "",
     "write the powers' initials on their units"},
    {Animate, "--animate", "", ValueKind::None, "", "",
     "an animated GIF of a game's season, or of several games"},
    {Width, "--width", "", ValueKind::Text, "PIXELS", "",
     "the width of the picture (default: that of the map)"},
    {Format, "--format", "", ValueKind::Choice, "FORMAT", "bmp png svg pdf",
     "bmp, png, svg or pdf, whatever the file's extension"},
    {NoClobber, "--no-clobber", "", ValueKind::None, "", "",
     "leave files that exist already as they are"},
    {FilesFrom, "--files-from", "", ValueKind::FileToRead, "PATH", "",
     "also the games that PATH lists, one per line or ended by NUL"},
    {Output, "-o", "--output", ValueKind::FileToWrite, "PATH", "",
     "the file to write (in a directory: NAME.orb)"},
    {InPlace, "--in-place", "", ValueKind::None, "", "", "write over the game file that was read"},
    {Mail, "--mail", "", ValueKind::Text, "ADDRESS", "", "where players send their orders"},
    {Data, "--data", "", ValueKind::Directory, "DIR", "",
     "the directory of the data files (default: the program's own)", true},
    {Encoding, "--encoding", "", ValueKind::Choice, "NAME", "utf-8 windows-1252",
     "of texts that are printed and written: utf-8 or windows-1252", true},
    {Help, "--help", "-h", ValueKind::None, "", "", "print this help and exit", true},
    {Version, "--version", "-V", ValueKind::None, "", "", "print the version and exit", true},
}};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < OptionCount; ++i) {
    if (static_cast<std::size_t>(Table[i].Id) != i) return false;
  }
  return true;
}
static_assert(IsInOrder(), "OptionOf looks rows up by their number");

}  // namespace

std::span<const Option, OptionCount> AllOptions() {
  return Table;
}

const Option& OptionOf(OptionId id) {
  return Table[static_cast<std::size_t>(id)];
}

void CommandLine::Set(const Option& option, std::string value) {
  auto& slot = values_[Index(option.Id)];
  if (slot && *slot != value) {
    throw UsageError("The option " + std::string(option.Name) + " is given twice.");
  }
  slot = std::move(value);
}

}  // namespace orb::cli
