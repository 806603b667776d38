// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "program/program.h"
#include "support/http_server.h"
#include "support/program_folder.h"
#include "support/recording_view.h"
#include "support/test_services.h"
#include "support/wait_until.h"

namespace tarnwick::testing {

/// The whole program without a window on a folder of its own, with a web server to check.
struct ProgramFixture {
  explicit ProgramFixture(TestServices::Time time = TestServices::Time::clockByHand,
                          const CurlTransfers::Options& web = {})
      : machine(time, web) {}

  /// Adds an active site with its defaults and returns its id.
  std::int16_t addSite(const std::string& url) {
    const std::int16_t id = program.data().addSite();
    program.data().updateSites(id, url, "get", true, 10, false, "", "", "");
    return id;
  }

  /// Adds a site whose page is `body`, at a path of the server named after it.
  std::int16_t addPage(const std::string& path, const std::string& body) {
    server.respond(path, {.body = body});
    return addSite(server.url(path));
  }

  /// One column of a site's row, read as another program would.
  std::string column(std::int16_t id, const std::string& name) const {
    return folder.queryText("select " + name + " from sites where idSite = " + std::to_string(id));
  }

  ProgramFolder folder;
  TestServices machine;
  HttpServer server;
  RecordingView view;
  Program program{folder.path(), machine.services(), view};
};

}  // namespace tarnwick::testing
