// SPDX-License-Identifier: MIT
// The window of all histories, as somebody uses it.
#include <gmock/gmock.h>

#include <iostream>
#include <QAction>
#include <QImage>
#include <QTabWidget>
#include <QTableView>

#include "support/file_bytes.h"
#include "ui/history/history_window.h"
#include "ui/support/dialog_fixture.h"
#include "ui/support/longest_gap.h"

namespace tarnwick::testing {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class HistoryWindowTest : public DialogTest {
 protected:
  /// A day of the site that was so many hours up and so many down.
  void layDay(int idSite, int ago, int up, int down) {
    const auto day = dayFrom(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()), -ago);
    folder.execute("insert into days values (" + std::to_string(idSite) + ", " +
                   std::to_string(day.time_since_epoch().count()) + ", 86400, 24, " + std::to_string(up * 3600) + ", " +
                   std::to_string((24 - up - down) * 3600) + ", 0, 0, x'')");
    const auto at = std::to_string((day + 25h).time_since_epoch().count());
    folder.execute("insert or replace into latestChecks (idSite, at, up, until) values (" + std::to_string(idSite) +
                   ", " + at + ", 1, " + at + ")");
  }
  HistoryWindow& openAll() {
    QTest::keyClick(&find<QTableView>("grid1"), Qt::Key_H, Qt::ControlModifier);
    auto& window = opened<HistoryWindow>();
    EXPECT_TRUE(waitUntil([&] { return !count(window).endsWith(QStringLiteral("…")); }));
    return window;
  }
  static QString count(HistoryWindow& window) { return in<QLabel>(window, "historyCount").text(); }
  static QTableView& table(HistoryWindow& window) { return in<QTableView>(window, "historyAll"); }
  static std::vector<int> ids(HistoryWindow& window) {
    std::vector<int> all;
    const QAbstractItemModel& model = *table(window).model();
    for (int row = 0; row < model.rowCount(); ++row) {
      all.push_back(model.index(row, OverviewList::site).data().toInt());
    }
    return all;
  }
};

TEST_F(HistoryWindowTest, TheWorstComesFirstAndWhatIsUnknownLast) {
  for (const int id : {1, 2, 3}) {
    addSite(id, server.url("/" + std::to_string(id)));
  }
  layDay(1, 3, 23, 1);
  layDay(3, 3, 12, 12);
  open();
  HistoryWindow& window = openAll();
  EXPECT_THAT(ids(window), ElementsAre(3, 1, 2));
  const QAbstractItemModel& model = *table(window).model();
  EXPECT_EQ(model.index(0, OverviewList::uptime).data().toString(), QStringLiteral("50.00 %"));
  EXPECT_EQ(model.index(2, OverviewList::uptime).data().toString(), QStringLiteral("-"));
  EXPECT_THAT(model.index(0, OverviewList::stripe).data(Qt::AccessibleTextRole).toString().toStdString(),
              StartsWith("30 days: 50.00 % up"));
  EXPECT_EQ(count(window), QStringLiteral("3 sites"));
}

TEST_F(HistoryWindowTest, AnotherPeriodIsCounted) {
  addSite(1, server.url("/1"));
  layDay(1, 20, 12, 12);
  layDay(1, 60, 24, 0);
  open();
  HistoryWindow& window = openAll();
  auto& period = in<QComboBox>(window, "historyAllPeriod");
  const auto uptime = [&] {
    return table(window).model()->index(0, OverviewList::uptime).data().toString().toStdString();
  };
  EXPECT_EQ(uptime(), "50.00 %");
  period.setFocus();
  QTest::keyClick(&period, Qt::Key_Down);
  EXPECT_TRUE(waitUntil([&] { return uptime() == "75.00 %"; }));
  QTest::keyClick(&period, Qt::Key_Home);
  EXPECT_TRUE(waitUntil([&] { return uptime() == "-"; }));
}

TEST_F(HistoryWindowTest, TheFilterFindsByTheWordsOfTheList) {
  addSite(1, server.url("/shop"));
  addSite(2, server.url("/other"));
  open();
  HistoryWindow& window = openAll();
  auto& filter = in<QLineEdit>(window, "historyFilter");
  filter.setFocus();
  QTest::keyClicks(&filter, QStringLiteral("shop"));
  EXPECT_TRUE(waitUntil([&] { return ids(window) == std::vector<int>{1}; }));
  EXPECT_EQ(rows(), 2) << "the list itself shows all";
  filter.clear();
  QTest::keyClicks(&filter, QStringLiteral("tagg:x"));
  EXPECT_THAT(filter.toolTip().toStdString(), HasSubstr("tagg:"));
}

TEST_F(HistoryWindowTest, ARowLeadsToTheHistoryOfItsSite) {
  addSite(1, server.url("/1"));
  addSite(2, server.url("/2"));
  layDay(2, 3, 12, 12);
  open();
  HistoryWindow& window = openAll();
  table(window).setFocus();
  table(window).selectRow(0);
  QTest::keyClick(&table(window), Qt::Key_Return);
  EXPECT_EQ(find<SiteGridView>("grid1").currentSite(), 2);
  EXPECT_EQ(find<QTabWidget>("detailsTabs").currentWidget(), &find<QWidget>("history"));
}

TEST_F(HistoryWindowTest, IsSavedAsAPicture) {
  addSite(1, server.url("/shop"));
  open();
  EXPECT_FALSE(in<QPushButton>(openAll(), "historyAllSave").isEnabled()) << "there is nothing to be seen yet";
  opened<HistoryWindow>().close();
  master->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(master.get()));
  layDay(1, 3, 12, 12);
  HistoryWindow& window = openAll();
  machine.prompts.answerFile(folder.file("all.svg"));
  press(window, "historyAllSave");
  EXPECT_THAT(bytesOfFile(folder.file("all.svg")), HasSubstr("/shop"));
  machine.prompts.answerFile(folder.file("all.png"));
  press(window, "historyAllSave");
  EXPECT_GT(QImage(QString::fromStdString(folder.file("all.png"))).width(), 1000);
}

TEST_F(HistoryWindowTest, ManySitesDoNotHoldTheWindow) {
  constexpr int kSites = 2000;
  folder.execute(
      "with recursive n (i) as (select 1 union all select i + 1 from n where i < " + std::to_string(kSites) +
      ") insert into sites (idSite, url, tInterval, active) select i, 'http://site' || i || '.example/', 10, 1 "
      "from n");
  const auto today = dayOf(std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()));
  const std::string first = std::to_string((today - 720h).time_since_epoch().count());
  folder.execute(
      "with recursive d (k) as (select 0 union all select k + 1 from d where k < 29) insert into days select "
      "idSite, " +
      first + " + 86400 * k, 86400, 144, 86400 - 60 * (idSite % 7), 0, 0, 0, x'' from sites, d");
  folder.execute("insert into latestChecks (idSite, at, up, until) select idSite, " +
                 std::to_string(today.time_since_epoch().count()) + ", 1, " +
                 std::to_string(today.time_since_epoch().count()) + " from sites");
  open();
  LongestGap gap;
  HistoryWindow& window = openAll();
  EXPECT_TRUE(waitUntil([&] { return count(window) == QStringLiteral("2000 sites"); }));
  const std::int64_t held = gap.longest().count();
  std::cout << "2,000 sites held the window for " << held << " ms at most\n";
  EXPECT_LE(held, 100);
  EXPECT_EQ(ids(window).front() % 7, 6);
}

}  // namespace
}  // namespace tarnwick::testing
