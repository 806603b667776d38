// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "cli/verbs/tool.h"
#include "program/m.h"
#include "support/http_server.h"
#include "support/program_folder.h"
#include "support/test_services.h"

namespace tarnwick::testing {

using Json = nlohmann::ordered_json;

/// The tool in this process, on a program folder of its own and beside a web server:
///
///     EXPECT_EQ(run({"add", server.url("/a")}), exit_status::ok);
///     EXPECT_EQ(out, "1\n");
///     EXPECT_EQ(err, "");
class ToolFixture : public ::testing::Test {
 protected:
  explicit ToolFixture(TestServices::Time time = TestServices::Time::clockByHand) : machine(time) {}

  /// Runs the tool with `arguments` on the folder and returns its exit status; what it wrote is in `out` and `err`.
  int run(const std::vector<std::string>& arguments) {
    std::ostringstream written;
    std::ostringstream complaints;
    Console console(written, complaints, terminal, [this] { return width; });
    int status = -1;
    {
      const TypedInput typed(input);
      status = runTool(arguments, folder.path(), machine.services(), console, fields);
    }
    out = written.str();
    err = complaints.str();
    return status;
  }

  /// The same with what is to be printed as JSON; fails the case when the tool does, or prints something else.
  Json runJson(const std::vector<std::string>& arguments) {
    EXPECT_EQ(run(arguments), exit_status::ok) << err;
    EXPECT_EQ(err, "");
    EXPECT_TRUE(Json::accept(out)) << out;
    return Json::parse(out, nullptr, false);
  }

  /// Adds an active site with its defaults and returns its id.
  std::int16_t addSite(const std::string& url) {
    m data(folder.path(), machine.services());
    const std::int16_t id = data.addSite();
    data.updateSites(id, url, "get", true, 10, false, "", "", "");
    return id;
  }

  /// Adds a site whose page is `body`, at a path of the server named after it.
  std::int16_t addPage(const std::string& path, const std::string& body) {
    server.respond(path, {.body = body});
    return addSite(server.url(path));
  }

  /// One column of a site's row, read as another program would: "NULL" for a Null.
  std::string column(std::int16_t id, const std::string& name) const {
    return folder.queryText("select " + name + " from sites where idSite = " + std::to_string(id));
  }

  ProgramFolder folder;
  TestServices machine;
  /// What can be set; a case may add to it.
  Fields fields = programFields();
  HttpServer server;
  /// What standard output and standard input are; no terminals unless a case says so.
  TerminalFacts terminal{};
  std::size_t width = 80;
  /// What stands on standard input.
  std::string input{};
  /// What the last run wrote.
  std::string out{};
  std::string err{};

 private:
  /// Lets `std::cin` read a text, for this object's life.
  class TypedInput {
   public:
    explicit TypedInput(const std::string& text) : text_(text), before_(std::cin.rdbuf(text_.rdbuf())) {
      std::cin.clear();
    }
    ~TypedInput() {
      std::cin.rdbuf(before_);
      std::cin.clear();
    }
    TypedInput(const TypedInput&) = delete;
    TypedInput& operator=(const TypedInput&) = delete;

   private:
    std::istringstream text_;
    std::streambuf* before_;
  };
};

}  // namespace tarnwick::testing
