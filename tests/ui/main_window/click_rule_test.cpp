// SPDX-License-Identifier: MIT
// What a click on a row does, as its user wants it.
#include "ui/main_window/click_rule.h"

#include <vector>

#include "ui/details/details_pane.h"
#include "ui/support/master_fixture.h"
#include "ui/support/played_habits.h"

namespace tarnwick {
namespace {

using testing::MasterTest;

class ClickRuleTest : public MasterTest {
 protected:
  void openTwo() {
    addSite(3, "http://example.org/");
    addSite(9, "http://example.org/prices");
    open();
    master->setEditors(
        {.site = {.open = [this](std::int16_t idSite) { opened.push_back(idSite); }, .openNew = {}}, .settings = {}});
  }
  SiteGridView& grid() { return find<SiteGridView>("grid1"); }
  QPoint addressIn(int row) { return grid().visualRect(grid().model()->index(row, SiteGridModel::urlColumn)).center(); }
  void clickRow(int row) { QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, addressIn(row)); }
  bool areDetailsShown() { return master->findChild<DetailsPane*>()->isVisible(); }

  std::vector<int> opened;
};

TEST_F(ClickRuleTest, AClickOpensTheSiteUntilSomebodyWantsItOtherwise) {
  openTwo();
  EXPECT_TRUE(find<QAction>("clickOpens").isChecked());
  clickRow(1);
  EXPECT_EQ(opened, std::vector<int>{9});
  EXPECT_FALSE(areDetailsShown());
}

TEST_F(ClickRuleTest, AClickShowsWhatHasChanged) {
  openTwo();
  find<QAction>("clickShows").trigger();
  EXPECT_FALSE(find<QAction>("clickOpens").isChecked());
  clickRow(1);
  EXPECT_TRUE(areDetailsShown());
  EXPECT_EQ(grid().currentSite(), std::int16_t{9});
  EXPECT_TRUE(opened.empty());
}

TEST_F(ClickRuleTest, ThenADoubleClickAndEnterOpenTheSite) {
  openTwo();
  find<QAction>("clickShows").trigger();
  QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, addressIn(1));
  QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, addressIn(1));
  EXPECT_EQ(opened, std::vector<int>{9});
  QTest::keyClick(&grid(), Qt::Key_Up);
  QTest::keyClick(&grid(), Qt::Key_Return);
  EXPECT_EQ(opened, (std::vector<int>{9, 3}));
  find<QAction>("clickOpens").trigger();
  clickRow(0);
  EXPECT_EQ(opened, (std::vector<int>{9, 3, 3}));
}

TEST_F(ClickRuleTest, IsRemembered) {
  testing::PlayedHabits habits;
  habits.numbers["listClick"] = 1;
  openTwo();
  master->rememberIn(habits);
  EXPECT_TRUE(find<QAction>("clickShows").isChecked());
  find<QAction>("clickOpens").trigger();
  EXPECT_TRUE(testing::waitUntil([&] { return habits.numbers["listClick"] == 0; }));
}

}  // namespace
}  // namespace tarnwick
