// SPDX-License-Identifier: MIT
// What a list shows of the sites beside their records, read for many at once.
#include "store/listed_facts.h"

#include "support/data_fixture.h"

namespace tarnwick {
namespace {

using testing::DataFixture;

constexpr FactsWanted kAll{.outage = true, .latency = true, .tags = true, .certificate = true};

class ListedFactsTest : public DataFixture {};

TEST_F(ListedFactsTest, ReadsTheLatestOutageTimeTagsAndCertificateOfEachSite) {
  folder.execute(
      "insert into latestChecks (idSite, at, up, whole) values (3, 5, 0, 77), (4, 5, 1, null), (9, 5, 1, 1)");
  folder.execute(
      "insert into outages values (3, 100, 200, 1, 'first'), (3, 300, null, 2, 'refused'), (4, 100, 250, 1, 'late')");
  folder.execute("insert into siteTags values (3, 'shop'), (3, 'Live')");
  folder.execute("insert into certificates values (4, 1, 999, 'Example CA', null)");
  const auto facts = readListedFacts(database, kAll, 1, 4);
  ASSERT_EQ(facts.size(), 2u) << "9 is none of those that were asked for";
  using std::chrono::seconds;
  const ListedFacts expectedOf3{.downSince = Moment(seconds(300)),
                                .upSince = {},
                                .cause = "refused",
                                .latency = std::chrono::milliseconds(77),
                                .tags = {"Live", "shop"},
                                .certificate = {}};
  EXPECT_EQ(facts.at(3), expectedOf3);
  EXPECT_EQ(facts.at(4).upSince, Moment(seconds(250)));
  EXPECT_EQ(facts.at(4).latency, std::nullopt);
  EXPECT_EQ(facts.at(4).certificate, (ListedFacts::Certificate{Moment(seconds(999)), "Example CA"}));
}

TEST_F(ListedFactsTest, ReadsOnlyWhatIsWanted) {
  folder.execute("insert into siteTags values (3, 'shop')");
  folder.execute("insert into latestChecks (idSite, at, up, whole) values (3, 5, 0, 77)");
  EXPECT_TRUE(readListedFacts(database, {}, 1, 9).empty());
  const auto facts = readListedFacts(database, {.tags = true}, 3, 3);
  EXPECT_EQ(facts.at(3), ListedFacts{.tags = {"shop"}});
}

TEST_F(ListedFactsTest, TablesThatTheListLacksAreEmpty) {
  for (const char* table : {"outages", "latestChecks", "siteTags", "certificates"}) {
    folder.execute(std::string("drop table ") + table);
  }
  EXPECT_TRUE(readListedFacts(database, kAll, 1, 9).empty());
}

}  // namespace
}  // namespace tarnwick
