// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <string>

#include "alerts/alert_dispatch.h"
#include "platform/process/detached_programs.h"
#include "store/site_records.h"
#include "support/program_folder.h"
#include "support/smtp_server.h"
#include "support/test_services.h"

namespace tarnwick::testing {

/// A list with settings whose alerts go to a mail server, a sound and programs of the test.
class AlertsFixture : public ::testing::Test {
 protected:
  AlertsFixture() {
    machine.handClock.setLocal(HandClock::at("2024-05-17 12:00:30"));
    settings.setControl("smtp", "127.0.0.1");
    settings.setControl("email", "me@example.com");
    settings.setControl("audio", "/sounds/alarm.wav");
    settings.setControl("program", "/bin/alert ~idsite~");
    switchOn(false, false, false);
  }

  void switchOn(bool byMail, bool bySound, bool byProgram) {
    settings.setControl("cEmail", byMail);
    settings.setControl("cAudio", bySound);
    settings.setControl("cProgram", byProgram);
  }

  std::int16_t addSite(const std::string& url, bool alertEmail = true, const std::string& email = "you@example.com") {
    SiteRecords sites(database);
    const std::int16_t id = sites.addSite();
    sites.updateSites(id, url, "get", true, 10, alertEmail, email, "", "");
    return id;
  }

  void writeTemplate(const std::string& text, const std::string& name = "email.txt") {
    std::ofstream(folder.file(name), std::ios::binary) << text;
  }

  /// The body of the mail that arrived.
  std::string mailBody() const {
    const std::string message = server.received(SmtpStage::message);
    const std::string end = "\r\n\r\n.\r\n";
    const std::size_t start = message.find("\r\n\r\n") + 4;
    return message.substr(start, message.size() - end.size() - start);
  }

  /// The machine with programs that are really started.
  Services withRealPrograms() { return machine.services().with({.programs = &programs}); }

  ProgramFolder folder;
  TestServices machine{TestServices::Time::clockByHand};
  DetachedPrograms programs;
  SmtpServer server;
  Database database{folder.path(), machine.databases};
  SettingsAndLog settings{database};
  TextFiles files{machine.files, machine.opener};
  MailSocket mail{machine.sockets};
  AlertDispatch alerts{database, settings, files, mail, machine.services(), server.port16()};
};

}  // namespace tarnwick::testing
