// SPDX-License-Identifier: MIT
// One editor at a time, and the end of the program while its windows are open.

#include "support/wait_until.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using Strings = std::vector<std::string>;

class OneSiteEditorTest : public DialogTest {
 protected:
  void SetUp() override {
    addSite(1, "http://one.test/");
    addSite(2, "http://two.test/");
  }
  int editors() {
    int count = 0;
    for (const auto* editor : master->findChildren<SiteEditor*>()) {
      count += editor->isVisible() ? 1 : 0;
    }
    return count;
  }
};

TEST_F(OneSiteEditorTest, AnotherRowShowsItsSiteInTheSameEditor) {
  auto& editor = openEditor();
  clickRow(1);
  EXPECT_EQ(editors(), 1);
  EXPECT_EQ(text(editor, "tUrl"), "http://two.test/");
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(OneSiteEditorTest, TheSameRowKeepsWhatWasTyped) {
  auto& editor = openEditor();
  type(editor, "tUrl", "http://typed.test/");
  clickRow(0);
  EXPECT_EQ(text(editor, "tUrl"), "http://typed.test/");
}

TEST_F(OneSiteEditorTest, ChangesThatAreNotSavedAreAskedAbout) {
  auto& editor = openEditor();
  type(editor, "tUrl", "http://typed.test/");
  machine.prompts.answerConfirm(false);
  clickRow(1);
  EXPECT_EQ(machine.prompts.texts(), Strings{"Do You Want To Discard The Changes To Site 1?"});
  EXPECT_EQ(text(editor, "tUrl"), "http://typed.test/");
  machine.prompts.answerConfirm(true);
  clickRow(1);
  EXPECT_EQ(text(editor, "tUrl"), "http://two.test/");
  EXPECT_EQ(column(1, "url"), "http://one.test/");
}

TEST_F(OneSiteEditorTest, AnOpenContentDialogKeepsItsEditor) {
  auto& editor = openEditor();
  press(editor, "Command2");
  clickRow(1);
  EXPECT_EQ(text(editor, "tUrl"), "http://one.test/");
  EXPECT_NE(shown<ContentDialog>(), nullptr);
  press(editor, "Command8");
  EXPECT_EQ(editors(), 1) << "it waits for its dialog";
}

TEST_F(OneSiteEditorTest, AClosedEditorIsTakenDown) {
  openEditor();
  press(opened<SiteEditor>(), "Command8");
  EXPECT_TRUE(testing::waitUntil([&] { return master->findChildren<SiteEditor*>().isEmpty(); }));
}

TEST_F(OneSiteEditorTest, ClosingTheMainWindowClosesEveryDialog) {
  for (const char* button : {"", "Command2", "Command7"}) {
    master.reset();
    // The pump of a closed program waits no more.
    auto& editor = openEditor();
    if (*button != '\0') {
      press(editor, button);
    }
    EXPECT_TRUE(master->close());
    EXPECT_EQ(editors(), 0);
  }
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(OneSiteEditorTest, ClosingTheMainWindowEndsAFetchOfTheContentDialog) {
  server.respond("/silent", {.hold = true});
  folder.execute("update sites set url = '" + server.url("/silent") + "', content_compare = 'old'");
  auto& editor = openEditor();
  press(editor, "Command2");
  press(opened<ContentDialog>(), "btnLoad");
  ASSERT_TRUE(testing::waitUntil([&] { return server.inFlight() > 0; }));
  EXPECT_TRUE(master->close());
  EXPECT_TRUE(testing::waitUntil([&] { return server.openConnections() == 0; }));
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
  EXPECT_EQ(editors(), 0);
  EXPECT_EQ(column(1, "content_compare"), "old");
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(OneSiteEditorTest, ClosingTheMainWindowBehindABoxOfTheEditorSavesNothing) {
  auto& editor = openEditor();
  QTest::mouseClick(&in<QWidget>(editor, "cEmail"), Qt::LeftButton, {}, QPoint(8, 8));
  machine.prompts.answerConfirm(true);
  machine.prompts.whileOpen = [&](const auto&) { master->close(); };
  press(editor, "Command1");
  EXPECT_EQ(editors(), 0);
  EXPECT_EQ(column(1, "alertEmail"), "NULL");
}

}  // namespace
}  // namespace tarnwick
