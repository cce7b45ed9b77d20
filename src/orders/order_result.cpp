#include "orders/order_result.h"

#include <array>

namespace orb::orders {

std::string_view ResultWord(OrderResult result) {
  // In the order of the enumerators. The "1" is part of the text that users know.
  static constexpr std::array<std::string_view, 21> words = {"",
                                                             "syntax error",
                                                             "no such unit",
                                                             "not used",
                                                             "impossible move",
                                                             "impossible support",
                                                             "cut",
                                                             "convoy failed",
                                                             "dislodged",
                                                             "unordered",
                                                             "occupied",
                                                             "impossible (standoff)",
                                                             "not a home centre",
                                                             "centre not owned",
                                                             "centre not empty1",
                                                             "impossible unit",
                                                             "clash",
                                                             "contradicted",
                                                             "repeated",
                                                             "impossible convoy",
                                                             "too many"};
  return words[static_cast<std::size_t>(result)];
}

}  // namespace orb::orders
