// SPDX-License-Identifier: MIT
#include "ui/main_window/lamp.h"

#include <gtest/gtest.h>

#include "ui/controls/colour_text.h"

namespace tarnwick {
namespace {

const QColor kDim = colourFromText(colours::kRedDim);
const QColor kBright = colourFromText(colours::kRedBright);

class LampTest : public ::testing::Test {
 protected:
  Lamp lamp{QStringLiteral("indicator1"), QStringLiteral("Stopped"), kDim, kBright};
};

TEST_F(LampTest, ALitLampHasTwoBrightBars) {
  EXPECT_EQ(lamp.bar(0).colour(), kDim);
  EXPECT_EQ(lamp.bar(1).colour(), kDim);
  lamp.setLit(true);
  EXPECT_EQ(lamp.bar(0).colour(), kBright);
  EXPECT_EQ(lamp.bar(1).colour(), kBright);
}

TEST_F(LampTest, TheBarsOfALitLampAlternate) {
  lamp.setLit(true);
  lamp.blink();
  const QColor first = lamp.bar(0).colour();
  const QColor second = lamp.bar(1).colour();
  EXPECT_NE(first, second);
  lamp.blink();
  EXPECT_EQ(lamp.bar(0).colour(), second);
  EXPECT_EQ(lamp.bar(1).colour(), first);
}

TEST_F(LampTest, ALampThatIsOutDoesNotBlink) {
  lamp.blink();
  EXPECT_EQ(lamp.bar(0).colour(), kDim);
  EXPECT_EQ(lamp.bar(1).colour(), kDim);
}

TEST_F(LampTest, TheStateIsToldInWordsToo) {
  const QString out = lamp.accessibleName();
  lamp.setLit(true);
  EXPECT_NE(lamp.accessibleName(), out);
  EXPECT_TRUE(lamp.accessibleName().contains(QStringLiteral("Stopped")));
  EXPECT_EQ(lamp.toolTip(), lamp.accessibleName());
}

TEST_F(LampTest, TheBarsAreFoundByName) {
  EXPECT_EQ(lamp.findChild<LampBar*>(QStringLiteral("indicator1_0")), &lamp.bar(0));
  EXPECT_EQ(lamp.findChild<LampBar*>(QStringLiteral("indicator1_1")), &lamp.bar(1));
}

TEST_F(LampTest, TheBarsArePaintedSolid) {
  lamp.resize(120, 40);
  lamp.setLit(true);
  const QImage picture = lamp.grab().toImage();
  const QPoint middle = lamp.bar(0).geometry().center();
  EXPECT_EQ(picture.pixelColor(middle), kBright);
}

}  // namespace
}  // namespace tarnwick
