#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace orb::exchange {

// What stands beside orders and speaks for or against them. What is not known to be harmless makes
// an order doubtful: whoever wrote "(only with his support)" must be asked.

/// What words of players' everyday life do in a remark.
enum class EverydayWords : std::uint8_t { Harmless, Doubted };

/// Whether words begin as a condition does: "si es que se puede", "om fransosen vill".
bool BeginsCondition(Tokens words, const PlaceNames& names);

/// The first words of a remark that may change the order beside it. Thanks and the like never do,
/// nor does what repeats a place, power or verb of the order itself.
/// `power`: whose order it is, 0: not known.
std::optional<TokenRange> FindDoubt(Tokens remark, Tokens order, const PlaceNames& names,
                                    int power = 0,
                                    EverydayWords everyday = EverydayWords::Harmless);

/// Whether signs beyond ASCII are pictures that only decorate; crosses, question marks and thumbs
/// down are none.
bool IsDecoration(std::string_view signs);

/// Whether a sign is known to mean something, or not known to decorate: "?", a cross.
bool IsDoubtfulSign(const Token& token);

/// Whether words behind an order without any brackets surely are a remark: "lol", "as agreed".
bool IsHarmlessTail(Tokens tail);

/// Whether a line puts one word in the place of another as editors do, "s/Bur/Pic/", or is nothing
/// but doubt, "???".
bool IsSignOfDoubt(std::string_view line);

}  // namespace orb::exchange
