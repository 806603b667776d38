// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "holes/hole.h"

namespace tarnwick {
namespace {

Holes holesIn(const std::string& page, const std::vector<std::pair<std::string, HoleClass>>& values) {
  Holes holes;
  for (const auto& [value, kind] : values) {
    holes.push_back({.begin = page.find(value), .length = value.size(), .kind = kind, .least = 1, .most = 20});
  }
  setAnchors(holes, page);
  return holes;
}

const std::string kPage =
    "<html>\n<p>Seen by 1234 people</p>\n<p>A paragraph of text.</p>\n<p>key=ab12cd34;</p>\n</html>\n";

TEST(HolesOfABaseline, AreFoundAgainInAnotherOne) {
  const Holes holes = holesIn(kPage, {{"1234", HoleClass::digits}, {"ab12cd34", HoleClass::hex}});
  const PlacedHoles same = placeIn(kPage, holes);
  EXPECT_EQ(same.placed, holes);
  const std::string other =
      "<html>\n<h1>New</h1>\n<p>Seen by 99 people</p>\n<p>Another paragraph.</p>\n<p>key=00ff;</p>\n</html>\n";
  const PlacedHoles moved = placeIn(other, holes);
  ASSERT_EQ(moved.placed.size(), 2U);
  EXPECT_EQ(other.substr(moved.placed[0].begin, moved.placed[0].length), "99");
  EXPECT_EQ(other.substr(moved.placed[1].begin, moved.placed[1].length), "00ff");
}

TEST(AHoleWhoseSurroundingsAreGone, IsLost) {
  const Holes holes = holesIn(kPage, {{"1234", HoleClass::digits}, {"ab12cd34", HoleClass::hex}});
  const PlacedHoles result = placeIn("<html>\n<p>Something else</p>\n<p>key=00ff;</p>\n</html>\n", holes);
  ASSERT_EQ(result.lost.size(), 1U);
  EXPECT_EQ(result.lost.front().kind, HoleClass::digits);
  ASSERT_EQ(result.placed.size(), 1U);
}

TEST(TheShareThatIsWatched, IsWhatLiesOutsideTheHoles) {
  EXPECT_DOUBLE_EQ(watchedShare("", {}), 1);
  EXPECT_DOUBLE_EQ(watchedShare("0123456789", {{.begin = 2, .length = 2}}), 0.8);
}

}  // namespace
}  // namespace tarnwick
