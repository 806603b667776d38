// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "program/program.h"
#include "support/http_server.h"
#include "support/program_folder.h"
#include "support/recording_view.h"
#include "support/test_services.h"
#include "support/watched_sql.h"

namespace tarnwick::testing {

/// A program folder that has been in use for a while, with a web server for its sites. Site 1 is up, site 2 is up and
/// its page is a large one, site 3 is up as long as its form variables arrive, and site 4 is down, which sounds the
/// alarm. All of them are due, and what is in the log is from yesterday.
class UsedFolder {
 public:
  UsedFolder() {
    server.respond("/up", {.body = "a page that stays"});
    server.respond("/large", {.body = largePage()});
    server.handle("/form", [](const HttpRequest& request) { return HttpResponse{.body = "you sent " + request.body}; });
    server.respond("/down", {.body = "not what it was"});
    fill();
  }

  /// Everything that no check and no fault may change.
  std::string valuables() const {
    return folder.queryRows(
               "select idSite,url,method,active,tInterval,alertEmail,email,sUserName,sPassWord,content_compare "
               "from sites order by 1") +
           folder.queryRows("select idSite,pname,pvalue from postVars order by 1,2") +
           folder.queryRows("select * from control") +
           folder.queryRows("select rowid,* from log where dateStamp < '2024-05-17' order by 1");
  }
  std::string integrity() const { return folder.queryText("pragma integrity_check"); }
  std::string text(const std::string& sql) const { return folder.queryText(sql); }
  int number(const std::string& sql) const { return std::stoi(folder.queryText(sql)); }

  /// How often site `id` has been recorded as up, or as down, today.
  int recorded(int id, bool up) const {
    return number("select count(*) from log where idSite = " + std::to_string(id) +
                  " and status = " + (up ? "1" : "0") + " and dateStamp >= '2024-05-17'");
  }

  /// What says that a site which is up was taken for one that is down; empty when nothing does.
  std::string falseAlarms() const {
    return folder.queryRows("select 'log', idSite, errDescription from log where status = 0 and idSite < 4") +
           folder.queryRows(
               "select 'sites', idSite, failure from sites where idSite < 4 and (status = 0 or failure > 0)");
  }

  void expectAllRecordedOnce(const std::string& hint) const {
    for (const int id : {1, 2, 3}) {
      EXPECT_EQ(recorded(id, true), 1) << "site " << id << "\n" << hint;
      EXPECT_EQ(number("select success from sites where idSite = " + std::to_string(id)), 8) << hint;
    }
    EXPECT_EQ(recorded(4, false), 1) << hint;
    EXPECT_EQ(text("select status from sites where idSite = 4"), "0") << hint;
  }

  static std::string largePage() { return std::string(12000, 'x') + "the end"; }

  ProgramFolder folder;
  HttpServer server;

 private:
  void fill() const {
    std::string sql = "begin;";
    const auto addSite = [&](int id, const std::string& path, const std::string& method, const std::string& baseline) {
      sql +=
          "insert into sites (idSite,url,method,active,tInterval,lastChecked,status,success,failure,content_compare,"
          "email) values (" +
          std::to_string(id) + ",'" + server.url(path) + "','" + method + "',1,10,'2024-05-17 11:00:00',1,7,0,'" +
          baseline + "','me@here.org');";
    };
    addSite(1, "/up", "GET", "a page that stays");
    addSite(2, "/large", "GET", largePage());
    addSite(3, "/form", "POST", "you sent name=value");
    addSite(4, "/down", "GET", "what it was");
    sql += "insert into postVars (idSite,pname,pvalue) values (3,'name','value');";
    sql += "update control set caudio = 1, audio = 'alarm.wav', smtp = 'mail.here.org';";
    for (int row = 1; row <= 20; ++row) {
      sql +=
          "insert into log (idSite,url,status,errCode,errDescription,dateStamp,content) values (4,'u',0,0,'',"
          "'2024-05-16 10:00:00',hex(zeroblob(" +
          std::to_string(300 * row) + ")));";
    }
    folder.execute(sql + "commit");
  }
};

/// The program on such a folder, driven by hand: clock and timers go on when a case cranks them.
struct RunningProgram {
  explicit RunningProgram(const UsedFolder& used) : program(used.folder.path(), services(), view) { program.start(); }

  Services services() { return machine.services().with({.databases = &databases}); }

  void letPass(std::chrono::seconds time) { machine.handTimers.advance(time); }
  std::size_t boxes() const { return machine.prompts.shown().size(); }
  std::string boxTexts() const {
    std::string all;
    for (const std::string& text : machine.prompts.texts()) {
      all += "[" + text + "]\n";
    }
    return all;
  }

  TestServices machine{TestServices::Time::byHand};
  WatchedConnections databases{machine.databases};
  RecordingView view;
  Program program;
};

/// What holds while and after a run meets a fault. `begin` lets it happen, `end` makes it pass; it lasts `ticks` ticks
/// of the countdown beyond the first pass.
template <typename Begin, typename End>
void expectThatARunOutlives(const UsedFolder& used, Begin begin, int ticks, End end) {
  const std::string before = used.valuables();
  {
    RunningProgram running(used);
    begin(running);
    running.program.startRun();
    running.letPass(std::chrono::seconds(ticks));
    end(running);
    EXPECT_LE(running.boxes(), 1u) << running.boxTexts();
    EXPECT_EQ(used.falseAlarms(), "");
    EXPECT_TRUE(running.program.run().running());
    EXPECT_FALSE(running.program.run().busy());

    // A run never waits longer than its passes have failed.
    running.letPass(std::chrono::seconds(2 + ticks));
    EXPECT_LE(running.boxes(), 1u) << running.boxTexts();
    used.expectAllRecordedOnce(running.boxTexts());
  }
  EXPECT_EQ(used.falseAlarms(), "");
  EXPECT_EQ(used.valuables(), before);
  EXPECT_EQ(used.integrity(), "ok");
}

}  // namespace tarnwick::testing
