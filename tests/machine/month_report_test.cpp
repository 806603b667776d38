// SPDX-License-Identifier: MIT
// The report of a month that a run makes by itself.
#include <gmock/gmock.h>

#include <filesystem>

#include "program/month_telling.h"
#include "store/channel_table.h"
#include "support/file_bytes.h"
#include "support/program_fixture.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::HasSubstr;
namespace fs = std::filesystem;

struct MonthReportOfARun : ::testing::Test, ProgramFixture {
  MonthReportOfARun() : ProgramFixture(TestServices::Time::byHand) {
    machine.handClock.setLocal(HandClock::at("2026-11-23 10:00:00"));
    set("history", "on");
    addPage("/a", "hello");
    folder.execute("update sites set tInterval = 1440");
  }

  void set(const std::string& name, const std::string& value) { program.data().setOption(kAllSites, name, value); }
  void setClock(const char* time) { machine.handClock.setLocal(HandClock::at(time)); }
  void go(seconds time) { machine.handTimers.advance(time); }
  std::string file(const std::string& month) const { return folder.path() + "/reports/month-" + month + ".html"; }
  std::string told() { return folder.queryText("select count(*) from outbox where event = 'month'"); }
  void addChannel(const std::string& attach = "off") {
    program.data().storeChannel(
        {.name = "office",
         .kind = std::string(channel_kind::mail),
         .settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}, {"attach", attach}}});
  }
  MonthTelling monthTelling() {
    return {program.data(),    program.data().delivery(), machine.services().files,
            machine.handClock, machine.handTimers,        [](const auto& action) { action(); }};
  }
  /// What is known of an hour of November.
  void know() {
    const Moment day = momentAt(HandClock::at("2026-11-10 00:00:00"));
    const std::string began = std::to_string((day + hours(8)).time_since_epoch().count());
    folder.execute("insert into hours values (1, " + began +
                   ", 6, 2700, 0, 600, 200, x'3006'); insert into days values (1, " +
                   std::to_string(day.time_since_epoch().count()) +
                   ", 86400, 6, 2700, 82800, 600, 200, x'3006'); insert into outages values (1, " + began + ", " +
                   began + " + 900, 2, 'refused')");
  }
};

TEST_F(MonthReportOfARun, NothingIsMadeUnasked) {
  know();
  program.start();
  program.startRun();
  setClock("2026-12-01 02:00:00");
  go(minutes(3));
  EXPECT_FALSE(fs::exists(file("2026-11")));
  EXPECT_EQ(folder.queryText("select count(*) from monthReports"), "0");
}

TEST_F(MonthReportOfARun, LeavesOnceOnTheFirstAsAFileAndAMail) {
  addChannel("on");
  set("monthReport", "on");
  know();
  program.start();
  program.startRun();
  go(minutes(2));
  EXPECT_EQ(told(), "0") << "October was over before it was wanted";
  setClock("2026-12-01 01:00:00");
  go(minutes(2));
  EXPECT_EQ(told(), "1");
  EXPECT_THAT(bytesOfFile(file("2026-11")), HasSubstr("<h1>November 2026</h1>"));
  ASSERT_EQ(machine.mails.sent.size(), 1U);
  const MailMessage& mail = machine.mails.sent.front().message;
  EXPECT_EQ(mail.subject, "The month's report");
  EXPECT_THAT(mail.text, HasSubstr("November 2026: 1 site, up "));
  EXPECT_THAT(mail.text, HasSubstr("refused"));
  ASSERT_TRUE(mail.attachment);
  EXPECT_EQ(mail.attachment->name, "report.html");
  EXPECT_EQ(mail.attachment->bytes, bytesOfFile(file("2026-11")));
  go(hours(5));
  setClock("2026-11-30 23:00:00");
  go(hours(5));
  EXPECT_EQ(told(), "1") << "also where the clock was set back";
}

TEST_F(MonthReportOfARun, AProgramThatIsStartedLaterMakesItThenAndTheNextOneDoesNot) {
  addChannel();
  set("monthReport", "on");
  know();
  setClock("2026-12-09 15:00:00");
  program.start();
  program.startRun();
  go(minutes(2));
  EXPECT_EQ(told(), "1");
  program.stopRun();
  fs::remove(file("2026-11"));
  MonthTelling another = monthTelling();
  another.tick(program.data().optionsInForce());
  EXPECT_EQ(told(), "1");
  EXPECT_FALSE(fs::exists(file("2026-11")));
}

TEST_F(MonthReportOfARun, AMonthOfWhichNothingIsKnownHasNone) {
  set("monthReport", "on");
  setClock("2026-12-02 08:00:00");
  program.start();
  program.startRun();
  go(minutes(5));
  EXPECT_FALSE(fs::exists(file("2026-11")));
}

TEST_F(MonthReportOfARun, AFileThatCannotBeWrittenIsNamedWithTheRemedyAndTheMailLeaves) {
  addChannel();
  set("monthReport", "on");
  know();
  setClock("2026-12-02 08:00:00");
  fs::create_directories(file("2026-11") + "/in-the-way");
  MonthTelling telling = monthTelling();
  try {
    telling.tick(program.data().optionsInForce());
    ADD_FAILURE() << "nothing was raised";
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr("month-2026-11.html"));
    EXPECT_THAT(error.what(), HasSubstr("tarnwickctl month-report 2026-11 --html FILE"));
  }
  EXPECT_EQ(told(), "1");
  machine.handClock.advance(minutes(5));
  telling.tick(program.data().optionsInForce());
  EXPECT_EQ(told(), "1");
}

TEST_F(MonthReportOfARun, AListThatIsLockedGetsItLater) {
  set("monthReport", "on");
  know();
  setClock("2026-12-02 08:00:00");
  program.data();
  MonthTelling telling = monthTelling();
  folder.execute("create trigger full before insert on monthReports begin select raise(abort, 'no room'); end");
  EXPECT_THROW(telling.tick(program.data().optionsInForce()), DataAccessError);
  folder.execute("drop trigger full");
  machine.handClock.advance(minutes(1));
  telling.tick(program.data().optionsInForce());
  EXPECT_EQ(folder.queryText("select max(month) from monthReports"), "2026-11");
}

}  // namespace
}  // namespace tarnwick::testing
