// SPDX-License-Identifier: MIT
#include "delivery/refusal_advice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

std::string advice(std::string_view words) { return std::string(adviceOn(words)); }

TEST(RefusalAdviceTest, NamesTheFieldToLookAt) {
  EXPECT_THAT(advice("AUTH: 535 5.7.8 Authentication failed"), HasSubstr("the password"));
  EXPECT_THAT(advice("AUTH: 534 5.7.9 Application-specific password required"), HasSubstr("made for programs"));
  EXPECT_THAT(advice("MAIL FROM: 530 5.7.0 Must issue a STARTTLS command first"), HasSubstr("Encryption"));
  EXPECT_THAT(advice("MAIL FROM: 550 5.7.1 no (the server offers no log-in)"), HasSubstr("User"));
  EXPECT_THAT(advice("MAIL FROM: 553 5.7.1 Sender address rejected: not owned by user me"), HasSubstr("From"));
  EXPECT_THAT(advice("RCPT TO: 550 5.1.1 User unknown"), HasSubstr("in To"));
  EXPECT_THAT(advice("The certificate of the server smtp.example.org could not be verified: self-signed certificate."),
              HasSubstr("CA file"));
  EXPECT_THAT(advice("401 Unauthorized"), HasSubstr("token"));
  EXPECT_THAT(advice("404 page not found"), HasSubstr("address"));
}

TEST(RefusalAdviceTest, SaysNothingOfWhatPassesAndOfWordsThatTellAllThemselves) {
  EXPECT_EQ(advice("AUTH: 454 4.7.0 Temporary authentication failure"), "");
  EXPECT_EQ(advice("RCPT TO: 450 4.2.0 Greylisted"), "");
  EXPECT_EQ(advice("The mail server smtp.example.org offers no encryption, and it is required."), "");
  EXPECT_EQ(advice(""), "");
}

}  // namespace
}  // namespace tarnwick::testing
