#pragma once

#include "orders/exchange/place_names.h"

#include <cstddef>
#include <map>
#include <string>

namespace orb::exchange {

/// Who speaks in a log of a chat: names before colons at the beginnings of several lines.
class Speakers {
 public:
  /// Takes note of the name that a line has at a token, if it has any.
  void Take(Tokens line, std::size_t at, const PlaceNames& names);

  /// Behind the name of somebody who speaks in several lines; else the same token.
  std::size_t Past(Tokens line, std::size_t at, const PlaceNames& names) const;

 private:
  std::map<std::string, int> lines_;  ///< by name
};

}  // namespace orb::exchange
