// SPDX-License-Identifier: MIT
#include "ui/controls/display_text.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnwick {
namespace {

TEST(DisplayText, ValidUtf8IsShownAsSuch) {
  EXPECT_EQ(displayText("gr\xC3\xBC\xC3\x9F"), QStringLiteral("grüß"));
  EXPECT_EQ(displayText(""), QString());
}

TEST(DisplayText, OtherBytesAreShownAsWindows1252) {
  EXPECT_EQ(displayText("gr\xFC\xDF"), QStringLiteral("grüß"));
  EXPECT_EQ(displayText("\x80 5 \x96 6"), QStringLiteral("€ 5 – 6"));
  EXPECT_EQ(displayText("\xFF\x9F"), QStringLiteral("ÿŸ"));
}

TEST(DisplayText, CutOffUtf8IsNotUtf8) { EXPECT_EQ(displayText("a\xC3"), QStringLiteral("aÃ")); }

TEST(DisplayText, NulBytesStay) { EXPECT_EQ(displayText(std::string("a\0b", 3)).size(), 3); }

TEST(DisplayText, AToolTipShowsMarkUpAsItStands) {
  const QString toolTip = plainToolTip(QStringLiteral("<b>x</b>"));
  EXPECT_TRUE(toolTip.contains(QStringLiteral("&lt;b&gt;x&lt;/b&gt;")));
  EXPECT_TRUE(plainToolTip(QString()).isEmpty());
}

}  // namespace
}  // namespace tarnwick
