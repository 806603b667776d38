// SPDX-License-Identifier: MIT
// Whose page, whose alert and whose count it is when a site is edited, switched off or deleted while a pass is on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/errors.h"
#include "engine/run_controller.h"
#include "support/program_fixture.h"
#include "support/watched_sql.h"

namespace tarnwick::testing {
namespace {

using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

struct EditsInMidPass : ::testing::Test, ProgramFixture {
  EditsInMidPass() : ProgramFixture(TestServices::Time::byHand) { program.start(); }

  void tick(int count = 1) { machine.handTimers.advance(seconds(count)); }
  void set(std::int16_t id, const std::string& url, bool active = true, const std::string& method = "get",
           const std::string& user = "", const std::string& password = "") {
    program.data().updateSites(id, url, method, active, 10, false, "", user, password);
  }
  /// Serves `path`, and does something to the list meanwhile.
  void during(const std::string& path, std::function<void()> edit, const std::string& body = "old") {
    server.handle(path, [edit = std::move(edit), body](const HttpRequest&) {
      edit();
      return HttpResponse{.body = body};
    });
  }
  /// A site that is up, and whose page then becomes another.
  std::int16_t addChanging(const std::string& path) {
    const std::int16_t id = addPage(path, "old");
    program.data().updateContentCompare(id, "what it was");
    return id;
  }
  void startProgramAlert() {
    program.data().setControl("cprogram", true);
    program.data().setControl("program", std::string("alarm ~idsite~"));
  }
};

TEST_F(EditsInMidPass, ANewSiteWhoseAddressIsEditedWhileItsFirstPageIsOnItsWayIsCheckedAtOnce) {
  const std::int16_t id = addSite(server.url("/old"));
  during("/old", [&] { set(id, server.url("/new")); });
  server.respond("/new", {.body = "new"});
  program.startRun();
  EXPECT_EQ(column(id, "content_compare"), "NULL");
  tick();
  EXPECT_EQ(column(id, "content_compare"), "new");
  EXPECT_EQ(column(id, "success"), "1");
  tick();
  EXPECT_THAT(view.status(), HasSubstr("Time Until Next Check: 00:09:5"));
  EXPECT_THAT(server.requests(), SizeIs(2));
}

TEST_F(EditsInMidPass, ASiteWhoseAddressIsEditedWhileItWaitsInThePassIsCheckedAtOnce) {
  const std::int16_t first = addPage("/first", "first");
  for (int i = 0; i < 6; ++i) {
    addPage("/" + std::to_string(i), "page");
  }
  const std::int16_t last = addPage("/last", "old");
  server.respond("/new", {.body = "new"});
  view.onJudged = [&](std::int16_t id) {
    if (id == first) {
      set(last, server.url("/new"));
    }
  };
  program.startRun();
  tick();
  EXPECT_EQ(column(last, "content_compare"), "new");
}

TEST_F(EditsInMidPass, ASiteThatWasCheckedNotLongAgoIsDueAtOnceWhenItsPageIsDropped) {
  const std::int16_t id = addPage("/old", "old");
  program.startRun();
  tick(60);
  program.stopRun();
  during("/old", [&] { set(id, server.url("/new")); });
  server.respond("/new", {.body = "new"});
  program.startRun();
  tick();
  EXPECT_EQ(column(id, "content_runtime"), "new");
}

TEST_F(EditsInMidPass, ADroppedPageIsToldAndLeavesNoLog) {
  const std::int16_t id = addSite(server.url("/old"));
  during("/old", [&] { set(id, server.url("/old"), false); });
  program.startRun();
  EXPECT_THAT(view.dropped, ElementsAre(id));
  EXPECT_THAT(view.results, IsEmpty());
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
  tick(30);
  EXPECT_THAT(server.requests(), SizeIs(1)) << "A site that is switched off is not checked.";
}

TEST_F(EditsInMidPass, ASiteThatIsSwitchedOffWithAnotherAddressOwesNoPass) {
  const std::int16_t id = addSite(server.url("/old"));
  addPage("/other", "other");
  during("/old", [&] { set(id, server.url("/new"), false); });
  program.startRun();
  EXPECT_THAT(view.dropped, ElementsAre(id));
  tick();
  EXPECT_THAT(view.status(), HasSubstr("Time Until Next Check: 00:09:5")) << "and no pass without a site";
}

TEST_F(EditsInMidPass, ADeletedSiteOwesNothing) {
  const std::int16_t id = addSite(server.url("/old"));
  addPage("/other", "other");
  during("/old", [&] { program.data().deleteSite(id); });
  program.startRun();
  EXPECT_THAT(view.dropped, ElementsAre(id));
  server.clearRecords();
  tick(30);
  EXPECT_THAT(server.requests(), IsEmpty());
  EXPECT_THAT(view.status(), HasSubstr("Time Until Next Check: 00:09:"));
}

TEST_F(EditsInMidPass, ASiteThatIsSwitchedOffRaisesNoAlert) {
  startProgramAlert();
  const std::int16_t id = addChanging("/a");
  during("/a", [&] { program.data().setActive(id, false); });
  program.startRun();
  EXPECT_THAT(machine.programs.started, IsEmpty());
  EXPECT_EQ(column(id, "status"), "NULL");
  EXPECT_EQ(column(id, "failure"), "NULL");
}

TEST_F(EditsInMidPass, ThePageOfAnOldMethodIsNotJudged) {
  const std::int16_t id = addSite(server.url("/a"));
  server.handle("/a", [&](const HttpRequest& request) {
    set(id, server.url("/a"), true, "post");
    return HttpResponse{.body = request.method};
  });
  program.startRun();
  tick();
  EXPECT_EQ(column(id, "content_compare"), "POST");
}

TEST_F(EditsInMidPass, ThePageOfAnOldFormIsNotJudged) {
  const std::int16_t id = addSite(server.url("/a"));
  set(id, server.url("/a"), true, "post");
  program.data().addPostVars(id, "q", "old");
  bool edited = false;
  server.handle("/a", [&](const HttpRequest& request) {
    if (!std::exchange(edited, true)) {
      program.data().updatePostVars(program.data().getIdPostVars(id, "q", "old"), "q", "new");
    }
    return HttpResponse{.body = request.body};
  });
  program.startRun();
  tick();
  EXPECT_EQ(column(id, "content_compare"), "q=new");
}

TEST_F(EditsInMidPass, ThePageOfOldCredentialsIsNotJudged) {
  const std::int16_t id = addSite(server.url("/a"));
  for (const char* password : {"", "secret"}) {
    during("/a", [&] { set(id, server.url("/a"), true, "get", "ann", password); });
    view.dropped.clear();
    program.startRun();
    EXPECT_THAT(view.dropped, ElementsAre(id)) << "the user name, then the password alone";
    program.stopRun();
  }
}

TEST_F(EditsInMidPass, AnEditOfWhatIsNotSentDropsNothing) {
  const std::int16_t id = addSite(server.url("/a"));
  during("/a", [&] { program.data().updateSites(id, server.url("/a"), "get", true, 3, true, "a@b.cd", "", ""); });
  program.startRun();
  EXPECT_THAT(view.dropped, IsEmpty());
  EXPECT_EQ(column(id, "success"), "1");
}

TEST_F(EditsInMidPass, AnEditThatStoresTheSameRequestInOtherLettersDropsNothing) {
  const std::int16_t id = addSite(server.url("/a"));
  set(id, server.url("/a") + " ", true, "");
  for (const char* method : {"GET", "get", "Get", ""}) {
    during("/a", [&] { set(id, " " + server.url("/a"), true, method); });
    program.startRun();
    EXPECT_THAT(view.dropped, IsEmpty()) << method;
    program.stopRun();
  }
  set(id, server.url("/a"), true, "POST");
  during("/a", [&] { set(id, server.url("/a"), true, "post"); });
  program.startRun();
  EXPECT_THAT(view.dropped, IsEmpty());
  EXPECT_EQ(column(id, "success"), "5");
}

TEST_F(EditsInMidPass, NullCredentialsThatAreStoredAsEmptyOnesDropNothing) {
  const std::int16_t id = addSite(server.url("/a"));
  folder.execute("update sites set sUserName = null, sPassWord = null");
  during("/a", [&] { set(id, server.url("/a")); });
  program.startRun();
  EXPECT_THAT(view.dropped, IsEmpty());
  EXPECT_EQ(column(id, "sUserName"), "");
}

TEST_F(EditsInMidPass, AnotherYesForActiveDropsNothing) {
  addSite(server.url("/a"));
  during("/a", [&] { folder.execute("update sites set active = -1"); });
  program.startRun();
  EXPECT_THAT(view.dropped, IsEmpty());
}

TEST_F(EditsInMidPass, ManySitesThatAreMovedAtOnceAreAllCheckedInTheNextPass) {
  constexpr int kSites = 40;
  for (int i = 0; i < kSites; ++i) {
    addPage("/" + std::to_string(i), "page");
  }
  for (const char* path : {"/0x", "/1x", "/2x", "/39x"}) {
    server.respond(path, {.body = "moved"});
  }
  bool moved = false;
  view.onStatus = [&](const std::string& text) {
    if (text.starts_with("Testing: ") && !std::exchange(moved, true)) {
      folder.execute("update sites set url = url || 'x'");
    }
  };
  program.startRun();
  EXPECT_THAT(view.dropped, SizeIs(kSites));
  server.clearRecords();
  tick();
  EXPECT_THAT(server.requests(), SizeIs(kSites));
  EXPECT_EQ(column(40, "content_compare"), "moved");
  server.clearRecords();
  tick(60);
  EXPECT_THAT(server.requests(), IsEmpty()) << "nothing is owed any more";
}

/// What happens while the program alert of a failure is started, which is when its mail has been sent.
class CountOfAFailure : public EditsInMidPass {
 protected:
  /// The services with programs that do something when they are started.
  struct Meanwhile final : ProgramStarter {
    bool start(const std::vector<std::string>&) override {
      if (action) {
        std::exchange(action, {})();
      }
      ++alerts;
      return true;
    }
    std::function<void()> action;
    int alerts = 0;
  };

  CountOfAFailure() { startProgramAlert(); }

  int failures(std::int16_t id) const { return std::atoi(column(id, "failure").c_str()); }
  int logged() const { return std::stoi(folder.queryText("select count(*) from log where status = 0")); }

  Meanwhile meanwhile;
  WatchedConnections watched{machine.databases};
  Program alerted{folder.path(), machine.services().with({.databases = &watched, .programs = &meanwhile}), view};
};

TEST_F(CountOfAFailure, IsMadeWhenTheAddressIsEditedWhileTheAlertIsSent) {
  const std::int16_t id = addChanging("/a");
  server.respond("/new", {.body = "new"});
  meanwhile.action = [&] { folder.execute("update sites set url = '" + server.url("/new") + "'"); };
  alerted.start();
  alerted.startRun();
  EXPECT_EQ(logged(), 1);
  EXPECT_EQ(failures(id), 1);
  EXPECT_EQ(column(id, "status"), "0");
}

TEST_F(CountOfAFailure, IsMadeUpOnceWhenTheDatabaseFailedWhileTheAlertWasSent) {
  const std::int16_t id = addChanging("/a");
  bool away = false;
  watched.watch.before = [&](std::string_view) {
    if (away) {
      throw DataAccessError("The test says that the file is away.", "");
    }
  };
  meanwhile.action = [&] { away = true; };
  alerted.start();
  EXPECT_FALSE(alerted.startRun());
  EXPECT_EQ(logged(), 1);
  EXPECT_EQ(failures(id), 0);
  tick(20);
  away = false;
  tick(40);
  EXPECT_EQ(logged(), 1);
  EXPECT_EQ(failures(id), 1);
  tick(120);
  EXPECT_EQ(failures(id), 1);
  EXPECT_EQ(meanwhile.alerts, 1);
}

TEST_F(CountOfAFailure, IsMadeUpAfterStop) {
  const std::int16_t id = addChanging("/a");
  watched.watch.failAt("select failure");
  alerted.start();
  EXPECT_FALSE(alerted.startRun());
  alerted.stopRun();
  EXPECT_EQ(failures(id), 0);
  watched.watch.before = {};
  tick(5);
  EXPECT_EQ(failures(id), 1);
}

TEST_F(CountOfAFailure, IsMadeUpAtTheLatestWhenTheProgramEnds) {
  const std::int16_t id = addChanging("/a");
  {
    Program other(folder.path(), machine.services().with({.databases = &watched, .programs = &meanwhile}), view);
    other.start();
    watched.watch.failAt("select failure");
    EXPECT_FALSE(other.startRun());
    watched.watch.before = {};
    other.close();
  }
  EXPECT_EQ(failures(id), 1);
}

TEST_F(CountOfAFailure, StaysInTheLogWhenTheSiteIsDeletedWhileItsAlertIsSent) {
  const std::int16_t id = addChanging("/a");
  meanwhile.action = [&] { alerted.data().deleteSite(id); };
  alerted.start();
  EXPECT_TRUE(alerted.startRun());
  EXPECT_EQ(logged(), 1);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST_F(CountOfAFailure, IsNotMadeForANewSiteThatGotTheIdMeanwhile) {
  const std::int16_t id = addChanging("/a");
  std::int16_t fresh = 0;
  meanwhile.action = [&] {
    alerted.data().deleteSite(id);
    fresh = alerted.data().addSite();
  };
  alerted.start();
  alerted.startRun();
  ASSERT_EQ(fresh, id);
  EXPECT_EQ(column(id, "failure"), "NULL");
}

}  // namespace
}  // namespace tarnwick::testing
