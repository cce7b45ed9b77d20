#include "text/qt/text_codec.h"

#include <gtest/gtest.h>

#include <set>

namespace orb::tests {
namespace {

TEST(TextCodec, EveryByteHasItsOwnCharacterAndComesBack) {
  std::set<char16_t> characters;
  for (int code = 0; code < 256; ++code) {
    const std::string bytes(1, static_cast<char>(code));
    const QString text = text::ToQString(bytes);
    ASSERT_EQ(text.size(), 1);
    characters.insert(text.at(0).unicode());
    EXPECT_EQ(text::ToBytes(text), bytes) << code;
  }
  EXPECT_EQ(characters.size(), 256U);
}

TEST(TextCodec, KnowsTheCharactersOfWindows1252) {
  EXPECT_EQ(text::ToQString("\x80 \x93M\xFCnchen\x94 \x9F"), QStringLiteral(u"€ “München” Ÿ"));
  EXPECT_EQ(text::ToBytes(u"š–ß"), "\x9A\x96\xDF");
  EXPECT_EQ(text::ToBytes(u""), "");
  for (const char16_t* none : {u"Łódź", u"Ω", u"😀", u"a\u0301"}) {
    EXPECT_FALSE(text::ToBytes(none).has_value());
  }
}

}  // namespace
}  // namespace orb::tests
