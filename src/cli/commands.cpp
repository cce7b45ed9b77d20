#include "cli/commands.h"

#include <algorithm>
#include <array>

namespace orb::cli {
namespace {

constexpr std::array Commands{&NewCommand,     &ResolveCommand, &NextCommand,    &UndoCommand,
                              &CheckCommand,   &WhatIfCommand,  &ShowCommand,    &MapCommand,
                              &PublishCommand, &SheetCommand,   &LettersCommand, &DiffCommand,
                              &ServeCommand};

}  // namespace

std::span<const Command* const> AllCommands() {
  return Commands;
}

bool Knows(const Command& command, OptionId id) {
  return OptionOf(id).IsCommon || std::ranges::find(command.Options, id) != command.Options.end();
}

}  // namespace orb::cli
