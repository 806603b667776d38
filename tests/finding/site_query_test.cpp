// SPDX-License-Identifier: MIT
#include "finding/site_query.h"

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

FoundSite site(std::int64_t id, std::string_view url) {
  FoundSite made;
  made.id = id;
  made.url = url;
  return made;
}

struct SiteQueryTest : ::testing::Test {
  SiteQueryTest() {
    sites = {site(1, "https://www.example.org/"), site(2, "https://shop.Example.org/Prices.html?id=down"),
             site(3, "http://intranet:8080/"), site(4, "ftp://example.com/file")};
    sites[0].up = true;
    sites[1].down = sites[1].changed = true;
    sites[1].tags = tags;
    sites[2].down = sites[2].noAnswer = sites[2].known = true;
    sites[3].never = sites[3].paused = true;
    sites[3].active = false;
  }

  std::string found(std::string_view line) const {
    const SiteQuery query(line);
    std::string ids;
    for (const FoundSite& one : sites) {
      ids += query.finds(one) ? std::to_string(one.id) : "";
    }
    return ids;
  }

  const std::vector<std::string> tags{"Shop", "anna"};
  std::vector<FoundSite> sites;
};

TEST_F(SiteQueryTest, AnEmptyLineMeansEverySite) {
  EXPECT_EQ(found(""), "1234");
  EXPECT_EQ(found("  \t"), "1234");
  EXPECT_TRUE(SiteQuery(" ").all());
  EXPECT_FALSE(SiteQuery("up").all());
}

TEST_F(SiteQueryTest, WordsFindWhatHolds) {
  EXPECT_EQ(found("up"), "1");
  EXPECT_EQ(found("Down"), "23");
  EXPECT_EQ(found("changed"), "2");
  EXPECT_EQ(found("noanswer"), "3");
  EXPECT_EQ(found("known"), "3");
  EXPECT_EQ(found("never"), "4");
  EXPECT_EQ(found("inactive"), "4");
  EXPECT_EQ(found("paused"), "4");
  for (const char* none : {"unconfirmed", "slow", "offline", "certificate", "unwatched"}) {
    EXPECT_EQ(found(none), "") << none;
  }
}

TEST_F(SiteQueryTest, AllWordsHaveToHoldAndAMinusExcludes) {
  EXPECT_EQ(found("down -known"), "2");
  EXPECT_EQ(found("-down"), "14");
  EXPECT_EQ(found("-inactive example"), "12");
  EXPECT_EQ(found("-tag:shop -id:1"), "34");
  EXPECT_EQ(found("up down"), "");
}

TEST_F(SiteQueryTest, NamesFindTagsHostsAndNumbers) {
  EXPECT_EQ(found("tag:shop"), "2");
  EXPECT_EQ(found("tag:SHOP tag:Anna"), "2");
  EXPECT_EQ(found("tag:sho"), "");
  EXPECT_EQ(found("host:example.org"), "12");
  EXPECT_EQ(found("host:shop.example.org"), "2");
  EXPECT_EQ(found("host:xample.org"), "");
  EXPECT_EQ(found("host:intranet"), "3");
  EXPECT_EQ(found("id:3"), "3");
  EXPECT_EQ(found("id:1,4"), "14");
}

TEST_F(SiteQueryTest, WhatIsNoWordIsAPartOfTheAddress) {
  EXPECT_EQ(found("prices"), "2");
  EXPECT_EQ(found("intranet:8080"), "3");
  EXPECT_EQ(found("https://"), "12");
  EXPECT_EQ(found("\"down\""), "2");
  EXPECT_EQ(found("-\"id=down\""), "134");
  EXPECT_EQ(found("\"tagg:x\""), "");
}

TEST_F(SiteQueryTest, ABadWordIsNamedWithTheRemedy) {
  EXPECT_EQ(faultOfQuery("down tagg:shop"),
            "tagg: is no filter word. Write tag:, host: or id:, or put a text of an address in quotes.");
  EXPECT_EQ(faultOfQuery("tag:"), "tag: needs a name behind it: write it without a blank, as in tag:shop.");
  EXPECT_EQ(faultOfQuery("id:x"), "\"id:x\" names no site: give numbers with commas between them, as in id:3,7.");
  EXPECT_EQ(faultOfQuery("up -"),
            "A \"-\" excludes what the word behind it finds: write it without a blank, as in -down.");
  EXPECT_EQ(faultOfQuery("down tag:shop"), "");
  EXPECT_THROW(SiteQuery("tagg:shop"), std::invalid_argument);
}

TEST_F(SiteQueryTest, EveryWordThatIsOfferedIsOne) {
  for (const FilterWord& word : filterWords()) {
    EXPECT_FALSE(word.meaning.empty());
    EXPECT_EQ(faultOfQuery(std::string(word.word) + (word.word.ends_with(':') ? "1" : "")), "") << word.word;
  }
  EXPECT_EQ(filterWords().size(), 16U);
}

TEST(SiteQueryTerms, TellWhatTheyAskFor) {
  EXPECT_TRUE(SiteQuery("down -unwatched").asksFor(&FoundSite::unwatched));
  EXPECT_TRUE(SiteQuery("inactive").asksFor(&FoundSite::active));
  EXPECT_FALSE(SiteQuery("down unwatche").asksFor(&FoundSite::unwatched));
  EXPECT_TRUE(SiteQuery("-tag:shop").asksForTags());
  EXPECT_FALSE(SiteQuery("shop").asksForTags());
}

TEST(SiteQueryOfManySites, IsDoneWithinAMoment) {
  const std::vector<std::string> shop{"one", "two", "shop"};
  const std::vector<std::string> news{"one", "two", "news"};
  std::vector<std::string> urls;
  for (int i = 1; i <= 32'767; ++i) {
    urls.push_back("https://www" + std::to_string(i % 900) + ".example.org/some/page/" + std::to_string(i) + ".html");
  }
  std::vector<FoundSite> sites;
  for (const std::string& url : urls) {
    const auto i = static_cast<std::int64_t>(sites.size() + 1);
    sites.push_back(site(i, url));
    sites.back().down = i % 3 == 0;
    sites.back().tags = i % 2 == 0 ? shop : news;
  }
  const auto begun = std::chrono::steady_clock::now();
  const SiteQuery query("down tag:shop host:example.org -never /9.html");
  std::size_t found = 0;
  for (const FoundSite& one : sites) {
    found += query.finds(one) ? 1 : 0;
  }
  const auto took = std::chrono::steady_clock::now() - begun;
  RecordProperty("microseconds", std::to_string(took / std::chrono::microseconds(1)));
  EXPECT_EQ(found, 0U);
  EXPECT_LT(took, std::chrono::milliseconds(300));  // 30 are asked for; tests run beside others
}

}  // namespace
}  // namespace tarnwick
