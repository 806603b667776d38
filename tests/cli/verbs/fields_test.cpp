// SPDX-License-Identifier: MIT
// Something new that can be set is described in one place, and found at every door of the terminal.
#include "cli/support/tool_fixture.h"
#include "store/site_options.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

struct NewFields : ToolFixture {
  NewFields() {
    folder.laySitesAsOneTable();
    folder.execute("alter table sites add column note TEXT; alter table sites add column loud YESNO");
    fields.site.push_back({"note", FieldKind::text, {}, "Note", "What is to be known of it"});
    fields.site.push_back({"loud", FieldKind::flag, {}, "Loud", "Whether it is loud"});
    fields.options.push_back({.name = "colour",
                              .kind = OptionKind::choice,
                              .ofSite = true,
                              .choices = {"red", "pale blue"},
                              .original = "none",
                              .label = "Colour",
                              .meaning = "How it is painted"});
  }
};

TEST_F(NewFields, AFieldOfASiteIsSetAndShown) {
  EXPECT_EQ(run({"add", "--help"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("--note"));
  EXPECT_EQ(run({"add", server.url("/a"), "--note", "it's new"}), exit_status::ok) << err;
  EXPECT_EQ(column(1, "note"), "it's new");
  EXPECT_EQ(runJson({"site", "1", "--json"})["note"], "it's new");
  EXPECT_EQ(run({"set", "1", "--note", "changed"}), exit_status::ok) << err;
  EXPECT_EQ(run({"site", "1"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("changed"));
}

TEST_F(NewFields, ListsCarryFieldsAndOptionsThere) {
  for (const std::string format : {"json", "csv"}) {
    SCOPED_TRACE(format);
    folder.execute("delete from sites; delete from siteOptions");
    EXPECT_EQ(run({"add", server.url("/a"), "--note", "kept"}), exit_status::ok) << err;
    folder.execute("update sites set loud = 1");
    EXPECT_EQ(run({"option", "1", "colour=PALE blue"}), exit_status::ok) << err;
    const std::string file = folder.file("list." + format);
    EXPECT_EQ(run({"export", file}), exit_status::ok) << err;
    folder.execute("delete from sites; delete from siteOptions");
    EXPECT_EQ(run({"import", file}), exit_status::ok) << err;
    EXPECT_EQ(column(1, "note"), "kept");
    EXPECT_EQ(column(1, "loud"), "1");
    EXPECT_EQ(folder.queryRows("select * from siteOptions"), "1|colour|pale blue\n");
  }
}

TEST_F(NewFields, AnOptionIsExplainedAndRefusesWhatItDoesNotTake) {
  EXPECT_EQ(run({"option", "--help"}), exit_status::ok);
  EXPECT_THAT(out, HasSubstr("How it is painted"));
  EXPECT_EQ(run({"option", "all", "colour=green"}), exit_status::failed);
  EXPECT_THAT(err, HasSubstr("\"red\" or \"pale blue\""));
  EXPECT_EQ(run({"option", "all", "colour=red"}), exit_status::ok) << err;
  addSite(server.url("/a"));
  EXPECT_EQ(runJson({"option", "1", "--json"})["colour"]["effective"], "red");
}

TEST_F(NewFields, ASiteThatIsAddedIsWaitedForOnlyWhileARunDoesNotTakeItOn) {
  terminal.isTerminal = true;
  EXPECT_EQ(run({"add", server.url("/a")}), exit_status::ok);
  EXPECT_THAT(err, HasSubstr("tarnwickctl check 1"));
  EXPECT_EQ(run({"option", "all", "newSites=at once"}), exit_status::ok);
  EXPECT_EQ(run({"add", server.url("/b")}), exit_status::ok);
  EXPECT_EQ(err, "");
}

}  // namespace
}  // namespace tarnwick::testing
