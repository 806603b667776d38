// SPDX-License-Identifier: MIT
#include "report/daily_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "base/errors.h"
#include "report/report_fixture.h"
#include "store/settings_and_log.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;

class DailyReportTest : public ReportFixture {
 protected:
  /// The width of the only bar on the page when an address has `count` results of one kind.
  std::string barAt(int count) {
    database.execute("delete from log");
    log("http://a/", true, count);
    const std::string text = page();
    const std::size_t begin = text.find("width=", text.find("<img "));
    return text.substr(begin, text.find(' ', begin) - begin);
  }
};

/// Has room for the first bytes of a file.
class FullDisk final : public LocalFiles {
 public:
  void write(const std::string& path, const std::string& like, const FileFill& fill) override {
    LocalFiles::write(path, like, upToTheRoom(path, fill));
  }
  void overwrite(const std::string& path, FileRest rest, const FileFill& fill) override {
    LocalFiles::overwrite(path, rest, upToTheRoom(path, fill));
  }

 private:
  static FileFill upToTheRoom(const std::string& path, const FileFill& fill) {
    return [&path, &fill](const ByteSink& sink) {
      fill([&](std::string_view bytes) {
        sink(bytes.substr(0, 5));
        throw FileError(path, "No room.");
      });
    };
  }
};

std::string countTable(const std::string& name, const std::string& count) {
  return "<table width=500 border=1 cellpadding=2 cellspacing=0>\r\n"
         "<tr>\r\n   <td>" +
         name +
         "</td>\r\n</tr>\r\n"
         "<tr bgcolor=#d0d0d0>\r\n   <td>" +
         count + "</td>\r\n</tr>\r\n</table>\r\n";
}

TEST_F(DailyReportTest, PageOfTwoAddressesByteForByte) {
  log("http://b/", true, 95);
  log("http://b/", false, 2);
  log("http://a/", true, 1);
  clock.setLocal(HandClock::at("2024-05-17 08:03:09"));
  EXPECT_EQ(page(),
            "REPORT TIME: Friday, May 17, 2024 08:03:09\r\n"
            "<table width=500 border=1 cellpadding=2 cellspacing=0>\r\n"
            "<tr>\r\n   <td>url</td>\r\n   <td>total</td>\r\n   <td>status</td>\r\n</tr>\r\n"
            "<tr bgcolor=#d0d0d0>\r\n   <td>http://a/</td>\r\n   <td>1</td>\r\n"
            "   <td><img height=12 width=6 src=green.jpg></td>\r\n</tr>\r\n"
            "<tr bgcolor=#e0e0e0>\r\n   <td>http://b/</td>\r\n   <td>2</td>\r\n"
            "   <td><img height=12 width=7 src=red.jpg></td>\r\n</tr>\r\n"
            "<tr bgcolor=#d0d0d0>\r\n   <td>http://b/</td>\r\n   <td>95</td>\r\n"
            "   <td><img height=12 width=100 src=green.jpg></td>\r\n</tr>\r\n"
            "</table>\r\n" +
                countTable("Total Log Entries", "98") + countTable("Total Errors", "2") +
                countTable("Total Success", "96") + "\r\n");
}

TEST_F(DailyReportTest, DayWithoutLogHasAnEmptyTableAndThreeZeros) {
  log("http://a/", true, 3, "2024-05-16 23:59:59");
  log("http://a/", false, 3, "2024-05-18 00:00:00");
  EXPECT_EQ(page(),
            "REPORT TIME: Friday, May 17, 2024 12:00:00\r\n"
            "<table width=500 border=1 cellpadding=2 cellspacing=0>\r\n</table>\r\n" +
                countTable("Total Log Entries", "0") + countTable("Total Errors", "0") +
                countTable("Total Success", "0") + "\r\n");
}

TEST_F(DailyReportTest, WholeDayCountsFromMidnightToMidnight) {
  log("http://a/", true, 1, "2024-05-17 00:00:00");
  log("http://a/", true, 1, "2024-05-17 23:59:59");
  EXPECT_THAT(page(), HasSubstr(countTable("Total Log Entries", "2")));
}

TEST_F(DailyReportTest, RowsLoggedByTheProgramCountToday) {
  clock.setLocal(SystemClock().localNow());
  SettingsAndLog(database).addLog(1, "http://a/", false, 35761, "no answer", "");
  EXPECT_THAT(page(), HasSubstr(countTable("Total Errors", "1")));
}

TEST_F(DailyReportTest, BarIsFivePixelsWiderThanTheCountUpToOneHundred) {
  EXPECT_EQ(barAt(1), "width=6");
  EXPECT_EQ(barAt(94), "width=99");
  EXPECT_EQ(barAt(95), "width=100");
  EXPECT_EQ(barAt(96), "width=100");
  EXPECT_EQ(barAt(200), "width=100");
}

TEST_F(DailyReportTest, GreatestCountIsOneBelowTheOverflow) {
  EXPECT_EQ(barAt(32762), "width=100");
  log("http://a/", true);
  EXPECT_THAT(errorOf<OverflowError>([&] { report.createReport(); }), HasSubstr("32768"));
}

TEST_F(DailyReportTest, CellsAreWrittenRawButForTheBeginningOfATag) {
  log("http://a/?x=1&y=<b>'\"\xff", true);
  EXPECT_THAT(page(), HasSubstr("   <td>http://a/?x=1&y=&lt;b>'\"\xff</td>\r\n"));
}

TEST_F(DailyReportTest, NullAddressIsAnEmptyCellOfNoCount) {
  folder.execute("insert into log (status, dateStamp) values (0, '2024-05-17 10:00:00')");
  EXPECT_THAT(page(), HasSubstr("<tr bgcolor=#d0d0d0>\r\n   <td></td>\r\n   <td>0</td>\r\n"
                                "   <td><img height=12 width=5 src=red.jpg></td>\r\n"));
}

TEST_F(DailyReportTest, AnyNumberButZeroIsASuccess) {
  folder.execute("insert into log (url, status, dateStamp) values ('http://a/', -1, '2024-05-17 10:00:00')");
  EXPECT_THAT(page(), HasSubstr("src=green.jpg"));
  EXPECT_THAT(page(), HasSubstr(countTable("Total Success", "1")));
}

TEST_F(DailyReportTest, PathOfThePageIsReturned) { EXPECT_EQ(report.createReport(), reportFile()); }

TEST_F(DailyReportTest, MissingReportsFolderIsMade) {
  ASSERT_FALSE(fs::exists(folder.file("reports")));
  report.createReport();
  EXPECT_TRUE(fs::is_regular_file(reportFile()));
}

TEST_F(DailyReportTest, PageReplacesTheEarlierOne) {
  log("http://gone/", true, 5);
  page();
  database.execute("delete from log");
  const std::string second = page();
  EXPECT_THAT(second, Not(HasSubstr("http://gone/")));
  EXPECT_EQ(second.find("REPORT TIME: "), second.rfind("REPORT TIME: "));
}

TEST_F(DailyReportTest, ReportsFolderWithoutAVisibleFileIsRefused) {
  fs::create_directory(folder.file("reports"));
  fs::create_directory(folder.file("reports/images"));
  writeFile(folder.file("reports/.hidden"), "");
  const std::string error = errorOf<FileError>([&] { report.createReport(); });
  EXPECT_THAT(error, HasSubstr(folder.path() + "/reports/"));
  EXPECT_THAT(error, HasSubstr("green.jpg"));
  EXPECT_FALSE(fs::exists(reportFile()));
}

TEST_F(DailyReportTest, ReportsFolderWithAnyVisibleFileIsUsed) {
  fs::create_directory(folder.file("reports"));
  writeFile(folder.file("reports/green.jpg"), "");
  EXPECT_EQ(report.createReport(), reportFile());
}

TEST_F(DailyReportTest, FileInPlaceOfTheReportsFolderIsAnError) {
  writeFile(folder.file("reports"), "");
  EXPECT_THROW(report.createReport(), FileError);
}

TEST_F(DailyReportTest, PageThatCannotBeWrittenIsAnError) {
  fs::create_directories(reportFile() + "/in the way");
  writeFile(folder.file("reports/green.jpg"), "");
  EXPECT_THAT(errorOf<FileError>([&] { report.createReport(); }), HasSubstr("report.html"));
}

TEST_F(DailyReportTest, PageThatCannotBeCompletedLeavesTheEarlierOne) {
  FullDisk full;
  DailyReport withoutRoom(database, full, clock);
  EXPECT_THROW(withoutRoom.createReport(), FileError) << "the first one";
  const std::string before = page();
  log("http://a/", true);
  EXPECT_THAT(errorOf<FileError>([&] { withoutRoom.createReport(); }), HasSubstr(reportFile() + ": No room."));
  EXPECT_EQ(bytesOfFile(reportFile()), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.file("reports")), {}), 1);
}

TEST_F(DailyReportTest, PageKeepsItsRightsAndTheLinkThatLeadsToIt) {
  SKIP_ON_WINDOWS("There is no file mode there.");
  page();
  const fs::path elsewhere = folder.file("page.html");
  fs::rename(reportFile(), elsewhere);
  fs::permissions(elsewhere, fs::perms::owner_read | fs::perms::group_read);
  fs::create_symlink(elsewhere, reportFile());
  log("http://a/", true);
  EXPECT_THAT(page(), HasSubstr("http://a/"));
  EXPECT_TRUE(fs::is_symlink(reportFile()));
  EXPECT_THAT(bytesOfFile(elsewhere.string()), HasSubstr("http://a/"));
  EXPECT_EQ(fs::status(elsewhere).permissions(), fs::perms::owner_read | fs::perms::group_read);
}

TEST_F(DailyReportTest, FailedQueryTravelsAndLeavesTheEarlierPage) {
  const std::string earlier = page();
  watch().failAt("select count(*) as [Total Success]");
  EXPECT_THROW(report.createReport(), DataAccessError);
  EXPECT_EQ(bytesOfFile(reportFile()), earlier);
}

TEST_F(DailyReportTest, StatementsAreTheProgramsOwn) {
  takeStatements();
  report.createReport();
  const std::string day = " datevalue(dateStamp) = '2024-05-17'";
  EXPECT_THAT(
      takeStatements(),
      ::testing::ElementsAre("select url,count(url) as total,status from log  where" + day + " group by url,status",
                             "select count(*) as [Total Log Entries] from log where" + day,
                             "select count(*) as [Total Errors] from log  where  status = 0 AND " + day,
                             "select count(*) as [Total Success] from log  where  status <> 0 AND " + day));
}

}  // namespace
}  // namespace tarnwick::testing
