// SPDX-License-Identifier: MIT
#include "store/site_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "base/errors.h"
#include "store/site_records.h"
#include "support/data_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

const std::vector<OptionField>& someOptions() {
  static const std::vector<OptionField> options{
      {.name = "loud", .kind = OptionKind::flag, .ofSite = true, .original = "quiet", .label = "Loud", .meaning = "m"},
      {.name = "limit",
       .kind = OptionKind::number,
       .least = 1,
       .most = 60,
       .unit = "seconds",
       .original = "none",
       .label = "Limit",
       .meaning = "m"},
      {.name = "way",
       .kind = OptionKind::choice,
       .ofSite = true,
       .choices = {"Left hand", "right"},
       .original = "o",
       .label = "Way",
       .meaning = "m"},
      {.name = "note", .kind = OptionKind::text, .ofSite = true, .original = "o", .label = "Note", .meaning = "m"},
  };
  return options;
}

struct SiteOptionsTest : DataFixture {
  std::string complaintOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "nothing was raised";
  }
  std::string rows() { return folder.queryRows("select * from siteOptions order by idSite, name"); }

  SiteOptions options{database, someOptions()};
};

TEST_F(SiteOptionsTest, WhatIsSetForASiteComesBeforeWhatIsSetForAll) {
  options.setOption(kAllSites, "way", "right");
  options.setOption(3, "way", "Left hand");
  const OptionsInForce inForce = options.optionsInForce();
  EXPECT_EQ(inForce.valueOf(3, "way"), "Left hand");
  EXPECT_EQ(inForce.valueOf(4, "way"), "right");
  EXPECT_EQ(inForce.valueOf(kAllSites, "way"), "right");
  EXPECT_EQ(inForce.valueOf(3, "loud"), std::nullopt);
}

TEST_F(SiteOptionsTest, ValuesAndNamesAreTakenInAnyLetterCaseAndStoredAsInTheTable) {
  options.setOption(3, "WAY", "LEFT HAND");
  options.setOption(3, "Loud", "ON");
  options.setOption(kAllSites, "limit", "007");
  options.setOption(3, "note", "it's 'quoted'; drop");
  EXPECT_EQ(rows(), "0|limit|7\n3|loud|on\n3|note|it's 'quoted'; drop\n3|way|Left hand\n");
}

TEST_F(SiteOptionsTest, WhatIsNotTakenIsNamedWithWhatIs) {
  EXPECT_THAT(complaintOf([&] { options.setOption(3, "way", "up"); }),
              AllOf(HasSubstr("way"), HasSubstr("\"up\""), HasSubstr("\"Left hand\" or \"right\"")));
  EXPECT_THAT(complaintOf([&] { options.setOption(kAllSites, "limit", "61"); }),
              AllOf(HasSubstr("limit"), HasSubstr("\"61\""), HasSubstr("from 1 to 60 (seconds)")));
  EXPECT_THAT(complaintOf([&] { options.setOption(3, "loud", "yes"); }), HasSubstr("\"on\" or \"off\""));
  EXPECT_THAT(complaintOf([&] { options.setOption(3, "note", ""); }), HasSubstr("a text"));
  EXPECT_THAT(complaintOf([&] { options.setOption(3, "limit", "5"); }), HasSubstr("holds for all sites"));
  EXPECT_THAT(complaintOf([&] { options.setOption(3, "lout", "on"); }),
              AllOf(HasSubstr("\"lout\""), HasSubstr("loud, limit, way, note")));
  EXPECT_EQ(rows(), "");
}

TEST_F(SiteOptionsTest, StoringReplacesAllOrNothing) {
  options.setOption(3, "note", "old");
  options.setOption(3, "loud", "on");
  folder.execute("insert into siteOptions values (3, 'ofTomorrow', 'x')");
  EXPECT_THROW(options.storeOptions(3, {{"loud", "off"}, {"way", "up"}}), std::runtime_error);
  EXPECT_EQ(options.options(3), (OptionValues{{"note", "old"}, {"loud", "on"}, {"ofTomorrow", "x"}}));
  options.storeOptions(3, {{"loud", "off"}});
  EXPECT_EQ(options.options(3), (OptionValues{{"loud", "off"}, {"ofTomorrow", "x"}}));
}

TEST_F(SiteOptionsTest, RemovingLeavesTheOriginalBehaviour) {
  options.setOption(3, "loud", "on");
  options.removeOption(3, "loud");
  options.removeOption(3, "note");
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), std::nullopt);
}

TEST_F(SiteOptionsTest, TheyGoWithTheirSite) {
  SiteRecords sites(database);
  sites.addSite(3);
  options.setOption(3, "loud", "on");
  options.setOption(kAllSites, "way", "right");
  sites.deleteSite(3);
  EXPECT_EQ(rows(), "0|way|right\n");
}

TEST_F(SiteOptionsTest, ANewSiteInheritsNoneOfAnEarlierOneOfItsId) {
  folder.execute("insert into siteOptions values (3, 'loud', 'on')");
  SiteRecords(database).addSite(3);
  EXPECT_EQ(rows(), "");
}

TEST_F(SiteOptionsTest, ASiteWhoseIdIsTakenLeavesThatOneItsOptions) {
  SiteRecords sites(database);
  sites.addSite(3);
  options.setOption(3, "loud", "on");
  EXPECT_THROW(sites.addSite(3), DataAccessError);
  EXPECT_EQ(rows(), "3|loud|on\n");
}

TEST_F(SiteOptionsTest, WhatIsSetForAllIsNotThatOfASiteOfTheId0) {
  options.setOption(kAllSites, "way", "right");
  SiteRecords sites(database);
  sites.addSite(0);
  sites.deleteSite(0);
  EXPECT_EQ(rows(), "0|way|right\n");
}

TEST_F(SiteOptionsTest, WhatAnotherToolHasLeftAndNoOptionTakesCountsAsNotSet) {
  folder.execute(
      "insert into siteOptions values (0, 'limit', 'abc'), (0, 'way', 'RIGHT'), (3, 'way', 'up'), (3, 'loud', ''), (3, "
      "'limit', '5'), "
      "(4, 'ofTomorrow', 'x')");
  const OptionsInForce inForce = options.optionsInForce();
  EXPECT_EQ(inForce.valueOf(kAllSites, "limit"), std::nullopt);
  EXPECT_EQ(inForce.valueOf(3, "way"), "right") << "The one for all holds.";
  EXPECT_EQ(inForce.valueOf(3, "loud"), std::nullopt);
  EXPECT_EQ(inForce.valueOf(3, "limit"), std::nullopt) << "It is for all only.";
  EXPECT_EQ(inForce.valueOf(4, "ofTomorrow"), std::nullopt);
}

TEST_F(SiteOptionsTest, WhatIsInForceIsReadAgainOnlyAfterAChange) {
  options.setOption(3, "loud", "on");
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), "on");
  const std::size_t before = watch().boundStatements.size();
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), "on");
  const auto since = watch().boundStatements.begin() + static_cast<std::ptrdiff_t>(before);
  EXPECT_TRUE(std::none_of(since, watch().boundStatements.end(),
                           [](const std::string& sql) { return sql.find("siteOptions") != std::string::npos; }));
  SiteOptions(database, someOptions()).setOption(3, "loud", "off");
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), "off") << "by another part of the program";
  folder.execute("update siteOptions set value = 'on'");
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), "on") << "by another program";
  SiteRecords(database).deleteSite(3);
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), std::nullopt);
}

TEST_F(SiteOptionsTest, WhatATransactionHasChangedIsInForceOnlyIfItIsKept) {
  options.setOption(3, "loud", "on");
  {
    const Transaction takenBack(database);
    options.setOption(3, "loud", "off");
    EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), "off");
  }
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), "on");
}

TEST_F(SiteOptionsTest, AListWithoutTheTableReadsAsEmptyAndDeletesItsSites) {
  folder.execute("drop table siteOptions; insert into sites (idSite) values (3)");
  EXPECT_TRUE(options.options(3).empty());
  EXPECT_EQ(options.optionsInForce().valueOf(3, "loud"), std::nullopt);
  options.removeOption(3, "loud");
  SiteRecords(database).deleteSite(3);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
}

TEST(ProgramOptions, AreDescribedInFull) {
  for (const OptionField& option : programOptions()) {
    SCOPED_TRACE(option.name);
    EXPECT_FALSE(option.original.empty());
    EXPECT_FALSE(option.label.empty());
    EXPECT_FALSE(option.meaning.empty());
    if (!option.recommended.empty()) {
      EXPECT_EQ(option.checked(option.recommended), option.recommended);
    }
  }
}

}  // namespace
}  // namespace tarnwick::testing
