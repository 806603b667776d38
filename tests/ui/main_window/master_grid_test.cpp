// SPDX-License-Identifier: MIT
// The main window's grid on a real database.
#include <chrono>
#include <stdexcept>

#include "ui/controls/colour_text.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::MasterTest;

const QColor kUp = colourFromText(colours::kUp);
const QColor kDown = colourFromText(colours::kDown);
const QColor kInactive = colourFromText(colours::kInactive);
const QColor kWhite = colourFromText(colours::kUnpainted);

class MasterGridTest : public MasterTest {};

TEST_F(MasterGridTest, WithoutSitesItShowsOnlyItsHeader) {
  open();
  EXPECT_EQ(rows(), 0);
  EXPECT_TRUE(find<QWidget>("grid1").isVisible());
}

TEST_F(MasterGridTest, ShowsTheSitesOfTheDatabase) {
  addSite(3, "http://localhost/a", ",status,success,failure,lastChecked", ",1,4,5,'2024-02-03 04:05:06'");
  addSite(9, "http://localhost/b", ",status", ",0");
  addSite(12, "http://localhost/c");
  folder.execute("update sites set active = 0 where idSite = 9");
  open();
  ASSERT_EQ(rows(), 3);
  EXPECT_EQ(cell(0, 0), QStringLiteral("3"));
  EXPECT_EQ(cell(0, 1), QStringLiteral("http://localhost/a"));
  EXPECT_EQ(cell(0, 2), QStringLiteral("4"));
  EXPECT_EQ(cell(0, 3), QStringLiteral("5"));
  EXPECT_EQ(cell(0, 4), QStringLiteral("2024-02-03 04:05:06"));
  EXPECT_EQ(cell(2, 2), QString());
  EXPECT_EQ(cell(2, 4), QString());
  EXPECT_EQ(colour(0, 3), kUp);
  EXPECT_EQ(colour(1, 3), kInactive);
  EXPECT_EQ(colour(2, 3), kWhite);
}

TEST_F(MasterGridTest, NewAddsASiteAndSelectsIt) {
  addSite(1, "http://localhost/a");
  addSite(7, "http://localhost/b");
  open();
  click("btnNew");
  ASSERT_EQ(rows(), 3);
  EXPECT_EQ(cell(2, 0), QStringLiteral("8"));
  EXPECT_EQ(cell(2, 1), QStringLiteral("http://localhost"));
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), std::int16_t{8});
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "3");
  click("imgNew");
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), std::int16_t{9});
}

TEST_F(MasterGridTest, NewOpensTheEditorOnTheFreshSite) {
  open();
  std::vector<int> edited;
  master->setEditors(
      {.site = {.open = {}, .openNew = [&](const auto& add) { edited.push_back(add()); }}, .settings = {}});
  click("btnNew");
  click("imgNew");
  EXPECT_EQ(edited, (std::vector<int>{1, 2}));
}

TEST_F(MasterGridTest, NewBeyondTheLastIdIsToldInABox) {
  addSite(32767, "http://localhost");
  open();
  click("btnNew");
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(machine.prompts.shown().size(), 1U);
}

TEST_F(MasterGridTest, AClickAndEnterOpenTheEditorOfTheRow) {
  addSite(3, "http://localhost/a");
  addSite(9, "http://localhost/b");
  open();
  std::vector<int> edited;
  master->setEditors(
      {.site = {.open = [&](std::int16_t idSite) { edited.push_back(idSite); }, .openNew = {}}, .settings = {}});
  auto& grid = find<SiteGridView>("grid1");
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(1, 1)).center());
  QTest::keyClick(&grid, Qt::Key_Up);
  QTest::keyClick(&grid, Qt::Key_Return);
  EXPECT_EQ(edited, (std::vector<int>{9, 3}));
}

TEST_F(MasterGridTest, AnEditorThatFailsIsToldInOneBox) {
  addSite(3, "http://localhost/a");
  open();
  master->setEditors({.site = {.open = [](std::int16_t) { throw std::runtime_error("no such luck"); }, .openNew = {}},
                      .settings = {}});
  auto& grid = find<SiteGridView>("grid1");
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(0, 1)).center());
  EXPECT_EQ(machine.prompts.texts(), (std::vector<std::string>{"no such luck"}));
}

TEST_F(MasterGridTest, AResultRewritesTheRowFromTheRecord) {
  addSite(3, "http://localhost/a");
  addSite(9, "http://localhost/b");
  open();
  folder.execute("update sites set success = 6, failure = 7, lastChecked = '2024-02-03 04:05:06' where idSite = 9");
  master->brighten(9, 20);
  EXPECT_EQ(colour(1, 1), brightened(kWhite, 20));
  master->updateGridRow(9, false);
  EXPECT_EQ(colour(1, 1), kDown);
  EXPECT_EQ(colour(1, 4), kDown);
  EXPECT_EQ(cell(1, 2), QStringLiteral("6"));
  EXPECT_EQ(cell(1, 3), QStringLiteral("7"));
  EXPECT_EQ(cell(1, 4), QStringLiteral("2024-02-03 04:05:06"));
  EXPECT_EQ(colour(0, 1), kWhite);
}

TEST_F(MasterGridTest, ACutRequestPaintsTheStoredStatusAgain) {
  addSite(3, "http://localhost/a", ",status", ",0");
  open();
  master->brighten(3, 30);
  EXPECT_NE(colour(0, 1), kDown);
  folder.execute("update sites set status = 1");
  master->unbrighten(3);
  EXPECT_EQ(colour(0, 1), kUp);
}

// A mail server that keeps silent holds the pass up long after Stop.
TEST_F(MasterGridTest, StopPaintsEveryMarkedRowAgainBeforeThePassHasEnded) {
  addSite(3, "http://localhost/a", ",status", ",0");
  addSite(4, "http://localhost/b", ",status", ",1");
  open();
  master->brighten(3, 30);
  master->brighten(4, 30);
  folder.execute("update sites set status = 0");
  master->indicators(RunState::pause);
  EXPECT_NE(colour(0, 1), kDown);
  master->indicators(RunState::stop);
  EXPECT_EQ(colour(0, 1), kDown);
  EXPECT_EQ(colour(1, 1), kDown);
}

TEST_F(MasterGridTest, TheTimeOfTheLastTestIsUpdatedAlone) {
  addSite(3, "http://localhost/a");
  open();
  master->setLastChecked(3, "2024-02-03 04:05:06");
  EXPECT_EQ(cell(0, 4), QStringLiteral("2024-02-03 04:05:06"));
}

TEST_F(MasterGridTest, ASiteThatIsGoneIsNoError) {
  open();
  master->brighten(5, 10);
  master->updateGridRow(5, true);
  master->unbrighten(5);
  master->setLastChecked(5, "");
  EXPECT_EQ(rows(), 0);
}

}  // namespace
}  // namespace tarnwick
