// SPDX-License-Identifier: MIT
#include "base/visible_text.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(VisibleText, LeavesNothingThatActsOnATerminal) {
  EXPECT_EQ(visibleText("a\x1b[31mb"), "a\\x1b[31mb");
  EXPECT_EQ(visibleText("a\r\n\tb"), "a\\r\\n\\tb");
  EXPECT_EQ(visibleText("\x7f\xc2\x9b"), "\\x7f\\xc2\\x9b");
  EXPECT_EQ(visibleText("\xe2\x80\xae"), "\\xe2\\x80\\xae");
  EXPECT_EQ(visibleText("\xd8\x9c"), "\\xd8\\x9c");
  EXPECT_EQ(visibleText(std::string_view("\0", 1)), "\\x00");
}

TEST(VisibleText, KeepsLettersOfAllLanguagesAndEscapesBytesThatAreNone) {
  EXPECT_EQ(visibleText("Grüße 日本 😀"), "Grüße 日本 😀");
  EXPECT_EQ(visibleText("caf\xe9"), "caf\\xe9");
}

TEST(VisibleText, IsCutToItsLengthInCharacters) {
  EXPECT_EQ(visibleText("äöüäöü", 6), "äöüäöü");
  EXPECT_EQ(visibleText("äöüäöüä", 6), "äöü...");
  EXPECT_EQ(visibleText("abcdef", 2), "..");
  EXPECT_EQ(visibleText("", 2), "");
}

}  // namespace
}  // namespace tarnwick
