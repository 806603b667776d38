// SPDX-License-Identifier: MIT
#include <cstdint>
#include <iostream>
#include <string>
#include <QCoreApplication>

#include "app/headless_platform.h"
#include "engine/run_view.h"
#include "program/program.h"

// A program to be killed: kill_subject <program folder> <first serial number>
//
// Opens the folder as the real program does, starts a run, and goes on for ever: passes over all sites, edits,
// clearings of the log, compactions. It says what it is about to do ("editing ...") and what it has done and stored for
// good
// ("edited ..."), a line each. Ends when its input does, if it is not killed before.

namespace tarnwick {
namespace {

void say(const std::string& line) { std::cout << line << std::endl; }

/// Says which results have been recorded.
class SayingView final : public SilentView {
 public:
  void showResult(const CheckResult& result) override {
    say("recorded " + std::to_string(result.idSite) + (result.passed ? " up" : " down"));
  }
};

class Subject {
 public:
  Subject(Program& program, std::int64_t serial) : program_(program), serial_(serial) {}

  void edit() {
    say("phase edit");
    for (int i = 0; i < kEdits; ++i) {
      editSites();
      editSettings();
      editVariables();
    }
  }

  void pass() {
    say("phase pass");
    program_.run().runTestPass(1);
  }

  void clearLog() {
    say("phase clear");
    for (int i = 0; i < kClearings; ++i) {
      say("filling " + std::to_string(kRowsToClear));
      program_.data().database().execute(
          "insert into log (idSite,url,status,content) with recursive n(i) as (select 1 "
          "union all select i + 1 from n where i < " +
          std::to_string(kRowsToClear) + ") select i, 'u', i % 2, randomblob(2000) from n");
      say("filled " + std::to_string(kRowsToClear));
      say("clearing");
      program_.data().clearLog();
      say("cleared");
    }
  }

  bool compact() {
    say("phase compact");
    const bool done = program_.data().compact();
    say(done ? "compacted" : "not compacted");
    return done;
  }

 private:
  static constexpr int kEdits = 20;
  static constexpr int kClearings = 5;
  static constexpr int kRowsToClear = 300;

  void editSites() {
    const TextTable sites = program_.data().getArraySites(0);
    for (std::size_t row = 1; row <= sites.lastRow(); ++row) {
      const auto idSite = static_cast<std::int16_t>(std::stoi(sites.at(1, row)));
      const std::string number = nextSerial();
      const std::string what = " site " + sites.at(1, row) + " " + number;
      say("editing" + what);
      program_.data().updateSites(idSite, sites.at(2, row), sites.at(3, row), true, 10, false, number, "", "");
      say("edited" + what);
    }
  }

  void editSettings() {
    const std::string setting = nextSerial();
    say("editing setting email " + setting);
    program_.data().storeSettings({{"email", setting}, {"smtp", setting}});
    say("edited setting email " + setting);
  }

  void editVariables() {
    const std::string variable = nextSerial();
    say("editing variable 1 " + variable);
    program_.data().addPostVars(1, "n", variable);
    say("edited variable 1 " + variable);
  }

  std::string nextSerial() { return std::to_string(serial_++); }

  Program& program_;
  std::int64_t serial_;
};

int run(const std::string& folder, std::int64_t serial) {
  HeadlessPlatform machine;
  SayingView view;
  Program program(folder, machine.services(), view);
  say("phase start");
  program.start();
  say("phase pass");
  if (!program.startRun()) {
    return 1;
  }
  Subject subject(program, serial);
  std::string line;
  while (std::getline(std::cin, line)) {
    subject.edit();
    subject.pass();
    if (line == "all") {
      subject.clearLog();
      if (!subject.compact()) {
        return 1;
      }
    }
  }
  program.close();
  return 0;
}

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: kill_subject <program folder> <first serial number>\n";
    return 2;
  }
  const QCoreApplication application(argc, argv);
  try {
    return tarnwick::run(argv[1], std::stoll(argv[2]));
  } catch (const std::exception& error) {
    std::cerr << error.what() << std::endl;
    return 1;
  }
}
