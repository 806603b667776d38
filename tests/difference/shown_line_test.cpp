// SPDX-License-Identifier: MIT
#include "difference/shown_line.h"

#include <gtest/gtest.h>

#include <string>

#include "difference/page_difference.h"

namespace tarnwick {
namespace {

std::string text(const std::vector<ShownRun>& runs) {
  std::string all;
  for (const ShownRun& run : runs) {
    all += run.mark == ShownMark::byte   ? "[" + run.text + "]"
           : run.mark == ShownMark::word ? "(" + run.text + ")"
                                         : run.text;
  }
  return all;
}

std::string shown(std::string_view page, bool invisible = false) {
  return text(shownLine(page, {0, page.size()}, pageFormOf(page), {}, {}, invisible));
}

TEST(PageForm, IsKnownByTheBytes) {
  EXPECT_EQ(pageFormOf(""), PageForm::utf8);
  EXPECT_EQ(pageFormOf("<p>\xc3\xa4</p>"), PageForm::utf8);
  EXPECT_EQ(pageFormOf("<p>\xe4</p>"), PageForm::windows1252);
  EXPECT_EQ(pageFormOf(std::string("\xFF\xFE"
                                   "a\0",
                                   4)),
            PageForm::utf16Little);
  EXPECT_EQ(pageFormOf(std::string("\xFE\xFF\0a", 4)), PageForm::utf16Big);
  EXPECT_EQ(pageFormOf("\x89PNG\r\n\x1a\n"), PageForm::binary);
  EXPECT_EQ(pageFormOf(std::string("\x01\x02\x00\x03", 4)), PageForm::binary);
  EXPECT_EQ(pageFormOf(std::string(100, 'a') + '\0' + std::string(100, 'b')), PageForm::utf8);
}

TEST(ShownLine, MarksWordsAndTheirBytes) {
  const std::string before = "Kettle: 24.00\n";
  const std::string after = "Kettle: 29.00\n";
  const PageDifference difference = differenceOf(before, after);
  const PageChange& change = difference.changes.at(0);
  EXPECT_EQ(text(shownLine(after, difference.after.line(0), PageForm::utf8, change.addedWords, change.added, false)),
            "Kettle: (2)[9].00");
}

TEST(ShownLine, MarksWholeCharacters) {
  const std::string before = "\xc3\xa4";
  const std::string after = "\xc3\xb6";
  const PageDifference difference = differenceOf(before, after);
  const PageChange& change = difference.changes.at(0);
  EXPECT_EQ(change.added, (ByteSpans{{1, 2}}));
  EXPECT_EQ(text(shownLine(after, {0, 2}, PageForm::utf8, change.addedWords, change.added, false)), "[\xc3\xb6]");
}

TEST(ShownLine, ShowsEachFormAsItsCharacters) {
  EXPECT_EQ(shown("\xe4\x80"), "\xc3\xa4\xe2\x82\xac");
  EXPECT_EQ(shown(std::string("\xFE\xFF\0a\xD8\x3D\xDE\x00", 8)).substr(3), "a\xf0\x9f\x98\x80");
  EXPECT_EQ(text(shownLine("a\xff", {0, 2}, PageForm::utf8, {}, {}, false)), "a\\xff");
}

TEST(ShownLine, ShowsWhatCannotBeSeen) {
  EXPECT_EQ(shown("a b\t\r\n"), "a b\t");
  EXPECT_EQ(shown("a b\t\r\n", true), "a\u00b7b\u2192\t\u240d\u00b6");
  EXPECT_EQ(shown("a\rb\n"), "a\\rb");
  EXPECT_EQ(shown("a\x1b[31m"), "a\\x1b[31m");
}

TEST(HexRow, HasOffsetBytesAndLetters) {
  EXPECT_EQ(hexRow("<p>Kettle: 24.00</p>", 16), "00000010  3c 2f 70 3e                                      </p>");
  EXPECT_EQ(hexRow(std::string("\0\xff~", 3), 0).substr(kHexColumn, 8), "00 ff 7e");
}

}  // namespace
}  // namespace tarnwick
