// SPDX-License-Identifier: MIT
// What is done with the sites of the rows that are chosen, by the menu and by the keys, on a real database.
#include "ui/main_window/site_menu.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QSpinBox>

#include "ui/support/longest_gap.h"
#include "ui/support/master_fixture.h"
#include "ui/support/patience.h"

namespace tarnwick {
namespace {

using ::testing::HasSubstr;
using testing::MasterTest;
using testing::waitUntil;

constexpr auto kNoModifier = Qt::NoModifier;

class SiteMenuTest : public MasterTest {
 protected:
  void addJudged(int id, bool up, const std::string& url = "http://a.test/") {
    addSite(id, url, ",status,lastChecked,success,failure",
            (up ? std::string(",1") : std::string(",0")) + ",'2026-11-21 04:24:41'," + (up ? "5,0" : "0,7"));
  }
  void openOnList() {
    open();
    master->setEditors(
        {.site = {.open = [this](std::int16_t id) { opened.push_back(id); }, .openNew = {}}, .settings = {}});
    ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
    grid().setFocus();
  }
  SiteGridView& grid() { return find<SiteGridView>("grid1"); }
  QPoint at(int row, int column = 1) { return grid().visualRect(grid().model()->index(row, column)).center(); }
  void clickRow(int row, Qt::KeyboardModifiers with = kNoModifier, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(grid().viewport(), button, with, at(row));
  }
  void press(Qt::Key key, Qt::KeyboardModifiers with = kNoModifier) { QTest::keyClick(&grid(), key, with); }
  /// The numbers of the sites that are chosen.
  std::string chosen() {
    std::string ids;
    for (const int row : grid().chosenRows()) {
      ids += (ids.empty() ? "" : " ") + std::to_string(*grid().sites().siteOfRow(row));
    }
    return ids;
  }
  QMenu& openMenu() {
    Q_EMIT grid().customContextMenuRequested(grid().visualRect(grid().currentIndex()).center());
    auto& menu = find<QMenu>("rowMenu");
    EXPECT_TRUE(waitUntil([&] { return menu.isVisible(); }));
    return menu;
  }
  /// The menu, or one in it, that has the entry of that name.
  static QMenu* menuOf(QMenu& menu, const QAction& entry) {
    for (QMenu* inner : menu.findChildren<QMenu*>()) {
      if (inner->actions().contains(&entry)) {
        return inner;
      }
    }
    return &menu;
  }
  /// Clicks an entry of the menu with the mouse, also one of a menu in it.
  void choose(const char* name) {
    QMenu& menu = openMenu();
    auto* entry = menu.findChild<QAction*>(QString::fromLatin1(name));
    ASSERT_NE(entry, nullptr) << name;
    QMenu* with = menuOf(menu, *entry);
    if (with != &menu) {
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(with->menuAction()).center());
      ASSERT_TRUE(waitUntil([&] { return with->isVisible(); }));
    }
    ASSERT_TRUE(entry->isEnabled()) << name;
    QTest::mouseClick(with, Qt::LeftButton, {}, with->actionGeometry(entry).center());
  }
  std::string query(const std::string& sql) const { return folder.queryText(sql); }
  std::string lastQuestion() { return machine.prompts.shown().empty() ? "" : machine.prompts.shown().back().text; }

  std::vector<int> opened;
};

TEST_F(SiteMenuTest, APlainClickOpensTheSiteAsEver) {
  addJudged(3, true);
  addJudged(7, false);
  openOnList();
  clickRow(1);
  EXPECT_EQ(opened, std::vector<int>{7});
  EXPECT_EQ(chosen(), "7");
}

TEST_F(SiteMenuTest, ClicksWithKeysAndTheOtherButtonOnlyChoose) {
  for (int id = 1; id <= 5; ++id) {
    addJudged(id, true);
  }
  openOnList();
  clickRow(3, Qt::ControlModifier);
  EXPECT_EQ(chosen(), "1 4");
  clickRow(1, Qt::ControlModifier);
  EXPECT_EQ(chosen(), "1 2 4");
  clickRow(1, Qt::ControlModifier);
  EXPECT_EQ(chosen(), "1 4");
  clickRow(3, kNoModifier, Qt::RightButton);
  EXPECT_EQ(chosen(), "1 4") << "the menu is for all of them";
  clickRow(2, kNoModifier, Qt::RightButton);
  EXPECT_EQ(chosen(), "3");
  clickRow(4, Qt::ShiftModifier);
  EXPECT_EQ(chosen(), "3 4 5");
  EXPECT_EQ(opened, std::vector<int>());
}

TEST_F(SiteMenuTest, TheKeysChooseSeveralRows) {
  for (int id = 1; id <= 5; ++id) {
    addJudged(id, true);
  }
  openOnList();
  press(Qt::Key_Down);
  press(Qt::Key_Down, Qt::ShiftModifier);
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(chosen(), "2 3 4");
  press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(chosen(), "2 3");
  press(Qt::Key_Down, Qt::ControlModifier);
  press(Qt::Key_Down, Qt::ControlModifier);
  press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(chosen(), "2 3 5");
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(chosen(), "1 2 3 4 5");
  press(Qt::Key_Up);
  EXPECT_EQ(chosen(), "4");
}

TEST_F(SiteMenuTest, WhatIsChosenStaysThroughAFilterASortingAndARefill) {
  for (int id = 1; id <= 5; ++id) {
    addJudged(id, id != 2);
  }
  openOnList();
  clickRow(1, kNoModifier, Qt::RightButton);
  clickRow(3, Qt::ControlModifier);
  ASSERT_EQ(chosen(), "2 4");
  grid().changeOrder([&] { grid().order().sortBy(0, Qt::DescendingOrder); });
  EXPECT_EQ(chosen(), "4 2");
  master->fillGrid();
  EXPECT_EQ(chosen(), "4 2");
  find<QLineEdit>("filterEdit").setText(QStringLiteral("down"));
  EXPECT_EQ(chosen(), "2");
}

TEST_F(SiteMenuTest, AClickOnTheIconAsksForTheDetails) {
  addJudged(3, false);
  addJudged(4, false);
  openOnList();
  std::vector<int> wanted;
  QObject::connect(&grid(), &SiteGridView::detailsWanted, [&](int row) { wanted.push_back(row); });
  const QRect cell = grid().visualRect(grid().model()->index(1, 0));
  QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cell.topLeft() + QPoint(12, cell.height() / 2));
  EXPECT_EQ(wanted, std::vector<int>{1});
  EXPECT_EQ(opened, std::vector<int>());
  EXPECT_EQ(chosen(), "4");
}

TEST_F(SiteMenuTest, ThePagesOfThoseThatAreDownAreAcknowledgedAfterAPreview) {
  for (const int id : {1, 2, 3}) {
    addJudged(id, id == 2);
  }
  folder.execute("update sites set content_compare = 'good', content_runtime = 'good'");
  folder.execute("update sites set content_runtime = 'bad' where status = 0");
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  machine.prompts.answerConfirm(false);
  press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(query("select count(*) from acknowledged"), "0");
  EXPECT_THAT(lastQuestion(), HasSubstr("Acknowledge the wrong pages of 2 sites?"));
  EXPECT_THAT(lastQuestion(), HasSubstr("1 of 3 has no such page and stays as it is."));
  machine.prompts.answerConfirm(true);
  choose("acknowledge");
  EXPECT_TRUE(waitUntil([&] { return query("select count(*) from acknowledged") == "2"; }));
}

TEST_F(SiteMenuTest, AlertsOfSeveralArePausedAndGoOn) {
  for (int id = 1; id <= 3; ++id) {
    addJudged(id, true);
  }
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  machine.prompts.answerConfirm(true);
  choose("pauseForGood");
  const std::string count = "select count(*) from siteOptions where name = 'pause' and value = 'for good'";
  EXPECT_TRUE(waitUntil([&] { return query(count) == "3"; }));
  EXPECT_EQ(lastQuestion(), "Pause the alerts of 3 sites for good?");
  EXPECT_EQ(chosen(), "1 2 3");
  ASSERT_TRUE(waitUntil([&] { return grid().sites().row(2).alarm.paused; }));
  machine.prompts.answerConfirm(true);
  choose("resume");
  EXPECT_TRUE(waitUntil([&] { return query(count) == "0"; }));
}

TEST_F(SiteMenuTest, CountersAreSetToZeroAfterAQuestionWhoseAnswerIsNo) {
  addJudged(1, true);
  addJudged(2, false);
  addSite(3, "http://never.test/");
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  machine.prompts.answerConfirm(true);
  choose("resetCounters");
  EXPECT_TRUE(machine.prompts.shown().back().destroys);
  EXPECT_THAT(lastQuestion(), HasSubstr("1 of 3 is at 0 and stays as it is."));
  EXPECT_TRUE(
      waitUntil([&] { return query("select sum(success) + sum(failure) from sites where idSite < 3") == "0"; }));
}

TEST_F(SiteMenuTest, SeveralSitesAreDeletedTogether) {
  for (int id = 1; id <= 4; ++id) {
    addJudged(id, true, "http://site" + std::to_string(id) + ".test/");
  }
  openOnList();
  clickRow(2, Qt::ControlModifier);
  machine.prompts.answerConfirm(true);
  press(Qt::Key_Delete);
  EXPECT_TRUE(waitUntil([&] { return rows() == 2; }));
  EXPECT_EQ(lastQuestion(),
            "Do You Want To Delete These 2 Sites?\n\nSite 1: http://site1.test/\nSite 3: http://site3.test/");
  EXPECT_TRUE(machine.prompts.shown().back().destroys);
  EXPECT_EQ(query("select group_concat(idSite) from sites"), "2,4");
}

TEST_F(SiteMenuTest, WhatWasDeletedComesBackTheLastFirst) {
  for (int id = 1; id <= 4; ++id) {
    addJudged(id, true, "http://site" + std::to_string(id) + ".test/");
  }
  folder.execute("insert into siteTags (idSite, tag) values (3, 'shop')");
  openOnList();
  const auto& entry = find<QAction>("undo");
  EXPECT_FALSE(entry.isEnabled());
  clickRow(2, Qt::ControlModifier);
  machine.prompts.answerConfirm(true);
  press(Qt::Key_Delete);
  ASSERT_TRUE(waitUntil([&] { return rows() == 2; }));
  auto& notice = find<NoticeButton>("noticeUndo");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_EQ(notice.sentence(), QStringLiteral("2 sites were deleted."));
  machine.prompts.answerConfirm(true);
  press(Qt::Key_Delete);
  EXPECT_EQ(notice.sentence(), QStringLiteral("Site 4 was deleted."));
  EXPECT_TRUE(entry.text().contains(QStringLiteral("Undo Delete Site 4")));
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(query("select group_concat(idSite) from sites"), "2,4");
  EXPECT_EQ(chosen(), "4");
  click("noticeUndo");
  EXPECT_TRUE(waitUntil([&] { return rows() == 4; }));
  EXPECT_EQ(query("select tag from siteTags where idSite = 3"), "shop");
  EXPECT_EQ(chosen(), "1 3");
  EXPECT_FALSE(notice.isVisible());
  EXPECT_FALSE(entry.isEnabled());
}

TEST_F(SiteMenuTest, WhatCannotComeBackStaysWhatCanBeUndone) {
  addJudged(1, true);
  openOnList();
  machine.prompts.answerConfirm(true);
  press(Qt::Key_Delete);
  folder.execute("insert into sites (idSite, url) values (1, 'http://other.test/')");
  find<QAction>("undo").trigger();
  EXPECT_THAT(machine.prompts.texts().back(), HasSubstr("another site has its id meanwhile"));
  EXPECT_TRUE(find<QAction>("undo").isEnabled());
}

TEST_F(SiteMenuTest, TheNoticeOfADeletionCanBePutAway) {
  addJudged(1, true);
  addJudged(2, true);
  openOnList();
  machine.prompts.answerConfirm(true);
  press(Qt::Key_Delete);
  auto& notice = find<NoticeButton>("noticeUndo");
  QTest::mouseClick(&notice, Qt::LeftButton, {}, QPoint(notice.width() - 10, notice.height() / 2));
  EXPECT_FALSE(notice.isVisible());
  EXPECT_EQ(rows(), 1);
  EXPECT_TRUE(find<QAction>("undo").isEnabled());
}

TEST_F(SiteMenuTest, TagsAreGivenToAllAndTakenFromSome) {
  for (int id = 1; id <= 3; ++id) {
    addJudged(id, true);
  }
  folder.execute("insert into siteTags (idSite, tag) values (1, 'news'), (2, 'news'), (1, 'shop')");
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_T, Qt::ControlModifier);
  auto& dialog = find<QDialog>("frmTags");
  auto& list = *dialog.findChild<QListWidget*>(QStringLiteral("tagsList"));
  ASSERT_EQ(list.count(), 2);
  EXPECT_EQ(list.item(0)->checkState(), Qt::PartiallyChecked);
  auto& ok = *dialog.findChild<QPushButton*>(QStringLiteral("sitesOk"));
  EXPECT_FALSE(ok.isEnabled());
  auto& typed = *dialog.findChild<QLineEdit*>(QStringLiteral("tagsNew"));
  QTest::keyClicks(&typed, QStringLiteral("a\"b"));
  QTest::keyClick(&typed, Qt::Key_Return);
  EXPECT_TRUE(dialog.findChild<QLabel*>(QStringLiteral("tagsFault"))->isVisible());
  typed.clear();
  QTest::keyClicks(&typed, QStringLiteral("SHOP"));
  QTest::keyClick(&typed, Qt::Key_Return);
  ASSERT_EQ(list.count(), 2) << "letter case does not matter";
  ASSERT_TRUE(waitUntil([&] { return ok.isEnabled(); }));
  EXPECT_EQ(dialog.findChild<QLabel*>(QStringLiteral("sitesPreview"))->text(),
            QStringLiteral("2 sites change. 1 of 3 stays as it is."));
  QTest::keyClick(&typed, Qt::Key_Return);
  EXPECT_TRUE(waitUntil([&] { return query("select count(*) from siteTags where tag = 'shop'") == "3"; }));
  EXPECT_EQ(query("select count(*) from siteTags where tag = 'news'"), "2");
}

TEST_F(SiteMenuTest, IntervalRunsAndAlarmAreChangedTogether) {
  for (int id = 1; id <= 3; ++id) {
    addJudged(id, true);
  }
  folder.execute("update sites set tInterval = 5 where idSite = 3");
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_E, Qt::ControlModifier);
  auto& dialog = find<QDialog>("frmChangeSites");
  auto& ok = *dialog.findChild<QPushButton*>(QStringLiteral("sitesOk"));
  const auto& preview = *dialog.findChild<QLabel*>(QStringLiteral("sitesPreview"));
  dialog.findChild<QCheckBox*>(QStringLiteral("changesInterval"))->click();
  dialog.findChild<QSpinBox*>(QStringLiteral("newInterval"))->setValue(5);
  ASSERT_TRUE(waitUntil([&] { return ok.isEnabled(); }));
  EXPECT_EQ(preview.text(), QStringLiteral("2 sites change. 1 of 3 stays as it is."));
  EXPECT_EQ(ok.text(), QStringLiteral("Change 2"));
  auto& alarm = *dialog.findChild<QComboBox*>(QStringLiteral("newAlarm"));
  alarm.setCurrentIndex(alarm.count() - 1);
  ASSERT_TRUE(waitUntil([&] { return ok.text() == QStringLiteral("Change 3"); }));
  QTest::mouseClick(&ok, Qt::LeftButton);
  EXPECT_TRUE(waitUntil([&] { return query("select count(*) from siteOptions where name = 'alerts'") == "3"; }));
  EXPECT_EQ(query("select group_concat(tInterval) from sites"), "5,5,5");
}

TEST_F(SiteMenuTest, SitesAreCheckedNowWithoutARun) {
  testing::HttpServer server;
  addJudged(1, false, server.url("/one"));
  addJudged(2, false, server.url("/two"));
  folder.execute("update sites set active = 0 where idSite = 2");
  openOnList();
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_NE(query("select lastChecked from sites where idSite = 1"), "2026-11-21 04:24:41");
  EXPECT_FALSE(master->program().run().running());
  EXPECT_EQ(status(), QStringLiteral("Ready ..."));
  grid().selectSite(2);
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(query("select lastChecked from sites where idSite = 2"), "2026-11-21 04:24:41") << "it is not active";
}

TEST_F(SiteMenuTest, SitesAreCheckedNowByTheRunThatIsOn) {
  testing::HttpServer server;
  addSite(1, server.url("/one"));
  openOnList();
  click("btnStart");
  ASSERT_TRUE(waitUntil([&] { return !master->program().run().busy(); }));
  const std::string checks = "select coalesce(success, 0) + coalesce(failure, 0) from sites";
  const std::string before = query(checks);
  grid().setFocus();
  press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(waitUntil([&] { return query(checks) != before; })) << "though its interval has not passed";
  EXPECT_TRUE(master->program().run().running());
}

TEST_F(SiteMenuTest, AddressesAndRowsAreCopied) {
  addJudged(1, true, "http://one.test/");
  addJudged(2, false, "http://two.test/");
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("http://one.test/\nhttp://two.test/"));
  press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
            "1\thttp://one.test/\t5\t0\t2026-11-21 04:24:41\n2\thttp://two.test/\t0\t7\t2026-11-21 04:24:41");
}

TEST_F(SiteMenuTest, PastedAndDroppedAddressesAreHandedOn) {
  addJudged(1, true);
  openOnList();
  std::vector<QString> given;
  EXPECT_FALSE(find<QAction>("addAddresses").isEnabled());
  master->setEditors({.site = {}, .settings = {}, .addAddresses = [&](const QString& text) { given.push_back(text); }});
  QGuiApplication::clipboard()->setText(QStringLiteral("http://a.test/\nhttp://b.test/"));
  press(Qt::Key_V, Qt::ControlModifier);
  QMimeData data;
  data.setUrls({QUrl(QStringLiteral("http://c.test/"))});
  QDragEnterEvent enter(at(0), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(grid().viewport(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(at(0), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(grid().viewport(), &drop);
  EXPECT_EQ(given,
            (std::vector<QString>{QStringLiteral("http://a.test/\nhttp://b.test/"), QStringLiteral("http://c.test/")}));
}

TEST_F(SiteMenuTest, TheBrowserOpensTheSite) {
  addJudged(1, true, "http://one.test/");
  openOnList();
  press(Qt::Key_B, Qt::ControlModifier);
  choose("openInBrowser");
  EXPECT_EQ(machine.opener.opened, (std::vector<std::string>{"http://one.test/", "http://one.test/"}));
}

TEST_F(SiteMenuTest, WhatMeansNothingIsNotOfferedAndSaysWhy) {
  addSite(1, "http://never.test/");
  folder.execute("update sites set active = 0");
  openOnList();
  QMenu& menu = openMenu();
  for (const char* const name : {"checkNow", "acknowledge", "resetCounters", "alwaysChanges"}) {
    const auto* action = menu.findChild<QAction*>(QString::fromLatin1(name));
    EXPECT_FALSE(action->isEnabled()) << name;
    EXPECT_NE(action->toolTip(), QString()) << name;
  }
  menu.close();
}

TEST_F(SiteMenuTest, EveryEntryOfTheMenuIsReachedByTheKeyboardAlone) {
  addJudged(1, false);
  openOnList();
  QTest::keyClick(&grid(), Qt::Key_Menu);
  Q_EMIT grid().customContextMenuRequested(at(0));
  auto& menu = find<QMenu>("rowMenu");
  std::vector<QAction*> reached;
  const auto entries =
      std::ranges::count_if(menu.actions(), [](QAction* a) { return !a->isSeparator() && a->isEnabled(); });
  for (qsizetype i = 0; i < entries; ++i) {
    QTest::keyClick(&menu, Qt::Key_Down);
    reached.push_back(menu.activeAction());
  }
  std::ranges::sort(reached);
  reached.erase(std::unique(reached.begin(), reached.end()), reached.end());
  EXPECT_EQ(std::ssize(reached), entries);
  menu.close();
}

TEST_F(SiteMenuTest, ThousandsAreDealtWithWithoutHoldingTheWindowUp) {
  folder.execute(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 2000) "
      "insert into sites (idSite,url,method,active,tInterval,status,failure) "
      "select i, 'http://host' || i || '.example.org/', 'GET', 1, 10, 0, 1 from n");
  openOnList();
  press(Qt::Key_A, Qt::ControlModifier);
  machine.prompts.answerConfirm(true);
  testing::LongestGap gap;
  choose("pauseForGood");
  EXPECT_TRUE(waitUntil([&] { return query("select count(*) from siteOptions where name = 'pause'") == "2000"; }));
  RecordProperty("longest_ms", static_cast<int>(gap.longest().count()));
  EXPECT_LT(gap.longest(), testing::patience(std::chrono::milliseconds(100)));
}

}  // namespace
}  // namespace tarnwick
