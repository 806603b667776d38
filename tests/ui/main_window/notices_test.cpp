// SPDX-License-Identifier: MIT
// The notices of the main window: what is unwatched or undelivered stands there until it is over.
#include "ui/main_window/notices.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QSignalSpy>

#include "platform/process/file_run_lock.h"
#include "ui/controls/colour_text.h"
#include "ui/controls/tones.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::MasterTest;
using testing::waitUntil;

class NoticesTest : public MasterTest {
 protected:
  NoticeButton& unwatched() { return find<NoticeButton>("noticeUnwatched"); }
  NoticeButton& outbox() { return find<NoticeButton>("noticeOutbox"); }
  NoticeBar& bar() { return find<NoticeBar>("noticeBar"); }
  /// Waits until the notice about unwatched sites says this; nothing for no notice.
  ::testing::AssertionResult says(const char* sentence) {
    const QString expected = QString::fromUtf8(sentence);
    const bool said = waitUntil([&] {
      return unwatched().isVisible() != expected.isEmpty() &&
             (expected.isEmpty() || unwatched().sentence() == expected);
    });
    return said ? ::testing::AssertionSuccess()
                : ::testing::AssertionFailure() << "It says: " << unwatched().sentence().toStdString();
  }
  std::int16_t addHere(const std::string& url) {
    m& data = master->program().data();
    const std::int16_t id = data.addSite();
    data.updateSites(id, url, "get", true, 10, false, "", "", "");
    master->program().run().init();
    return id;
  }
  void lose(std::int16_t idSite, const std::string& why) {
    master->showLostMail({.idSite = idSite, .url = "http://a/?x=1&y=<b>", .server = "mail", .why = why});
  }
  /// A site whose page comes at once, in an open window with a run on.
  void openWithARun() {
    server.respond("/", {.body = "page"});
    addSite(1, server.url("/"));
    open();
    click("btnStart");
    ASSERT_TRUE(says(""));
  }

  testing::HttpServer server;
};

TEST_F(NoticesTest, AnEmptyListNeedsNoneAndNoRoom) {
  open();
  EXPECT_TRUE(says(""));
  EXPECT_FALSE(bar().isVisible());
  const int withoutNotice = find<QTableView>("grid1").height();
  const QSize window = master->size();
  addHere("http://a.test/");
  ASSERT_TRUE(says("1 site is unwatched: no run is on"));
  EXPECT_EQ(master->size(), window);
  EXPECT_EQ(unwatched().height(), 24);
  EXPECT_TRUE(waitUntil([&] { return find<QTableView>("grid1").height() < withoutNotice; }));
  master->program().data().deleteSite(1);
  master->program().run().init();
  EXPECT_TRUE(says(""));
  EXPECT_TRUE(waitUntil([&] { return find<QTableView>("grid1").height() == withoutNotice; }));
}

TEST_F(NoticesTest, APauseOfAllAlertsIsToldAndEndedByItsNotice) {
  addSite(1, "http://a.test/");
  open();
  master->program().data().setOption(kAllSites, "pause", "for good");
  master->program().run().init();
  auto& paused = find<NoticeButton>("noticePaused");
  ASSERT_TRUE(waitUntil([&] { return paused.isVisible(); }));
  EXPECT_EQ(paused.sentence(), QStringLiteral("Alerts are paused for good."));
  click("noticePaused");
  EXPECT_TRUE(waitUntil([&] { return !paused.isVisible(); }));
  EXPECT_FALSE(master->program().data().options(kAllSites).contains("pause"));
}

TEST_F(NoticesTest, AMachineThatIsOfflineIsToldUntilItIsOnlineAgain) {
  open();
  master->showOffline(parseDateTime("2026-11-22 14:02:33"));
  auto& offline = find<NoticeButton>("noticeOffline");
  EXPECT_TRUE(offline.isVisible());
  EXPECT_EQ(offline.sentence(), QStringLiteral("This machine is offline since 14:02. Nothing is counted as down."));
  master->showOffline(std::nullopt);
  EXPECT_FALSE(offline.isVisible());
}

TEST_F(NoticesTest, MoreThanThreeAreCounted) {
  addSite(1, "http://a.test/");
  open();
  ASSERT_TRUE(says("1 site is unwatched: no run is on"));
  master->showOffline(parseDateTime("2026-11-22 14:02:33"));
  lose(1, "The mail server is away.");
  master->program().data().setOption(kAllSites, "pause", "for good");
  master->program().run().init();
  auto& more = find<QLabel>("noticeMore");
  ASSERT_TRUE(waitUntil([&] { return more.isVisible(); }));
  EXPECT_EQ(more.text(), QStringLiteral("+1"));
  EXPECT_FALSE(find<NoticeButton>("noticePaused").isVisible());
  master->showOffline(std::nullopt);
  EXPECT_TRUE(waitUntil([&] { return !more.isVisible() && find<NoticeButton>("noticePaused").isVisible(); }));
}

TEST_F(NoticesTest, WithoutARunEveryActiveSiteIsUnwatchedAndTheNoticeStartsOne) {
  server.respond("/", {.body = "page"});
  addSite(1, server.url("/"));
  addSite(2, server.url("/"));
  addSite(3, server.url("/"));
  folder.execute("update sites set active = 0 where idSite = 3");
  open();
  ASSERT_TRUE(says("2 sites are unwatched: no run is on"));
  EXPECT_EQ(unwatched().action(), QStringLiteral("Start"));
  click("noticeUnwatched");
  EXPECT_TRUE(master->program().run().running());
  EXPECT_TRUE(says(""));
  click("btnStop");
  EXPECT_TRUE(says("2 sites are unwatched: no run is on"));
}

TEST_F(NoticesTest, NothingIsSaidOfSitesThatTheFirstPassIsYetToTest) {
  server.respond("/", {.body = "page", .hold = true});
  for (int id = 1; id <= 9; ++id) {
    addSite(id, server.url("/"));
  }
  open();
  ASSERT_TRUE(says("9 sites are unwatched: no run is on"));
  bool silent = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (server.requestsFor("/").empty()) {
      return;
    }
    watch.stop();
    silent = says("");
    addHere("http://b.test/");
    EXPECT_TRUE(says("1 site is unwatched"));
    click("btnStop");
    server.release();
  });
  watch.start(5);
  click("btnStart");
  EXPECT_TRUE(silent);
}

TEST_F(NoticesTest, ASiteThatTheRunDoesNotTakeIsShownByTheNotice) {
  openWithARun();
  const std::int16_t first = addHere(server.url("/"));
  ASSERT_TRUE(says("1 site is unwatched"));
  EXPECT_EQ(unwatched().action(), QStringLiteral("Show"));
  addHere(server.url("/"));
  ASSERT_TRUE(says("2 sites are unwatched"));
  click("noticeUnwatched");
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), first);
  EXPECT_TRUE(find<SiteGridView>("grid1").hasFocus());
  master->program().data().setOption(kAllSites, "newSites", "at once");
  EXPECT_TRUE(says(""));
}

TEST_F(NoticesTest, WhatAnotherProgramAddsDuringARunIsSaidAndShown) {
  openWithARun();
  addSite(7, server.url("/"));
  ASSERT_TRUE(says("1 site is unwatched"));
  EXPECT_EQ(rows(), 1);
  click("noticeUnwatched");
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), 7);
  folder.execute("update sites set active = 0 where idSite = 7");
  EXPECT_TRUE(says(""));
}

TEST_F(NoticesTest, ASiteThatIsStillBeingTypedIsNoneOfThem) {
  openWithARun();
  master->program().run().beingTyped(2);
  ASSERT_EQ(addHere(server.url("/")), 2);
  addHere(server.url("/"));
  ASSERT_TRUE(says("1 site is unwatched"));
  master->program().run().beingTyped(std::nullopt);
  master->program().run().init();
  EXPECT_TRUE(says("2 sites are unwatched"));
}

TEST_F(NoticesTest, TheRunOfAnotherProgramWatches) {
  const auto other = FileRunLocks().makeRunLock(folder.path());
  other->take();
  addSite(1, server.url("/"));
  open();
  EXPECT_TRUE(says(""));
  other->release();
  master->program().run().init();
  EXPECT_TRUE(says("1 site is unwatched: no run is on"));
}

TEST_F(NoticesTest, AnAlertThatWasNotDeliveredIsSaidWithoutABox) {
  open();
  lose(3, "The mail server said:\r\n550 5.1.1 <b>&x</b>.");
  EXPECT_TRUE(outbox().isVisible());
  EXPECT_EQ(outbox().sentence(),
            QStringLiteral("1 alert was not delivered: The mail server said: 550 5.1.1 <b>&x</b>."));
  lose(4, "No answer.");
  EXPECT_EQ(outbox().sentence(), QStringLiteral("2 alerts were not delivered: No answer."));
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(NoticesTest, AHeartbeatThatIsNotTakenAndDailyMessagesWithoutAWayLeadToTheChannels) {
  addSite(1, server.url("/"));
  server.respond("/", {.body = "page"});
  server.respond("/alive", {.status = 500, .body = "no"});
  open();
  int opened = 0;
  master->setEditors({.site = {}, .settings = {}, .channels = [&] { ++opened; }});
  m& data = master->program().data();
  auto& life = find<NoticeButton>("noticeLife");
  EXPECT_FALSE(life.isVisible());
  data.setOption(kAllSites, "testAlert", "8:00");
  master->program().run().init();
  ASSERT_TRUE(waitUntil([&] { return life.isVisible(); }));
  EXPECT_EQ(life.sentence(), QStringLiteral("The daily messages cannot leave: no channel is on for all sites."));
  click("noticeLife");
  EXPECT_EQ(opened, 1);
  data.removeOption(kAllSites, "testAlert");
  data.setOption(kAllSites, "heartbeat", server.url("/alive"));
  click("btnStart");
  ASSERT_TRUE(waitUntil([&] { return life.sentence() == u"The heartbeat is not taken: answered with 500"; }));
  click("btnStop");
  EXPECT_TRUE(waitUntil([&] { return !life.isVisible(); }));
}

TEST_F(NoticesTest, ATestAlertThatHasNotArrivedIsSaidWithItsChannel) {
  open();
  master->program().data().storeChannel(
      {.name = "office", .kind = "mail", .settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}}});
  folder.execute(
      "insert into outbox (idChannel, idSite, pass, made, event, state, tries, nextTry, deadline, answer, url, cause, "
      "downSince, downFor, checks, firstError, difference, page, lastTry) values (1, "
      "0, '2026-11-20 08:00:00', '2026-11-20 08:00:00', 'daily test', 'failed', 30, '2026-11-21 08:00:00', "
      "'2026-11-21 08:00:00', '550 unknown', '', '', '', '', '', '', '', '', '')");
  master->program().run().init();
  EXPECT_TRUE(waitUntil([&] {
    return outbox().sentence() == u"The daily test alert has not arrived through office: 550 unknown";
  })) << outbox().sentence().toStdString();
  EXPECT_EQ(outbox().action(), QStringLiteral("Outbox…"));
}

TEST_F(NoticesTest, DetailsListsTheLastAlertsAndTakesTheNoticeAway) {
  open();
  for (std::int16_t id = 1; id <= 25; ++id) {
    lose(id, "Why " + std::to_string(id) + ".");
  }
  click("noticeOutbox");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  const QString box = QString::fromStdString(machine.prompts.texts()[0]);
  EXPECT_TRUE(box.startsWith(QStringLiteral("25 alerts were not delivered. The last 20 of them:\n\n")));
  EXPECT_TRUE(box.contains(QStringLiteral("\nSite 6, http://a/?x=1&y=<b>: Why 6.\n")));
  EXPECT_TRUE(box.endsWith(QStringLiteral(": Why 25.")));
  EXPECT_FALSE(box.contains(QStringLiteral("Site 5,")));
  EXPECT_FALSE(bar().isVisible());
  lose(9, "Again.");
  click("noticeOutbox");
  EXPECT_EQ(machine.prompts.texts()[1], "1 alert was not delivered.\n\nSite 9, http://a/?x=1&y=<b>: Again.");
}

TEST_F(NoticesTest, NoticesAreReachedAndUsedByTheKeys) {
  addSite(1, "http://a.test/");
  open();
  ASSERT_TRUE(says("1 site is unwatched: no run is on"));
  auto& grid = find<SiteGridView>("grid1");
  EXPECT_TRUE(grid.hasFocus()) << "a notice takes no focus by itself";
  lose(1, "No answer.");
  QTest::keyClick(&grid, Qt::Key_F6);
  EXPECT_TRUE(outbox().hasFocus());
  QTest::keyClick(&outbox(), Qt::Key_Tab);
  EXPECT_TRUE(unwatched().hasFocus());
  QTest::keyClick(&unwatched(), Qt::Key_Tab);
  EXPECT_TRUE(find<LinkButton>("Label1").hasFocus());
  QTest::keyClick(master.get(), Qt::Key_F6);
  EXPECT_TRUE(grid.hasFocus());
  QTest::keyClick(&grid, Qt::Key_F6);
  QTest::keyClick(&outbox(), Qt::Key_Space);
  EXPECT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_TRUE(grid.hasFocus()) << "the focus of a notice that goes";
  QTest::keyClick(&grid, Qt::Key_F6);
  QSignalSpy pressed(&unwatched(), &QPushButton::clicked);
  QTest::keyClick(&unwatched(), Qt::Key_Return);
  EXPECT_EQ(pressed.count(), 1);
}

TEST_F(NoticesTest, AScreenReaderHearsWhatIsToBeSeenAndWhatAClickDoes) {
  addSite(1, "http://a.test/");
  open();
  ASSERT_TRUE(says("1 site is unwatched: no run is on"));
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&unwatched());
  EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("1 site is unwatched: no run is on, Start"));
  EXPECT_EQ(spoken->role(), QAccessible::Button);
}

TEST_F(NoticesTest, ALongSentenceIsShortenedAndToldByItsTooltip) {
  addSite(1, "http://a.test/");
  open();
  ASSERT_TRUE(says("1 site is unwatched: no run is on"));
  const QSize window = master->size();
  lose(1, std::string(3000, 'x'));
  EXPECT_TRUE(waitUntil([&] { return outbox().toolTip().contains(QStringLiteral("xxx")); }));
  EXPECT_EQ(master->size(), window);
  EXPECT_LE(unwatched().geometry().right(), bar().width());
  EXPECT_EQ(unwatched().toolTip(), QString()) << "there is room for this one";
  master->resize(master->minimumSize());
  EXPECT_TRUE(waitUntil([&] { return master->size() == master->minimumSize(); }));
  EXPECT_GE(outbox().width(), outbox().minimumSizeHint().width());
  EXPECT_GE(unwatched().width(), unwatched().minimumSizeHint().width());
}

TEST_F(NoticesTest, ADarkDesktopGetsTheDarkColours) {
  addSite(1, "http://a.test/");
  open();
  ASSERT_TRUE(says("1 site is unwatched: no run is on"));
  for (const bool dark : {false, true}) {
    master->setPalette(QPalette(dark ? QColor(0x20, 0x20, 0x20) : QColor(0xF0, 0xF0, 0xF0)));
    const QImage picture = unwatched().grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() / 2, 1), noticeColours(NoticeTone::amber, dark).fill);
  }
}

TEST_F(NoticesTest, ADesktopThatTurnsDarkLeavesEveryTextReadable) {
  addSite(1, "http://a.test/");
  open();
  auto& reason = find<QLabel>("lReason");
  auto& help = find<QAbstractButton>("Label1");
  for (const bool dark : {false, true, false}) {
    QPalette palette(dark ? QColor(0x20, 0x20, 0x20) : QColor(0xF0, 0xF0, 0xF0));
    palette.setColor(QPalette::Link, Qt::blue);
    master->setPalette(palette);
    const QColor window = palette.color(QPalette::Window);
    EXPECT_GE(contrastRatio(reason.palette().color(QPalette::WindowText), window), 4.5) << dark;
    const QImage link = help.grab().toImage();
    double best = 0;
    for (int y = 0; y < link.height(); ++y) {
      for (int x = 0; x < link.width(); ++x) {
        best = std::max(best, contrastRatio(link.pixelColor(x, y), window));
      }
    }
    EXPECT_GE(best, 4.5) << dark;
  }
}

TEST(NoticeColoursTest, AreEasyToRead) {
  for (const bool dark : {false, true}) {
    const NoticeColours colours = noticeColours(NoticeTone::amber, dark);
    EXPECT_GE(contrastRatio(colours.ink, colours.fill), 7.0);
  }
}

}  // namespace
}  // namespace tarnwick
