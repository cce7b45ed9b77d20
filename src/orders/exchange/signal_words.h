#pragma once

#include <string_view>

namespace orb::exchange {

/// What a word in a sentence beside orders may do to them. Each value is a bit.
enum class Signal : unsigned {
  Points = 0x1,     ///< at the orders or some of them: "these", "the last one", "same"
  Hints = 0x2,      ///< at anything, so perhaps at them: "it", "that", "all", "what"
  Denies = 0x4,     ///< "not", "never"
  Leaves = 0x8,     ///< leaves open whether: "should", "might"
  Says = 0x10,      ///< what somebody says or wants: "told", "wants", "agreed"
  Takes = 0x20,     ///< what is to be done with them: "use", "repeat", "send"
  Past = 0x40,      ///< "was"
  Later = 0x80,     ///< "tomorrow", "first", "once"
  Rejects = 0x100,  ///< says by itself that they are none, or not yet: "wrong", "forbids", "void"
  Chooses = 0x200,  ///< leaves the choice: "whatever", "you decide"
  Plans = 0x400     ///< "plan", "idea"
};

/// What a word in small letters signals: bits of Signal.
unsigned SignalsOf(std::string_view word);

}  // namespace orb::exchange
