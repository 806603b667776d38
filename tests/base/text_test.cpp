// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(Text, CasesAreThoseOfAsciiLetters) {
  EXPECT_EQ(lowerCase("AZ[`az{ 09 Ü"), "az[`az{ 09 Ü");
  EXPECT_EQ(upperCase("azAZ@{ 09 ü"), "AZAZ@{ 09 ü");
  EXPECT_TRUE(equalsIgnoringCase("Content-LENGTH", "content-length"));
  EXPECT_TRUE(equalsIgnoringCase("", ""));
  EXPECT_FALSE(equalsIgnoringCase("Ü", "ü"));
  EXPECT_FALSE(equalsIgnoringCase("on", "one"));
  EXPECT_FALSE(equalsIgnoringCase("[", "{"));
}

TEST(Text, LettersAndDigitsAreThoseOfAscii) {
  for (const char letter : {'a', 'z', 'A', 'Z'}) {
    EXPECT_TRUE(isLetter(letter) && !isDigit(letter)) << letter;
  }
  EXPECT_TRUE(isDigit('0') && isDigit('9'));
  for (const char other : {'@', '[', '`', '{', '/', ':', '\0', '\xe4'}) {
    EXPECT_FALSE(isLetter(other) || isDigit(other)) << other;
  }
}

TEST(Text, TrimmingTakesTheEndsAlone) {
  EXPECT_EQ(trimmed(" \t a  b \r\n"), "a  b");
  EXPECT_EQ(trimmed("a"), "a");
  EXPECT_EQ(trimmed(" \r\n"), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed(" \ta\n ", " "), "\ta\n");
}

TEST(Text, AByteIsEncodedWithTwoDigits) {
  std::string text = "a";
  for (const char byte : {' ', '\0', '\xff', '/'}) {
    appendPercentEncoded(text, byte);
  }
  EXPECT_EQ(text, "a%20%00%FF%2F");
}

TEST(Utf8, TellsWellFormedTextFromOtherBytes) {
  EXPECT_TRUE(isUtf8("plain, ü, 日, 😀"));
  for (const char* broken : {"\x80", "\xc3", "\xc0\xaf", "\xe0\x80\x80", "\xed\xa0\x80", "\xf5\x80\x80\x80",
                             "\xf0\x80\x80\x80", "\xf4\x90\x80\x80", "\xe2\x82", "a\xff"}) {
    EXPECT_FALSE(isUtf8(broken)) << broken;
  }
  EXPECT_FALSE(decodeUtf8(""));
}

TEST(Utf8, EachCharacterComesBackAsItWas) {
  for (char32_t character = 0; character <= 0x10FFFF; character += character == 0xD7FF ? 0x801 : 1) {
    std::string text;
    appendUtf8(text, character);
    const auto decoded = decodeUtf8(text + "+");
    ASSERT_TRUE(decoded && decoded->character == character && decoded->length == text.size())
        << static_cast<std::uint32_t>(character);
    ASSERT_TRUE(continuesCharacter(text.back()) == (text.size() > 1));
  }
}

}  // namespace
}  // namespace tarnwick
