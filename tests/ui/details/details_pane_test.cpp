// SPDX-License-Identifier: MIT
// The details below the list: their tabs, keys and height, and what is told of a site.
#include <gmock/gmock.h>

#include <iostream>
#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMenu>
#include <QSplitter>
#include <QTabWidget>
#include <QToolButton>

#include "store/channel_table.h"
#include "store/site_pauses.h"
#include "ui/details/details_fixture.h"
#include "ui/support/longest_gap.h"
#include "ui/support/played_habits.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class DetailsPaneTest : public DetailsTest {
 protected:
  m& data() { return master->program().data(); }
  void set(const char* option, const char* value) { data().setOption(3, option, value); }
  void openAlarm() {
    openDetails();
    key(Qt::Key_4, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([&] { return !line("alarmThrough").empty(); }));
  }
  std::string line(const char* name) { return find<QLabel>(name).text().toStdString(); }
  QSplitter& splitter() { return find<QSplitter>("listSplitter"); }
  /// Drags the line between the list and the details.
  void drag(int by) {
    QWidget& handle = *splitter().handle(1);
    QTest::mousePress(&handle, Qt::LeftButton, {}, QPoint(50, 1));
    QTest::mouseMove(&handle, QPoint(50, 1 + by));
    QTest::mouseRelease(&handle, Qt::LeftButton, {}, QPoint(50, 1));
  }
};

TEST_F(DetailsPaneTest, TheAlarmSaysThatNobodyIsToldOrWithEachFailure) {
  change();
  openAlarm();
  EXPECT_EQ(line("alarmThrough"), "Nothing is set up: nobody is told.");
  EXPECT_FALSE(find<QLabel>("alarmNext").isVisible());
  EXPECT_FALSE(find<QLabel>("alarmTold").isVisible());
  folder.execute("update control set cAudio = 'True'");
  check();
  EXPECT_TRUE(waitUntil([&] { return line("alarmThrough") == "a sound"; }));
  EXPECT_EQ(line("alarmNext"), "With each check that fails.");
}

TEST_F(DetailsPaneTest, TheAlarmTellsSinceWhenByWhatAndWhatIsNext) {
  set("remind", "never");
  set("recovery", "on");
  data().storeChannel(
      {.name = "office", .kind = std::string(channel_kind::program), .settings = {{"command", "true"}}});
  change();
  openAlarm();
  EXPECT_THAT(line("alarmNow"), StartsWith("Down for real since "));
  EXPECT_THAT(line("alarmTold"), StartsWith("office "));
  EXPECT_THAT(line("alarmTold"), HasSubstr("(changed)"));
  EXPECT_EQ(line("alarmNext"), "When it is back.");
  EXPECT_EQ(line("alarmThrough"), "office");
  check();
  EXPECT_TRUE(waitUntil([&] { return line("alarmNow").ends_with("2 failures in a row."); }));
}

TEST_F(DetailsPaneTest, ChangeOpensTheAlarmOfTheSite) {
  master->setEditors({.site = siteEditorOf(master->program(), *master), .settings = {}});
  openAlarm();
  clickOn(find<QPushButton>("alarmChange"));
  auto& editor = opened<SiteEditor>();
  EXPECT_EQ(in<QTabWidget>(editor, "pages").currentIndex(), 1);
  EXPECT_EQ(in<QGroupBox>(editor, "Frame1").title(), QStringLiteral("Site ID: 3"));
}

TEST_F(DetailsPaneTest, APausedSiteIsResumedByTheSameButton) {
  openDetails();
  auto& button = find<QPushButton>("btnPause");
  EXPECT_NE(button.menu(), nullptr);
  SitePauses(data().database(), data()).pause({3}, {true, std::nullopt});
  master->program().run().init();
  ASSERT_TRUE(waitUntil([&] { return caption<QPushButton>(details(), "btnPause") == "Resume"; }));
  clickOn(button);
  EXPECT_TRUE(waitUntil([&] { return caption<QPushButton>(details(), "btnPause") == "Pause"; }));
  EXPECT_EQ(folder.queryText("select count(*) from siteOptions where name = 'pause' and idSite = 3"), "0");
}

TEST_F(DetailsPaneTest, TheHeadlineTellsWhichLinesHaveChanged) {
  change("<p>Kettle</p>\n<b>cheap</b>\n<p>end</p>\n<i>one</i>\n<i>two</i>\n");
  openDetails();
  EXPECT_TRUE(waitUntil([&] { return headline() == "Site 3 changed: line 2 differs, lines 4 to 5 are new"; }))
      << headline();
  EXPECT_FALSE(find<LinkButton>("detailsVary").isVisible());
}

TEST_F(DetailsPaneTest, NoButtonTakesTheKeyOfAnother) {
  const auto shared = [this] {
    std::vector<QChar> keys = mnemonics(*master);
    std::ranges::sort(keys);
    const auto twice = std::ranges::adjacent_find(keys);
    return twice == keys.end() ? QString() : QString(*twice);
  };
  change();
  openDetails();
  EXPECT_TRUE(waitUntil([&] { return find<QPushButton>("btnAcknowledge").isEnabled(); }));
  EXPECT_EQ(shared(), QString());
  find<QPushButton>("btnAcknowledge").click();
  set("pause", "for good");
  EXPECT_TRUE(waitUntil([&] { return find<QPushButton>("btnAcknowledge").text() == QStringLiteral("Alarm A&gain"); }));
  EXPECT_EQ(shared(), QString());
  change("");
  EXPECT_TRUE(waitUntil([&] { return find<QPushButton>("btnAccept").text() == QStringLiteral("&Check Now"); }));
  EXPECT_EQ(shared(), QString());
}

TEST_F(DetailsPaneTest, AnEmptyPageIsComparedAndCheckedAgain) {
  change("");
  openDetails();
  EXPECT_TRUE(waitUntil([&] { return headline().starts_with("Site 3 answered with an empty page"); })) << headline();
  EXPECT_TRUE(find<QPushButton>("btnAcknowledge").isEnabled());
  EXPECT_EQ(find<QPushButton>("btnAccept").text(), QStringLiteral("&Check Now"));
}

TEST_F(DetailsPaneTest, WhatAlwaysChangesMayVaryByOneClick) {
  int wanted = 0;
  master->setEditors({.site = {.open = {}, .openNew = {}, .propose = [&](std::int16_t) { ++wanted; }}, .settings = {}});
  change();
  openDetails();
  auto& vary = find<LinkButton>("detailsVary");
  ASSERT_TRUE(waitUntil([&] { return vary.isVisible(); }));
  clickOn(vary);
  EXPECT_EQ(wanted, 1);
}

TEST_F(DetailsPaneTest, AnAcceptedSiteIsCheckedOrTakenBackWhereSomebodyIs) {
  change();
  openDetails();
  clickOn(find<QPushButton>("btnAccept"));
  press(opened<AcceptDialog>(), "acceptAccept");
  ASSERT_TRUE(waitUntil([&] { return headline() == "Site 3 is settled: its next check finds it up."; }));
  master->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
  find<QPushButton>("btnPause").setFocus();
  QTest::keyClick(&find<QPushButton>("btnPause"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(column(3, "content_compare"), kOld);
  ASSERT_TRUE(waitUntil([&] { return caption<QPushButton>(details(), "btnAccept") == "Accept…"; }));
  clickOn(find<QPushButton>("btnAccept"));
  press(opened<AcceptDialog>(), "acceptAccept");
  ASSERT_TRUE(waitUntil([&] { return caption<QPushButton>(details(), "btnAccept") == "Check Now"; }));
  clickOn(find<QPushButton>("btnAccept"));
  EXPECT_TRUE(waitUntil([&] { return headline() == "Site 3 is as it should be."; }));
}

TEST_F(DetailsPaneTest, AnEarlierBaselineIsComparedWith) {
  change("<p>Kettle</p>\n<b>cheap</b>\n<p>end</p>\n");
  press(openAccept(), "acceptAccept");
  master->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
  change();
  openDetails();
  EXPECT_TRUE(waitUntil([&] { return shownText(details()) == "- <b>cheap</b>\n+ <b>29.00</b>"; }));
  clickOn(find<QToolButton>("differenceChoose"));
  auto* choices = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(choices, nullptr);
  ASSERT_EQ(choices->actions().size(), 2);
  EXPECT_TRUE(choices->actions().front()->isChecked());
  choices->actions().back()->trigger();
  choices->close();
  EXPECT_TRUE(waitUntil([&] { return shownText(details()) == "- <b>24.00</b>\n+ <b>29.00</b>"; }));
  EXPECT_THAT(find<QLabel>("differenceBefore").text().toStdString(), StartsWith("− Baseline until "));
  key(Qt::Key_Down);
  key(Qt::Key_Up);
  EXPECT_TRUE(waitUntil([&] { return shownText(details()) == "- <b>cheap</b>\n+ <b>29.00</b>"; }))
      << "of each site the baseline at first";
}

TEST_F(DetailsPaneTest, KeysLeadThroughTheAreasAndBack) {
  openDetails();
  EXPECT_TRUE(grid().hasFocus());
  key(Qt::Key_F6);
  EXPECT_TRUE(in<DifferenceView>(details(), "difference").hasFocus());
  for (int areas = 0; areas < 2 && !grid().hasFocus(); ++areas) {
    QTest::keyClick(master->focusWidget(), Qt::Key_F6);  // there may be a notice in between
  }
  EXPECT_TRUE(grid().hasFocus());
  key(Qt::Key_3, Qt::ControlModifier);
  EXPECT_EQ(find<QTabWidget>("detailsTabs").currentIndex(), 2);
  key(Qt::Key_F6);
  EXPECT_TRUE(find<QTableView>("detailsLog").hasFocus());
  QTest::keyClick(master->focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(details().isVisible());
  EXPECT_TRUE(grid().hasFocus());
}

TEST_F(DetailsPaneTest, TheListEndsWithAWholeRowAndTheHeightIsRemembered) {
  PlayedHabits habits;
  master->rememberIn(habits);
  master->resize(820, 900);
  openDetails();
  drag(-77);
  auto& list = find<QTableView>("grid1");
  EXPECT_EQ(list.viewport()->height() % list.verticalHeader()->defaultSectionSize(), 0);
  const int row = list.verticalHeader()->defaultSectionSize();
  const int height = details().height();
  ASSERT_TRUE(waitUntil([&] { return habits.numbers.contains("detailsHeight"); }));
  EXPECT_EQ(habits.numbers.at("detailsHeight"), height);
  key(Qt::Key_F4);
  habits.numbers["detailsHeight"] = height + row;
  key(Qt::Key_F4);
  EXPECT_TRUE(waitUntil([&] { return details().height() == height + row; }));
}

TEST_F(DetailsPaneTest, TheListKeepsFiveRowsWhateverIsRemembered) {
  PlayedHabits habits;
  habits.numbers["detailsHeight"] = 5000;
  master->rememberIn(habits);
  openDetails();
  auto& list = find<QTableView>("grid1");
  EXPECT_TRUE(waitUntil([&] { return list.viewport()->height() >= 5 * list.verticalHeader()->defaultSectionSize(); }));
}

// What holds the window up is reading both pages, in one piece; comparing and drawing them does not.
TEST_F(DetailsPaneTest, LargePagesAreShownSoon) {
  std::string page;
  for (int line = 0; line < 500'000; ++line) {
    page += "<p>line " + std::to_string(line) + "</p>\n";
  }
  server.respond("/shop", {.body = page});
  data().updateContentCompare(3, page);
  change(page + "<p>more</p>\n");
  QElapsedTimer whole;
  LongestGap gap;
  whole.start();
  openDetails();
  ASSERT_TRUE(waitUntil([&] { return in<DifferenceView>(details(), "difference").changes() == 1; }));
  in<DifferenceView>(details(), "difference").viewport()->repaint();
  std::cout << page.size() << " bytes shown after " << whole.elapsed() << " ms, held up for " << gap.longest().count()
            << " ms\n";
  EXPECT_LT(gap.longest(), std::chrono::seconds(1));
}

}  // namespace
}  // namespace tarnwick::testing
