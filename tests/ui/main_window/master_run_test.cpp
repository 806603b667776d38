// SPDX-License-Identifier: MIT
// Runs started with the mouse, against a real web server.
#include <functional>
#include <QTimer>

#include "ui/controls/colour_text.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::HttpServer;
using testing::MasterTest;
using testing::waitUntil;

class MasterRunTest : public MasterTest {
 protected:
  bool lit(const char* bar, std::string_view colour) { return find<LampBar>(bar).colour() == colourFromText(colour); }

  /// Runs `action` inside the pass, as soon as `condition` holds.
  void inPass(const std::function<bool()>& condition, const std::function<void()>& action) {
    QObject::connect(&watch_, &QTimer::timeout, [this, condition, action] {
      if (condition()) {
        watch_.stop();
        action();
      }
    });
    watch_.start(5);
  }

  HttpServer server;

 private:
  QTimer watch_;
};

TEST_F(MasterRunTest, StartTestsEverySiteAndPaintsItsRow) {
  server.respond("/up", {.body = "hello"});
  server.respond("/down", {.body = "changed"});
  addSite(1, server.url("/up"));
  addSite(2, server.url("/down"), ",content_compare", ",'original'");
  open();
  click("btnStart");
  EXPECT_EQ(colour(0, 0), colourFromText(colours::kUp));
  EXPECT_EQ(colour(1, 0), colourFromText(colours::kDown));
  EXPECT_EQ(cell(0, 2), QStringLiteral("1"));
  EXPECT_EQ(cell(1, 3), QStringLiteral("1"));
  EXPECT_FALSE(cell(0, 4).isEmpty());
  EXPECT_TRUE(lit("indicator2_0", colours::kYellowBright) || lit("indicator2_1", colours::kYellowBright));
  EXPECT_TRUE(waitUntil([&] { return find<QLabel>("lClock").text().startsWith(QStringLiteral("Run Time: 000:00:")); }));
  EXPECT_TRUE(waitUntil([&] { return status().startsWith(QStringLiteral("Time Until Next Check: ")); }));
}

TEST_F(MasterRunTest, ASiteThatAnotherProgramAddedHasARowAsSoonAsItIsTested) {
  server.respond("/", {.body = "hello"});
  addSite(1, server.url("/"));
  open();
  addSite(2, server.url("/"), ",content_compare", ",'original'");
  ASSERT_EQ(rows(), 1);
  click("btnStart");
  ASSERT_EQ(rows(), 2);
  EXPECT_EQ(colour(0, 0), colourFromText(colours::kUp));
  EXPECT_EQ(colour(1, 0), colourFromText(colours::kDown));
}

TEST_F(MasterRunTest, StopEndsTheRun) {
  server.respond("/", {.body = "hello"});
  addSite(1, server.url("/"));
  open();
  click("imgStart");
  ASSERT_TRUE(master->program().run().running());
  click("imgStop");
  EXPECT_FALSE(master->program().run().running());
  EXPECT_EQ(status(), QStringLiteral("Stopped."));
  EXPECT_TRUE(lit("indicator1_0", colours::kRedBright) && lit("indicator1_1", colours::kRedBright));
}

TEST_F(MasterRunTest, AShortcutStartsAndStops) {
  server.respond("/", {.body = "hello"});
  addSite(1, server.url("/"));
  open();
  QTest::keyClick(master.get(), Qt::Key_F5);
  EXPECT_TRUE(master->program().run().running());
  QTest::keyClick(master.get(), Qt::Key_F5, Qt::ShiftModifier);
  EXPECT_FALSE(master->program().run().running());
}

TEST_F(MasterRunTest, WhileAPassIsOnItsRowIsMarkedAndTheStartPictureIsReleased) {
  layImages();
  server.respond("/slow", {.body = "hello", .hold = true});
  addSite(1, server.url("/slow"), ",status", ",1");
  open();
  auto& button = find<PictureButton>("imgStart");
  const auto released = button.picture().cacheKey();
  bool seen = false;
  inPass([&] { return server.inFlight() == 1; },
         [&] {
           seen = true;
           EXPECT_EQ(status(), QStringLiteral("Testing: ") + QString::fromStdString(server.url("/slow")));
           EXPECT_NE(colour(0, SiteGridModel::urlColumn), colourFromText(colours::kUp));
           EXPECT_EQ(colour(0, SiteGridModel::upColumn), colourFromText(colours::kUp));
           EXPECT_EQ(button.picture().cacheKey(), released);
           EXPECT_TRUE(lit("indicator3_0", colours::kGreenBright) || lit("indicator3_1", colours::kGreenBright));
           server.release();
         });
  click("imgStart");
  EXPECT_TRUE(seen);
  EXPECT_EQ(colour(0, SiteGridModel::urlColumn), colourFromText(colours::kUp));
}

TEST_F(MasterRunTest, StopInAPassCutsItsRequestAndUnmarksItsRow) {
  server.respond("/silent", {.hold = true});
  addSite(1, server.url("/silent"), ",status", ",1");
  open();
  inPass([&] { return server.inFlight() == 1; }, [&] { click("btnStop"); });
  click("btnStart");
  EXPECT_FALSE(master->program().run().busy());
  EXPECT_EQ(status(), QStringLiteral("Stopped."));
  EXPECT_EQ(colour(0, SiteGridModel::urlColumn), colourFromText(colours::kUp));
  EXPECT_EQ(cell(0, 2), QString());
}

TEST_F(MasterRunTest, NewInAPassLeavesThePassAlone) {
  server.respond("/slow", {.body = "hello", .hold = true});
  addSite(1, server.url("/slow"));
  open();
  inPass([&] { return server.inFlight() == 1; },
         [&] {
           click("btnNew");
           server.release();
         });
  click("btnStart");
  EXPECT_EQ(rows(), 2);
  EXPECT_EQ(colour(0, 1), colourFromText(colours::kUp));
  EXPECT_TRUE(master->program().run().running());
}

TEST_F(MasterRunTest, TheStatusRowTellsWhyTheSiteOfTheCurrentRowIsDown) {
  server.respond("/down", {.body = "one\nchanged"});
  addSite(1, server.url("/down"), ",content_compare", ",'one\noriginal'");
  folder.execute("update sites set content_compare = 'one' || char(10) || 'original'");
  addSite(2, "http://127.0.0.1:1/", ",content_compare", ",'page'");
  addSite(3, "http://127.0.0.1:1/");
  open();
  const auto& reason = find<QLabel>("lReason");
  EXPECT_FALSE(reason.isVisible());
  click("btnStart");
  click("btnStop");
  auto& grid = find<SiteGridView>("grid1");
  const auto told = [&](std::int16_t idSite, const QString& text) {
    grid.selectSite(idSite);
    return waitUntil([&] { return reason.isVisible() && reason.text().startsWith(text); });
  };
  EXPECT_TRUE(told(1, QStringLiteral("Site 1: line 2: expected \"original\", found \"changed\"")));
  EXPECT_TRUE(told(2, QStringLiteral("Site 2: The connection to 127.0.0.1 port 1 was refused.")));
  EXPECT_TRUE(told(3, QStringLiteral("Site 3: up: the fetch fails, and its text is the baseline: The connection to")));
  EXPECT_EQ(colour(2, 0), colourFromText(colours::kUp));
  EXPECT_EQ(grid.model()->index(2, 0).data(Qt::AccessibleTextRole).toString(), QStringLiteral("3, not a page"));
  master->fillGrid();  // from what is stored, as after a new start
  EXPECT_EQ(grid.model()->index(2, 0).data(Qt::AccessibleTextRole).toString(), QStringLiteral("3, not a page"));
  EXPECT_EQ(grid.model()->index(1, 0).data(Qt::AccessibleTextRole).toString(), QStringLiteral("2, no answer"));
}

TEST_F(MasterRunTest, ARunWithoutSitesWaits) {
  open();
  click("btnStart");
  EXPECT_TRUE(master->program().run().running());
  EXPECT_TRUE(lit("indicator2_0", colours::kYellowBright));
}

TEST_F(MasterRunTest, TheLitLampBlinksWhileTheRunIsOn) {
  open();
  click("btnStart");
  EXPECT_TRUE(
      waitUntil([&] { return find<LampBar>("indicator2_0").colour() != find<LampBar>("indicator2_1").colour(); }));
}

TEST_F(MasterRunTest, AFaultOfTheDatabaseIsToldInOneBoxAndTheWindowLivesOn) {
  addSite(1, "http://127.0.0.1:1/");
  open();
  folder.execute("drop view sites; drop table siteRows");
  click("btnStart");
  EXPECT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_FALSE(master->program().run().busy());
  click("btnStop");
  EXPECT_EQ(status(), QStringLiteral("Stopped."));
}

}  // namespace
}  // namespace tarnwick
