// SPDX-License-Identifier: MIT
// What the options of the alarm make of the list: words, colours, the menu of a row, the notices of a pause.
#include <gmock/gmock.h>

#include <QDateTimeEdit>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "ui/controls/alarm_words.h"
#include "ui/controls/colour_text.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::MasterTest;
using testing::waitUntil;

class SiteAlarmsTest : public MasterTest {
 protected:
  void addUp(int id) {
    addSite(id, "http://up.test/");
    judge(id, true);
  }
  void addDown(int id) {
    addSite(id, "http://down.test/");
    judge(id, false);
  }
  void judge(int id, bool up) {
    folder.execute("update sites set status = " + std::string(up ? "-1" : "0") +
                   ", lastChecked = '2026-11-21 04:24:41' " + "where idSite = " + std::to_string(id));
  }
  void set(int idSite, const std::string& name, const std::string& value) {
    folder.execute("insert into siteOptions (idSite, name, value) values (" + std::to_string(idSite) + ",'" + name +
                   "','" + value + "')");
  }
  void stands(int idSite, const std::string& column, const std::string& value) {
    folder.execute("insert into siteState (idSite, " + column + ") values (" + std::to_string(idSite) + "," + value +
                   ")");
  }
  std::string option(int idSite, const std::string& name) const {
    return folder.queryText("select coalesce(max(value), '') from siteOptions where idSite = " +
                            std::to_string(idSite) + " and name = '" + name + "'");
  }
  QTableView& grid() { return find<QTableView>("grid1"); }
  QString spoken(int row) { return grid().model()->index(row, 0).data(Qt::AccessibleTextRole).toString(); }
  /// Waits until a screen reader would say this of the row.
  ::testing::AssertionResult says(int row, const char* text) {
    return waitUntil([&] { return spoken(row) == QString::fromLatin1(text); })
               ? ::testing::AssertionSuccess()
               : ::testing::AssertionFailure() << "It says: " << spoken(row).toStdString();
  }
  QMenu& openMenu(int row) {
    grid().selectRow(row);
    Q_EMIT grid().customContextMenuRequested(grid().visualRect(grid().model()->index(row, 1)).center());
    auto& menu = find<QMenu>("rowMenu");
    EXPECT_TRUE(waitUntil([&] { return menu.isVisible(); }));
    return menu;
  }
  static void choose(QMenu& menu, const char* name) {
    auto* action = menu.findChild<QAction*>(QString::fromLatin1(name));
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->isEnabled());
    action->trigger();
    menu.close();
  }
};

TEST_F(SiteAlarmsTest, WithNoOptionSetTheStandingsSayNothing) {
  addDown(1);
  stands(1, "failures", "1");
  open();
  EXPECT_TRUE(says(0, "1, changed"));
}

TEST_F(SiteAlarmsTest, AFailureThatIsNotConfirmedSaysHowManyThereWere) {
  addDown(1);
  set(0, "confirm", "3");
  stands(1, "failures", "1");
  open();
  EXPECT_TRUE(says(0, "1, 1 of 3"));
  EXPECT_EQ(colour(0, 0), colourFromText(colours::kDown));
}

TEST_F(SiteAlarmsTest, SlowIsAmberInPlaceOfGreenOnly) {
  addUp(1);
  addDown(2);
  set(0, "slow", "2000");
  stands(1, "slow", "1");
  stands(2, "slow", "1");
  open();
  EXPECT_TRUE(says(0, "1, slow"));
  EXPECT_EQ(colour(0, 0), QColor(0xF6C343));
  EXPECT_TRUE(says(1, "2, changed"));
  EXPECT_EQ(colour(1, 0), colourFromText(colours::kDown));
}

TEST_F(SiteAlarmsTest, ACertificateThatEndsSoonIsAmberWithTheDaysThatAreLeft) {
  addUp(1);
  addDown(2);
  addUp(3);
  set(0, "certificate", "21, 7");
  set(3, "certificate", "7");
  const auto inDays = [&](int count) {
    return std::to_string(
        (machine.clock().now() + std::chrono::days(count) + std::chrono::hours(1)).time_since_epoch().count());
  };
  for (const char* id : {"1", "2", "3"}) {
    folder.execute(std::string("insert into certificates values (") + id + ", 1700000000, " + inDays(12) +
                   ", 'A', null)");
  }
  open();
  EXPECT_TRUE(says(0, "1, 12 days"));
  EXPECT_EQ(colour(0, 0), QColor(0xF6C343));
  EXPECT_TRUE(says(1, "2, changed"));
  EXPECT_EQ(colour(1, 0), colourFromText(colours::kDown));
  EXPECT_TRUE(says(2, "3, up")) << "that is soon enough to tell for it";
  find<QLineEdit>("filterEdit").setText(QStringLiteral("certificate"));
  EXPECT_TRUE(waitUntil([&] { return grid().model()->rowCount() == 2; })) << "also of one that is down";
}

TEST_F(SiteAlarmsTest, UnsteadyIsAWordOfARedRow) {
  addDown(1);
  set(1, "flapping", "5 in 30 min");
  stands(1, "unsteady", "1");
  open();
  EXPECT_TRUE(says(0, "1, unsteady"));
}

TEST_F(SiteAlarmsTest, WhatIsUnknownForWantOfANetIsBlue) {
  addUp(1);
  set(0, "ownNetwork", "on");
  stands(1, "unknownSince", "'2026-11-21 04:20:00'");
  open();
  EXPECT_TRUE(says(0, "1, offline"));
  EXPECT_EQ(colour(0, 0), QColor(0xB9CBE8));
}

TEST_F(SiteAlarmsTest, AnInactiveSiteIsThatBeforeAllElse) {
  addUp(1);
  folder.execute("update sites set active = 0");
  set(1, "pause", "for good");
  open();
  EXPECT_TRUE(says(0, "1, not active"));
}

TEST_F(SiteAlarmsTest, ASiteIsPausedFromItsMenuAndGoesOn) {
  addDown(1);
  addUp(2);
  open();
  choose(openMenu(0), "pauseForGood");
  EXPECT_EQ(option(1, "pause"), "for good");
  EXPECT_EQ(option(0, "pause"), "");
  EXPECT_TRUE(says(0, "1, paused"));
  EXPECT_EQ(colour(0, 0), colourFromText(colours::kDown));
  EXPECT_TRUE(says(1, "2, up"));
  EXPECT_FALSE(find<NoticeButton>("noticePaused").isVisible());
  choose(openMenu(0), "resume");
  EXPECT_EQ(option(1, "pause"), "");
  EXPECT_TRUE(says(0, "1, changed"));
}

TEST_F(SiteAlarmsTest, CtrlPPausesTheChosenSiteForAnHour) {
  addUp(1);
  open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
  grid().setFocus();
  QTest::keyClick(&grid(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_THAT(option(1, "pause"), ::testing::StartsWith("until "));
}

TEST_F(SiteAlarmsTest, UntilAsksForTheMoment) {
  addUp(1);
  open();
  choose(openMenu(0), "pauseUntil");
  auto* dialog = master->findChild<QDialog*>(QStringLiteral("frmPauseUntil"));
  ASSERT_NE(dialog, nullptr);
  auto* until = dialog->findChild<QDateTimeEdit*>(QStringLiteral("untilMoment"));
  until->setDateTime(QDateTime(QDate(2036, 12, 1), QTime(8, 0)));
  QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("untilOk")), Qt::LeftButton);
  EXPECT_EQ(option(1, "pause"), "until 2036-12-01 08:00:00");
}

TEST_F(SiteAlarmsTest, AllArePausedFromTheMenuOfTheListAndTheNoticeResumes) {
  addUp(1);
  open();
  choose(find<QMenu>("pauseAll"), "pauseTomorrow");
  EXPECT_EQ(option(0, "pause"), pauseText({true, tomorrowMorning(machine.clock().localNow())}));
  auto& notice = find<NoticeButton>("noticePaused");
  ASSERT_TRUE(waitUntil([&] { return notice.isVisible(); }));
  EXPECT_EQ(notice.sentence(), QStringLiteral("Alerts are paused until tomorrow 8:00."));
  EXPECT_TRUE(says(0, "1, paused"));
  click("noticePaused");
  EXPECT_TRUE(waitUntil([&] { return !notice.isVisible(); }));
  EXPECT_EQ(option(0, "pause"), "");
  EXPECT_TRUE(says(0, "1, up"));
}

TEST_F(SiteAlarmsTest, ASiteIsDeletedFromItsMenuAfterAQuestion) {
  addUp(1);
  addUp(2);
  open();
  machine.prompts.answerConfirm(false);
  choose(openMenu(0), "deleteSite");
  EXPECT_EQ(rows(), 2);
  machine.prompts.answerConfirm(true);
  choose(openMenu(0), "deleteSite");
  EXPECT_EQ(rows(), 1);
  EXPECT_THAT(machine.prompts.shown().back().text, ::testing::HasSubstr("http://up.test/"));
}

TEST_F(SiteAlarmsTest, BeingOfflineStandsInANotice) {
  open();
  const LocalTime now = machine.clock().localNow();
  master->showOffline(now);
  auto& notice = find<NoticeButton>("noticeOffline");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_EQ(notice.sentence(),
            QStringLiteral("This machine is offline since %1. Nothing is counted as down.").arg(momentWords(now, now)));
  EXPECT_EQ(notice.action(), QStringLiteral("Check Again"));
  master->showOffline(std::nullopt);
  EXPECT_FALSE(notice.isVisible());
}

TEST_F(SiteAlarmsTest, AWrongPageThatIsAcknowledgedIsKnown) {
  addDown(3);
  folder.execute("insert into acknowledged (idSite, page, since) values (3, 'digest', '2026-11-21 04:30:00')");
  open();
  EXPECT_TRUE(says(0, "3, known"));
  find<QLineEdit>("filterEdit").setText(QStringLiteral("known"));
  EXPECT_EQ(rows(), 1);
  find<QLineEdit>("filterEdit").clear();
  folder.execute("delete from acknowledged");
  master->fillGrid();
  EXPECT_TRUE(says(0, "3, changed"));
}

}  // namespace
}  // namespace tarnwick
