#pragma once

#include "orders/exchange/place_names.h"

namespace orb::exchange {

// What may stand beside an order and surely leaves it as it is, though its words are of any kind.

/// How many tokens from here are a phrase that changes nothing, with the name of a person in it:
/// "okay this is Harold", "sorry I'm late", "send message"; 0: none.
std::size_t LengthOfPlainPhrase(Tokens tokens, std::size_t at, const PlaceNames& names);

/// Whether words give a reason, a wish or a purpose and nothing that may bear on orders: "since the
/// oysters are good there", "(hope he remembers)".
bool IsReason(Tokens words, const PlaceNames& names);

/// Whether words hold a phrase by which orders are taken back, put off or the like.
bool SaysOfOrders(Tokens words);

/// Whether a word may be a person's name: it has a capital letter and no meaning here.
bool IsPersonAt(Tokens tokens, std::size_t at, const PlaceNames& names);

/// Whether all words are known and several are of everyday life: "When is the pizza here?".
bool IsOfEverydayLife(Tokens words);

/// "How is your mother?", "Wie geht's?".
bool AsksAfterHealth(Tokens words);

/// Whether a line puts a question of its own: "Question: do you take orders by telephone?".
bool AsksMaster(Tokens words);

/// Whether words are nothing but an excuse for a slip of the pen: "no, typo, it's", "sorry, wrong
/// line".
bool ExcusesSlip(Tokens words);

}  // namespace orb::exchange
