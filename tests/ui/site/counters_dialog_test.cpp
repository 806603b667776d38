// SPDX-License-Identifier: MIT
// The counters dialog.
#include "ui/site/counters_dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QtTest/qtestspontaneevent.h>

#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;

class CountersDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    addSite(1, "http://one.test/", ",success,failure,status", ",5,6,0");
    addSite(2, "http://two.test/", ",success,failure,status", ",7,8,1");
  }
  CountersDialog& openCounters() {
    auto& editor = openEditor();
    press(editor, "Command7");
    auto& dialog = opened<CountersDialog>();
    if (!QTest::qWaitForWindowActive(&dialog)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    return dialog;
  }
  std::string counters() { return folder.queryRows("select idSite,success,failure,status from sites order by idSite"); }
};

TEST_F(CountersDialogTest, HasItsControlsAndCaptions) {
  auto& dialog = openCounters();
  EXPECT_EQ(dialog.objectName().toStdString(), "frmCounters");
  EXPECT_EQ(dialog.windowTitle().toStdString(), "counters");
  EXPECT_EQ(in<QGroupBox>(dialog, "Frame1").title().toStdString(), "Counter Options");
  EXPECT_EQ(caption<QPushButton>(dialog, "btnClearSite"), "Clear This Site's Counter");
  EXPECT_EQ(caption<QPushButton>(dialog, "btnClearAll"), "Clear Counter For All Sites");
  EXPECT_EQ(caption<QPushButton>(dialog, "btnCancel"), "Cancel");
  EXPECT_EQ(tabOrder(dialog, in<QWidget>(dialog, "btnClearSite")),
            (std::vector<std::string>{"btnClearSite", "btnClearAll", "btnCancel"}));
}

TEST_F(CountersDialogTest, ClearsTheSiteThatIsEdited) {
  press(openCounters(), "btnClearSite");
  EXPECT_EQ(shown<CountersDialog>(), nullptr);
  EXPECT_EQ(counters(), "1|0|0|0\n2|7|8|1\n");
  EXPECT_TRUE(machine.prompts.shown().empty());
  EXPECT_TRUE(opened<SiteEditor>().isVisible());
}

TEST_F(CountersDialogTest, ClearsAllSitesAndLeavesTheirStatus) {
  press(openCounters(), "btnClearAll");
  EXPECT_EQ(counters(), "1|0|0|0\n2|0|0|1\n");
  press(opened<SiteEditor>(), "Command8");
  EXPECT_EQ(cell(0, 2).toStdString(), "0");
}

TEST_F(CountersDialogTest, CancelAndEscapeClearNothing) {
  press(openCounters(), "btnCancel");
  EXPECT_EQ(shown<CountersDialog>(), nullptr);
  press(opened<SiteEditor>(), "Command7");
  QTest::keyClick(&opened<CountersDialog>(), Qt::Key_Escape);
  EXPECT_EQ(shown<CountersDialog>(), nullptr);
  EXPECT_EQ(counters(), "1|5|6|0\n2|7|8|1\n");
}

TEST_F(CountersDialogTest, ForASiteThatWasNeverSetClearsOnlyAnIdOfZero) {
  openProgram();
  CountersDialog dialog(master->program(), master.get());
  EXPECT_EQ(dialog.idSite, 0);
  dialog.show();
  press(dialog, "btnClearSite");
  EXPECT_EQ(counters(), "1|5|6|0\n2|7|8|1\n");
}

TEST_F(CountersDialogTest, TheTitleBarHasNoCloseAction) {
  auto& dialog = openCounters();
  EXPECT_FALSE(dialog.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::CustomizeWindowHint));
  // A window manager that asks all the same is refused.
  QCloseEvent asked;
  QSpontaneKeyEvent::setSpontaneous(&asked);
  qApp->notify(&dialog, &asked);
  EXPECT_FALSE(asked.isAccepted());
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(CountersDialogTest, StandsWhereTheSiteEditorStands) {
  auto& dialog = openCounters();
  EXPECT_EQ(dialog.pos(), opened<SiteEditor>().pos());
}

TEST_F(CountersDialogTest, TheWindowsBelowTakeNoInputButTheMainWindowCloses) {
  auto& dialog = openCounters();
  auto& editor = opened<SiteEditor>();
  press(editor, "Command8");
  click("btnNew");
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(rows(), 2);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_TRUE(master->close());
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(CountersDialogTest, AFailureIsOneBoxAndTheDialogStays) {
  auto& dialog = openCounters();
  folder.execute("create trigger t before update on siteRows begin select raise(abort, 'disk trouble'); end");
  press(dialog, "btnClearAll");
  EXPECT_EQ(machine.prompts.texts().size(), 1U);
  EXPECT_TRUE(dialog.isVisible());
}

}  // namespace
}  // namespace tarnwick
