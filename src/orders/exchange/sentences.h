#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <vector>

namespace orb::exchange {

/// The sentences of a range of tokens, in which orders may have full stops of their own.
std::vector<TokenRange> Sentences(Tokens tokens, TokenRange range, const PlaceNames& names);

/// The sentences of a line without orders, as far as full stops and question marks tell.
std::vector<TokenRange> SentencesOf(Tokens line);

/// What is behind the last full stop of a line, which must not be empty.
Tokens LastSentence(Tokens line);

}  // namespace orb::exchange
