// SPDX-License-Identifier: MIT
#include "store/site_certificates.h"

#include <gtest/gtest.h>

#include "store/deleted_site.h"
#include "store/site_records.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono;

struct SiteCertificatesTest : ::testing::Test {
  static OptionsInForce options(std::map<std::int64_t, OptionValues> values) {
    return OptionsInForce(std::move(values));
  }

  ProgramFolder folder;
  HandClock clock;
  SqliteConnections databases{clock};
  Database database{folder.path(), databases};
  SiteCertificates certificates{database};
  const OptionsInForce all = options({{kAllSites, {{"certificate", "21"}}}});
  const SiteCertificate some{Moment(seconds(1700000000)), Moment(seconds(1800000000)), "Some Authority", 21};
};

TEST_F(SiteCertificatesTest, KeepsTheLatestOfEachSite) {
  certificates.storeCertificate(1, {some.began, some.ends, "Another", std::nullopt});
  certificates.storeCertificate(1, some);
  SiteCertificate other = some;
  other.told.reset();
  certificates.storeCertificate(2, other);
  EXPECT_EQ(certificates.certificates(all), (std::map<std::int64_t, SiteCertificate>{{1, some}, {2, other}}));
  EXPECT_EQ(certificates.certificateOf(1, all), some);
  EXPECT_EQ(certificates.certificateOf(3, all), std::nullopt);
  certificates.forgetCertificate(1);
  EXPECT_EQ(certificates.certificateOf(1, all), std::nullopt);
}

TEST_F(SiteCertificatesTest, WhatIsNoLongerLookedAtMayBeOutdatedAndIsNotTold) {
  certificates.storeCertificate(1, some);
  certificates.storeCertificate(2, some);
  EXPECT_TRUE(certificates.certificates(OptionsInForce()).empty());
  const OptionsInForce second = options({{kAllSites, {{"certificate", "21"}}}, {1, {{"certificate", "off"}}}});
  EXPECT_EQ(certificates.certificates(second), (std::map<std::int64_t, SiteCertificate>{{2, some}}));
  EXPECT_EQ(certificates.certificateOf(1, second), std::nullopt);
  EXPECT_EQ(certificates.certificateOf(2, second), some);
}

TEST_F(SiteCertificatesTest, AListWithoutTheTableReadsAsIfItWereEmpty) {
  folder.execute("drop table certificates");
  EXPECT_TRUE(certificates.certificates(all).empty());
  EXPECT_EQ(certificates.certificateOf(1, all), std::nullopt);
  certificates.forgetCertificate(1);
}

TEST_F(SiteCertificatesTest, GoesAndComesBackWithItsSite) {
  SiteRecords sites(database);
  const std::int16_t id = sites.addSite();
  certificates.storeCertificate(id, some);
  const DeletedSite taken = takeSiteOut(database, id);
  EXPECT_EQ(certificates.certificateOf(id, all), std::nullopt);
  putSiteBack(database, taken);
  EXPECT_EQ(certificates.certificateOf(id, all), some);
}

}  // namespace
}  // namespace tarnwick::testing
