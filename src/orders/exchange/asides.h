#pragma once

#include "orders/exchange/place_names.h"
#include "orders/exchange/written_order.h"

#include <cstdint>
#include <optional>

namespace orb::exchange {

// What a line says of the orders around it.

/// Which orders a line without an order sets aside.
enum class AsideScope : std::uint8_t {
  Below,          ///< a heading: "Last turn:", "Draft:"
  Above,          ///< "just kidding"; nothing where no order stands above
  AboveElseBelow  ///< "Please do not process these yet": what stands above, if anything does
};

struct Aside {
  AsideScope Scope = AsideScope::Below;
  TokenRange At;
};

/// What a line without an order sets aside; nothing for most lines.
std::optional<Aside> ReadAside(Tokens line, const PlaceNames& names);

/// Where the subject of a mail says that its orders are not for now: "Entwurf", "not final".
std::optional<TokenRange> ReadDraftSubject(Tokens line);

/// Whether words name units or places, and no older orders or letters.
bool NamesUnits(Tokens words, const PlaceNames& names);

/// Whether a line has a word by which something depends on something else, "if", "unless", or is
/// taken back; not where "not" or "should" are all.
bool MakesCondition(Tokens line);

/// Whether words before an order tell that it is somebody else's: "Tom told me", "you could".
bool IsReport(Tokens words);

/// Whether words beside an order tell that it is one of the past or of a wish: "I was going to
/// play", "I was so tempted to".
bool IsUnreal(Tokens words);

/// Whether a title tells that the orders below are the writer's own, and for now.
bool IsOwnTitle(Tokens line);

/// Whether a line that does not end supposes something or begins an example: orders that it leads
/// to may not be meant.
bool LeadsOn(Tokens line);

/// Whether a line offers help or shrugs, and changes nothing: "if anything is unclear, call me",
/// "if he minds, tough luck".
bool IsOffer(Tokens line);

/// Where a line behind orders begins as a reservation about them: "but", "or", "unless", "only".
/// `isBehindOrders`: the line above has orders.
std::optional<TokenRange> ReadReservation(Tokens line, bool isBehindOrders);

}  // namespace orb::exchange
