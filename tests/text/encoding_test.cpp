#include "text/encoding.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace orb::tests {
namespace {

TEST(TextEncoding, FindsTheEightBitFormOfEveryCharacterThatHasOne) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"", ""},
      {"plain ~", "plain ~"},
      {"\u00e9\u00ff\u00a0", "\xe9\xff\xa0"},
      {"\u20ac\u0152\u0178\u2122", "\x80\x8c\x9f\x99"},
      {"\u0081\u009d", "\x81\x9d"}};
  for (const auto& [utf8, bytes] : cases)
    EXPECT_EQ(text::ToWindows1252(utf8), bytes) << utf8;
  for (const char* none : {"\u0080", "\u0416", "\U0001F600", "\xe9", "\xc3", "\xc3(", "\x80",
                           "\xc1\xa9", "\xe0\x83\xa9", "\xff\xa9\xa9\xa9"}) {
    EXPECT_EQ(text::ToWindows1252(none), std::nullopt) << none;
  }
}

}  // namespace
}  // namespace orb::tests
