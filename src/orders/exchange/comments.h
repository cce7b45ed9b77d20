#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

namespace orb::exchange {

/// The bracket that closes the one at this token, or the number of tokens.
std::size_t ClosingBracket(Tokens tokens, std::size_t open);

/// Whether tokens are surely no part of an order: two words or more, none of them a word of orders.
bool IsProse(Tokens tokens, const PlaceNames& names);

/// Whether what stands in brackets behind an order says nothing about it: it has other words than
/// those of orders, names no coast, makes no condition, is no place with a slip and orders no unit.
bool IsRemark(Tokens tokens, const PlaceNames& names);

/// The first word that makes a condition, or the number of tokens.
std::size_t FindCondition(Tokens tokens);

/// From "//", "#" or "<-" to the end of a part of a line; empty at its end where there is none.
TokenRange CommentAtEnd(Tokens line, TokenRange part);

}  // namespace orb::exchange
