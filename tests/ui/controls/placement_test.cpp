// SPDX-License-Identifier: MIT
#include "ui/controls/placement.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QVBoxLayout>

namespace tarnwick {
namespace {

// A screen to the left of the main one, so that positions on it are negative.
const QRect kScreen(-1000, 100, 1000, 800);

TEST(Placement, AWishInsideTheScreenIsKept) {
  EXPECT_EQ(clampedTo(kScreen, {-700, 200}, {300, 200}), QPoint(-700, 200));
}

TEST(Placement, AWindowThatWouldReachOverAnEdgeIsMovedBack) {
  EXPECT_EQ(clampedTo(kScreen, {-100, 850}, {300, 200}), QPoint(-300, 700));
  EXPECT_EQ(clampedTo(kScreen, {-2000, -50}, {300, 200}), QPoint(-1000, 100));
}

TEST(Placement, ALargerWindowKeepsItsTitleBarOnTheScreen) {
  EXPECT_EQ(clampedTo(kScreen, {-500, 300}, {2000, 2000}), QPoint(-1000, 100));
}

TEST(Placement, AWindowIsMadeToFitTheScreenOfItsParent) {
  QWidget parent;
  parent.resize(200, 100);
  parent.show();
  QWidget window(&parent, Qt::Window);
  window.resize(100'000, 100'000);
  placeOver(window, parent);
  EXPECT_TRUE(parent.screen()->availableGeometry().contains(window.geometry()));
}

TEST(Placement, AWindowIsAsLargeAsItsContentsWishWhereTheScreenHasRoom) {
  QWidget parent;
  parent.show();
  const QSize wish = parent.screen()->availableSize() * 0.8;
  QWidget window(&parent, Qt::Window);
  auto* contents = new QWidget;
  contents->setMinimumSize(wish);
  auto* lines = new QVBoxLayout(&window);
  lines->setContentsMargins({});
  lines->addWidget(contents);
  sizeToContents(window, parent);
  EXPECT_EQ(window.size(), wish);
  contents->setMinimumSize(wish * 2);
  sizeToContents(window, parent);
  EXPECT_LE(window.height(), parent.screen()->availableSize().height());
}

}  // namespace
}  // namespace tarnwick
