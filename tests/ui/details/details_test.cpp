// SPDX-License-Identifier: MIT
// What has changed at a site, looked at and settled in the real window, with a real list.
#include <gmock/gmock.h>

#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

#include "ui/details/change_window.h"
#include "ui/details/details_fixture.h"
#include "ui/details/same_changes.h"
#include "ui/support/longest_gap.h"
#include "ui/support/patience.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST_F(DetailsTest, F4ShowsWhatHasChangedAndClosesIt) {
  change();
  EXPECT_FALSE(details().isVisible());
  openDetails();
  EXPECT_TRUE(details().isVisible());
  EXPECT_THAT(headline(), StartsWith("Site 3 changed: line 2"));
  EXPECT_TRUE(waitUntil([&] { return shownText(details()) == "- <b>24.00</b>\n+ <b>29.00</b>"; }));
  EXPECT_EQ(spoken(in<DifferenceView>(details(), "difference")), QStringLiteral("What changed in site 3: 1 change"));
  key(Qt::Key_F4);
  EXPECT_FALSE(details().isVisible());
}

TEST_F(DetailsTest, TheyFollowTheCurrentRow) {
  change();
  openDetails();
  key(Qt::Key_Down);
  EXPECT_TRUE(waitUntil([&] { return headline() == "Site 4 is as it should be."; }));
  EXPECT_FALSE(find<QPushButton>("btnAccept").isEnabled());
  EXPECT_EQ(find<QPushButton>("btnAccept").toolTip(), QStringLiteral("There is no changed page to accept"));
}

TEST_F(DetailsTest, ExactlyWhatIsShownIsAccepted) {
  change();
  openDetails();
  clickOn(find<QPushButton>("btnAccept"));
  auto& dialog = opened<AcceptDialog>();
  ASSERT_TRUE(waitUntil([&] { return in<DifferenceView>(dialog, "difference").difference() != nullptr; }));
  EXPECT_EQ(in<QLabel>(dialog, "acceptSentence").text(),
            QStringLiteral("This page becomes the baseline of site 3: 38 bytes instead of 38 bytes, 1 change."));
  EXPECT_FALSE(in<QLabel>(dialog, "acceptDoubt").isVisible());
  // Another one comes while somebody reads.
  change(kNew + "later\n");
  press(dialog, "acceptAccept");
  EXPECT_EQ(column(3, "content_compare"), kNew);
  EXPECT_EQ(shown<AcceptDialog>(), nullptr);
}

TEST_F(DetailsTest, AnAcceptedPageIsGivenBackByTheMenu) {
  change();
  press(openAccept(), "acceptAccept");
  ASSERT_EQ(column(3, "content_compare"), kNew);
  for (QAction* action : find<QMenu>("rowMenu").actions()) {
    if (action->objectName() == QStringLiteral("undoAccept")) {
      action->trigger();
    }
  }
  EXPECT_EQ(column(3, "content_compare"), kOld);
}

TEST_F(DetailsTest, TheNoticeGivesTheBaselineBack) {
  change();
  press(openAccept(), "acceptAccept");
  auto& notice = find<NoticeButton>("noticeUndo");
  ASSERT_TRUE(waitUntil([&] { return notice.isVisible(); }));
  EXPECT_EQ(notice.sentence(), QStringLiteral("Site 3: the new page is the baseline."));
  clickOn(notice);
  EXPECT_EQ(column(3, "content_compare"), kOld);
  EXPECT_FALSE(notice.isVisible());
}

TEST_F(DetailsTest, APageBesideTheBaselineIsGoodToo) {
  change();
  auto& dialog = openAccept();
  in<QRadioButton>(dialog, "acceptBeside").click();
  press(dialog, "acceptAccept");
  EXPECT_EQ(column(3, "content_compare"), kOld);
  check();
  EXPECT_EQ(column(3, "status"), "1");
}

TEST_F(DetailsTest, OfADoubtfulPageEnterTakesNothing) {
  change("<html><head><title>404 Not Found</title></head></html>\n");
  auto& dialog = openAccept();
  EXPECT_TRUE(in<QLabel>(dialog, "acceptDoubt").isVisible());
  EXPECT_THAT(in<QLabel>(dialog, "acceptDoubt").text().toStdString(), HasSubstr("looks like an error page (404"));
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_EQ(shown<AcceptDialog>(), nullptr);
  EXPECT_EQ(column(3, "content_compare"), kOld);
}

TEST_F(DetailsTest, AWrongPageIsAcknowledgedAndToldOfAgain) {
  change();
  openDetails();
  ASSERT_TRUE(waitUntil([&] { return find<QPushButton>("btnAcknowledge").isEnabled(); }));
  clickOn(find<QPushButton>("btnAcknowledge"));
  EXPECT_TRUE(waitUntil([&] { return caption<QPushButton>(details(), "btnAcknowledge") == "Alarm Again"; }));
  EXPECT_EQ(folder.queryText("select count(*) from acknowledged"), "1");
  EXPECT_THAT(headline(), StartsWith("Site 3 changed, which is known"));
  clickOn(find<QPushButton>("btnAcknowledge"));
  EXPECT_TRUE(waitUntil([&] { return caption<QPushButton>(details(), "btnAcknowledge") == "Acknowledge"; }));
  EXPECT_EQ(folder.queryText("select count(*) from acknowledged"), "0");
}

TEST_F(DetailsTest, AFetchThatFailedShowsItsTextAndOffersToCheckNow) {
  server.respond("/shop", {.drop = true});
  check();
  openDetails();
  EXPECT_THAT(headline(), StartsWith("Site 3 does not answer: "));
  EXPECT_EQ(caption<QPushButton>(details(), "btnAccept"), "Check Now");
  server.respond("/shop", {.body = kOld});
  clickOn(find<QPushButton>("btnAccept"));
  EXPECT_TRUE(waitUntil([&] { return headline() == "Site 3 is as it should be."; }));
}

TEST_F(DetailsTest, ALongLogOfOtherSitesHoldsNobodyUp) {
  change();
  folder.execute(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 300000) insert into log (idSite, url, "
      "status, errCode, errDescription) select 4, 'http://other/', 1, 0, '' from n");
  openDetails();
  LongestGap gap;
  find<QTabWidget>("detailsTabs").setCurrentIndex(2);
  const QAbstractItemModel& log = *find<QTableView>("detailsLog").model();
  EXPECT_TRUE(waitUntil([&] { return log.rowCount() == 2; }));
  EXPECT_LT(gap.longest(), patience(std::chrono::milliseconds(30)));
}

TEST_F(DetailsTest, TheLogStandsBesideIt) {
  change();
  openDetails();
  find<QTabWidget>("detailsTabs").setCurrentIndex(2);
  const QAbstractItemModel& log = *find<QTableView>("detailsLog").model();
  ASSERT_EQ(log.rowCount(), 2);
  EXPECT_EQ(log.index(0, LogList::result).data().toString(), QStringLiteral("down"));
  EXPECT_EQ(log.index(1, LogList::result).data().toString(), QStringLiteral("up"));
  EXPECT_FALSE(find<QWidget>("differenceCorner").isVisible());
}

TEST_F(DetailsTest, OpensInAWindowOfItsOwn) {
  change();
  openDetails();
  clickOn(find<QToolButton>("differenceWindow"));
  auto& window = opened<ChangeWindow>();
  ASSERT_TRUE(waitUntil([&] { return shownText(window) == "- <b>24.00</b>\n+ <b>29.00</b>"; }));
  press(window, "changeAccept");
  press(opened<AcceptDialog>(), "acceptAccept");
  EXPECT_TRUE(waitUntil(
      [&] { return in<QLabel>(window, "changeHeadline").text() == QStringLiteral("Site 3 is as it should be."); }));
  press(window, "changeClose");
  EXPECT_EQ(shown<ChangeWindow>(), nullptr);
}

TEST_F(DetailsTest, TheReasonInTheStatusRowOpensThemAndGoesMeanwhile) {
  change();
  auto& reason = find<QLabel>("lReason");
  ASSERT_TRUE(waitUntil([&] { return reason.isVisible(); }));
  EXPECT_TRUE(reason.text().endsWith(QStringLiteral("(F4)")));
  QTest::mouseClick(&reason, Qt::LeftButton);
  EXPECT_TRUE(details().isVisible());
  EXPECT_FALSE(reason.isVisible());
  clickOn(find<QToolButton>("detailsClose"));
  EXPECT_FALSE(details().isVisible());
  EXPECT_TRUE(waitUntil([&] { return reason.isVisible(); }));
}

TEST_F(DetailsTest, TheSameChangeOnManySitesIsAcceptedAtOnce) {
  addSite(5, server.url("/third"));
  server.respond("/third", {.body = kOld});
  master->program().run().init();
  master->program().checkNow({5});
  for (const char* path : {"/shop", "/other"}) {
    server.respond(path, {.body = kNew});
  }
  server.respond("/third", {.body = "<p>another</p>\n"});
  master->program().checkNow({3, 4, 5});
  find<QAction>("sameChanges").trigger();
  auto& dialog = opened<SameChanges>();
  auto& list = in<QListWidget>(dialog, "sameGroups");
  ASSERT_TRUE(waitUntil([&] { return list.count() == 2; }));
  EXPECT_THAT(list.item(0)->text().toStdString(), StartsWith("2 sites: "));
  EXPECT_THAT(list.item(0)->text().toStdString(), HasSubstr("became"));
  EXPECT_THAT(list.item(1)->text().toStdString(), StartsWith("Site 5: "));
  EXPECT_TRUE(waitUntil([&] { return shownText(dialog) == "- <b>24.00</b>\n+ <b>29.00</b>"; }));
  EXPECT_FALSE(in<QPushButton>(dialog, "sameAccept").isEnabled());
  list.item(0)->setCheckState(Qt::Checked);
  EXPECT_EQ(caption<QPushButton>(dialog, "sameAccept"), "Accept 2…");
  machine.prompts.answerConfirm(false);
  press(dialog, "sameAccept");
  EXPECT_EQ(column(3, "content_compare"), kOld);
  machine.prompts.answerConfirm(true);
  press(dialog, "sameAccept");
  EXPECT_TRUE(waitUntil([&] { return list.count() == 1; }));
  EXPECT_EQ(column(3, "content_compare"), kNew);
  EXPECT_EQ(column(4, "content_compare"), kNew);
  EXPECT_EQ(column(5, "content_compare"), kOld);
  press(dialog, "sameClose");
  master->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(column(3, "content_compare"), kOld);
  EXPECT_EQ(column(4, "content_compare"), kOld);
}

TEST_F(DetailsTest, ASiteWithoutAChangedPageHasNothingToAccept) {
  key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(shown<AcceptDialog>(), nullptr);
  EXPECT_THAT(machine.prompts.texts(), ::testing::ElementsAre("Site 3 is as it should be."));
}

}  // namespace
}  // namespace tarnwick::testing
