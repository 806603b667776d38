// SPDX-License-Identifier: MIT
#include "ui/controls/link_button.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

namespace tarnwick {
namespace {

TEST(LinkButton, IsFollowedByMouseSpaceAndEnter) {
  LinkButton link(QStringLiteral("Online Help"));
  link.show();
  QSignalSpy clicks(&link, &LinkButton::clicked);
  QTest::mouseClick(&link, Qt::LeftButton);
  QTest::keyClick(&link, Qt::Key_Space);
  QTest::keyClick(&link, Qt::Key_Return);
  QTest::keyClick(&link, Qt::Key_Enter);
  EXPECT_EQ(clicks.size(), 4);
}

TEST(LinkButton, IsReachedWithTheTabKey) {
  const LinkButton link(QStringLiteral("Online Help"));
  EXPECT_TRUE(link.focusPolicy() & Qt::TabFocus);
}

}  // namespace
}  // namespace tarnwick
