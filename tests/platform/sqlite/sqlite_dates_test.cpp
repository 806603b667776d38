// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "open_database.h"

namespace tarnwick::testing {
namespace {

/// The query for the sites that are due, as the program writes it.
constexpr const char* kDueSites =
    "SELECT idSite,url,method,active,tInterval,lastChecked,alertEmail,email,sUserName,sPassWord,status,success,failure"
    " from sites where  datediff('n',[lastChecked],now()) >= tInterval  AND  active = true  ORDER BY idSite";

/// The query for the site that is due next.
constexpr const char* kSoonestSite =
    "SELECT TOP 1 idsite,url,tInterval*60 AS tlc, (tinterval*60)-datediff('s',[lastChecked],now()) AS mlc  From sites "
    " Where  Active = True   ORDER BY (tinterval*60)-datediff('s',[lastChecked],now()) ";

class SqliteDates : public ::testing::Test {
 protected:
  void addSite(int id, const std::string& lastChecked, const std::string& active = "true", int interval = 10) {
    database_.run("insert into sites (idSite,url,active,tInterval,lastChecked) values (" + std::to_string(id) + ",'u" +
                  std::to_string(id) + "'," + active + "," + std::to_string(interval) + "," + lastChecked + ")");
  }
  std::string difference(const std::string& unit, const std::string& from, const std::string& to) {
    return database_.rows("select datediff('" + unit + "','" + from + "','" + to + "')");
  }
  bool isDueAt(const std::string& time) {
    database_.clock.setLocal(HandClock::at(time));
    return !database_.conn->execute(kDueSites)->eof();
  }

  OpenDatabase database_;
};

// What another tool has stored may be any date.
TEST_F(SqliteDates, AYearHasFourDigitsOrMoreAndItsSign) {
  const auto textOf = [](int year) {
    return dateTimeText(std::chrono::local_days(std::chrono::year(year) / 3 / 9) + std::chrono::hours(7));
  };
  EXPECT_EQ(textOf(2024), "2024-03-09 07:00:00");
  EXPECT_EQ(textOf(7), "0007-03-09 07:00:00");
  EXPECT_EQ(textOf(12345), "12345-03-09 07:00:00");
  EXPECT_EQ(textOf(-5), "-005-03-09 07:00:00");
}

TEST_F(SqliteDates, ASiteIsDueByTheClocksMinutesNotByElapsedOnes) {
  addSite(1, "'2024-05-17 12:00:30'");
  EXPECT_FALSE(isDueAt("2024-05-17 12:09:59"));
  EXPECT_TRUE(isDueAt("2024-05-17 12:10:00"));
}

TEST_F(SqliteDates, ASiteNeverCheckedOrInactiveIsNotDue) {
  addSite(1, "null");
  addSite(2, "'2024-05-17 08:00:00'", "false");
  EXPECT_FALSE(isDueAt("2024-05-17 12:00:00"));
}

TEST_F(SqliteDates, DueSitesComeInTheOrderOfTheirIds) {
  addSite(7, "'2024-05-17 11:00:00'");
  addSite(2, "'2024-05-17 11:59:00'");
  addSite(3, "'2024-05-17 11:50:00'");
  EXPECT_EQ(database_.rows(kDueSites),
            "3|u3|NULL|True|10|2024-05-17 11:50:00|NULL|NULL|NULL|NULL|NULL|NULL|NULL;"
            "7|u7|NULL|True|10|2024-05-17 11:00:00|NULL|NULL|NULL|NULL|NULL|NULL|NULL;");
}

TEST_F(SqliteDates, TheSoonestSiteIsOneRowWithItsSecondsLeft) {
  addSite(1, "'2024-05-17 11:55:00'");
  addSite(2, "'2024-05-17 11:49:30'");
  addSite(3, "'2024-05-17 10:00:00'", "false");
  EXPECT_EQ(database_.rows(kSoonestSite), "2|u2|600|-30;");
}

TEST_F(SqliteDates, ANeverCheckedSiteHasNoSecondsLeft) {
  addSite(1, "null");
  const auto records = database_.conn->execute(kSoonestSite);
  EXPECT_TRUE(records->field("mlc").isNull());
  EXPECT_EQ(records->field("tlc").toInt64(), 600);
}

TEST_F(SqliteDates, DifferencesCountTheBoundariesCrossed) {
  EXPECT_EQ(difference("n", "2024-05-17 12:00:59", "2024-05-17 12:01:00"), "1;");
  EXPECT_EQ(difference("n", "2024-05-17 12:00:00", "2024-05-17 12:00:59"), "0;");
  EXPECT_EQ(difference("s", "2024-05-17 12:00:59", "2024-05-17 12:01:01"), "2;");
}

TEST_F(SqliteDates, DifferencesCrossYearsAndLeapDays) {
  EXPECT_EQ(difference("n", "2023-12-31 23:59:59", "2024-01-01 00:00:00"), "1;");
  EXPECT_EQ(difference("s", "2024-02-28", "2024-03-01"), "172800;");
  EXPECT_EQ(difference("N", "1969-12-31 23:59:59", "1970-01-01"), "1;");
}

TEST_F(SqliteDates, DifferencesAreThoseOfTheWallClockWhenDaylightSavingSets) {
  EXPECT_EQ(difference("n", "2024-03-31 01:59:00", "2024-03-31 03:00:00"), "61;");
  EXPECT_EQ(difference("s", "2024-10-27 01:00:00", "2024-10-27 04:00:00"), "10800;");
}

TEST_F(SqliteDates, ADateInTheFutureGivesANegativeDifference) {
  EXPECT_EQ(difference("n", "2024-05-17 12:00:00", "2024-05-17 11:58:30"), "-2;");
}

TEST_F(SqliteDates, StampsAsOtherToolsWriteThemAreRead) {
  for (const char* stamp : {"2024-05-17T12:00:30", "2024-05-17t12:00:30", "2024-05-17 12:00:30.123456",
                            "2024-05-17T12:00:30,5", "2024-05-17 12:00", "2024-05-17T12:00"}) {
    SCOPED_TRACE(stamp);
    EXPECT_EQ(difference("n", "2024-05-17 11:58:00", stamp), "2;");
    database_.run("delete from sites");
    addSite(1, std::string("'") + stamp + "'");
    EXPECT_FALSE(isDueAt("2024-05-17 12:09:59"));
    EXPECT_TRUE(isDueAt("2024-05-17 12:10:00"));
  }
}

TEST_F(SqliteDates, AStampOfAnotherTimeZoneIsTheLocalTimeOfThatMoment) {
  const LocalTime local = localTimeAt(std::chrono::sys_days{std::chrono::January / 17 / 2024} + std::chrono::hours{12});
  for (const char* stamp : {"2024-01-17T12:00:00Z", "2024-01-17 12:00Z", "2024-01-17T14:00:00+02:00",
                            "2024-01-17 06:30:00.25 -0530", "2024-01-17T13:00:00+01"}) {
    EXPECT_EQ(parseStamp(stamp), local) << stamp;
    EXPECT_EQ(difference("s", dateTimeText(local), stamp), "0;") << stamp;
  }
  for (const char* stamp : {"2024-01-17T12:00:00 ", "2024-01-17T12:00:00+", "2024-01-17T12:00:00Zulu", "2024-01-17T12",
                            "2024-01-17T12:00:00.", "2024-01-17T25:00:00", "2024-01-17T12:00:00+2:00",
                            "2024-01-17T12:00:00+02:", "17.01.2024 12:00", "1/17/2024 12:00:00 PM"}) {
    EXPECT_EQ(parseStamp(stamp), std::nullopt) << stamp;
  }
}

TEST_F(SqliteDates, WhatIsNoDateGivesNull) {
  EXPECT_EQ(database_.rows("select datediff('n',null,now()), datediff('n','rubbish',now()), datediff('n','',now()),"
                           " datediff('n','2024-02-30 00:00:00',now()), datediff('n',now(),'2024-01-01 24:00:00'),"
                           " datediff('n',20240101,now()), datediff('n','2024-01-01 00:00:00 ',now())"),
            "NULL|NULL|NULL|NULL|NULL|NULL|NULL;");
  EXPECT_EQ(database_.rows("select datevalue(null), datevalue('x'), datevalue('2024-05-17 99:00:00')"),
            "NULL|NULL|NULL;");
}

TEST_F(SqliteDates, AnUnknownUnitIsAClearError) {
  try {
    difference("fortnight", "2024-05-17", "2024-05-18");
    FAIL() << "accepted";
  } catch (const DataAccessError& error) {
    EXPECT_NE(error.cause().find("datediff knows the units"), std::string::npos) << error.what();
  }
}

TEST_F(SqliteDates, DateValueIsTheDatePart) {
  EXPECT_EQ(database_.rows("select datevalue('2024-05-07 23:59:59'), datevalue('2024-05-07')"),
            "2024-05-07|2024-05-07;");
}

TEST_F(SqliteDates, NowIsTheGivenClocksTime) {
  EXPECT_EQ(database_.rows("select now()"), "2024-05-17 12:00:00;");
  database_.clock.setLocal(HandClock::at("2031-01-02 03:04:05"));
  EXPECT_EQ(database_.rows("select now()"), "2031-01-02 03:04:05;");
}

TEST_F(SqliteDates, NowStandsStillWhileAStatementsRowsAreRead) {
  addSite(1, "null");
  addSite(2, "null");
  const auto records = database_.conn->execute("select now() from sites");
  database_.clock.advance(std::chrono::hours(1));
  EXPECT_EQ(database_.rows("select now()"), "2024-05-17 13:00:00;");
  records->moveNext();
  EXPECT_EQ(records->field(0).toText(), "2024-05-17 12:00:00");
}

TEST_F(SqliteDates, TheLogIsStampedWithTheLocalTimeOfTheMachine) {
  database_.run("insert into log (idSite,url,status,errCode,errDescription,content) values (1,'u',True,0,'','')");
  const auto stamp = parseDateTime(database_.value("select dateStamp from log").toText());
  ASSERT_TRUE(stamp);
  const auto age = SystemClock().localNow() - *stamp;
  EXPECT_GE(age, std::chrono::seconds(0));
  EXPECT_LT(age, std::chrono::minutes(1));
}

}  // namespace
}  // namespace tarnwick::testing
