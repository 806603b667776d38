// SPDX-License-Identifier: MIT
#include "ui/controls/status_line.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

class StatusLineTest : public ::testing::Test {
 protected:
  StatusLineTest() { line.resize(300, 24); }

  StatusLine line;
};

TEST_F(StatusLineTest, AShortTextIsShownWhole) {
  line.showText(QStringLiteral("Ready ..."));
  EXPECT_EQ(line.text(), QStringLiteral("Ready ..."));
  EXPECT_EQ(line.shownText(), QStringLiteral("Ready ..."));
  EXPECT_TRUE(line.toolTip().isEmpty());
}

TEST_F(StatusLineTest, ALongAddressLosesItsMiddleAndIsWholeInTheToolTip) {
  const QString address =
      QStringLiteral("Testing: http://localhost/") + QString(500, QLatin1Char('x')) + QStringLiteral("/end");
  line.showText(address);
  EXPECT_EQ(line.text(), address);
  EXPECT_LT(line.shownText().size(), address.size());
  EXPECT_TRUE(line.shownText().startsWith(QStringLiteral("Testing: ")));
  EXPECT_TRUE(line.shownText().endsWith(QStringLiteral("/end")));
  EXPECT_TRUE(line.toolTip().contains(address));

  line.showText(QStringLiteral("Stopped."));
  EXPECT_TRUE(line.toolTip().isEmpty());
}

TEST_F(StatusLineTest, ALongTextDoesNotWidenTheWindow) {
  const QSize before = line.minimumSizeHint();
  line.showText(QString(100000, QLatin1Char('x')));
  EXPECT_EQ(line.minimumSizeHint(), before);
}

TEST_F(StatusLineTest, MarkUpIsTextAndNotMarkUp) {
  const QString text = QStringLiteral("Testing: <h1>big</h1><img src=x>");
  line.showText(text);
  EXPECT_EQ(line.textFormat(), Qt::PlainText);
  EXPECT_EQ(line.shownText(), text);

  line.resize(80, 24);
  line.showText(text);
  EXPECT_FALSE(line.toolTip().contains(QStringLiteral("<h1>")));
  EXPECT_TRUE(line.toolTip().contains(QStringLiteral("&lt;h1&gt;")));
}

TEST_F(StatusLineTest, LineEndsDoNotBreakTheLine) {
  line.showText(QStringLiteral("one\ntwo"));
  EXPECT_EQ(line.shownText(), QStringLiteral("one two"));
}

TEST_F(StatusLineTest, ItIsReadOutWithItsText) {
  line.showText(QStringLiteral("Stopped."));
  EXPECT_TRUE(line.accessibleName().contains(QStringLiteral("Stopped.")));
}

}  // namespace
}  // namespace tarnwick
