#pragma once

#include "orders/exchange/read_orders.h"

#include <string_view>
#include <vector>

namespace orb::exchange {

/// Follows which lines of a text are quoted from an earlier one: those that begin with ">", and all
/// that follow the head of a quotation whose lines are not marked so.
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

/// An answer takes the place of what it quotes: quoted orders that differ from what the rest of the
/// text orders become unclear. `quoted` has one entry a line. In adjustments, where orders have no
/// unit of their own, all orders of one power are compared.
void SetAsideReplaced(std::vector<ReadLine>& lines, const std::vector<bool>& quoted,
                      bool isAdjustments);

}  // namespace orb::exchange
