// SPDX-License-Identifier: MIT
#include "ui/main_window/pass_bar.h"

#include <gtest/gtest.h>

#include "ui/controls/colour_text.h"

namespace tarnwick {
namespace {

TEST(PassBar, IsMeasuredInTwips) {
  PassBar bar;
  bar.resize(489, 9);
  EXPECT_EQ(bar.takeFullWidth(), 7335);
}

TEST(PassBar, ShowsThePartOfItsWidth) {
  PassBar bar;
  bar.resize(200, 9);
  const std::int64_t full = bar.takeFullWidth();
  bar.showWidth(full / 4);
  EXPECT_DOUBLE_EQ(bar.part(), 0.25);
  EXPECT_EQ(bar.value(), bar.maximum() / 4);

  const QImage picture = bar.grab().toImage();
  EXPECT_EQ(picture.pixelColor(25, 4), colourFromText(colours::kProgress));
  EXPECT_NE(picture.pixelColor(150, 4), colourFromText(colours::kProgress));
}

TEST(PassBar, KeepsItsPartWhenTheWindowIsResizedInAPass) {
  PassBar bar;
  bar.resize(200, 9);
  const std::int64_t full = bar.takeFullWidth();
  bar.resize(400, 9);
  bar.showWidth(full / 2);
  EXPECT_DOUBLE_EQ(bar.part(), 0.5);
}

TEST(PassBar, StaysWithinItsWidth) {
  PassBar bar;
  bar.resize(200, 9);
  const std::int64_t full = bar.takeFullWidth();
  bar.showWidth(2 * full);
  EXPECT_DOUBLE_EQ(bar.part(), 1.0);
  bar.showWidth(-1);
  EXPECT_DOUBLE_EQ(bar.part(), 0.0);
}

}  // namespace
}  // namespace tarnwick
