#pragma once

#include "orders/exchange/plain_text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orb::exchange {

enum class LineKind : std::uint8_t {
  Order,          ///< surely meant
  Doubtful,       ///< understood, but something in the text speaks against it
  Replaced,       ///< understood, but the text itself gives another order in its place
  Waive,          ///< understood, and asks for nothing
  NotUnderstood,  ///< an order, or perhaps one
  Ambiguous,      ///< it can mean several orders
  Heading,        ///< says which power, or which kind of adjustment, the lines below are for
  PassedOver,     ///< surely no order
};

/// A line of a text, or an order in it where it holds several, and what was understood. Places are
/// in bytes of the whole text.
struct ReadLine {
  int Number = 0;       ///< of the line, from 1
  Span Place;           ///< what was written, without blanks, bullets and the like around it
  std::string Written;  ///< its bytes
  LineKind Kind = LineKind::PassedOver;
  std::string Order;  ///< as it was understood, for the stage's list: "FRA A(Par) - Bur"
  std::string Power;  ///< of the order or heading; else of the lines here, empty when none is named
  std::string Reason;  ///< why it is unclear, doubtful or replaced; of Order: why it cannot be
                       ///< carried out, or empty
  std::string ReadAs;  ///< how slips of the pen were read: "\"Burgandy\" is read as Burgundy"
  Span ReasonPlace;  ///< what the reason is about; empty behind the text when something is missing
  std::vector<std::string> Candidates;  ///< of Ambiguous: the orders that it can mean
};

/// Whether a line holds an order that can be filed: at once, or with somebody's consent.
inline bool IsUnderstood(const ReadLine& line) {
  return line.Kind == LineKind::Order || line.Kind == LineKind::Doubtful;
}

inline bool IsDoubtful(const ReadLine& line) {
  return line.Kind == LineKind::Doubtful;
}

/// Whether a line must be put right by somebody: not understood or ambiguous.
inline bool IsUnclear(const ReadLine& line) {
  return line.Kind == LineKind::NotUnderstood || line.Kind == LineKind::Ambiguous;
}

}  // namespace orb::exchange
