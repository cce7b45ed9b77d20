#pragma once

#include "cli/command.h"

namespace orb::cli {

// Each is defined in its own source file, with its options and examples.

extern const Command NewCommand;
extern const Command ResolveCommand;
extern const Command NextCommand;
extern const Command UndoCommand;
extern const Command CheckCommand;
extern const Command WhatIfCommand;
extern const Command ShowCommand;
extern const Command MapCommand;
extern const Command PublishCommand;
extern const Command SheetCommand;
extern const Command LettersCommand;
extern const Command DiffCommand;
extern const Command ServeCommand;

}  // namespace orb::cli
