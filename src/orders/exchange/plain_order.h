#pragma once

#include "orders/order_words.h"

#include <string>

namespace orb::exchange {

/// An order in the texts that its line is put together from; OrderWords tells what each part is.
struct PlainOrder {
  std::string Power;
  std::string UnitType;
  std::string Location;
  orders::OrderKind Kind = orders::OrderKind::None;
  std::string Power2;
  std::string UnitType2;
  std::string Target;
  orders::OrderKind Kind2 = orders::OrderKind::None;
  std::string Target2;
};

/// The same as the words of a line. The order must outlive them.
inline orders::OrderWords WordsOf(const PlainOrder& order) {
  return {order.Power,     order.UnitType, order.Location, order.Kind,   order.Power2,
          order.UnitType2, order.Target,   order.Kind2,    order.Target2};
}

}  // namespace orb::exchange
