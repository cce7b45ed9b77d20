#pragma once

#include <cstdint>
#include <string_view>

namespace orb::exchange {

/// What a phrase beside or between orders says of them.
enum class Saying : std::uint8_t {
  Revokes,     ///< takes back those above
  Postpones,   ///< puts them off, or leaves them open
  Gives,       ///< gives an example
  Asks,        ///< asks whether they are right, or what somebody thinks of them
  Titles,      ///< sets aside those below, even without a colon
  Corrects,    ///< says that those below hold rather than those above
  Leaves,      ///< leaves it to somebody what becomes of them: "up to you"
  Shrugs,      ///< leaves what may happen to itself: "if he minds, tough luck"
  Excludes,    ///< before an order: it is the one that is not meant: "(not A Par - Pic)"
  Chats,       ///< small talk, though its words may be of orders elsewhere: "well played"
  Reconsiders  ///< before an order, or alone: the one above may be meant no longer
};

/// Which phrases may begin with a word: a bit for each kind of saying.
unsigned SayingsBeginningWith(std::string_view word);

}  // namespace orb::exchange
