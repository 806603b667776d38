// SPDX-License-Identifier: MIT
#include "cli/terminal/console.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "cli/terminal/text_grid.h"

namespace tarnwick {
namespace {

struct ConsoleTest : ::testing::Test {
  std::ostringstream out;
  std::ostringstream err;
  Console terminal{out, err, {.isTerminal = true, .colour = true}, [] { return std::size_t{20}; }};
  Console pipe{out, err, {}};
};

TEST_F(ConsoleTest, WritesTheLiveLineOverItself) {
  terminal.live("one");
  terminal.live("two");
  EXPECT_EQ(out.str(), "\r\x1b[Kone\r\x1b[Ktwo");
}

TEST_F(ConsoleTest, WritesTheSameLiveLineOnce) {
  terminal.live("one");
  terminal.live("one");
  EXPECT_EQ(out.str(), "\r\x1b[Kone");
}

TEST_F(ConsoleTest, CutsTheLiveLineToTheTerminal) {
  terminal.live("123456789012345678901234567890");
  EXPECT_EQ(out.str(), "\r\x1b[K1234567890123456...");
}

TEST_F(ConsoleTest, PutsALineAboveTheLiveLine) {
  terminal.live("live");
  out.str("");
  terminal.say("line");
  EXPECT_EQ(out.str(), "\r\x1b[Kline\n\r\x1b[Klive");
}

TEST_F(ConsoleTest, TakesTheLiveLineAwayBeforeAComplaint) {
  terminal.live("live");
  out.str("");
  terminal.complain("no");
  EXPECT_EQ(out.str(), "\r\x1b[K");
  EXPECT_EQ(err.str(), "tarnwickctl: no\n");
}

TEST_F(ConsoleTest, SaysWordsInTheUsersLanguageAndDataAsTheyAre) {
  Console german(
      out, err, {}, [] { return std::size_t{80}; },
      Wording(std::vector<Wording::Entry>{{"Site %1 is up.", "Seite %1 steht."}, {"none", "keine"}}));
  german.tell("Site 3 is up.");
  german.say("Site 3 is up.");
  TextGrid grid({{"none"}, {"URL"}});
  grid.addRow({{"none"}, {"Site 3 is up."}});
  grid.print(german);
  EXPECT_EQ(out.str(), "Seite 3 steht.\nSite 3 is up.\nkeine  URL\nnone   Site 3 is up.\n");
  german.complain("none");
  EXPECT_EQ(err.str(), "tarnwickctl: keine\n");
}

TEST_F(ConsoleTest, HasNoLiveLineAndNoColourInAPipe) {
  pipe.live("live");
  pipe.say(pipe.coloured(Console::Colour::red, "down"));
  EXPECT_EQ(out.str(), "down\n");
}

TEST_F(ConsoleTest, ColoursTextOnATerminal) {
  EXPECT_EQ(terminal.coloured(Console::Colour::red, "down"), "\x1b[31mdown\x1b[0m");
}

TEST_F(ConsoleTest, TellsWhetherAllIsWritten) {
  pipe.say("line");
  EXPECT_FALSE(pipe.flush());
  out.setstate(std::ios::badbit);
  pipe.say("line");
  EXPECT_TRUE(pipe.flush());
  EXPECT_TRUE(pipe.flush());
}

TEST_F(ConsoleTest, RemembersThatItHasComplained) {
  EXPECT_FALSE(pipe.hasComplained());
  pipe.complain("no");
  EXPECT_TRUE(pipe.hasComplained());
}

}  // namespace
}  // namespace tarnwick
