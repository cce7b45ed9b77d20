#pragma once

#include "orders/exchange/read_orders.h"

#include <string_view>
#include <vector>

namespace orb::exchange {

/// Follows which lines of a text are quoted from an earlier one: those behind ">", and all behind
/// the head of a quotation that is not marked so.
class Quotations {
 public:
  /// Takes the next line, plain, and whether it is such a head.
  void Take(std::string_view line, bool isHead);

  /// Whether the line that was taken last is quoted.
  bool IsQuoted() const { return isMarked_ || isInside_; }

 private:
  bool isMarked_ = false;
  bool isInside_ = false;
  bool follows_ = false;  ///< the line before was a head
};

/// What was answered is not in force any more: quoted orders that differ from what the rest of the
/// text orders become unclear. `quoted` has one for each line; in adjustments each order of the
/// same power counts as another one for the unit.
void SetAsideReplaced(std::vector<ReadLine>& lines, const std::vector<bool>& quoted,
                      bool isAdjustments);

}  // namespace orb::exchange
