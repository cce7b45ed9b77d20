#include "json/names.h"

#include <array>

namespace orb::json {

std::string_view NameOf(orders::OrderKind kind) {
  constexpr std::array<std::string_view, 8> names{"none",   "move",    "hold",    "support",
                                                  "convoy", "retreat", "disband", "build"};
  return names[static_cast<std::size_t>(kind)];
}

std::string_view NameOf(orders::Outcome outcome) {
  constexpr std::array<std::string_view, 5> names{"entered", "succeeded", "failed", "cut", "void"};
  return names[static_cast<std::size_t>(outcome)];
}

}  // namespace orb::json
