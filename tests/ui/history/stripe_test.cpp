// SPDX-License-Identifier: MIT
#include "ui/history/stripe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <QColor>
#include <QImage>

#include "ui/controls/colour_text.h"
#include "ui/controls/tones.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
using ::testing::Not;

const Moment kNow = Moment(1'764'000'000s);

/// Four hours: unknown, up, half of it down, all of it down.
Stripe fourHours() {
  Stripe stripe{.view = {periods().front(), {}, {}}, .now = kNow};
  for (const auto hours : {4h, 3h, 2h, 1h, 0h}) {
    stripe.view.edges.push_back(kNow - hours);
  }
  stripe.view.cells.resize(4);
  stripe.view.cells[1].up = 1h;
  stripe.view.cells[2].up = 30min;
  stripe.view.cells[2].down = 30min;
  stripe.view.cells[3].down = 1h;
  stripe.outages = {{.idSite = 3, .began = kNow - 90min, .ended = {}, .checks = 9, .cause = "it was refused"},
                    {.idSite = 3, .began = kNow - 9h, .ended = kNow - 8h, .checks = 6, .cause = "long ago"}};
  return stripe;
}

/// The height of a column of a colour in the middle of a cell that is 20 wide.
int heightOf(const QImage& image, int cell, const QColor& colour) {
  int height = 0;
  for (int y = 0; y < image.height(); ++y) {
    height += image.pixelColor(cell * 20 + 8, y) == colour ? 1 : 0;
  }
  return height;
}

TEST(StripeTest, HeightAndColourTellTheState) {
  for (const bool dark : {false, true}) {
    Stripe stripe = fourHours();
    QImage image(80, kStripeHeight, QImage::Format_ARGB32);
    const auto paint = [&] {
      image.fill(Qt::transparent);
      QPainter painter(&image);
      paintStripe(painter, image.rect(), stripe, dark);
    };
    paint();
    EXPECT_EQ(heightOf(image, 0, stripeColour(StripeTone::unknown, dark)), 3);
    EXPECT_EQ(heightOf(image, 1, stripeColour(StripeTone::up, dark)), 10);
    EXPECT_EQ(heightOf(image, 2, stripeColour(StripeTone::up, dark)), 9) << "the half of it that was up";
    EXPECT_EQ(heightOf(image, 2, stripeColour(StripeTone::down, dark)), 9);
    EXPECT_EQ(heightOf(image, 3, stripeColour(StripeTone::down, dark)), 18);
    stripe.view.cells[1].latency.add(2s);
    stripe.slow = 1s;
    paint();
    EXPECT_EQ(heightOf(image, 1, stripeColour(StripeTone::slow, dark)), 14);
  }
}

TEST(StripeTest, ColoursStandOutFromTheWindow) {
  for (const StripeTone tone : {StripeTone::up, StripeTone::slow, StripeTone::down, StripeTone::unknown}) {
    EXPECT_GE(contrastRatio(stripeColour(tone, false), QColor(0xEF, 0xEF, 0xEF)), 2.95);
    EXPECT_GE(contrastRatio(stripeColour(tone, true), QColor(0x2B, 0x2D, 0x30)), 2.95);
  }
}

TEST(StripeTest, APlaceBelongsToTheCellThatIsPaintedThere) {
  const Stripe stripe = fourHours();
  for (std::size_t cell = 0; cell < 4; ++cell) {
    EXPECT_EQ(cellAt(stripe, cellArea(stripe, QRectF(0, 0, 83, 18), cell).center().x(), 83), cell);
  }
  EXPECT_EQ(cellAt(stripe, -1, 83), std::nullopt);
  EXPECT_EQ(cellAt(stripe, 83, 83), std::nullopt);
  EXPECT_EQ(cellAt(Stripe{}, 1, 83), std::nullopt);
}

TEST(StripeTest, WordsTellOfACellAndItsOutages) {
  const Stripe stripe = fourHours();
  const auto words = [&](std::size_t cell) { return cellWords(stripe, cell).toStdString(); };
  EXPECT_THAT(words(0), HasSubstr("nothing is known"));
  EXPECT_THAT(words(1), HasSubstr("100.00 % up"));
  EXPECT_THAT(words(1), Not(HasSubstr("refused")));
  EXPECT_THAT(words(2), HasSubstr("50.00 % up"));
  EXPECT_THAT(words(2), HasSubstr("1 h 30 min"));
  EXPECT_THAT(words(3), HasSubstr("it was refused"));
  EXPECT_THAT(words(3), Not(HasSubstr("long ago")));
  EXPECT_EQ(wholeWords(stripe).toStdString(), "24 hours: 50.00 % up, 1 outage");
}

}  // namespace
}  // namespace tarnwick::testing
