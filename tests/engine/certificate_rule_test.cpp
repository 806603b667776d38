// SPDX-License-Identifier: MIT
#include "engine/certificate_rule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Moment kNow{seconds(1780000000)};

class CertificateRule : public ::testing::Test {
 protected:
  CertificateLimits limits(const char* text) { return *readCertificateLimits(text); }
  // A check finds a certificate that holds for so many days more, out of 90.
  std::vector<AlertKind> finds(seconds left, const std::string& issuer = "A", Telling telling = Telling::now) {
    const SiteCertificate found{now + left - days(90), now + left, issuer, std::nullopt};
    CertificateStep step = decideCertificate(kept, found, wanted, now, telling, seen);
    // What came to nothing is decided once more in the same way.
    const CertificateStep again = decideCertificate(kept, found, wanted, now, telling, seen);
    EXPECT_EQ(again.alerts, step.alerts);
    EXPECT_EQ(again.kept, step.kept);
    kept = step.kept;
    return step.alerts;
  }
  // Days go by, with a check of the same certificate at the end.
  std::vector<AlertKind> after(seconds time, Telling telling = Telling::now) {
    now += time;
    return finds(kept->ends - now, kept->issuer, telling);
  }

  Moment now = kNow;
  CertificateLimits wanted = limits("21, 7, 1");
  std::optional<SiteCertificate> kept;
  CertificatesSeen seen;
};

TEST_F(CertificateRule, EachLimitIsToldOnceOnItsDay) {
  EXPECT_THAT(finds(days(30)), IsEmpty());
  EXPECT_THAT(after(days(9) - seconds(1)), IsEmpty());
  EXPECT_THAT(after(seconds(1)), ElementsAre(AlertKind::certificate)) << "21 days before";
  EXPECT_EQ(kept->told, 21);
  EXPECT_THAT(after(days(13)), IsEmpty());
  EXPECT_THAT(after(days(1)), ElementsAre(AlertKind::certificate)) << "7 days before";
  EXPECT_THAT(after(days(1)), IsEmpty());
  EXPECT_THAT(after(days(5)), ElementsAre(AlertKind::certificate)) << "the day before";
  EXPECT_THAT(after(hours(23)), IsEmpty());
  EXPECT_THAT(after(hours(2)), IsEmpty()) << "it has ended";
}

TEST_F(CertificateRule, OfSeveralThatAreReachedAtOnceTheLeastIsTold) {
  EXPECT_THAT(finds(days(5)), ElementsAre(AlertKind::certificate));
  EXPECT_EQ(kept->told, 7);
  EXPECT_THAT(after(days(4)), ElementsAre(AlertKind::certificate));
}

TEST_F(CertificateRule, ARenewedOneIsToldAnewInItsTime) {
  finds(days(5));
  EXPECT_THAT(finds(days(90)), IsEmpty());
  EXPECT_EQ(kept->told, std::nullopt);
  EXPECT_THAT(after(days(69)), ElementsAre(AlertKind::certificate));
  EXPECT_THAT(finds(days(20)), ElementsAre(AlertKind::certificate)) << "another one, also within the limit";
}

TEST_F(CertificateRule, AThirdIsThatOfItsOwnLifetime) {
  wanted = limits("third");
  EXPECT_THAT(finds(days(31)), IsEmpty());
  EXPECT_THAT(after(days(1)), ElementsAre(AlertKind::certificate));
  EXPECT_EQ(kept->told, 30);
  wanted = limits("third, 7");
  EXPECT_THAT(after(days(22)), IsEmpty());
  EXPECT_THAT(after(days(1)), ElementsAre(AlertKind::certificate));
  const SiteCertificate day{now - hours(20), now + hours(4), "A", std::nullopt};
  EXPECT_EQ(reachedLimit(limits("third"), day, now), 1) << "a day at least";
}

TEST_F(CertificateRule, WhatIsStillSoAfterAQuietTimeIsToldThen) {
  finds(days(90));
  EXPECT_THAT(finds(days(20), "B", Telling::later), IsEmpty());
  EXPECT_EQ(kept->told, std::nullopt);
  EXPECT_EQ(kept->ends, now + days(20)) << "it is known all the same";
  EXPECT_THAT(finds(days(20), "B"), ElementsAre(AlertKind::certificate, AlertKind::issuer));
  EXPECT_EQ(seen.formerIssuer, "A");
  EXPECT_THAT(finds(days(20), "B"), IsEmpty());
}

TEST_F(CertificateRule, WhoIsToldNothingHasNothingToCatchUpWithButWhatIsStillSo) {
  finds(days(90));
  EXPECT_THAT(finds(days(20), "B", Telling::never), IsEmpty());
  EXPECT_THAT(finds(days(20), "B"), ElementsAre(AlertKind::certificate));
}

TEST_F(CertificateRule, AnotherIssuerIsToldOnce) {
  EXPECT_THAT(finds(days(90)), IsEmpty()) << "the first one is no other";
  EXPECT_THAT(finds(days(90), "B"), ElementsAre(AlertKind::issuer));
  EXPECT_EQ(kept->issuer, "B");
  EXPECT_THAT(finds(days(90), "B"), IsEmpty());
}

TEST_F(CertificateRule, TwoServersInTurnAreNotToldAtEachTurn) {
  EXPECT_THAT(finds(days(20), "A"), ElementsAre(AlertKind::certificate));
  EXPECT_THAT(finds(days(80), "B"), ElementsAre(AlertKind::issuer));
  for (int turn = 0; turn < 3; ++turn) {
    EXPECT_THAT(finds(days(20), "A"), IsEmpty());
    EXPECT_THAT(finds(days(80), "B"), IsEmpty());
  }
}

TEST_F(CertificateRule, OtherLimitsHoldAtOnce) {
  finds(days(15));
  wanted = limits("7");
  EXPECT_THAT(finds(days(15)), IsEmpty());
  EXPECT_EQ(kept->told, std::nullopt);
  wanted = limits("30");
  EXPECT_THAT(finds(days(15)), ElementsAre(AlertKind::certificate));
}

TEST(CertificateText, TellsTheEndAndTheIssuer) {
  const SiteCertificate some{kNow - days(60), kNow + days(12) + hours(1), "Some Authority", 21};
  const std::string end = dateTimeText(localTimeAt(some.ends));
  EXPECT_EQ(certificateText(some, kNow),
            "It holds for 12 days more, until " + end + ". It was issued by Some Authority.");
  EXPECT_EQ(certificateText(some, kNow + days(11), "Another"),
            "It holds for 1 day more, until " + end + ". It was issued by Some Authority, the one before by Another.");
  EXPECT_EQ(certificateText({some.began, some.ends, "", {}}, kNow + days(20)),
            "It holds for 0 days more, until " + end + ".");
}

}  // namespace
}  // namespace tarnwick::testing
