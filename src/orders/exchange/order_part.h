#pragma once

#include "orders/exchange/grammar.h"
#include "orders/exchange/meaning.h"
#include "orders/exchange/read_line.h"

namespace orb::exchange {

/// What holds for the orders of a text or line that do not say it themselves.
struct Context {
  int Power = 0;             ///< 1..7, 0: none
  Verb Orders = Verb::None;  ///< Build, Disband or Retreat
  bool IsChosen = false;     ///< nothing in the text names the power
};

/// Some tokens read as one order.
struct PartRead {
  LineKind Kind = LineKind::NotUnderstood;
  Meanings Meant;
  int Power = 0;             ///< of a waiver: who waives
  Fault Problem;             ///< in the part's tokens
  std::size_t End = 0;       ///< of the order in the part's tokens; only remarks follow
  std::string ReadAs;        ///< how a slip of the pen was read: "Burgandy is read as Burgundy"
  std::string Doubt;         ///< why it may mean something else than it was read as, or empty
  bool NamesPower = false;   ///< the order itself says whose it is
  bool IsGuess = false;      ///< it is not said what the unit does
  bool IsBare = false;       ///< two places are all that is written
  bool IsInferred = false;   ///< a build that no word says to be one
  bool IsRest = false;       ///< "everything else holds"
  bool IsRemark = false;     ///< of PassedOver: it may change the orders next to it
  std::size_t Sentence = 0;  ///< the token at which its sentence begins
};

/// Reads tokens as one order. A heading before a colon, a power at the front and the verb of an
/// adjustment are left in the context, since they hold for further orders of the line.
PartRead ReadPart(Tokens tokens, const KnownGame& known, Context& context,
                  Rest rest = Rest::Remarks);

/// Whether it was read as an order, if perhaps an ambiguous one.
inline bool IsUnderstood(const PartRead& part) {
  return part.Kind == LineKind::Order || part.Kind == LineKind::Ambiguous ||
         part.Kind == LineKind::Waive;
}

/// "it can mean ... or ...".
std::string AmbiguityText(const Meanings& meanings);

}  // namespace orb::exchange
