// SPDX-License-Identifier: MIT
#include "engine/in_flight.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/host_of_address.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

OptionsInForce options(OptionValues values) { return OptionsInForce({{kAllSites, std::move(values)}}); }

std::vector<InFlight::Row> rows(const std::vector<std::string>& hosts) {
  std::vector<InFlight::Row> all;
  all.reserve(hosts.size());
  for (const std::string& host : hosts) {
    // A host in capitals took too long last time.
    all.push_back({host, !host.empty() && host[0] >= 'A' && host[0] <= 'Z'});
  }
  return all;
}

/// Takes every row that may be sent now.
std::vector<std::size_t> takeAll(InFlight& pass, milliseconds now) {
  std::vector<std::size_t> taken;
  while (const std::size_t row = pass.upcoming(now)) {
    pass.take(row, now);
    taken.push_back(row);
  }
  return taken;
}

void end(InFlight& pass, std::size_t row, milliseconds now) {
  pass.ended(row, now, milliseconds(0), InFlight::End::answered);
}

TEST(InFlightPolicyOf, IsFiveAndNothingElseWithoutOptions) {
  const InFlightPolicy policy = inFlightPolicy(OptionsInForce());
  EXPECT_EQ(policy.slots, 5);
  EXPECT_FALSE(policy.automatic);
  EXPECT_EQ(policy.perHost, 0);
  EXPECT_EQ(policy.spacing, milliseconds(0));
  EXPECT_FALSE(policy.slowLane);
  EXPECT_EQ(inFlightPolicy(options({{"parallel", "5"}})).perHost, 0);
}

TEST(InFlightPolicyOf, SparesHostsAsSoonAsThereAreMore) {
  const InFlightPolicy more = inFlightPolicy(options({{"parallel", "6"}}));
  EXPECT_EQ(more.slots, 6);
  EXPECT_EQ(more.perHost, 2);
  EXPECT_EQ(more.spacing, milliseconds(250));
  EXPECT_TRUE(more.slowLane);
  const InFlightPolicy automatic = inFlightPolicy(options({{"parallel", "auto"}, {"perHost", "7"}, {"spacing", "0"}}));
  EXPECT_EQ(automatic.slots, 256);
  EXPECT_TRUE(automatic.automatic);
  EXPECT_EQ(automatic.perHost, 7);
  EXPECT_EQ(automatic.spacing, milliseconds(0));
  EXPECT_EQ(inFlightPolicy(options({{"perHost", "1"}})).perHost, 1);
}

TEST(InFlightOf, KeepsTheOrderOfTheRowsAndSkipsNobody) {
  InFlight pass({}, rows({"a", "a", "", "b", "a"}));
  EXPECT_THAT(takeAll(pass, milliseconds(0)), ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(pass.left(), 0U);
}

TEST(InFlightOf, HoldsBackWhatOneHostWouldHaveTooMuchOf) {
  InFlight pass({.slots = 20, .perHost = 2}, rows({"a", "a", "a", "b", "a"}));
  EXPECT_THAT(takeAll(pass, milliseconds(0)), ElementsAre(1, 2, 4));
  end(pass, 4, milliseconds(10));
  EXPECT_THAT(takeAll(pass, milliseconds(10)), IsEmpty());
  end(pass, 2, milliseconds(20));
  EXPECT_THAT(takeAll(pass, milliseconds(20)), ElementsAre(3));
  EXPECT_EQ(pass.left(), 1U);
}

TEST(InFlightOf, KeepsItsPauseAtAHost) {
  InFlight pass({.slots = 20, .spacing = milliseconds(250)}, rows({"a", "a", "b", "", "a"}));
  EXPECT_THAT(takeAll(pass, milliseconds(0)), ElementsAre(1, 3, 4));
  EXPECT_THAT(takeAll(pass, milliseconds(249)), IsEmpty());
  EXPECT_THAT(takeAll(pass, milliseconds(250)), ElementsAre(2));
  // Nothing was in flight any more: the pause counts from start to start.
  end(pass, 2, milliseconds(260));
  EXPECT_THAT(takeAll(pass, milliseconds(499)), IsEmpty());
  EXPECT_THAT(takeAll(pass, milliseconds(500)), ElementsAre(5));
}

TEST(InFlightOf, GivesTheSlowOnesAFifthOfTheSlots) {
  InFlight pass({.slots = 10, .slowLane = true}, rows({"a", "S1", "b", "S2", "S3", "c"}));
  EXPECT_THAT(takeAll(pass, milliseconds(0)), ElementsAre(2, 4, 1, 3, 6));
  EXPECT_EQ(pass.left(), 1U);
  end(pass, 1, milliseconds(10));
  EXPECT_THAT(takeAll(pass, milliseconds(10)), IsEmpty());
  end(pass, 4, milliseconds(30000));
  EXPECT_THAT(takeAll(pass, milliseconds(30000)), ElementsAre(5));
}

TEST(InFlightOf, SendsOnceMoreWhatTheMachineHadNoHandleFor) {
  InFlight pass({.slots = 20, .slowLane = true}, rows({"a", "b"}));
  takeAll(pass, milliseconds(0));
  pass.ended(2, milliseconds(1), milliseconds(0), InFlight::End::shortage);
  EXPECT_TRUE(pass.putBack(2));
  EXPECT_THAT(takeAll(pass, milliseconds(2)), ElementsAre(2));
  end(pass, 1, milliseconds(3));
  pass.ended(2, milliseconds(4), milliseconds(0), InFlight::End::shortage);
  EXPECT_FALSE(pass.putBack(2)) << "alone it would lack it again";

  InFlight usual({}, rows({"a", "b"}));
  takeAll(usual, milliseconds(0));
  usual.ended(2, milliseconds(1), milliseconds(0), InFlight::End::shortage);
  EXPECT_FALSE(usual.putBack(2));
}

TEST(InFlightOf, BeginsWithFiveWhereItFindsOutByItself) {
  InFlight pass({.slots = 256, .automatic = true, .slowLane = true},
                rows({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "SLOW"}));
  EXPECT_THAT(takeAll(pass, milliseconds(0)), ElementsAre(12, 1, 2, 3, 4, 5));
  for (const std::size_t row : {1, 2, 3, 4, 5}) {
    end(pass, row, milliseconds(200));
  }
  EXPECT_THAT(takeAll(pass, milliseconds(200)), ElementsAre(6, 7, 8, 9, 10, 11));
}

TEST(HostOfAddress, IsWhatPeopleCallTheHost) {
  EXPECT_EQ(hostOfAddress("http://WWW.example.org:8080/a:b@c"), "www.example.org");
  EXPECT_EQ(hostOfAddress(" example.org/a"), "example.org");
  EXPECT_EQ(hostOfAddress("https://anna:se:cret@example.org?a"), "example.org");
  EXPECT_EQ(hostOfAddress("http://[::1]:80/"), "[::1]");
  EXPECT_EQ(hostOfAddress(""), "");
}

}  // namespace
}  // namespace tarnwick::testing
