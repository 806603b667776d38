// SPDX-License-Identifier: MIT
#include "ui/details/difference_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "support/wait_until.h"
#include "ui/controls/tones.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

std::string lines(int from, int to) {
  std::string text;
  for (int line = from; line <= to; ++line) {
    text += "line " + std::to_string(line) + "\n";
  }
  return text;
}

class DifferenceViewTest : public ::testing::Test {
 protected:
  DifferenceViewTest() {
    view.resize(800, 300);
    view.show();
  }
  void compare(std::string before, std::string after) {
    view.compare({std::move(before), std::move(after)});
    ASSERT_TRUE(waitUntil([&] { return view.difference() != nullptr; }));
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&view, key, modifiers); }
  std::string selected() const { return view.selectedText().toStdString(); }
  bool hasColour(const QColor& colour) {
    const QImage picture = view.viewport()->grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y) == colour) {
          return true;
        }
      }
    }
    return false;
  }

  SystemClock clock;
  DifferenceView view{clock};
};

TEST_F(DifferenceViewTest, BeginsAtTheFirstChangeAndGoesOnByTheKeyboard) {
  compare(lines(1, 99) + "old\n" + lines(101, 200) + "price 24\n",
          lines(1, 99) + "new\n" + lines(101, 200) + "price 29\n");
  EXPECT_EQ(view.changes(), 2);
  EXPECT_EQ(view.currentChange(), 0);
  EXPECT_EQ(selected(), "- old\n+ new");
  key(Qt::Key_F3);
  EXPECT_EQ(selected(), "- price 24\n+ price 29");
  key(Qt::Key_F3);
  EXPECT_EQ(view.currentChange(), 1) << "there is none behind the last";
  key(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(selected(), "- old\n+ new");
}

TEST_F(DifferenceViewTest, OpensAFoldByKeyAndByMouse) {
  compare(lines(1, 50) + "old\n" + lines(1, 50), lines(1, 50) + "new\n" + lines(1, 50));
  key(Qt::Key_Home);
  EXPECT_EQ(selected(), "47 equal lines");
  key(Qt::Key_Return);
  EXPECT_EQ(selected(), "  line 1");
  key(Qt::Key_End);
  EXPECT_EQ(selected(), "47 equal lines");
  const int height = view.fontMetrics().height() + 2;
  const int row =
      view.verticalScrollBar()->maximum() + view.viewport()->height() / height - 1 - view.verticalScrollBar()->value();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(50, row * height + height / 2));
  EXPECT_EQ(selected(), "  line 4");
}

TEST_F(DifferenceViewTest, CopiesTheSelectedRows) {
  compare("a\nold\nb\n", "a\nnew\nb\n");
  key(Qt::Key_Home);
  key(Qt::Key_End, Qt::ShiftModifier);
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("  a\n- old\n+ new\n  b"));
}

TEST_F(DifferenceViewTest, MarksWhatDiffersInItsColours) {
  compare("<b>24.00</b>\n", "<b>29.00</b>\n");
  for (const DifferenceLayout layout :
       {DifferenceLayout::sideBySide, DifferenceLayout::unified, DifferenceLayout::hex}) {
    view.setDifferenceLayout(layout);
    for (const bool added : {false, true}) {
      EXPECT_TRUE(hasColour(differenceColours(added, false).fill)) << static_cast<int>(layout);
      EXPECT_TRUE(hasColour(differenceColours(added, false).wordFill)) << static_cast<int>(layout);
    }
  }
}

TEST_F(DifferenceViewTest, WhatMayVaryIsNoChange) {
  view.compare({.before = "at 04:10\n24.00\n",
                .after = "at 05:11\n29.00\n",
                .varyingBefore = {{3, 8}},
                .varyingAfter = {{3, 8}}});
  ASSERT_TRUE(waitUntil([&] { return view.difference() != nullptr; }));
  EXPECT_TRUE(hasColour(holeColours(false).fill));
  EXPECT_TRUE(hasColour(holeColours(false).edge));
  EXPECT_TRUE(hasColour(differenceColours(true, false).wordFill)) << "the other line has changed";
}

TEST_F(DifferenceViewTest, ShowsLineEndsAndBlanksOnWish) {
  compare("a b\r\n", "a b\n");
  EXPECT_THAT(selected(), ::testing::Not(HasSubstr("\u240d")));
  view.setInvisible(true);
  EXPECT_EQ(selected(), "- a\u00b7b\u240d\u00b6\n+ a\u00b7b\u00b6");
}

TEST_F(DifferenceViewTest, BytesStandInHex) {
  compare(std::string("a\0b", 3), std::string("a\0c", 3));
  view.setDifferenceLayout(DifferenceLayout::hex);
  EXPECT_THAT(selected(), HasSubstr("61 00 62"));
  EXPECT_THAT(selected(), HasSubstr("61 00 63"));
}

TEST_F(DifferenceViewTest, WhatWasBeingComparedIsDroppedForAnother) {
  view.compare({lines(1, 50'000), lines(2, 50'000)});
  view.tell(QStringLiteral("Choose a site to see what changed."));
  EXPECT_FALSE(view.isComparing());
  compare("a\n", "b\n");
  EXPECT_EQ(selected(), "- a\n+ b");
}

// Ten megabytes of lines, and one line of five: shown in a second, and nothing else waits for long meanwhile.
TEST_F(DifferenceViewTest, LongPagesAreShownSoonAndHoldNothingUp) {
  std::string page = lines(1, 700'000);
  std::string other = page;
  for (std::size_t at = 1000; at < other.size(); at += 50'000) {
    other[at] = '#';
  }
  const std::string line(5'000'000, 'x');
  for (const auto& [before, after] : {std::pair(page, other), std::pair(line + "a" + line, line + "b" + line)}) {
    QElapsedTimer whole;
    QElapsedTimer since;
    qint64 longest = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] { longest = std::max(longest, since.restart()); });
    whole.start();
    since.start();
    beat.start(0);
    compare(before, after);
    view.viewport()->repaint();
    longest = std::max(longest, since.elapsed());
    EXPECT_LT(whole.elapsed(), 5000);
    RecordProperty("whole", std::to_string(whole.elapsed()));
    std::cout << "shown after " << whole.elapsed() << " ms, held up for " << longest << " ms at most\n";
    EXPECT_LT(longest, 500);
  }
}

}  // namespace
}  // namespace tarnwick::testing
