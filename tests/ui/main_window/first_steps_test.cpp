// SPDX-License-Identifier: MIT
// From an empty list to one that is watched, in the main window on a real database.
#include "ui/main_window/first_steps.h"

#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::MasterTest;

class FirstStepsTest : public MasterTest {
 protected:
  FirstSteps& steps() { return find<FirstSteps>("firstSteps"); }
  QLineEdit& address() { return find<QLineEdit>("firstAddress"); }
  NoticeButton& notice() { return find<NoticeButton>("noticeStep"); }
  bool mayClick(const char* button) { return find<QPushButton>(button).isEnabled(); }
  void add(const QString& text) {
    address().clear();
    QTest::keyClicks(&address(), text);
    QTest::keyClick(&address(), Qt::Key_Return);
  }
};

TEST_F(FirstStepsTest, AnEmptyListInvites) {
  open();
  EXPECT_TRUE(steps().isVisible());
  EXPECT_TRUE(address().hasFocus());
  EXPECT_TRUE(mayClick("firstAdd"));
  EXPECT_FALSE(mayClick("firstStart"));
  EXPECT_FALSE(mayClick("firstHow"));
  EXPECT_FALSE(find<QWidget>("filterEdit").isVisible()) << "there is nothing to find";
}

TEST_F(FirstStepsTest, AListWithSitesDoesNot) {
  addSite(3, "http://localhost/a");
  open();
  EXPECT_FALSE(steps().isVisible());
  EXPECT_TRUE(find<SiteGridView>("grid1").hasFocus());
  EXPECT_TRUE(find<QWidget>("filterEdit").isVisible());
}

TEST_F(FirstStepsTest, AnAddressBecomesTheFirstSiteAndTheNextStepIsANotice) {
  open();
  add(QStringLiteral("  shop.example.org/prices "));
  ASSERT_EQ(rows(), 1);
  EXPECT_EQ(cell(0, 1), QStringLiteral("https://shop.example.org/prices"));
  EXPECT_FALSE(steps().isVisible());
  EXPECT_EQ(notice().sentence(), QStringLiteral("Step 2 of 3: start watching."));
  EXPECT_EQ(notice().action(), QStringLiteral("Start"));
  EXPECT_TRUE(find<SiteGridView>("grid1").hasFocus());
}

TEST_F(FirstStepsTest, TheNoticeOfTheStepsCanBePutAway) {
  open();
  add(QStringLiteral("shop.example.org"));
  notice().setFocus();
  QTest::keyClick(&notice(), Qt::Key_Escape);
  EXPECT_FALSE(notice().isVisible());
}

TEST_F(FirstStepsTest, WithARunOnThereIsNothingToStart) {
  open();
  click("btnStart");
  EXPECT_FALSE(mayClick("firstStart"));
  testing::HttpServer server;
  add(QString::fromStdString(server.url("/page")));
  EXPECT_EQ(notice().sentence(), QStringLiteral("Step 3 of 3: be told when something happens."));
}

TEST_F(FirstStepsTest, WhatIsNoAddressIsSaidUnderTheField) {
  open();
  for (const char* const text : {"", "   ", "http://", "ssh://example.org/", "exa mple.org", "C:/page.html"}) {
    add(QString::fromLatin1(text));
    EXPECT_EQ(rows(), 0) << text;
    EXPECT_FALSE(find<QLabel>("firstFault").text().isEmpty()) << text;
  }
  EXPECT_TRUE(machine.prompts.shown().empty());
  QTest::keyClicks(&address(), QStringLiteral("e"));
  EXPECT_EQ(find<QLabel>("firstFault").text(), QString());
}

TEST_F(FirstStepsTest, TheOtherStepsStartARunAndOpenTheWaysToBeTold) {
  int opened = 0;
  open();
  master->setEditors({.site = {}, .settings = {}, .channels = [&] { ++opened; }});
  testing::HttpServer server;
  add(QString::fromStdString(server.url("/page")));
  click("noticeStep");
  EXPECT_TRUE(master->program().run().running());
  EXPECT_EQ(notice().sentence(), QStringLiteral("Step 3 of 3: be told when something happens."));
  EXPECT_EQ(notice().action(), QStringLiteral("Choose How…"));
  click("noticeStep");
  EXPECT_EQ(opened, 1);
  EXPECT_FALSE(notice().isVisible()) << "all is done";
}

TEST_F(FirstStepsTest, TheyComeBackWithTheLastSiteGone) {
  addSite(3, "http://localhost/a");
  open();
  folder.execute("delete from sites");
  master->fillGrid();
  EXPECT_TRUE(steps().isVisible());
}

}  // namespace
}  // namespace tarnwick
