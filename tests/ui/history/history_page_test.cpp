// SPDX-License-Identifier: MIT
// The tab History of the details, as somebody uses it.
#include <gmock/gmock.h>

#include <chrono>
#include <string>
#include <QComboBox>
#include <QImage>
#include <QTabWidget>
#include <QTableView>

#include "support/file_bytes.h"
#include "ui/details/details_fixture.h"
#include "ui/history/history_page.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class HistoryPageTest : public DetailsTest {
 protected:
  void keepHistory() { folder.execute("insert or replace into siteOptions values (0, 'history', 'on')"); }
  /// Six hours ago site 3 was down for an hour, and then up.
  void layHistory() {
    keepHistory();
    for (int ago = 6; ago >= 1; --ago) {
      const auto hour = std::to_string((thisHour - ago * 1h).time_since_epoch().count());
      folder.execute("insert or replace into hours values (3, " + hour + (ago == 6 ? ", 6, 0" : ", 6, 3600") +
                     ", 0, 600, 200, x'3a06')");
    }
    folder.execute("insert into outages values (3, " + std::to_string((thisHour - 6h).time_since_epoch().count()) +
                   ", " + std::to_string((thisHour - 5h).time_since_epoch().count()) + ", 6, 'it was refused')");
    folder.execute("insert or replace into latestChecks (idSite, at, up, until) values (3, " +
                   std::to_string(thisHour.time_since_epoch().count()) + ", 1, " +
                   std::to_string(thisHour.time_since_epoch().count()) + ")");
  }
  void openHistory() {
    openDetails();
    key(Qt::Key_2, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([&] { return find<QWidget>("history").isVisible(); }));
  }
  std::string label(const char* name) { return find<QLabel>(name).text().toStdString(); }
  QTableView& outages() { return find<QTableView>("historyOutages"); }
  StripeView& day() { return find<StripeView>("historyStripe1"); }
  void saveTo(const std::string& file) {
    machine.prompts.answerFile(file);
    click("historySave");
  }

  Moment thisHour = hourOf(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
};

TEST_F(HistoryPageTest, ShowsStripesFiguresAndOutages) {
  layHistory();
  openHistory();
  EXPECT_EQ(label("historyStripe1Uptime"), "83.33 %") << "five of six hours that are known";
  EXPECT_EQ(label("historyStripe7Uptime"), "83.33 %");
  EXPECT_THAT(day().accessibleName().toStdString(), StartsWith("24 hours: 83.33 % up, 1 outage"));
  ASSERT_EQ(outages().model()->rowCount(), 1);
  EXPECT_EQ(outages().model()->index(0, 1).data().toString(), QStringLiteral("1 h"));
  EXPECT_EQ(outages().model()->index(0, 2).data().toString(), QStringLiteral("it was refused"));
}

TEST_F(HistoryPageTest, OnePeriodCanBeShownWithItsAnswerTimes) {
  layHistory();
  openHistory();
  auto& period = find<QComboBox>("historyPeriod");
  period.setFocus();
  QTest::keyClick(&period, Qt::Key_Down);
  EXPECT_EQ(period.currentText(), QStringLiteral("24 hours"));
  EXPECT_TRUE(day().isVisible());
  EXPECT_FALSE(find<QWidget>("historyStripe7").isVisible());
  auto& latency = find<QWidget>("historyLatency");
  EXPECT_TRUE(latency.isVisible());
  EXPECT_THAT(latency.accessibleName().toStdString(), StartsWith("Answer times: median "));
  EXPECT_THAT(label("historyFigures"), HasSubstr("slowest 200 ms"));
}

TEST_F(HistoryPageTest, KeysGoFromCellToCellAndAClickLooksForItsOutages) {
  layHistory();
  openHistory();
  day().setFocus();
  QTest::keyClick(&day(), Qt::Key_Left);
  EXPECT_THAT(day().accessibleDescription().toStdString(), HasSubstr("100.00 % up"));
  QTest::keyClick(&day(), Qt::Key_Return);
  EXPECT_EQ(outages().model()->rowCount(), 0) << "there was none in that hour";
  for (int step = 0; step < 5; ++step) {
    QTest::keyClick(&day(), Qt::Key_Left);
  }
  EXPECT_THAT(day().accessibleDescription().toStdString(), HasSubstr("it was refused"));
  const auto place = cellArea(*day().stripe(), day().rect(), day().stripe()->view.cells.size() - 7).center();
  QTest::mouseClick(&day(), Qt::LeftButton, {}, place.toPoint());
  EXPECT_EQ(outages().model()->rowCount(), 1);
}

TEST_F(HistoryPageTest, ThePageOfAFailureIsOneKeyAway) {
  keepHistory();
  change();
  change("<p>Kettle</p>\n<b>31.00</b>\n<p>end</p>\n");
  openHistory();
  ASSERT_TRUE(waitUntil([&] { return outages().model()->rowCount() == 1; }));
  outages().setFocus();
  outages().selectRow(0);
  QTest::keyClick(&outages(), Qt::Key_Return);
  EXPECT_EQ(details().tabs().currentIndex(), 0);
  auto& view = in<DifferenceView>(details(), "difference");
  ASSERT_TRUE(waitUntil([&] { return view.hasPages() && !view.isComparing() && view.pages().after == kNew; }))
      << "that of the first failure, not the latest one";
  EXPECT_THAT(label("differenceAfter"), StartsWith("+ Check of "));
  key(Qt::Key_3, Qt::ControlModifier);
  key(Qt::Key_1, Qt::ControlModifier);
  EXPECT_TRUE(waitUntil([&] { return view.pages().after.find("31.00") != std::string::npos; }));
}

TEST_F(HistoryPageTest, ThePageOfARowOfTheLogIsShownToo) {
  change();
  change("<p>Kettle</p>\n<b>31.00</b>\n<p>end</p>\n");
  openDetails();
  key(Qt::Key_3, Qt::ControlModifier);
  auto& log = find<QTableView>("detailsLog");
  ASSERT_TRUE(waitUntil([&] { return log.model()->rowCount() == 3; }));
  log.setFocus();
  log.selectRow(0);
  QTest::keyClick(&log, Qt::Key_Return);
  EXPECT_EQ(details().tabs().currentIndex(), 0);
  EXPECT_TRUE(waitUntil([&] { return label("differenceAfter").starts_with("+ Check of "); }));
}

TEST_F(HistoryPageTest, AListThatKeepsNoneOffersTo) {
  openHistory();
  ASSERT_TRUE(waitUntil([&] { return find<QWidget>("historyKeep").isVisible(); }));
  EXPECT_FALSE(find<QWidget>("historySave").isEnabled());
  click("historyKeep");
  EXPECT_EQ(folder.queryText("select value from siteOptions where idSite = 0 and name = 'history'"), "on");
  EXPECT_FALSE(find<QWidget>("historyKeep").isVisible());
  EXPECT_TRUE(day().isVisible());
}

TEST_F(HistoryPageTest, StripesAreSavedAsAPicture) {
  layHistory();
  openHistory();
  ASSERT_TRUE(waitUntil([&] { return find<QWidget>("historySave").isEnabled(); }));
  saveTo(folder.file("site.svg"));
  EXPECT_THAT(bytesOfFile(folder.file("site.svg")), StartsWith("<svg"));
  EXPECT_THAT(bytesOfFile(folder.file("site.svg")), HasSubstr("/shop"));
  saveTo(folder.file("site.png"));
  const QImage picture(QString::fromStdString(folder.file("site.png")));
  EXPECT_GT(picture.width(), 1000);
  saveTo(folder.file("site.txt"));
  EXPECT_THAT(machine.prompts.shown().back().text, HasSubstr("ends neither in .svg nor in .png"));
  EXPECT_FALSE(machine.services().files.exists(folder.file("site.txt")));
  machine.prompts.answerConfirm(false);
  const std::string before = bytesOfFile(folder.file("site.svg"));
  folder.execute("update sites set url = 'http://other.example/' where idSite = 3");
  saveTo(folder.file("site.svg"));
  EXPECT_EQ(bytesOfFile(folder.file("site.svg")), before);
}

}  // namespace
}  // namespace tarnwick::testing
