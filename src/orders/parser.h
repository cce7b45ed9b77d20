#pragma once

#include "model/map.h"
#include "model/messages.h"
#include "orders/order_line.h"
#include "orders/syntax_fault.h"

#include <string>
#include <string_view>
#include <vector>

namespace orb::orders {

// An order line of the moves stage, its parts separated by single blanks:
//   move             POWER TYPE(LOC) - DEST
//   hold             POWER TYPE(LOC) hold
//   support to hold  POWER TYPE(LOC) S [POWER] TYPE(LOC) hold
//   support of move  POWER TYPE(LOC) S [POWER] TYPE(LOC) - DEST
//   convoy           POWER F(LOC) C [POWER] A(LOC) - DEST
// Order words may be in any case; everything else is spelled exactly. The power of the second unit
// is the ordering power when it is not written.

/// Cuts a line into fields. Every line ends in a filler, so that each separator looked for exists:
/// a part that is not written comes out as a token that no check accepts.
class FieldCutter {
 public:
  /// `work` holds the line with its filler; it must outlive the cutter and may serve many in turn.
  FieldCutter(std::string_view text, std::string& work);

  /// The text before the next separator; what follows it, trimmed, remains.
  std::string_view UpTo(char separator);

  /// Whether the next "(" comes before the next blank.
  bool BracketBeforeBlank() const;

 private:
  std::string_view rest_;
};

/// Fills a fresh table of orders from list lines: each order's Text is its line, trimmed, and it is
/// active; all else is empty. Throws IndexOutOfRange beyond 80 lines.
void SetOrderTexts(std::vector<std::string> lines, OrderTable& orders);

/// Fills the fields of an order of the moves stage from its text; `work` as in FieldCutter.
void ParseOrder(OrderLine& order, std::string& work);

/// The same for every order.
void ParseOrders(OrderTable& orders);

/// The first rule of the text form that an order of the moves stage breaks.
SyntaxFault FindSyntaxFault(const model::Map& map, const OrderLine& order);

/// Marks every faulty order and warns of it; false when the user does not want to continue.
bool CheckOrderSyntax(const model::Map& map, OrderTable& orders, model::Messages& messages);

}  // namespace orb::orders
