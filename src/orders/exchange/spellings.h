#pragma once

#include <span>
#include <string_view>

namespace orb::exchange {

/// What people write for a place beside its abbreviation and its full name, in the languages of
/// their mail programs; without accents.
struct UsualSpellings {
  std::string_view Abbreviation;  ///< as the map spells it
  std::string_view Written;       ///< parted by "|"
};

/// The usual spellings; those of places that are not on the map are of no use and do no harm.
std::span<const UsualSpellings> AllUsualSpellings();

}  // namespace orb::exchange
