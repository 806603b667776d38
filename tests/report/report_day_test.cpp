// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

#include "platform/long_date.h"
#include "report/report_fixture.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// A locale for times that lasts for a case.
class TimeLocale {
 public:
  explicit TimeLocale(const char* name) : before_(std::setlocale(LC_TIME, nullptr)) {
    chosen_ = std::setlocale(LC_TIME, name) != nullptr;
  }
  ~TimeLocale() { std::setlocale(LC_TIME, before_.c_str()); }
  TimeLocale(const TimeLocale&) = delete;
  TimeLocale& operator=(const TimeLocale&) = delete;
  bool chosen() const { return chosen_; }

 private:
  std::string before_;
  bool chosen_ = false;
};

TEST(LongDateTest, WeekdayMonthDayAndYear) {
  const TimeLocale english("C");
  EXPECT_EQ(longDateText(HandClock::at("2026-11-21 14:03:09")), "Saturday, November 21, 2026");
}

TEST(LongDateTest, DayHasNoLeadingZero) {
  const TimeLocale english("C");
  EXPECT_EQ(longDateText(HandClock::at("2024-02-29 00:00:00")), "Thursday, February 29, 2024");
  EXPECT_EQ(longDateText(HandClock::at("2026-03-01 23:59:59")), "Sunday, March 1, 2026");
}

TEST(LongDateTest, TimeOfDayHasTwoDigitsEach) {
  EXPECT_EQ(timeOfDayText(HandClock::at("2026-03-01 04:05:06")), "04:05:06");
  EXPECT_EQ(timeOfDayText(HandClock::at("2026-03-01 23:59:59")), "23:59:59");
}

TEST(LongDateTest, NamesAreThoseOfTheSystemsLanguageAsUtf8) {
  SKIP_ON_WINDOWS("There the language is the user's setting, and no test can choose it.");
  bool checked = false;
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE.ISO-8859-1", "de_DE"}) {
    const TimeLocale german(name);
    if (german.chosen()) {
      checked = true;
      EXPECT_EQ(longDateText(HandClock::at("2026-03-07 00:00:00")), "Samstag, M\xc3\xa4rz 7, 2026") << name;
    }
  }
  if (!checked) {
    GTEST_SKIP() << "This machine has no German locale.";
  }
}

class ReportDayTest : public ReportFixture {
 protected:
  /// How the database goes about the statement, as it explains it.
  std::string planOf(const std::string& statement) {
    const auto rows = database.query("explain query plan " + statement);
    std::string plan;
    for (; !rows->eof(); rows->moveNext()) {
      plan += rows->field("detail").toText() + "\n";
    }
    return plan;
  }
};

TEST_F(ReportDayTest, EveryReportStatementReadsTheIndexOfTheDayAlone) {
  log("http://a/", true, 100);
  takeStatements();
  report.createReport();
  const std::vector<std::string> statements = takeStatements();
  ASSERT_EQ(statements.size(), 4u);
  for (const std::string& statement : statements) {
    const std::string plan = planOf(statement);
    EXPECT_THAT(plan, HasSubstr("SEARCH log USING COVERING INDEX log_day (<expr>=?)")) << statement;
    EXPECT_THAT(plan, Not(HasSubstr("TEMP B-TREE"))) << statement;
  }
}

TEST_F(ReportDayTest, DatabaseWithoutTheIndexGivesTheSamePage) {
  log("http://b/", true, 7);
  log("http://a/", true, 2);
  log("http://b/", false, 3);
  log("http://a/", true, 2, "2024-05-16 12:00:00");
  const std::string withIndex = page();
  database.execute("drop index log_day");
  EXPECT_EQ(page(), withIndex);
}

TEST_F(ReportDayTest, OtherProgramsReadAndWriteTheLogWithoutOurFunctions) {
  folder.execute("insert into log (idSite, url, status) values (1, 'http://a/', 1)");
  EXPECT_NE(folder.queryText("select dateStamp from log"), "NULL");
  folder.execute("update log set dateStamp = '2024-05-17 10:00:00'");
  EXPECT_THAT(page(), HasSubstr("<td>1</td>"));
  folder.execute("delete from log");
  EXPECT_EQ(folder.queryText("pragma integrity_check"), "ok");
}

TEST_F(ReportDayTest, RowWithoutATimeIsOfNoDay) {
  folder.execute("insert into log (url, status, dateStamp) values ('http://a/', 1, null)");
  EXPECT_THAT(page(), Not(HasSubstr("http://a/")));
}

}  // namespace
}  // namespace tarnwick::testing
