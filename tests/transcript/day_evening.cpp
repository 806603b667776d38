// SPDX-License-Identifier: MIT
#include <array>

#include "transcript/day.h"
#include "transcript/table_rows.h"

namespace tarnwick::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

void recordLog(World& world, const LogChoice& choice) {
  world.data().readLog(choice, [&](const LogRow& row) {
    world.transcript.add("log", row.dateStamp.value_or("Null") + " site " + std::to_string(row.idSite.value_or(-1)) +
                                    " " + row.url.value_or("Null") + (row.status.value_or(false) ? " up " : " down ") +
                                    std::to_string(row.errCode.value_or(-1)) + " " +
                                    row.errDescription.value_or("Null"));
    return true;
  });
}

}  // namespace

void faultsAndStops(World& world) {
  m& data = world.data();
  world.scene("Stop in mid-pass, with requests that are cut");
  world.view.onJudged = [&](std::int16_t idSite) {
    if (idSite == 4) {
      world.attempt("stops the run", [&] { world.program().stopRun(); });
    }
  };
  world.pass(minutes(12));
  world.view.onJudged = {};

  world.scene("Start again, with a counter that is full");
  world.folder.execute(
      "update sites set success = 32767 where idSite = 1; update sites set active = idSite < 14 or idSite > 16 where "
      "idSite > 13");
  world.attempt("starts the run", [&] { world.program().startRun(); });
  world.attempt("clears the counters of a site", [&] { data.clearCounters(1); });

  world.scene("Results that cannot be stored");
  world.watched.watch.failAt("update sites set content_runtime");
  world.pass(minutes(6));

  world.scene("The clock on the wall is put forward");
  world.clock.setLocal(world.clock.localNow() + hours(1));
  world.pass(minutes(1));
}

void upkeep(World& world) {
  m& data = world.data();
  world.scene("A look at pages and log");
  for (const std::int16_t id : std::array<std::int16_t, 5>{1, 5, 6, 4, 99}) {
    world.attempt("fetches the page of site " + std::to_string(id),
                  [&] { world.transcript.add("page", data.getHtmlFromSite(id)); });
  }
  world.attempt("takes the newest page of the news as the baseline", [&] {
    data.updateContentCompare(2, data.getContentRuntime(2));
    world.transcript.add("page", data.getContentCompare(2));
  });
  world.attempt("empties a baseline", [&] { data.clearContentCompare(6); });
  world.attempt("reads the log", [&] { recordLog(world, {}); });
  world.attempt("reads the failures of a site",
                [&] { recordLog(world, {.idSite = std::int16_t{2}, .failures = true, .newest = 2, .content = true}); });
  world.attempt("clears the log", [&] { data.clearLog(); });
  world.attempt("tries the program", [&] { data.testShellExecuteAlert("  /usr/bin/notify ~url~ ~3~ ~localip~ "); });
  world.attempt("tries the sound", [&] { data.playWave("/sounds/try.wav"); });
  world.attempt("opens the report", [&] { data.openFileFromSystem(world.folder.file("reports/report.html")); });
  world.attempt("tests the database", [&] { data.Test(); });
  world.attempt("clears statuses and counters", [&] {
    data.clearStatus();
    data.clearCounters(-1);
    data.setStatus(3, false);
    data.setActive(7, false);
    world.program().run().UpdateLastChecked(2);
    world.transcript.add("user", data.getMethod(3) + " " + data.getMethod(4) + (data.getActive(7) ? " on" : " off") +
                                     (data.getStatus(3) ? " up" : " down") + (data.idExists(99) ? " yes" : " no"));
  });
  world.attempt("asks for the sites that are due", [&] {
    world.transcript.add("user", std::to_string(data.getSitesToTest().size()) + " " +
                                     std::to_string(data.xgetSitesToTest().size()) + " of " +
                                     std::to_string(data.getArraySitesActiveTrue(2).lastRow()));
  });

  world.scene("Compaction while a run is on");
  world.attempt("compacts", [&] { world.transcript.add("user", data.compact() ? "compacted" : "not compacted"); });
  recordFiles(world.folder, world.transcript);
  const auto other = world.databases.makeSqlConnection();
  other->open(data.database().connString());
  world.attempt("compacts what another program has open",
                [&] { world.transcript.add("user", data.compact() ? "compacted" : "not compacted"); });
  other->close();

  world.scene("An hour of few sites, with the second report at its end");
  for (const std::int16_t id : std::array<std::int16_t, 4>{4, 9, 10, 12}) {
    world.attempt("sets a site inactive", [&] { data.setActive(id, false); });
  }
  world.attempt("switches mails and programs off", [&] {
    data.setControl("cemail", false);
    data.setControl("cprogram", false);
  });
  world.pass(minutes(45));
  world.recordFile("reports/report.html");
  world.attempt("switches the log off", [&] { data.setControl("clogs", false); });
  world.pass(minutes(6));
  world.attempt("switches the log on", [&] { data.setControl("clogs", true); });
}

void nightAndClosing(World& world) {
  m& data = world.data();
  world.scene("Over midnight: a site is deleted while its mail is sent");
  world.attempt("switches mails on", [&] { data.setControl("cemail", true); });
  world.clock.setLocal(HandClock::at("2024-05-17 23:56:30"));
  world.web.page("/new", {.body = "a page at last"});
  world.recordedSockets.onSent = [&](const std::string& line) {
    if (line == "DATA\r\n") {
      world.attempt("deletes the site", [&] {
        data.deleteSite(17);
        world.program().run().init();
      });
    }
  };
  world.pass(minutes(8));
  world.recordedSockets.onSent = {};
  world.attempt("asks for a report", [&] { data.createReport(); });
  world.recordFile("reports/report.html");

  world.scene("The program is closed while a mail is sent");
  world.web.page("/news", {.body = "the news of the night"});
  world.recordedSockets.onSent = [&](const std::string& line) {
    if (line == "DATA\r\n") {
      world.recordedSockets.onSent = {};
      world.attempt("closes the program", [&] { world.program().close(); });
    }
  };
  world.pass(minutes(5));
  world.recordedSockets.onSent = {};
  world.end();
}

void nextProgram(World& world) {
  world.scene("Another program on the same folder");
  world.start();
  world.attempt("starts the run", [&] { world.program().startRun(); });
  world.pass(seconds(3));
  world.attempt("stops the run", [&] { world.program().stopRun(); });
  world.attempt("renumbers the form variables", [&] { world.data().reIdpostVars(); });
  world.end();
}

}  // namespace tarnwick::testing
