// SPDX-License-Identifier: MIT
// What the user does about a desktop notice is done in the window.
#include <gtest/gtest.h>

#include "store/channel_table.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {
namespace {

class NoticeActionsTest : public DialogTest {
 protected:
  NoticeActionsTest() {
    addSite(3, "http://one.test/");
    addSite(7, "http://two.test/");
    openProgram();
    m& data = master->program().data();
    data.storeChannel({.name = "desktop", .kind = std::string(channel_kind::notice)});
    {
      Transaction whole(data.database());
      const LocalTime now = machine.clock().localNow();
      data.delivery().add(
          {.idSite = 7, .made = now, .pass = now, .event = "down", .url = "http://two.test/", .difference = "-a\n+b\n"},
          std::nullopt);
      whole.commit();
    }
    data.delivery().deliver();
    EXPECT_TRUE(waitUntil([&] { return machine.notifier.shown.size() == 1; }));
  }
};

TEST_F(NoticeActionsTest, ShowBringsTheWindowUpWithTheSite) {
  master->showMinimized();
  machine.notifier.act(0, "show");
  EXPECT_FALSE(master->isMinimized());
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), std::int16_t{7});
  EXPECT_TRUE(find<QWidget>("details").isVisible());
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
}

TEST_F(NoticeActionsTest, AcceptShowsThePageThatThereIsToAccept) {
  machine.notifier.act(0, "accept");
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), std::int16_t{7});
  EXPECT_TRUE(find<QWidget>("details").isVisible());
  EXPECT_EQ(machine.prompts.texts(),
            std::vector<std::string>{"No page of site 7 is here yet: the next check brings it."});
}

TEST_F(NoticeActionsTest, MutePausesTheAlertsOfTheSiteForAnHour) {
  machine.notifier.act(0, "mute");
  const std::string stored = folder.queryText("select value from siteOptions where idSite = 7 and name = 'pause'");
  const LocalTime now = machine.clock().localNow();
  const auto pause = readPause(stored);
  ASSERT_TRUE(pause && pause->until) << stored;
  EXPECT_GT(*pause->until, now + std::chrono::minutes(58));
  EXPECT_LE(*pause->until, now + std::chrono::minutes(60));
}

}  // namespace
}  // namespace tarnwick::testing
