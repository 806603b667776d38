// SPDX-License-Identifier: MIT
#include <fstream>

#include "cli/support/tool_fixture.h"
#include "store/site_pauses.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

class PauseVerbs : public ToolFixture {
 protected:
  PauseVerbs() {
    machine.handClock.setLocal(HandClock::at("2026-11-22 15:56:30"));
    for (const char* const url : {"http://a/", "http://b/", "http://c/"}) {
      addSite(url);
    }
  }

  std::string pauses() const {
    return folder.queryRows("select idSite, value from siteOptions where name = 'pause' order by idSite");
  }
};

TEST_F(PauseVerbs, PauseAllSitesForAnHour) {
  EXPECT_EQ(run({"pause"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The alerts of all sites are paused until 2026-11-22 16:56:30.\n");
  EXPECT_EQ(pauses(), "0|until 2026-11-22 16:56:30\n");
}

TEST_F(PauseVerbs, PauseSomeSitesForASpan) {
  EXPECT_EQ(run({"pause", "1", "3", "1", "--for", "2d"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The alerts of sites 1, 3 are paused until 2026-11-24 15:56:30.\n");
  EXPECT_EQ(pauses(), "1|until 2026-11-24 15:56:30\n3|until 2026-11-24 15:56:30\n");
  EXPECT_EQ(run({"pause", "2", "--for", "90s"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The alerts of site 2 are paused until 2026-11-22 15:58:00.\n");
}

TEST_F(PauseVerbs, PauseUntilAMoment) {
  const std::pair<const char*, const char*> moments[] = {{"2026-11-23 08:00", "2026-11-23 08:00:00"},
                                                         {"2026-11-23T08:00:30", "2026-11-23 08:00:30"},
                                                         {"tomorrow 8:00", "2026-11-23 08:00:00"},
                                                         {"tomorrow", "2026-11-23 00:00:00"},
                                                         {"today 18:00", "2026-11-22 18:00:00"},
                                                         {"18:00", "2026-11-22 18:00:00"},
                                                         {"8:00", "2026-11-23 08:00:00"},
                                                         {"15:56", "2026-11-23 15:56:00"}};
  for (const auto& [text, stored] : moments) {
    EXPECT_EQ(run({"pause", "all", "--until", text}), exit_status::ok) << text << err;
    EXPECT_EQ(pauses(), std::string("0|until ") + stored + "\n") << text;
  }
}

TEST_F(PauseVerbs, PauseForGood) {
  EXPECT_EQ(run({"pause", "2", "--for-good"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The alerts of site 2 are paused for good.\n");
  EXPECT_EQ(pauses(), "2|for good\n");
}

TEST_F(PauseVerbs, RefuseWhatIsNoTimeOrHasGoneBy) {
  for (const char* const text :
       {"", "soon", "25:00", "8", "tomorrow 25:00", "tomorrowx", "todayx 8:00", "2026-11-31"}) {
    EXPECT_EQ(run({"pause", "--until", text}), exit_status::failed) << text;
    EXPECT_THAT(err, HasSubstr("is no moment. Write it as \"YYYY-MM-DD HH:MM\"")) << text;
  }
  for (const char* const text : {"2026-11-22 15:56:30", "today 8:00", "today", "2020-01-01"}) {
    EXPECT_EQ(run({"pause", "--until", text}), exit_status::failed) << text;
    EXPECT_THAT(err, HasSubstr("has gone by already")) << text;
  }
  for (const char* const text : {"", "1", "h", "0h", "-1h", "3651d", "99999999999h", "1 h"}) {
    EXPECT_EQ(run({"pause", std::string("--for=") + text}), exit_status::failed) << text;
    EXPECT_NE(err, "") << text;
  }
  EXPECT_EQ(pauses(), "");
}

TEST_F(PauseVerbs, TakeOneWayToSayHowLong) {
  EXPECT_EQ(run({"pause", "--for", "1h", "--until", "18:00"}), exit_status::failed);
  EXPECT_EQ(run({"pause", "--for", "1h", "--for-good"}), exit_status::failed);
  EXPECT_EQ(run({"pause", "--until", "18:00", "--for-good"}), exit_status::failed);
}

TEST_F(PauseVerbs, NameASiteThatIsNotInTheListAndPauseNone) {
  EXPECT_EQ(run({"pause", "1", "9"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site 9."));
  EXPECT_EQ(run({"pause", "1", "all"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("neither all nor the id of a site"));
  EXPECT_EQ(run({"resume", "9"}), exit_status::failed);
  EXPECT_EQ(pauses(), "");
}

TEST_F(PauseVerbs, PausingAllTakesThoseAlongThatWouldEndSooner) {
  run({"pause", "1", "--for-good"});
  run({"pause", "2", "--for", "30m"});
  run({"option", "3", "pause=no"});
  EXPECT_EQ(run({"pause", "all", "--for", "2h"}), exit_status::ok) << err;
  EXPECT_EQ(pauses(), "0|until 2026-11-22 17:56:30\n1|for good\n");
}

TEST_F(PauseVerbs, ResumeTakesPausesAway) {
  run({"pause", "1", "2"});
  EXPECT_EQ(run({"resume", "1"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The alerts of site 1 are not paused any more.\n");
  EXPECT_EQ(pauses(), "2|until 2026-11-22 16:56:30\n");
  run({"pause"});
  EXPECT_EQ(run({"resume"}), exit_status::ok) << err;
  EXPECT_EQ(out, "The alerts of all sites are not paused any more.\n");
  EXPECT_EQ(pauses(), "");
}

TEST_F(PauseVerbs, ASiteIsResumedAlsoWhileAllOthersArePaused) {
  run({"pause"});
  EXPECT_EQ(run({"resume", "2"}), exit_status::ok) << err;
  EXPECT_EQ(pauses(), "0|until 2026-11-22 16:56:30\n2|no\n");
  // When that is over, there is nothing left to be said of the site.
  machine.handClock.setLocal(HandClock::at("2026-11-22 16:56:30"));
  EXPECT_EQ(run({"resume", "2"}), exit_status::ok) << err;
  EXPECT_EQ(pauses(), "0|until 2026-11-22 16:56:30\n");
}

TEST_F(PauseVerbs, TellAScript) {
  EXPECT_EQ(runJson({"pause", "--for-good", "--json"}), (Json{{"sites", "all"}, {"pause", "for good"}}));
  EXPECT_EQ(runJson({"pause", "1", "2", "--json"}), (Json{{"sites", {1, 2}}, {"pause", "until 2026-11-22 16:56:30"}}));
  EXPECT_EQ(runJson({"resume", "1", "--json"}), (Json{{"sites", {1}}, {"pause", "no"}}));
}

/// What the list says of the alarm.
class AlarmInTheList : public PauseVerbs {
 protected:
  AlarmInTheList() {
    folder.execute("update sites set lastChecked = '2026-11-22 15:50:00', status = 1 where idSite <> 2");
    folder.execute("update sites set lastChecked = '2026-11-22 15:50:00', status = 0 where idSite = 2");
  }
  void store(std::int16_t id, const SiteStanding& standing) {
    m data(folder.path(), machine.services());
    data.storeStanding(id, standing);
  }
  static SiteStanding failed(int times) {
    SiteStanding standing;
    standing.failures = times;
    standing.downSince = HandClock::at("2026-11-22 15:49:00");
    standing.firstError = "The connection was refused.";
    return standing;
  }
};

TEST_F(AlarmInTheList, IsNoneWhereNothingIsSet) {
  store(2, failed(1));
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr(" 2  down "), Not(HasSubstr("unconfirmed"))));
  EXPECT_FALSE(runJson({"site", "2", "--json"}).contains("alarm"));
}

TEST_F(AlarmInTheList, IsTheDaysThatACertificateIsGoodFor) {
  const auto now = machine.clock().now();
  const SiteCertificate some{now - std::chrono::days(60), now + std::chrono::days(12), "Some Authority", std::nullopt};
  {
    m data(folder.path(), machine.services());
    data.storeCertificate(1, some);
    data.storeCertificate(2, some);
  }
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr(" 1  up "), Not(HasSubstr("days"))));
  EXPECT_FALSE(runJson({"site", "1", "--json"}).contains("certificate"));
  run({"option", "all", "certificate=21, 7"});
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr(" 1  12 days "), HasSubstr(" 2  down ")));
  EXPECT_EQ(run({"site", "1"}), exit_status::ok);
  const std::string end = dateTimeText(localTimeAt(some.ends));
  EXPECT_THAT(out, HasSubstr("Certificate:  12 days, until " + end + ", Some Authority\n"));
  const Json site = runJson({"site", "1", "--json"});
  EXPECT_EQ(site["alarm"]["state"], "certificate");
  EXPECT_EQ(site["certificate"]["ends"], end);
  EXPECT_EQ(site["certificate"]["issuer"], "Some Authority");
  EXPECT_EQ(site["certificate"]["endsSoon"], true);
  EXPECT_EQ(runJson({"sites", "certificate", "--json"}).size(), 2U);
  EXPECT_EQ(runJson({"sites", "certificate -down", "--json"}).size(), 1U);
  run({"option", "all", "certificate=7"});
  EXPECT_EQ(runJson({"sites", "certificate", "--json"}).size(), 0U);
  EXPECT_EQ(runJson({"site", "1", "--json"})["certificate"]["endsSoon"], false);
}

TEST_F(AlarmInTheList, IsUnconfirmedOrDown) {
  run({"option", "all", "confirm=3"});
  store(2, failed(1));
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr(" 2  unconfirmed (1 of 3) "));
  EXPECT_EQ(run({"site", "2"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("State:        unconfirmed (1 of 3)\n"),
                         HasSubstr("Alarm:        unconfirmed (1 of 3), since 2026-11-22 15:49:00\n"),
                         HasSubstr("First error:  The connection was refused.\n")));
  EXPECT_EQ(runJson({"site", "2", "--json"})["alarm"], Json::parse(R"({"state": "unconfirmed", "failures": 1,
      "confirm": 3, "firstError": "The connection was refused.", "since": "2026-11-22 15:49:00"})"));
  store(2, failed(3));
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr(" 2  down "));
  EXPECT_EQ(runJson({"sites", "--json"})[1]["alarm"]["state"], "down");
}

TEST_F(AlarmInTheList, NamesUnsteadySlowUnknownAndPaused) {
  run({"option", "all", "slow=100", "flapping=2 in 10 min"});
  SiteStanding slow;
  slow.slow = true;
  store(1, slow);
  SiteStanding unsteady = failed(1);
  unsteady.unsteady = true;
  store(2, unsteady);
  SiteStanding unknown;
  unknown.unknownSince = HandClock::at("2026-11-22 15:55:00");
  store(3, unknown);
  run({"pause", "3"});
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr(" 1  slow "), HasSubstr(" 2  unsteady "), HasSubstr(" 3  unknown (paused) ")));
  EXPECT_EQ(run({"site", "3"}), exit_status::ok);
  EXPECT_THAT(out, AllOf(HasSubstr("unknown, since 2026-11-22 15:55:00\n"),
                         HasSubstr("Paused:      until 2026-11-22 16:56:30\n")));
  const Json alarm = runJson({"site", "3", "--json"})["alarm"];
  EXPECT_EQ(alarm, Json::parse(R"({"state": "unknown", "since": "2026-11-22 15:55:00",
      "pause": "until 2026-11-22 16:56:30", "quiet": "keepsAlerts"})"));
}

TEST_F(AlarmInTheList, TellsWhoIsUnwatchedAndWhy) {
  terminal.isTerminal = true;
  folder.execute("update sites set lastChecked = '2026-11-22 15:36:30' where idSite = 1");
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("1 active site is not watched, since no run is on. Start one with: tarnwickctl run"));
  EXPECT_EQ(run({"site", "1"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("Unwatched:   no run is on\n"));
  EXPECT_EQ(runJson({"sites", "--json"})[0]["unwatched"], "noRun");
  EXPECT_FALSE(runJson({"sites", "--json"})[1].contains("unwatched"));

  terminal.isTerminal = false;
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_EQ(err, "") << "a script is told by the JSON";
  std::ofstream(folder.file("tarnwick.lock")) << "a run";
  folder.execute("update sites set lastChecked = Null where idSite = 2");
  EXPECT_EQ(run({"sites"}), exit_status::ok);
  EXPECT_THAT(err,
              AllOf(HasSubstr("1 active site was never checked, and the run that is on does not take it on. Check "
                              "it with: tarnwickctl check 2"),
                    HasSubstr("1 active site has not been checked for two of its intervals, though a run is on.")));
  run({"option", "all", "quiet=daily 0-24", "quietHow=do not check"});
  EXPECT_EQ(runJson({"site", "1", "--json"})["unwatched"], "quiet");
  EXPECT_EQ(runJson({"site", "2", "--json"})["unwatched"], "neverChecked");
}

}  // namespace
}  // namespace tarnwick::testing
