// SPDX-License-Identifier: MIT
#include "cli/support/tool_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class CountersVerb : public ToolFixture {
 protected:
  CountersVerb() {
    folder.execute(
        "insert into sites (idSite, url, status, success, failure) values (-1, 'x', 0, 1, 2), (1, 'a', 0, 3, 4), "
        "(2, 'b', 1, 5, 6)");
  }
  std::string counters() const {
    return folder.queryRows("select idSite, status, success, failure from sites order by idSite");
  }
};

TEST_F(CountersVerb, ClearsThoseOfOneSite) {
  EXPECT_EQ(run({"counters", "clear", "1"}), exit_status::ok);
  EXPECT_EQ(out, "The counters of site 1 are 0 now.\n");
  EXPECT_EQ(counters(), "-1|0|1|2\n1|0|0|0\n2|1|5|6\n");
}

TEST_F(CountersVerb, ClearsThoseOfAllSitesAndLeavesTheirStatus) {
  EXPECT_EQ(run({"counters", "clear"}), exit_status::ok);
  EXPECT_EQ(out, "The counters of all sites are 0 now.\n");
  EXPECT_EQ(counters(), "-1|0|0|0\n1|0|0|0\n2|1|0|0\n");
}

TEST_F(CountersVerb, TakesNoIdBelowZeroForAllSites) {
  EXPECT_EQ(run({"counters", "clear", "--", "-1"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site -1."));
  EXPECT_EQ(counters(), "-1|0|1|2\n1|0|3|4\n2|1|5|6\n");
}

TEST_F(CountersVerb, NamesAnIdThatIsNotInTheList) {
  EXPECT_EQ(run({"counters", "clear", "9"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("There is no site 9."));
}

TEST_F(CountersVerb, NeedsItsAction) {
  EXPECT_EQ(run({"counters"}), exit_status::failed);
  EXPECT_EQ(run({"counters", "1"}), exit_status::failed);
  EXPECT_EQ(counters(), "-1|0|1|2\n1|0|3|4\n2|1|5|6\n");
}

}  // namespace
}  // namespace tarnwick::testing
