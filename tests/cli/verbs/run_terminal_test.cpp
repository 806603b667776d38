// SPDX-License-Identifier: MIT
#include "cli/verbs/run_terminal.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "cli/support/tool_fixture.h"
#include "delivery/delivery.h"
#include "store/channel_table.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;

class RunTerminalTest : public ToolFixture {
 protected:
  /// The live line that stands there now.
  std::string live() const {
    const std::string text = written.str();
    return text.substr(text.rfind("\r\x1b[K") + 4);
  }

  void pass(std::initializer_list<CheckResult> results) {
    shown.indicators(RunState::start);
    for (const CheckResult& result : results) {
      shown.showResult(result);
    }
    shown.indicators(RunState::stop);
  }

  std::ostringstream written;
  std::ostringstream complaints;
  Console console{written, complaints, {.isTerminal = true}, [] { return std::size_t{80}; }};
  RunTerminal shown{console, machine.clock(), machine.pump, {}};
};

TEST_F(RunTerminalTest, CountsOnlyTheSitesThatTheRunChecks) {
  addSite("http://a/");
  addSite("http://b/");
  folder.execute("update sites set status = 0; update sites set active = 0 where idSite = 2");
  m data(folder.path(), machine.services());
  shown.prepare(data);
  shown.showStatus("Waiting");
  EXPECT_EQ(live(), "0 up, 1 down  Waiting");
}

TEST_F(RunTerminalTest, ForgetsSitesThatAreDeletedOrSwitchedOffMeanwhile) {
  for (const char* url : {"http://a/", "http://b/", "http://c/"}) {
    addSite(url);
  }
  m data(folder.path(), machine.services());
  shown.prepare(data);
  pass({{.idSite = 1, .url = "http://a/", .passed = true},
        {.idSite = 2, .url = "http://b/", .passed = true},
        {.idSite = 3, .url = "http://c/", .passed = true}});
  shown.showStatus("Waiting");
  EXPECT_EQ(live(), "3 up, 0 down  Waiting");
  data.deleteSite(2);
  folder.execute("update sites set active = 0 where idSite = 3");
  pass({{.idSite = 1, .url = "http://a/", .passed = true}});
  shown.showStatus("Ready");
  EXPECT_EQ(live(), "1 up, 0 down  Ready");
}

TEST_F(RunTerminalTest, TellsOfAMailServerThatTakesNoMailOnceInAPass) {
  m data(folder.path(), machine.services());
  shown.prepare(data);
  shown.indicators(RunState::start);
  for (const std::int16_t id : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}}) {
    shown.showLostMail({.idSite = id, .url = "http://a/", .why = "The mail server is dead.", .leftOut = id > 1});
    shown.showResult({.idSite = id, .url = "http://a/", .errCode = 7, .errDescription = "gone", .page = "11:gone"});
  }
  shown.indicators(RunState::pause);
  const std::string text = written.str();
  EXPECT_THAT(text, HasSubstr("mail 1 http://a/: The mail server is dead."));
  EXPECT_EQ(text.find("The mail server is dead."), text.rfind("The mail server is dead."));
  EXPECT_THAT(text, HasSubstr("Checked 3 sites: 0 up, 3 down; 2 mails left out."));
}

#ifndef _WIN32  // where no name of a folder may hold such characters
TEST_F(RunTerminalTest, TellsOfAFolderWhoseNameATerminalWouldObey) {
  const std::filesystem::path named = std::filesystem::path(folder.path()) / "a\x1b[2J\xe2\x80\xae";
  std::filesystem::create_directory(named);
  std::filesystem::copy_file(std::filesystem::path(folder.path()) / "tarnwick.mdb", named / "tarnwick.mdb");
  m data(named.string(), machine.services());
  shown.prepare(data);
  shown.indicators(RunState::start);
  EXPECT_THAT(written.str(), HasSubstr("/a\\x1b[2J\\xe2\\x80\\xae."));
}
#endif

TEST_F(RunTerminalTest, LeavesOutAnIdThatTheProgramCannotUse) {
  addSite("http://a/");
  folder.execute("insert into sites (idSite,url,active,status) values (70000,'http://b/',1,1)");
  m data(folder.path(), machine.services());
  shown.prepare(data);
  pass({{.idSite = 1, .url = "http://a/", .passed = true}});
  shown.showStatus("Waiting");
  EXPECT_EQ(live(), "1 up, 0 down  Waiting");
}

TEST_F(RunTerminalTest, GoesOnWhenItsLinesCannotBeWrittenForAMoment) {
  addSite("http://a/");
  m data(folder.path(), machine.services());
  shown.prepare(data);
  for (int line = 0; line < 3; ++line) {
    errno = ENOSPC;
    written.setstate(std::ios::badbit);
    shown.showStatus("Waiting " + std::to_string(line));
  }
  EXPECT_FALSE(machine.pump.closing());
  EXPECT_TRUE(shown.hasLostLines());
  EXPECT_EQ(complaints.str(), "tarnwickctl: The run goes on, but its lines cannot be written: " +
                                  std::generic_category().message(ENOSPC) + ".\n");
  shown.showStatus("Ready");
  EXPECT_THAT(live(), EndsWith("Ready"));
}

TEST_F(RunTerminalTest, EndsTheRunWhenTheReaderOfItsOutputHasGone) {
  addSite("http://a/");
  m data(folder.path(), machine.services());
  shown.prepare(data);
  shown.indicators(RunState::start);
  EXPECT_FALSE(machine.pump.closing());
  errno = EPIPE;
  written.setstate(std::ios::badbit);
  shown.showStatus("Waiting");
  EXPECT_TRUE(machine.pump.closing());
}

TEST_F(RunTerminalTest, TellsAScriptWhichSitesTheRunDoesNotWatch) {
  machine.handClock.setLocal(HandClock::at("2024-05-17 12:00:00"));
  for (const char* const url : {"http://a/", "http://b/", "http://c/"}) {
    addSite(url);
  }
  folder.execute("update sites set lastChecked = '2024-05-17 12:00:00' where idSite < 3");
  m data(folder.path(), machine.services());
  RunTerminal json(console, machine.clock(), machine.pump, {.json = true});
  json.prepare(data);
  // The one about the latest pass, without the time.
  const auto pass = [&] {
    written.str("");
    json.indicators(RunState::start);
    json.showResult({.idSite = 1, .url = "http://a/", .passed = true});
    json.indicators(RunState::stop);
    const std::string lines = written.str();
    Json event = Json::parse(lines.substr(lines.rfind("{\"time\"")));
    event.erase("time");
    return event;
  };
  EXPECT_EQ(pass(), (Json{{"event", "pass"}, {"up", 1}, {"down", 0}, {"neverChecked", 1}}));
  data.setOption(kAllSites, option_name::newSites, option_value::atOnce);
  EXPECT_EQ(pass(), (Json{{"event", "pass"}, {"up", 1}, {"down", 0}}));
  machine.handClock.advance(std::chrono::minutes(20));
  folder.execute("update sites set lastChecked = '2024-05-17 12:15:00' where idSite = 1");
  EXPECT_EQ(pass(), (Json{{"event", "pass"}, {"up", 1}, {"down", 0}, {"overdue", 1}}));
  json.end();
}

TEST_F(RunTerminalTest, TellsWhenAlertsHaveToWaitAndWhenTheyHaveArrived) {
  m data(folder.path(), machine.services());
  data.storeChannel({.name = "office",
                     .kind = std::string(channel_kind::mail),
                     .settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}}});
  RunTerminal json(console, machine.clock(), machine.pump, {.json = true});
  json.prepare(data);
  const auto event = [&] {
    const std::string lines = written.str();
    const std::size_t begin = lines.rfind("{\"time\"");
    Json last = begin == std::string::npos ? Json::object() : Json::parse(lines.substr(begin));
    last.erase("time");
    return last;
  };
  machine.mails.answer({.delivered = false, .words = "RCPT TO: 550 User unknown"});
  Transaction whole(data.database());
  data.delivery().add({.idSite = 1, .made = machine.clock().localNow(), .event = "down", .url = "http://a/"}, {});
  whole.commit();
  data.delivery().deliver();
  ASSERT_TRUE(waitUntil([&] { return !event().empty(); }));
  EXPECT_EQ(event(), (Json{{"event", "alertsWaiting"}, {"waiting", 1}, {"answer", "RCPT TO: 550 User unknown"}}));
  EXPECT_EQ(data.retryAlerts({}, machine.clock().localNow()), 1);
  data.delivery().deliver();
  ASSERT_TRUE(waitUntil([&] { return event()["event"] == "alertsDelivered"; }));
  json.end();
}

TEST_F(RunTerminalTest, TellsOfAHeartbeatThatIsNotTakenAndOfALostTestAlertOnce) {
  addSite("http://a/");
  m data(folder.path(), machine.services());
  data.setOption(kAllSites, "heartbeat", "http://127.0.0.1:1/");
  data.setOption(kAllSites, "testAlert", "8:00");
  shown.prepare(data);
  shown.indicators(RunState::start);
  shown.showHeartbeat("answered with 503");
  EXPECT_THAT(written.str(), HasSubstr("The heartbeat is not taken: answered with 503\n"));
  shown.showHeartbeat("");
  EXPECT_THAT(written.str(), HasSubstr("The heartbeat is taken again.\n"));
  pass({{.idSite = 1, .url = "http://a/", .passed = true}});
  pass({{.idSite = 1, .url = "http://a/", .passed = true}});
  const std::string lost = "The daily messages cannot leave: no channel is on for all sites.\n";
  const std::size_t first = written.str().find(lost);
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(written.str().find(lost, first + 1), std::string::npos);
  written.str("");
  shown.showHeartbeat("answered with 503");
  data.removeOption(kAllSites, "heartbeat");
  shown.showHeartbeat("");
  EXPECT_EQ(written.str().find("again"), std::string::npos) << "none is wanted any more";
  shown.end();
}

}  // namespace
}  // namespace tarnwick::testing
