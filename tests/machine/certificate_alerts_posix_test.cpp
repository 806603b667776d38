// SPDX-License-Identifier: MIT
// What is told of the certificates of sites, with real servers and a real list.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/run_controller.h"
#include "program/site_draft.h"
#include "store/channel_table.h"
#include "support/program_fixture.h"
#include "support/test_certificates.h"

namespace tarnwick::testing {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::sys_seconds;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

const sys_seconds kToday = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());

/// Of two authorities: one for 90 days, from ten days ago, and one for 300.
const TestCertificates& made() {
  static const auto certificates = [] {
    auto all = std::make_unique<TestCertificates>();
    const auto make = [&](const char* name, const char* authority, int ends, const char* keyOf) {
      all->make({.name = name,
                 .subject = "/CN=site",
                 .authority = authority,
                 .begins = kToday - days(10),
                 .ends = kToday + days(ends),
                 .keyOf = keyOf});
    };
    all->makeAuthority("Other-Trust");
    make("site", "authority", 80, "");
    make("renewed", "authority", 300, "site");
    make("other-site", "Other-Trust", 300, "site");
    return all;
  }();
  return *certificates;
}

TestCertificates& chains() { return const_cast<TestCertificates&>(made()); }

class CertificateAlerts : public ::testing::Test, public ProgramFixture {
 protected:
  CertificateAlerts()
      : ProgramFixture(TestServices::Time::clockByHand,
                       {.caFile = chains().authoritiesFile({"authority", "Other-Trust"})}) {
    program.start();
    program.data().setControl("cprogram", true);
    program.data().setControl("program", std::string("tell \"~event~ ~idsite~ ~certificate~\""));
    // The certificate is verified by the machine's own clock, and told of by this one.
    setTime(kToday);
    secured_ = serverOf("site");
  }

  void SetUp() override {
    if (!made().problem().empty()) {
      GTEST_SKIP() << "no certificates can be made: " << made().problem();
    }
  }

  static std::unique_ptr<HttpServer> serverOf(const char* certificate) {
    auto server = std::make_unique<HttpServer>(chains().chain({certificate}));
    server->respond("/a", {.body = "page"});
    return server;
  }
  void set(const std::string& name, const std::string& value, std::int16_t id = kAllSites) {
    program.data().setOption(id, name, value);
  }
  // The address leads to the secured server, which can be another one the next time.
  std::int16_t addSecured() {
    server.respond("/", HttpResponse::redirect(secured_->url("/a")));
    return addSite(server.url("/"));
  }
  void nowHas(const char* certificate) {
    secured_ = serverOf(certificate);
    server.respond("/", HttpResponse::redirect(secured_->url("/a")));
  }
  void setTime(sys_seconds time) { machine.handClock.setLocal(localTimeAt(time)); }
  void pass() { program.run().runTestPass(site_choice::active); }
  // What is told by a check so many days before the first certificate ends.
  std::vector<std::string> toldBefore(int count, hours more = hours(0)) {
    setTime(kToday + days(80 - count) + more);
    pass();
    return told();
  }
  std::vector<std::string> told() {
    std::vector<std::string> lines;
    for (const std::vector<std::string>& arguments : machine.programs.started) {
      lines.push_back(arguments.at(1));
    }
    machine.programs.started.clear();
    return lines;
  }
  std::string kept(const std::string& what) { return folder.queryText("select " + what + " from certificates"); }

  std::unique_ptr<HttpServer> secured_;
};

TEST_F(CertificateAlerts, EachLimitIsToldOnItsDayAndTheSiteIsUp) {
  set("certificate", "21, 7, 1");
  const std::int16_t id = addSecured();
  program.run().startChecking();
  EXPECT_THAT(toldBefore(22), IsEmpty());
  EXPECT_THAT(toldBefore(21),
              ElementsAre("certificate 1 It holds for 21 days more, until " +
                          dateTimeText(localTimeAt(kToday + days(80))) + ". It was issued by Test-Authority."));
  EXPECT_THAT(toldBefore(20), IsEmpty());
  EXPECT_THAT(toldBefore(7), ElementsAre(HasSubstr("for 7 days more,")));
  EXPECT_THAT(toldBefore(7, hours(1)), IsEmpty());
  EXPECT_THAT(toldBefore(1), ElementsAre(HasSubstr("for 1 day more,")));
  EXPECT_EQ(column(id, "status"), "1");
  EXPECT_EQ(column(id, "failure"), "NULL");
  EXPECT_EQ(folder.queryText("select failures from siteState"), "0");
}

TEST_F(CertificateAlerts, ARenewedOneIsNoMoreAWarningAndOneOfAnotherAuthorityIsToldOnce) {
  set("certificate", "21");
  addSecured();
  program.run().startChecking();
  EXPECT_THAT(toldBefore(10), ElementsAre(StartsWith("certificate 1")));
  nowHas("renewed");
  EXPECT_THAT(toldBefore(9), IsEmpty());
  EXPECT_EQ(kept("told"), "NULL");
  nowHas("other-site");
  const auto news = toldBefore(8);
  EXPECT_THAT(news, ElementsAre(AllOf(StartsWith("issuer 1 It holds for "),
                                      HasSubstr("It was issued by Other-Trust, the one before by Test-Authority."))));
  EXPECT_THAT(toldBefore(7), IsEmpty());
  EXPECT_EQ(kept("issuer"), "Other-Trust");
}

TEST_F(CertificateAlerts, WithNothingSetNothingIsLookedAtAndNothingKept) {
  addSecured();
  program.run().startChecking();
  EXPECT_THAT(toldBefore(1), IsEmpty());
  EXPECT_EQ(folder.queryText("select count(*) from certificates"), "0");
  EXPECT_EQ(folder.queryText("select count(*) from siteState"), "0");
  set("certificate", "21");
  set("certificate", "off", 1);
  EXPECT_THAT(toldBefore(1), IsEmpty());
  EXPECT_EQ(folder.queryText("select count(*) from certificates"), "0");
}

TEST_F(CertificateAlerts, AQuietTimeKeepsThemBack) {
  set("certificate", "21");
  set("pause", "for good");
  addSecured();
  program.run().startChecking();
  EXPECT_THAT(toldBefore(20), IsEmpty());
  EXPECT_EQ(kept("issuer"), "Test-Authority");
  set("pause", "no");
  EXPECT_THAT(toldBefore(19), ElementsAre(StartsWith("certificate 1")));
}

TEST_F(CertificateAlerts, AFailureOfThePageIsToldAsEver) {
  set("certificate", "21");
  const std::int16_t id = addSecured();
  program.run().startChecking();
  secured_->respond("/a", {.body = "another page"});
  EXPECT_THAT(toldBefore(20), ElementsAre(StartsWith("down 1"), StartsWith("certificate 1")));
  EXPECT_EQ(column(id, "status"), "0");
  secured_->respond("/a", {.drop = true});
  EXPECT_THAT(toldBefore(19), ElementsAre(StartsWith("down 1")));
  EXPECT_EQ(kept("count(*)"), "1") << "what is known of it stays";
}

TEST_F(CertificateAlerts, ASiteWithoutOneHasNone) {
  set("certificate", "21");
  addSecured();
  program.run().startChecking();
  EXPECT_EQ(kept("count(*)"), "1");
  server.respond("/", {.body = "page"});
  pass();
  EXPECT_EQ(kept("count(*)"), "0");
}

TEST_F(CertificateAlerts, ThatOfAnotherAddressIsNoSuccessor) {
  set("certificate", "21");
  const std::int16_t id = addSecured();
  program.run().startChecking();
  SiteDraft site = readSite(program.data(), id);
  storeSite(program.data(), id, site, {});
  EXPECT_EQ(kept("count(*)"), "1");
  nowHas("other-site");
  site.url = secured_->url("/a");
  storeSite(program.data(), id, site, {});
  EXPECT_EQ(kept("count(*)"), "0");
  pass();
  EXPECT_THAT(told(), IsEmpty());
  EXPECT_EQ(kept("issuer"), "Other-Trust");
}

TEST_F(CertificateAlerts, AChannelIsToldWhy) {
  set("certificate", "21");
  program.data().storeChannel({.name = "office",
                               .kind = std::string(channel_kind::mail),
                               .settings = {{"to", "a@example.org"}, {"server", "smtp.example.org"}}});
  addSecured();
  program.run().startChecking();
  toldBefore(5);
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "1");
  EXPECT_EQ(folder.queryText("select event from outbox"), "certificate");
  EXPECT_THAT(folder.queryText("select cause from outbox"), HasSubstr("It holds for 5 days more, until "));
  EXPECT_TRUE(waitUntil([&] { return !machine.mails.sent.empty(); }));
  EXPECT_EQ(machine.mails.sent.front().message.subject, "127.0.0.1 has a certificate that ends soon");
}

TEST_F(CertificateAlerts, WhatIsNotKeptIsNotLostEither) {
  set("certificate", "21");
  addSecured();
  folder.execute("create trigger refuse before insert on certificates begin select raise(abort, 'refused'); end");
  setTime(kToday + days(60));
  program.startRun();
  program.stopRun();
  EXPECT_THAT(told(), IsEmpty());
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
  folder.execute("drop trigger refuse");
  program.startRun();
  EXPECT_THAT(told(), ElementsAre(StartsWith("certificate 1")));
}

}  // namespace
}  // namespace tarnwick::testing
