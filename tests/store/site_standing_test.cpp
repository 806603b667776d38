// SPDX-License-Identifier: MIT
#include "store/site_standing.h"

#include <gtest/gtest.h>

#include <random>

#include "store/site_records.h"
#include "support/data_fixture.h"

namespace tarnwick {
namespace {

using testing::DataFixture;

LocalTime at(std::string_view text) { return *parseDateTime(text); }

class SiteStandingsTest : public DataFixture {
 protected:
  SiteStandings standings{database};
};

SiteStanding randomStanding(std::mt19937& random) {
  const auto maybe = [&]() -> std::optional<LocalTime> {
    return random() % 2 == 0 ? std::optional(at("2024-05-17") + std::chrono::seconds(random() % 10'000'000))
                             : std::nullopt;
  };
  const auto text = [&] {
    std::string some(random() % 20, ' ');
    for (char& c : some) {
      c = static_cast<char>(random() % 256);
    }
    return some;
  };
  SiteStanding site;
  site.failures = static_cast<int>(random() % 100);
  site.downSince = maybe();
  site.firstError = text();
  site.told = static_cast<SiteStanding::Told>(random() % 3);
  site.toldAt = maybe();
  site.lastToldAt = maybe();
  site.outageSince = maybe();
  site.outageChecks = static_cast<int>(random() % 100);
  site.outageError = text();
  for (auto i = random() % 4; i > 0; --i) {
    site.changes.push_back(at("2024-05-17") + std::chrono::seconds(random() % 10'000'000));
  }
  site.unsteady = random() % 2 == 0;
  site.slow = random() % 2 == 0;
  site.toldSlow = random() % 2 == 0;
  site.unknownSince = maybe();
  for (auto i = random() % 3; i > 0; --i) {
    site.owed.push_back(static_cast<AlertKind>(random() % 5));
  }
  return site;
}

TEST_F(SiteStandingsTest, ComeBackAsTheyWereStored) {
  std::mt19937 random(3);
  std::map<std::int64_t, SiteStanding> expected;
  for (std::int16_t id = 1; id <= 300; ++id) {
    const SiteStanding site = randomStanding(random);
    standings.storeStanding(id, site);
    EXPECT_EQ(standings.standingOf(id), site) << id;
    expected.emplace(id, site);
  }
  EXPECT_EQ(standings.standings(), expected);
  standings.storeStanding(7, SiteStanding{});
  EXPECT_EQ(standings.standingOf(7), SiteStanding{});
}

TEST_F(SiteStandingsTest, OneOfWhichNothingIsKnownIsAsItIsMade) {
  EXPECT_TRUE(standings.canBeKept());
  EXPECT_EQ(standings.standingOf(1), SiteStanding{});
  EXPECT_TRUE(standings.standings().empty());
  EXPECT_NO_THROW(standings.removeStanding(1));
}

TEST_F(SiteStandingsTest, AListWithoutTheTableReadsAsIfItWereEmpty) {
  folder.execute("drop table siteState");
  EXPECT_TRUE(standings.standings().empty());
  EXPECT_NO_THROW(standings.removeStanding(1));
  EXPECT_NO_THROW(standings.setUnknown({1}, at("2024-05-17")));
  EXPECT_NO_THROW(standings.clearUnknown());
}

TEST_F(SiteStandingsTest, GoWithTheSite) {
  SiteRecords sites(database);
  const std::int16_t kept = sites.addSite();
  const std::int16_t gone = sites.addSite();
  SiteStanding down;
  down.failures = 3;
  standings.storeStanding(kept, down);
  standings.storeStanding(gone, down);
  sites.deleteSite(gone);
  EXPECT_EQ(folder.queryRows("select idSite from siteState"), std::to_string(kept) + "\n");
}

TEST_F(SiteStandingsTest, AnIdThatIsGivenAgainBeginsAnew) {
  SiteRecords sites(database);
  const std::int16_t id = sites.addSite();
  SiteStanding down;
  down.failures = 3;
  standings.storeStanding(id, down);
  folder.execute("delete from sites");  // as an older program does
  const std::int16_t again = sites.addSite();
  EXPECT_EQ(standings.standingOf(again), SiteStanding{});
}

TEST_F(SiteStandingsTest, UnknownIsTheFirstMomentUntilItIsCleared) {
  SiteStanding down;
  down.failures = 2;
  standings.storeStanding(1, down);
  standings.setUnknown({1, 2}, at("2024-05-17 12:00:00"));
  standings.setUnknown({1, 2, 3}, at("2024-05-17 13:00:00"));
  EXPECT_EQ(standings.standingOf(1).unknownSince, at("2024-05-17 12:00:00"));
  EXPECT_EQ(standings.standingOf(1).failures, 2);
  EXPECT_EQ(standings.standingOf(2).unknownSince, at("2024-05-17 12:00:00"));
  EXPECT_EQ(standings.standingOf(3).unknownSince, at("2024-05-17 13:00:00"));
  standings.clearUnknown();
  for (const auto& [id, site] : standings.standings()) {
    EXPECT_FALSE(site.unknownSince) << id;
  }
}

TEST_F(SiteStandingsTest, WhatAnotherToolHasWrittenCountsAsFarAsItIsUnderstood) {
  standings.storeStanding(1, SiteStanding{});
  folder.execute(
      "update siteState set failures = -5, told = 'what?', downSince = 'once', changes = '2024-05-17 12:00:00,x', "
      "owed = 'up,nonsense,slow', unsteady = 7");
  const SiteStanding site = standings.standingOf(1);
  EXPECT_EQ(site.failures, 0);
  EXPECT_EQ(site.told, SiteStanding::Told::up);
  EXPECT_FALSE(site.downSince);
  EXPECT_EQ(site.changes, std::vector{at("2024-05-17 12:00:00")});
  EXPECT_EQ(site.owed, (std::vector{AlertKind::up, AlertKind::slow}));
  EXPECT_TRUE(site.unsteady);
}

}  // namespace
}  // namespace tarnwick
