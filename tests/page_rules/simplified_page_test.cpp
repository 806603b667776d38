// SPDX-License-Identifier: MIT
#include "page_rules/simplified_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(SimplifiedPage, KeepsWhatIsReadAndNothingThatIsLoadedRunOrFollowed) {
  const std::string html = simplifiedPage(
      "<html><head><title>t</title><style>p{background:url(http://a.test/x)}</style></head><body onload='run()'>"
      "<script>run()</script><h1 style='x'>Shop</h1><p>A <b>blue</b> <a href='http://a.test/'>thing</a></p>"
      "<img src='http://a.test/p.png' alt='a kettle'><iframe src='http://a.test/'>no</iframe></body></html>");
  EXPECT_THAT(html, HasSubstr("<h1>Shop</h1>"));
  EXPECT_THAT(html, HasSubstr("<p>A <b>blue</b> thing</p>"));
  EXPECT_THAT(html, HasSubstr("[a kettle]"));
  EXPECT_THAT(html, Not(HasSubstr("a.test")));
  EXPECT_THAT(html, Not(HasSubstr("run")));
  EXPECT_THAT(html, Not(HasSubstr("style")));
}

TEST(SimplifiedPage, TextIsTextWhateverItHolds) {
  EXPECT_THAT(simplifiedPage("<p>1 &lt; 2 &amp;amp; &lt;img src=x&gt;</p>"),
              HasSubstr("1 &lt; 2 &amp;amp; &lt;img src=x&gt;"));
  EXPECT_THAT(simplifiedPage("no page, just words"), HasSubstr("no page, just words"));
  EXPECT_THAT(simplifiedPage("<p>gr\xc3\xbc\xc3\x9f</p>"), HasSubstr("gr\xc3\xbc\xc3\x9f"));
  EXPECT_EQ(simplifiedPage(""), "");
}

TEST(SimplifiedPage, IsNeverNestedDeeply) {
  std::string deep;
  for (int i = 0; i < 20'000; ++i) {
    deep += "<blockquote><ul><li>";
  }
  const std::string html = simplifiedPage(deep + "the end");
  std::size_t depth = 0;
  std::size_t deepest = 0;
  for (std::size_t at = html.find('<'); at != std::string::npos; at = html.find('<', at + 1)) {
    html[at + 1] == '/' ? --depth : ++depth;
    deepest = std::max(deepest, depth);
  }
  EXPECT_EQ(depth, 0U);
  EXPECT_LE(deepest, 12U);
}

}  // namespace
}  // namespace tarnwick
