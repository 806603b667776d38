// SPDX-License-Identifier: MIT
// Searching the list by filter words and sorting it by its columns, in the main window on a real database.
#include "ui/main_window/site_search.h"

#include <string>
#include <QAbstractItemView>
#include <QCompleter>
#include <QElapsedTimer>
#include <QHeaderView>

#include "ui/support/master_fixture.h"
#include "ui/support/played_habits.h"

namespace tarnwick {
namespace {

using testing::MasterTest;

class SiteSearchTest : public MasterTest {
 protected:
  void openThree() {
    addSite(3, "http://shop.example.org/prices", ",status,success,failure,lastChecked",
            ",0,4,50,'2024-02-03 04:05:06'");
    addSite(9, "http://example.org/", ",status,success,failure,lastChecked", ",1,30,6,'2024-02-01 04:05:06'");
    addSite(12, "http://localhost/never");
    open();
  }
  /// The numbers of the sites that are shown.
  std::string shown() {
    std::string ids;
    for (int row = 0; row < rows(); ++row) {
      ids += (row == 0 ? "" : " ") + cell(row, 0).toStdString();
    }
    return ids;
  }
  void type(const QString& line) {
    filter().clear();
    QTest::keyClicks(&filter(), line);
  }
  void clickCaption(int column) {
    QHeaderView& header = *grid().horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
  }
  SiteGridView& grid() { return find<SiteGridView>("grid1"); }
  FilterEdit& filter() { return find<FilterEdit>("filterEdit"); }
  QString count() { return find<QLabel>("filterCount").text(); }
};

TEST_F(SiteSearchTest, WithNothingTypedAllSitesAreShownAndCounted) {
  openThree();
  EXPECT_EQ(shown(), "3 9 12");
  EXPECT_EQ(count(), QStringLiteral("3 sites, 1 down"));
  EXPECT_FALSE(find<QPushButton>("sortChip").isVisible());
  EXPECT_FALSE(grid().horizontalHeader()->isSortIndicatorShown());
}

TEST_F(SiteSearchTest, FindsByFilterWords) {
  openThree();
  type(QStringLiteral("down"));
  EXPECT_EQ(shown(), "3");
  EXPECT_EQ(count(), QStringLiteral("1 of 3 sites"));
  type(QStringLiteral("host:example.org -down"));
  EXPECT_EQ(shown(), "9");
  type(QStringLiteral("never"));
  EXPECT_EQ(shown(), "12");
  type(QStringLiteral("unwatched"));
  EXPECT_EQ(shown(), "3 9 12") << "no run is on";
  type(QStringLiteral("PRICES"));
  EXPECT_EQ(shown(), "3");
}

TEST_F(SiteSearchTest, FindsByTagsAlsoByThoseThatHaveJustBeenGiven) {
  openThree();
  type(QStringLiteral("tag:shop"));
  EXPECT_EQ(rows(), 0);
  folder.execute("insert into siteTags (idSite, tag) values (12, 'shop')");
  type(QStringLiteral("Tag:SHOP"));
  EXPECT_EQ(shown(), "12");
}

TEST_F(SiteSearchTest, SaysWhatIsNoFilterWordAndKeepsWhatIsShown) {
  openThree();
  type(QStringLiteral("down"));
  type(QStringLiteral("tagg:shop"));
  EXPECT_TRUE(filter().toolTip().contains(QStringLiteral("tagg: is no filter word")))
      << filter().toolTip().toStdString();
  EXPECT_TRUE(filter().accessibleDescription().startsWith(QStringLiteral("tagg: is no filter word")));
  type(QStringLiteral("shop"));
  EXPECT_EQ(filter().toolTip(), QString());
  EXPECT_EQ(shown(), "3");
}

TEST_F(SiteSearchTest, OffersTheWordsThatBeginLikeWhatIsTyped) {
  openThree();
  QTest::keyClicks(&filter(), QStringLiteral("shop -no"));
  auto* words = filter().findChild<QCompleter*>();
  ASSERT_TRUE(words->popup()->isVisible());
  EXPECT_EQ(words->completionCount(), 1);
  QTest::keyClick(words->popup(), Qt::Key_Down);
  QTest::keyClick(words->popup(), Qt::Key_Return);
  EXPECT_EQ(filter().text(), QStringLiteral("shop -noanswer "));
  EXPECT_FALSE(words->popup()->isVisible());
}

TEST_F(SiteSearchTest, TheKeyboardAloneIsEnough) {
  openThree();
  QTest::keyClick(master.get(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(filter().hasFocus());
  QTest::keyClicks(&filter(), QStringLiteral("shop"));
  QTest::keyClick(&filter(), Qt::Key_Escape);
  EXPECT_EQ(filter().text(), QString());
  EXPECT_TRUE(filter().hasFocus());
  QTest::keyClick(&filter(), Qt::Key_Escape);
  EXPECT_TRUE(grid().hasFocus());
  filter().setFocus();
  QTest::keyClick(&filter(), Qt::Key_Return);
  EXPECT_TRUE(grid().hasFocus());
}

TEST_F(SiteSearchTest, WhereNothingIsFoundItOffersAllSites) {
  openThree();
  EXPECT_FALSE(find<QLabel>("nothingFound").isVisible());
  type(QStringLiteral("nowhere"));
  EXPECT_EQ(rows(), 0);
  EXPECT_TRUE(find<QLabel>("nothingFound").isVisible());
  click("showAllSites");
  EXPECT_EQ(rows(), 3);
  EXPECT_EQ(filter().text(), QString());
  EXPECT_FALSE(find<QLabel>("nothingFound").isVisible());
}

TEST_F(SiteSearchTest, AClickOnACaptionSortsUpThenDownThenNotAtAll) {
  openThree();
  clickCaption(SiteGridModel::downColumn);
  EXPECT_EQ(shown(), "12 9 3") << "as numbers";
  EXPECT_EQ(find<QPushButton>("sortChip").text(), QStringLiteral("Sorted by Down ✕"));
  clickCaption(SiteGridModel::downColumn);
  EXPECT_EQ(shown(), "3 9 12");
  clickCaption(SiteGridModel::downColumn);
  EXPECT_FALSE(find<QPushButton>("sortChip").isVisible());
  clickCaption(SiteGridModel::idColumn);
  clickCaption(SiteGridModel::idColumn);
  EXPECT_EQ(shown(), "12 9 3");
  click("sortChip");
  EXPECT_EQ(shown(), "3 9 12");
}

TEST_F(SiteSearchTest, TheMenuOfTheListGivesTheOriginalOrderBack) {
  openThree();
  auto& original = find<QAction>("originalOrder");
  EXPECT_FALSE(original.isEnabled());
  clickCaption(SiteGridModel::timeColumn);
  ASSERT_EQ(shown(), "12 9 3");
  original.trigger();
  EXPECT_EQ(shown(), "3 9 12");
  EXPECT_FALSE(original.isEnabled());
}

TEST_F(SiteSearchTest, TheOrderIsRemembered) {
  testing::PlayedHabits habits;
  habits.numbers["listSort"] = -(SiteGridModel::downColumn + 1);
  openThree();
  master->rememberIn(habits);
  EXPECT_EQ(shown(), "3 9 12");
  EXPECT_EQ(find<QPushButton>("sortChip").text(), QStringLiteral("Sorted by Down ✕"));
  clickCaption(SiteGridModel::upColumn);
  EXPECT_EQ(shown(), "12 3 9");
  EXPECT_TRUE(testing::waitUntil([&] { return habits.numbers["listSort"] == SiteGridModel::upColumn + 1; }));
  click("sortChip");
  EXPECT_TRUE(testing::waitUntil([&] { return habits.numbers["listSort"] == 0; }));
}

TEST_F(SiteSearchTest, AnOrderByAColumnThatIsNotShownIsForgotten) {
  testing::PlayedHabits habits;
  habits.numbers["listSort"] = 9;
  openThree();
  master->rememberIn(habits);
  EXPECT_EQ(shown(), "3 9 12");
  EXPECT_FALSE(find<QPushButton>("sortChip").isVisible());
}

TEST_F(SiteSearchTest, WhatItIsSortedByGivesWayToLargeLetters) {
  openThree();
  QFont large = master->font();
  large.setPixelSize(16);
  master->setFont(large);
  master->resize(820, 580);
  clickCaption(SiteGridModel::timeColumn);
  auto& chip = find<QPushButton>("sortChip");
  QCoreApplication::processEvents();
  EXPECT_GE(chip.width(), chip.minimumSizeHint().width());
  EXPECT_TRUE(chip.toolTip().contains(QStringLiteral("Sorted by Time Of Last Test")));
}

TEST_F(SiteSearchTest, TheCurrentRowStaysWithItsSite) {
  openThree();
  grid().selectSite(9);
  clickCaption(SiteGridModel::timeColumn);
  EXPECT_EQ(grid().currentSite(), std::int16_t{9});
  type(QStringLiteral("-down"));
  EXPECT_EQ(grid().currentSite(), std::int16_t{9});
  type(QStringLiteral("down"));
  EXPECT_EQ(grid().currentSite(), std::int16_t{3}) << "there is always a row that the keys begin at";
}

TEST_F(SiteSearchTest, ClicksAndEnterMeanTheSiteThatIsShownThere) {
  openThree();
  std::vector<int> edited;
  master->setEditors(
      {.site = {.open = [&](std::int16_t idSite) { edited.push_back(idSite); }, .openNew = {}}, .settings = {}});
  clickCaption(SiteGridModel::timeColumn);
  ASSERT_EQ(shown(), "12 9 3");
  QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().visualRect(grid().model()->index(2, 1)).center());
  QTest::keyClick(&grid(), Qt::Key_Up);
  QTest::keyClick(&grid(), Qt::Key_Return);
  EXPECT_EQ(edited, (std::vector<int>{3, 9}));
}

TEST_F(SiteSearchTest, ANewSiteIsShownThoughTheFilterLeavesItOut) {
  openThree();
  type(QStringLiteral("down"));
  click("btnNew");
  EXPECT_EQ(filter().text(), QString());
  EXPECT_EQ(grid().currentSite(), std::int16_t{13});
}

TEST_F(SiteSearchTest, WhatIsFoundFollowsTheResults) {
  openThree();
  type(QStringLiteral("down"));
  master->updateGridRow(9, false);
  EXPECT_EQ(shown(), "3") << "no row moves under a hand";
  EXPECT_TRUE(testing::waitUntil([&] { return shown() == "3 9"; }));
  EXPECT_EQ(count(), QStringLiteral("2 of 3 sites"));
}

TEST_F(SiteSearchTest, ThirtyThousandSitesAreFoundAndSortedInAMoment) {
  folder.execute(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 32767) "
      "insert into sites (idSite,url,method,active,tInterval,status,failure) "
      "select i, 'http://host' || (i * 7919 % 32767) || '.example.org/', 'GET', 1, 10, i % 3, i % 97 from n");
  open();
  ASSERT_TRUE(testing::waitUntil([&] { return rows() == 32767; }));
  QElapsedTimer time;
  time.start();
  filter().setText(QStringLiteral("down host1 -host12"));
  const qint64 found = time.restart();
  EXPECT_GT(rows(), 500);
  filter().clear();
  time.restart();
  clickCaption(SiteGridModel::urlColumn);
  const qint64 sorted = time.elapsed();
  EXPECT_EQ(cell(0, 1), QStringLiteral("http://host0.example.org/"));
  RecordProperty("found_ms", static_cast<int>(found));
  RecordProperty("sorted_ms", static_cast<int>(sorted));
  // An order above what it takes on a quiet machine: a search that grows with the square of the list takes minutes.
  EXPECT_LT(found, 1500);
  EXPECT_LT(sorted, 1500);
}

}  // namespace
}  // namespace tarnwick
