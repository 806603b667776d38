// SPDX-License-Identifier: MIT
#include "ui/controls/colour_text.h"

#include <gtest/gtest.h>

#include <array>

#include "ui/controls/tones.h"

namespace tarnwick {
namespace {

TEST(ColourText, IsBlueGreenRed) {
  EXPECT_EQ(colourFromText("&h9FDB73"), QColor(0x73, 0xDB, 0x9F));
  EXPECT_EQ(colourFromText("&h3030C0"), QColor(0xC0, 0x30, 0x30));
  EXPECT_EQ(colourFromText("&H00A0A0"), QColor(0xA0, 0xA0, 0x00));
}

TEST(ColourText, LeadingZerosMayBeMissing) {
  EXPECT_EQ(colourFromText("&hA0"), QColor(0xA0, 0, 0));
  EXPECT_EQ(colourFromText("&HFF00"), QColor(0, 0xFF, 0));
  EXPECT_EQ(colourFromText("&h0"), QColor(0, 0, 0));
}

TEST(ColourText, WhatIsNoNumberIsBlack) {
  EXPECT_EQ(colourFromText(""), QColor(0, 0, 0));
  EXPECT_EQ(colourFromText("&h"), QColor(0, 0, 0));
  EXPECT_EQ(colourFromText("green"), QColor(0, 0, 0));
}

TEST(ColourText, DigitsHaveNoLeadingZeros) {
  EXPECT_EQ(colourDigits(QColor(0x73, 0xDB, 0x9F)), "9FDB73");
  EXPECT_EQ(colourDigits(QColor(0xA0, 0, 0)), "A0");
  EXPECT_EQ(colourDigits(QColor(0, 0, 0)), "0");
}

TEST(ColourText, BrightenAddsToEachPart) {
  EXPECT_EQ(brightened(QColor(0x73, 0xDB, 0x9F), 0x10), QColor(0x83, 0xEB, 0xAF));
  EXPECT_EQ(brightened(QColor(0x73, 0xDB, 0x9F), -0x10), QColor(0x63, 0xCB, 0x8F));
}

TEST(ColourText, BrightenKeepsEachPartWithin0To255) {
  EXPECT_EQ(brightened(QColor(0xC0, 0x30, 0x30), 0x60), QColor(0xFF, 0x90, 0x90));
  EXPECT_EQ(brightened(QColor(0xC0, 0x30, 0x30), -0x60), QColor(0x60, 0, 0));
  EXPECT_EQ(brightened(QColor(0xC0, 0x30, 0x30), 2147483647), QColor(0xFF, 0xFF, 0xFF));
  EXPECT_EQ(brightened(QColor(0xC0, 0x30, 0x30), -2147483647), QColor(0, 0, 0));
}

TEST(ColourText, BrightenReadsTheDigitsByPositionWithoutLeadingZeros) {
  // "A0": nothing at positions 5 and 3, A0 at position 1, which is blue.
  EXPECT_EQ(brightened(QColor(0xA0, 0, 0), 0x10), QColor(0x10, 0x10, 0xB0));
  // "FDB73": "3", "B7", "FD".
  EXPECT_EQ(brightened(QColor(0x73, 0xDB, 0x0F), 0), QColor(0x03, 0xB7, 0xFD));
  EXPECT_EQ(brightened(QColor(0, 0, 0), 0x20), QColor(0x20, 0x20, 0x20));
}

TEST(ColourText, TextIsReadableOnEveryColourOfARow) {
  constexpr std::array kRowColours = {colours::kUp, colours::kDown, colours::kInactive, colours::kUnpainted};
  for (const auto text : kRowColours) {
    for (const int amount : {0, 24, 48, 96, -48}) {
      const QColor background = brightened(colourFromText(text), amount);
      EXPECT_GE(contrastRatio(readableOn(background), background), 4.5) << text << " " << amount;
    }
  }
}

TEST(ColourText, ContrastOfBlackAndWhiteIs21) {
  EXPECT_NEAR(contrastRatio(QColor(Qt::black), QColor(Qt::white)), 21.0, 0.01);
  EXPECT_NEAR(contrastRatio(QColor(Qt::white), QColor(Qt::white)), 1.0, 0.01);
}

TEST(HoleColours, CanBeReadAndSeen) {
  for (const bool dark : {false, true}) {
    const HoleColours hole = holeColours(dark);
    const QColor page = dark ? QColor(0x1E, 0x20, 0x23) : QColor(Qt::white);
    EXPECT_GE(contrastRatio(hole.ink, hole.fill), dark ? 9.5 : 10.6) << dark;
    EXPECT_GE(contrastRatio(hole.edge, hole.fill), 3.0) << dark;
    EXPECT_GE(contrastRatio(hole.edge, page), 3.0) << dark;
  }
}

}  // namespace
}  // namespace tarnwick
