// SPDX-License-Identifier: MIT
// The dialogs while a run is on, also on the very site that is being fetched.
#include <functional>
#include <QTimer>

#include "support/wait_until.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;

class DialogsInARunTest : public DialogTest {
 protected:
  void SetUp() override {
    server.respond("/slow", {.body = "slow page", .hold = true});
    server.respond("/page", {.body = "a page"});
    addSite(1, server.url("/slow"));
    addSite(2, server.url("/page"));
  }
  /// Starts a run, does `action` while the slow site is being fetched, then lets it answer.
  void inMidFetch(const std::function<void()>& action) {
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      if (!server.requestsFor("/slow").empty()) {
        watch.stop();
        action();
        server.release();
      }
    });
    watch.start(5);
    click("btnStart");
    ASSERT_FALSE(watch.isActive()) << "the pass ended before the test could act";
  }
};

TEST_F(DialogsInARunTest, TheSiteBeingFetchedIsEdited) {
  openProgram();
  inMidFetch([&] {
    clickRow(0);
    auto& editor = opened<SiteEditor>();
    type(editor, "tEmail", "me@example.org");
    press(editor, "Command1");
  });
  EXPECT_EQ(column(1, "email"), "me@example.org");
  EXPECT_EQ(column(1, "success"), "1");
  EXPECT_EQ(column(1, "content_compare"), "slow page");
  EXPECT_EQ(colour(0, 1), colour(1, 1));
  EXPECT_EQ(server.requestsFor("/slow").size(), 1U);
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(DialogsInARunTest, TheRequestOfTheSiteBeingFetchedIsEdited) {
  openProgram();
  inMidFetch([&] {
    clickRow(0);
    auto& editor = opened<SiteEditor>();
    type(editor, "tUsername", "me");
    press(editor, "Command1");
    server.respond("/slow", {.body = "slow page"});
  });
  EXPECT_EQ(column(1, "sUserName"), "me");
  // What was on its way was asked for without that name: the site is asked again at once.
  EXPECT_TRUE(testing::waitUntil([&] { return column(1, "success") == "1"; }));
  EXPECT_EQ(column(1, "content_compare"), "slow page");
  EXPECT_EQ(colour(0, 1), colour(1, 1));
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(DialogsInARunTest, TheSiteBeingFetchedIsDeletedAndNoOtherRowIsPainted) {
  addSite(3, server.url("/page"), ",content_compare", ",'another page'");
  openProgram();
  inMidFetch([&] {
    clickRow(0);
    machine.prompts.answerConfirm(true);
    press(opened<SiteEditor>(), "Command6");
  });
  EXPECT_EQ(rows(), 2);
  EXPECT_EQ(cell(0, 0).toStdString(), "2");
  EXPECT_EQ(colour(0, 1), QColor(0x73, 0xDB, 0x9F));
  EXPECT_EQ(colour(1, 1), QColor(0xC0, 0x30, 0x30));
  EXPECT_EQ(folder.queryText("select count(*) from sites where idSite = 1"), "0");
  EXPECT_TRUE(machine.prompts.texts().size() == 1U);
}

TEST_F(DialogsInARunTest, ANewSiteIsAddedInMidPass) {
  openProgram();
  inMidFetch([&] {
    click("btnNew");
    type(opened<SiteEditor>(), "tUrl", server.url("/page"));
    press(opened<SiteEditor>(), "Command1");
  });
  EXPECT_EQ(rows(), 3);
  EXPECT_EQ(column(3, "url"), server.url("/page"));
  EXPECT_EQ(column(1, "success"), "1");
}

TEST_F(DialogsInARunTest, AnOpenEditorKeepsWhatIsTypedWhileThePassGoesOn) {
  openProgram();
  inMidFetch([&] {
    clickRow(0);
    type(opened<SiteEditor>(), "tUrl", "http://typed.test/");
  });
  EXPECT_EQ(text(opened<SiteEditor>(), "tUrl"), "http://typed.test/");
  press(opened<SiteEditor>(), "Command3");
  EXPECT_EQ(column(1, "url"), "http://typed.test/");
  EXPECT_EQ(column(1, "success"), "1");
}

TEST_F(DialogsInARunTest, APageIsLoadedInMidPass) {
  openProgram();
  std::string loaded;
  inMidFetch([&] {
    clickRow(1);
    press(opened<SiteEditor>(), "Command2");
    load(opened<ContentDialog>());
    loaded = in<BaselineEdit>(opened<ContentDialog>(), "tContent").toPlainText().toStdString();
    press(opened<ContentDialog>(), "btnOk");
  });
  EXPECT_EQ(loaded, "a page");
  EXPECT_EQ(column(1, "success"), "1");
  EXPECT_EQ(column(2, "content_compare"), "a page");
}

TEST_F(DialogsInARunTest, ClosingTheMainWindowInMidPassWithAnOpenEditorEndsPromptly) {
  openProgram();
  inMidFetch([&] {
    clickRow(0);
    press(opened<SiteEditor>(), "Command7");
    master->close();
  });
  EXPECT_FALSE(master->program().run().busy());
  EXPECT_EQ(column(1, "url"), server.url("/slow"));
}

}  // namespace
}  // namespace tarnwick
