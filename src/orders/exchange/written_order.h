#pragma once

#include "orders/exchange/vocabulary.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orb::exchange {

struct TokenRange {
  std::size_t Begin = 0;
  std::size_t End = 0;
};

/// Why something was not understood, in words that begin small and have no full stop, and where.
struct Fault {
  std::string Reason;
  TokenRange At;
  bool IsNoPlace = false;  ///< a place is expected there, and the words name none
};

/// A place as written: the rows of the map that it can mean.
struct WrittenPlace {
  std::vector<int> Rows;
  TokenRange At;
};

/// A unit as written; what is not written is 0.
struct WrittenUnit {
  int Power = 0;  ///< 1..7
  char Type = 0;  ///< 'A' or 'F'
  WrittenPlace Place;
};

/// What was written, before the game tells what it means. Not every part belongs to every
/// verb; what was not written is empty.
struct WrittenOrder {
  Verb What = Verb::None;
  int Power = 0;                ///< named at the front
  WrittenUnit Unit;             ///< the ordered unit
  WrittenUnit Other;            ///< the supported or convoyed unit; without rows: not written
  Verb OtherWhat = Verb::None;  ///< Move or Hold, None: not written
  WrittenPlace Destination;     ///< of the move, also the supported or convoyed one
  bool ByConvoy = false;
  bool IsGuess = false;  ///< no verb is written: "A Par Bur"
  bool IsBare = false;   ///< nor a type or power: "par bur"
  std::size_t End = 0;   ///< the token behind it; only remarks follow
};

}  // namespace orb::exchange
