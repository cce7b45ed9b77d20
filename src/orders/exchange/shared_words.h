#pragma once

#include "orders/exchange/run_on.h"
#include "orders/exchange/source_line.h"

#include <optional>
#include <vector>

namespace orb::exchange {

// Words that orders share with others next to them.

/// "Armies in Paris and Marseilles": a part with the type of units that a plural before it gives;
/// empty where it has one of its own, or none was given. `plural` is kept from part to part.
std::vector<Token> WithSharedType(Tokens part, std::optional<Token>& plural);

/// "A Par, A Gas S A Bur": a unit without an order does what the next one does.
void ShareVerbs(Tokens line, const KnownGame& known, const Context& context, PartsRead& parts);

/// "A Par - Bur, H": reads what begins with a verb as another order of the unit before it, which is
/// the last but one of the parts; nothing where it is none.
std::optional<PartRead> ReadSameUnit(Tokens line, const PartsRead& parts, TokenRange range,
                                     const KnownGame& known, const Context& context);

/// "Convoyed by the Channel fleet and the Mid-Atlantic one": reads a unit alone as one that does
/// the same as the helper before it, which is the last of the parts; nothing where it is none.
std::optional<PartRead> ReadSameHelp(Tokens line, const PartsRead& parts, TokenRange range,
                                     const KnownGame& known, const Context& context);

/// Joins an order that is broken off, "A Par -", with its rest in the line below; false, and
/// nothing is changed, where the two make no order.
bool JoinBroken(ReadLine& above, ReadLine& below, const SourceLine& line, const KnownGame& known,
                const Context& context);

}  // namespace orb::exchange
