#pragma once

#include "orders/exchange/words.h"

#include <string_view>

namespace orb::exchange {

/// What a word says that, beside another such word, leaves orders open: bits of its table.
unsigned TopicsOf(std::string_view word);

/// Whether a sentence without orders says, with whatever grammar, that those near it are a sketch
/// or a bluff, wait for something, may still change, are of another game or are not to be entered:
/// "the true list comes tonight", "Nichts davon ist entschieden".
bool LeavesOpen(Tokens sentence);

/// Whether a question is about what people ask each other beside orders: "Did you get the photos?"
bool AsksOfLife(Tokens sentence);

}  // namespace orb::exchange
