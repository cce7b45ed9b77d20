#pragma once

#include <span>
#include <string_view>

namespace orb::exchange {

/// What people write for a place beside its abbreviation and its full name.
struct UsualSpelling {
  std::string_view Written;
  std::string_view Abbreviation;  ///< as the map spells it
};

/// The usual spellings; those of places that are not on the map are of no use and do no harm.
std::span<const UsualSpelling> UsualSpellings();

}  // namespace orb::exchange
