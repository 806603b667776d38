// SPDX-License-Identifier: MIT
// What the user of this machine wants of the window, in the settings; the desktop is played.
#include "ui/settings/window_frame.h"

#include <gmock/gmock.h>

#include "ui/settings/control_dialog_fixture.h"
#include "ui/support/played_habits.h"

namespace tarnwick::testing {
namespace {

class WindowFrameTest : public ControlDialogTest {
 protected:
  ~WindowFrameTest() override { master.reset(); }
  ControlDialog& openDefaults() {
    if (!master) {
      open();
    }
    settingsDialogOf(master->program(), *master, &habits)();
    auto& dialog = opened<ControlDialog>();
    in<QTabWidget>(dialog, "pages").setCurrentIndex(1);
    return dialog;
  }

  PlayedHabits habits;
};

TEST_F(WindowFrameTest, OkStoresWhatWasTicked) {
  auto& dialog = openDefaults();
  tick(dialog, "closeToTray");
  tick(dialog, "startWithDesktop");
  EXPECT_FALSE(habits.closes);
  EXPECT_NE(dialog.unsavedEdits(), QString());
  press(dialog, "btnOk");
  EXPECT_TRUE(habits.closes);
  EXPECT_TRUE(habits.starts);
  auto& again = openDefaults();
  EXPECT_TRUE(ticked(again, "closeToTray"));
  tick(again, "startWithDesktop");
  press(again, "btnCancel");
  EXPECT_TRUE(habits.starts);
}

TEST_F(WindowFrameTest, WithoutATrayNothingClosesToIt) {
  habits.tray = false;
  auto& dialog = openDefaults();
  auto& close = in<QCheckBox>(dialog, "closeToTray");
  EXPECT_FALSE(close.isEnabled());
  EXPECT_THAT(close.toolTip().toStdString(), ::testing::HasSubstr("This desktop has no tray"));
}

TEST_F(WindowFrameTest, ADesktopThatRefusesIsToldOnThatPage) {
  habits.refuses = true;
  auto& dialog = openDefaults();
  tick(dialog, "startWithDesktop");
  in<QTabWidget>(dialog, "pages").setCurrentIndex(0);
  press(dialog, "Command1");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(in<QTabWidget>(dialog, "pages").currentIndex(), 1);
  EXPECT_EQ(machine.prompts.texts().back(), "The file a cannot be changed: b.");
}

}  // namespace
}  // namespace tarnwick::testing
