// SPDX-License-Identifier: MIT
#include "ui/baseline/page_offsets.h"

#include <gtest/gtest.h>

#include "holes/page_text.h"
#include "ui/baseline/baseline_text.h"

namespace tarnwick {
namespace {

std::string wide(std::u16string_view text, bool isBigEndian) {
  std::string page;
  for (const char16_t unit : text) {
    const auto high = static_cast<char>(unit >> 8U);
    const auto low = static_cast<char>(unit & 0xFFU);
    page += isBigEndian ? std::string{high, low} : std::string{low, high};
  }
  return page;
}

TEST(PageOffsetsTest, PlacesOfMostPagesAreTheSameInTheirText) {
  const std::string page("a\r\n\xc3\xa9\0\xff", 7);
  const std::string text = pageText(page);
  const PageOffsets offsets(page, text);
  for (std::size_t at = 0; at <= page.size(); ++at) {
    EXPECT_EQ(offsets.inText(at), at);
    EXPECT_EQ(offsets.inPage(at), at);
  }
}

TEST(PageOffsetsTest, CharactersOfAPageInUtf16AreFoundInItsTextAndBack) {
  for (const bool isBigEndian : {false, true}) {
    std::u16string content = u"\xFEFFone \u00e9 two \u20ac three \xD83D\xDE00 four\n";
    while (content.size() < 20'000) {
      content += u"a line of \u00e9 and \xD83D\xDE00\n";
    }
    const std::string page = wide(content, isBigEndian);
    const std::string text = pageText(page);
    ASSERT_NE(text, page);
    const PageOffsets offsets(page, text);
    for (const std::string word : {"one", "two", "three", "four"}) {
      const std::size_t inText = text.find(word);
      const std::size_t inPage = page.find(wide(std::u16string(word.begin(), word.end()), isBigEndian));
      EXPECT_EQ(offsets.inText(inPage), inText) << word;
      EXPECT_EQ(offsets.inPage(inText), inPage) << word;
    }
    EXPECT_EQ(offsets.inPage(text.size()), page.size());
    EXPECT_EQ(offsets.inText(page.size()), text.size());
    EXPECT_EQ(offsets.inPage(text.rfind('a')), page.size() - 2 * std::u16string_view(u"and \xD83D\xDE00\n").size());
  }
}

TEST(BaselinePlacesTest, BytesOfAPageAreFoundInWhatIsShownAndBack) {
  const BaselineText text(std::string("\xEF\xBB\xBFone\r\n\xc3\xa9\xF0\x9F\x98\x80two\n\r", 20));
  // one, a line end, an e with an accent, a smile of two units, two, two line ends.
  EXPECT_EQ(text.positionsOf({3, 6, 8, 10, 14, 17, 18}), (std::vector<std::size_t>{0, 3, 4, 5, 7, 10, 11}));
  const std::vector<std::size_t> offsets{3, 4, 5, 6, 8, 10, 10, 14, 15, 16, 17, 18};
  for (std::size_t position = 0; position < offsets.size(); ++position) {
    EXPECT_EQ(text.offsetOf(position), offsets[position]) << position;
  }
}

TEST(BaselinePlacesTest, BreaksOfALongLineStandForNoByte) {
  const BaselineText text(std::string(50'000, 'x'));
  const std::size_t position = text.positionsOf({30'000}).front();
  EXPECT_GT(position, 30'000U);
  EXPECT_EQ(text.offsetOf(position), 30'000U);
  EXPECT_EQ(text.offsetOf(text.size()), 50'000U);
}

}  // namespace
}  // namespace tarnwick
