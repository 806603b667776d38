// SPDX-License-Identifier: MIT
// What a run makes for others, on the page of the defaults.
#include <gmock/gmock.h>

#include "ui/controls/byte_line_edit.h"
#include "ui/settings/control_dialog_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class ForOthersTest : public ControlDialogTest {
 protected:
  ~ForOthersTest() override { master.reset(); }
  ControlDialog& openDefaults() {
    open();
    settingsDialogOf(master->program(), *master)();
    auto& dialog = opened<ControlDialog>();
    in<QTabWidget>(dialog, "pages").setCurrentIndex(1);
    return dialog;
  }
  OptionValues options() { return master->program().data().options(kAllSites); }
};

TEST_F(ForOthersTest, TheyStandInAGroupOfTheirOwn) {
  auto& dialog = openDefaults();
  for (const char* const name : {"option_monthReport", "option_statusPage", "option_metricsFile"}) {
    const auto* group = qobject_cast<QGroupBox*>(in<QWidget>(dialog, name).parentWidget());
    ASSERT_NE(group, nullptr) << name;
    EXPECT_EQ(group->title(), QStringLiteral("For others")) << name;
  }
  EXPECT_NE(dialog.findChild<QWidget*>(QStringLiteral("option_historyHours")), nullptr);
}

TEST_F(ForOthersTest, AFolderAndAFileAreChosenAndStored) {
  auto& dialog = openDefaults();
  machine.prompts.answerFile("/srv/status");
  press(dialog, "browse_statusPage");
  machine.prompts.answerFile(std::nullopt);
  press(dialog, "browse_metricsFile");
  EXPECT_EQ(in<ByteLineEdit>(dialog, "option_metricsFile").bytes(), "");
  machine.prompts.answerFile("/srv/tarnwick.prom");
  press(dialog, "browse_metricsFile");
  EXPECT_THAT(machine.prompts.shown().back().text, HasSubstr("(*.prom)|*.prom"));
  in<QCheckBox>(dialog, "option_monthReport").setCheckState(Qt::Checked);
  EXPECT_TRUE(options().empty());
  press(dialog, "btnOk");
  EXPECT_EQ(
      options(),
      (OptionValues{{"metricsFile", "/srv/tarnwick.prom"}, {"monthReport", "on"}, {"statusPage", "/srv/status"}}));
  EXPECT_EQ(folder.queryText("select count(*) from monthReports"), "1");
}

TEST_F(ForOthersTest, AChooserIsNamedAfterItsOption) {
  auto& dialog = openDefaults();
  EXPECT_EQ(in<QPushButton>(dialog, "browse_statusPage").accessibleName(), QStringLiteral("Choose…: Status page in"));
}

}  // namespace
}  // namespace tarnwick::testing
