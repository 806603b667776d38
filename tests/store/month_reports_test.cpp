// SPDX-License-Identifier: MIT
#include "store/month_reports.h"

#include <gmock/gmock.h>

#include "store/options_for_others.h"
#include "store/site_options.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MonthReportsTest : public DataFixture {
 protected:
  MonthReportsTest() { set("2026-11-23 10:00:00"); }

  void set(const char* time) { clock.setLocal(HandClock::at(time)); }
  std::vector<std::string> owed() {
    std::vector<std::string> months;
    for (const Moment month : reports.owed(clock.now())) {
      months.push_back(monthText(month));
    }
    return months;
  }
  void make(const char* month) {
    Transaction whole(database);
    reports.setMade(*readMonth(month));
    whole.commit();
  }
  void wish(const char* value) { options.setOption(kAllSites, option_name::monthReport, value); }

  MonthReports reports{database};
  SiteOptions options{database, programOptions()};
};

TEST_F(MonthReportsTest, NoMonthBeforeTheWishIsOwed) {
  EXPECT_THAT(owed(), IsEmpty());
  wish("on");
  EXPECT_THAT(owed(), IsEmpty());
  set("2026-12-01 00:59:59");
  EXPECT_THAT(owed(), IsEmpty()) << "the checks after midnight come first";
  set("2026-12-01 01:00:00");
  EXPECT_THAT(owed(), ElementsAre("2026-11"));
}

TEST_F(MonthReportsTest, AMonthThatWasReportedIsNeverOwedAgainWhereverTheClockIsSet) {
  wish("on");
  set("2026-12-01 08:00:00");
  make("2026-11");
  EXPECT_THAT(owed(), IsEmpty());
  set("2026-11-30 23:00:00");
  EXPECT_THAT(owed(), IsEmpty());
  set("2026-12-01 02:00:00");
  wish("on");
  EXPECT_THAT(owed(), IsEmpty());
  set("2026-09-10 00:00:00");
  EXPECT_THAT(owed(), IsEmpty()) << "that was before the wish";
}

TEST_F(MonthReportsTest, MonthsInWhichNothingRanAreOwedTheEarliestFirst) {
  wish("on");
  set("2027-02-03 08:00:00");
  EXPECT_THAT(owed(), ElementsAre("2026-11", "2026-12", "2027-01"));
  make("2026-12");
  EXPECT_THAT(owed(), ElementsAre("2026-11", "2027-01"));
}

TEST_F(MonthReportsTest, AClockThatWasWrongByYearsKeepsNoneBack) {
  wish("on");
  set("2040-06-02 08:00:00");
  EXPECT_EQ(owed().size(), 12U);
  make("2040-05");
  set("2026-12-02 08:00:00");
  EXPECT_THAT(owed(), ElementsAre("2026-11"));
}

TEST_F(MonthReportsTest, AWishThatIsTakenBackBeginsAnew) {
  wish("on");
  set("2026-12-20 08:00:00");
  wish("off");
  EXPECT_THAT(owed(), IsEmpty());
  wish("on");
  EXPECT_THAT(owed(), IsEmpty());
  options.removeOption(kAllSites, option_name::monthReport);
  EXPECT_FALSE(reports.hasBegun());
  options.storeOptions(kAllSites, {{"monthReport", "on"}});
  set("2027-01-01 03:00:00");
  EXPECT_THAT(owed(), ElementsAre("2026-12"));
}

TEST_F(MonthReportsTest, AListWithoutTheTableOwesNothing) {
  folder.execute("drop table monthReports");
  EXPECT_THAT(owed(), IsEmpty());
  EXPECT_TRUE(reports.isMade(*readMonth("2026-11")));
  EXPECT_FALSE(reports.hasBegun());
  reports.end();
}

}  // namespace
}  // namespace tarnwick::testing
