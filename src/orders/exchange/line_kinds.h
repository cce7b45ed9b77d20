#pragma once

#include "model/stage.h"
#include "orders/exchange/place_names.h"
#include "orders/exchange/vocabulary.h"
#include "orders/exchange/written_order.h"

#include <optional>

namespace orb::exchange {

/// What a heading says of the lines below it.
struct Heading {
  int Power = 0;             ///< 1..7, 0: none named
  Verb Orders = Verb::None;  ///< Build, Disband or Retreat for "Builds:" and the like
};

/// Whether the stage has such headings: "Remove:" takes a move back.
inline bool IsHeadingOf(model::Stage stage, const Heading& heading) {
  return stage != model::Stage::Moves || heading.Orders != Verb::Disband;
}

/// The heading that all the tokens are; nothing when they are none.
std::optional<Heading> ReadHeading(Tokens tokens, const PlaceNames& names);

/// Whether a heading is an order: "France: disband" is meant for a dislodged unit, which it does
/// not name.
bool IsOrderAlone(Tokens tokens, const Heading& heading, model::Stage stage);

/// Whether a line is the title of a part that players write to each other, "PRESS:".
bool IsPressTitle(Tokens tokens);

/// Whether a line is press as a whole, "PRESS Rome to Paris: don't look behind you."
bool IsPressLine(Tokens tokens);

/// Whether the first word is a type of unit. What players write to each other may name places, but
/// hardly units: "Con - Sev: I told you so".
inline bool BeginsWithType(Tokens tokens) {
  return !tokens.empty() && UnitTypeOf(tokens[0]) != 0;
}

/// Behind the marks that begin a line in mails and lists: "> ", "- ", "1.", "(2)", "a)", "[10:15]",
/// "<name>"; what comes before belongs to none of its orders.
std::size_t PastLineStart(Tokens tokens);

/// Whether there is any place.
bool NamesPlace(Tokens tokens, const PlaceNames& names);

/// Whether there is any verb, unit or place: what orders could be read from.
bool HoldsOrderWords(Tokens tokens, const PlaceNames& names);

/// Whether a text that was not understood is surely no order: a greeting or words with none, or
/// hardly any, that orders are made of. `inSignature`: places alone make no order there.
bool IsNoOrder(Tokens tokens, const PlaceNames& names, bool inSignature);

/// Whether a line is the name of one place, which puts the order above right: "*nwg".
bool IsPlaceAlone(Tokens line, const PlaceNames& names);

/// Whether a line offers one other place, and no more: "or Picardy".
bool IsOtherPlace(Tokens line, const PlaceNames& names);

}  // namespace orb::exchange
