// SPDX-License-Identifier: MIT
#include "holes/learn.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "holes/judge.h"
#include "holes/page_text.h"

namespace tarnwick {
namespace {

const LocalTime kNow = *parseDateTime("2026-11-22 18:40:10");

/// "digits 1-6 [18,204]" for each hole.
std::vector<std::string> shown(const std::string& page, const Holes& holes) {
  std::vector<std::string> all;
  for (const Hole& hole : holes) {
    std::string text(holeWord(hole.kind));
    if (hole.kind == HoleClass::date) {
      text += " " + hole.form;
    } else {
      text += " " + std::to_string(hole.least) + "-" + std::to_string(hole.most);
    }
    all.push_back(text + " [" + page.substr(hole.begin, hole.length) + "]");
  }
  return all;
}

struct Learnt {
  std::vector<std::string> copies;
  Lesson lesson;

  bool isSame(const std::string& page) const { return judge(copies.front(), lesson.holes, page).same; }
  std::vector<std::string> holes() const { return shown(copies.front(), lesson.holes); }
};

Learnt learnt(const std::function<std::string(int)>& page) {
  Learnt all;
  for (int i = 0; i < 5; ++i) {
    all.copies.push_back(pageText(page(i)));
  }
  all.lesson = learn(all.copies, kNow);
  return all;
}

using Shown = std::vector<std::string>;

TEST(WhatNeverVaries, NeedsNoHole) {
  const Learnt page = learnt([](int) { return "<p>Nothing new.</p>"; });
  EXPECT_TRUE(page.lesson.holes.empty());
  EXPECT_TRUE(page.lesson.warnings.empty());
}

TEST(AKeyATimeAndACounter, AreLearntAsSuch) {
  const std::vector<std::string> keys = {"9f86d081884c7d659a2feaa0c55ad015", "a3bf4f1b2b0b822cd15d6c15b0f00a08",
                                         "5e884898da28047151d0e56f8dc62927", "6b3a55e0261b0304143f805a24924d0c",
                                         "1b4f0e9851971998e732078544c96b36"};
  const Learnt page = learnt([&](int i) {
    return "<p nonce=\"" + keys[static_cast<std::size_t>(i)] + "\">Seen at 18:40:1" + std::to_string(i) +
           " by visitor 18,20" + std::to_string(4 + i) +
           "</p>\n<p>The rest of the page stays as it is, word for word.</p>\n";
  });
  EXPECT_EQ(page.holes(), (Shown{"hex 32-32 [" + keys[0] + "]", "date %H:%M:%S [18:40:10]", "digits 1-8 [18,204]"}));
  EXPECT_TRUE(page.isSame(
      "<p nonce=\"" + keys[1] +
      "\">Seen at 00:00:00 by visitor 1,000,000</p>\n<p>The rest of the page stays as it is, word for word.</p>\n"));
  EXPECT_FALSE(page.isSame(
      "<p nonce=\"" + keys[1] +
      "\">Seen at 00:00:00 by visitor 1,000,000</p>\n<p>The rest of the page stays as it was, word for word.</p>\n"));
}

TEST(ACounter, GrowsADigit) {
  const Learnt page = learnt([](int i) { return "Visitors: " + std::to_string(996 + i) + "\n"; });
  EXPECT_TRUE(page.isSame("Visitors: 12345\n"));
  EXPECT_FALSE(page.isSame("Visitors: x\n"));
}

TEST(WordsThatVary, AreWordsWithoutMarkup) {
  const std::vector<std::string> words = {"Good morning to all of you", "Hello there", "Nice that you have come",
                                          "Welcome back, friend", "Have a good day"};
  const Learnt page =
      learnt([&](int i) { return "<h1>" + words[static_cast<std::size_t>(i)] + "!</h1>\n<p>Fixed words.</p>"; });
  ASSERT_EQ(page.lesson.holes.size(), 1U);
  EXPECT_TRUE(page.isSame("<h1>A new sentence, never seen before!</h1>\n<p>Fixed words.</p>"));
  EXPECT_FALSE(page.isSame("<h1><script>alert(1)</script>!</h1>\n<p>Fixed words.</p>"));
}

TEST(AShuffledList, IsOneHole) {
  std::vector<std::string> items = {"<li>red apple</li>\n",   "<li>pear</li>\n", "<li>plum 3</li>\n",
                                    "<li>green grape</li>\n", "<li>fig</li>\n",  "<li>quince</li>\n"};
  const auto made = [&](int turn) {
    std::string list = "<h1>Fruit</h1>\n<ul class=\"fruit\">\n";
    for (std::size_t i = 0; i < items.size(); ++i) {
      list += items[(i * (turn % 2 == 0 ? 5U : 1U) + static_cast<std::size_t>(turn)) % items.size()];
    }
    return list + "</ul>\n<p>The end of the list of fruit.</p>\n";
  };
  const Learnt page = learnt(made);
  EXPECT_EQ(page.lesson.holes.size(), 1U) << page.holes().size();
  EXPECT_TRUE(page.isSame(made(7)));
}

TEST(AnAdvertisement, MayBeMissingAtTimes) {
  const auto made = [](int i) {
    const std::string ad = i % 3 == 0 ? ""
                                      : "<div class=\"ad\"><a href=\"/buy?id=" + std::to_string(i * 7919) + "\">Buy " +
                                            std::string(static_cast<std::size_t>(i) * 9, 'x') + "</a></div>\n";
    return "<h1>News</h1>\n" + ad + "<p>A long text about something, which never changes at all.</p>\n";
  };
  const Learnt page = learnt(made);
  ASSERT_EQ(page.lesson.holes.size(), 1U);
  EXPECT_TRUE(page.isSame(made(11)));
  EXPECT_TRUE(page.isSame(made(12)));
}

TEST(TwoNumbersInOneLine, StayTwo) {
  const Learnt page = learnt([](int i) {
    return "rendered in 0.0" + std::to_string(12 + i * 7) + " s by web" + std::to_string(1 + i % 4) + "\n";
  });
  EXPECT_EQ(page.lesson.holes.size(), 2U);
  EXPECT_TRUE(page.isSame("rendered in 1.2 s by web3\n"));
  EXPECT_FALSE(page.isSame("rendered in 1.2 s by wab3\n"));
}

TEST(ANumber, IsOnePlaceWithAllItsDigits) {
  const std::vector<std::string> visits = {"998,997", "998,999", "999,001", "1,000,003", "1,000,010"};
  const Learnt commas = learnt([&](int i) { return "Visits: " + visits[static_cast<std::size_t>(i)] + " so far\n"; });
  EXPECT_EQ(commas.holes(), (Shown{"digits 1-10 [998,997]"}));
  EXPECT_TRUE(commas.isSame("Visits: 12,345,678 so far\n"));
  EXPECT_FALSE(commas.isSame("Visits: 12,345,x78 so far\n"));

  const Learnt narrow = learnt([](int i) { return "<p>1\u202F23" + std::to_string(4 + i) + " visits</p>\n"; });
  EXPECT_EQ(narrow.lesson.holes.front().kind, HoleClass::digits);
  EXPECT_TRUE(narrow.isSame("<p>999 visits</p>\n"));
  EXPECT_TRUE(narrow.isSame("<p>1\u202F234\u202F567 visits</p>\n"));

  const std::vector<std::string> changes = {"+3.99", "-0.12", "+1.50", "-4.01", "+0.07"};
  const Learnt sign = learnt([&](int i) { return "Today " + changes[static_cast<std::size_t>(i)] + "%\n"; });
  EXPECT_EQ(sign.holes(), (Shown{"digits 1-6 [+3.99]"}));
  EXPECT_FALSE(sign.isSame("Today +2x55%\n"));
}

TEST(SeveralNumbers, AreAPlaceEach) {
  const std::vector<std::string> loads = {"7.78, 4.00, 2.69", "6.12, 3.90, 2.71", "0.99, 14.2, 3.00",
                                          "1.02, 13.00, 2.99", "5.55, 6.66, 7.77"};
  const Learnt load = learnt([&](int i) { return "{\"load\": [" + loads[static_cast<std::size_t>(i)] + "]}\n"; });
  EXPECT_EQ(load.holes(), (Shown{"digits 1-6 [7.78]", "digits 1-7 [4.00]", "digits 1-6 [2.69]"}));

  const std::vector<std::string> addresses = {"10.91.39.252", "10.7.200.1", "10.85.190.206", "10.0.0.9", "10.1.39.33"};
  const Learnt address = learnt([&](int i) { return "From " + addresses[static_cast<std::size_t>(i)] + " it is.\n"; });
  EXPECT_EQ(address.lesson.holes.size(), 3U);
  EXPECT_FALSE(address.isSame("From 10.91.x39.252 it is.\n"));

  const Learnt callback = learnt([](int i) {
    return "jQuery36" + std::to_string(1710 + i * 7919) + "_178" + std::to_string(5000 + i * 77) + "({\"a\": 1})\n";
  });
  EXPECT_EQ(callback.lesson.holes.size(), 2U);
  EXPECT_FALSE(callback.isSame("jQuery36x_1785000({\"a\": 1})\n"));
}

TEST(ADateOfTodayThatHasNotChanged, IsWarnedOf) {
  const Learnt page = learnt([](int) { return "<p>Today is 22 November 2026.</p>\n<p>Written on 3 March 2020.</p>"; });
  EXPECT_TRUE(page.lesson.holes.empty());
  ASSERT_EQ(page.lesson.warnings.size(), 1U);
  EXPECT_NE(page.lesson.warnings.front().find("22 November 2026"), std::string::npos);
}

TEST(ADateBesideATime, ChangesWithIt) {
  const Learnt page = learnt([](int i) {
    return "<b>22 November 2026</b> <i>18:40:1" + std::to_string(i) + "</i>\n" + std::string(200, '-');
  });
  EXPECT_TRUE(page.isSame("<b>1 January 2027</b> <i>00:00:00</i>\n" + std::string(200, '-')));
  EXPECT_TRUE(page.lesson.warnings.empty());
}

TEST(APlaceWithTwoTexts, IsWarnedOf) {
  const Learnt page = learnt([](int i) {
    return "<h1>" + std::string(i < 3 ? "Welcome to the town" : "The bridge is closed") + "</h1>\n" +
           std::string(300, '-');
  });
  ASSERT_EQ(page.lesson.warnings.size(), 1U);
  EXPECT_NE(page.lesson.warnings.front().find("Line 1: only two different texts"), std::string::npos);
}

TEST(APageThatIsAlwaysAnother, IsWarnedOf) {
  const Learnt page = learnt([](int i) {
    return std::string(400, static_cast<char>('a' + i)) + " and " + std::string(400, static_cast<char>('p' + i));
  });
  EXPECT_FALSE(page.lesson.warnings.empty());
}

TEST(AHostilePage, IsLearntFromInTimeAndRoomInProportion) {
  constexpr std::size_t kBytes = 400'000;
  const auto filled = [](const std::string& piece, int copy) {
    std::string text;
    for (int n = copy; text.size() < kBytes; ++n) {
      text += piece + std::to_string(n * 7919 % 97) + (n % 3 == 0 ? "\n" : ",");
    }
    return text;
  };
  for (const std::string piece : {"a", "", "Mon ", "<li>", "22 November 2026 at 18:40:", "1,", "\xC3", "\xE6\x97"}) {
    const auto begin = std::chrono::steady_clock::now();
    const Learnt page = learnt([&](int i) { return filled(piece, i); });
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20)) << piece;
    EXPECT_LE(page.lesson.holes.size(), 4000U) << piece;
  }
}

TEST(WhatIsLearnt, ExplainsTheCopies) {
  const Learnt page = learnt([](int i) {
    return "a" + std::string(static_cast<std::size_t>(i), 'a') + "b" +
           std::string(static_cast<std::size_t>(5 - i), 'a');
  });
  for (const std::string& copy : page.copies) {
    EXPECT_TRUE(page.isSame(copy)) << copy;
  }
}

}  // namespace
}  // namespace tarnwick
