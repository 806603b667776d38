// SPDX-License-Identifier: MIT
// The longest list that there can be holds nobody up: what a letter typed, a caption clicked or a turned wheel costs,
// by the time that the window has the processor for.
#include <functional>
#include <iostream>
#include <string>
#include <QHeaderView>
#include <QScrollBar>

#include "ui/main_window/extra_columns.h"
#include "ui/support/longest_gap.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using testing::LongestGap;
using testing::MasterTest;
using testing::waitUntil;

class LongListTest : public MasterTest {
 protected:
  LongListTest() {
    folder.execute(
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 32767) "
        "insert into sites (idSite,url,method,active,tInterval,status,success,failure,lastChecked) "
        "select i, 'http://host' || (i * 7919 % 32767) || '.example.org/page/' || i, 'GET', 1, 10, i % 3, i * 31 % "
        "4096, "
        "i % 97, datetime('now','localtime','-' || (i * 17 % 86400) || ' seconds') from n");
    folder.execute("insert into siteTags select idSite, 'shop' from sites where idSite % 2");
    folder.execute("insert into latestChecks (idSite, at, up, whole) select idSite, 1, 1, idSite % 1000 from sites");
    folder.execute("insert into outages select idSite, 1700000000, null, 1, 'refused' from sites where status = 0");
  }
  SiteGridView& grid() { return find<SiteGridView>("grid1"); }
  FilterEdit& filter() { return find<FilterEdit>("filterEdit"); }
  void clickCaption(int column) {
    QHeaderView& header = *grid().horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(column) + 10, header.height() / 2));
  }
  /// For how long the window computes at most while `action` and what follows from it goes on.
  milliseconds longestOf(const std::function<void()>& action) {
    LongestGap gap;
    action();
    QTest::qWait(50);
    return gap.longest();
  }
};

TEST_F(LongListTest, Figures) {
  open();
  std::cerr << "idle " << longestOf([] {}).count() << "\n";
  for (const char* line :
       {"h", "ho", "host1", "down", "tag:shop", "unwatched", "host:host77.example.org", "never", ""}) {
    std::cerr << "filter " << line << " " << longestOf([&] { filter().setText(QString::fromLatin1(line)); }).count()
              << " rows " << rows() << "\n";
  }
  for (int column = 0; column < 5; ++column) {
    for (int i = 0; i < 3; ++i) {
      std::cerr << "sort " << column << " " << longestOf([&] { clickCaption(column); }).count() << "\n";
    }
  }
  std::cerr << "scroll " << longestOf([&] {
                              for (int i = 0; i < 50; ++i) {
                                grid().verticalScrollBar()->setValue(i * 600);
                                QCoreApplication::processEvents();
                              }
                            }).count()
            << "\n";
  std::cerr << "fill " << longestOf([&] { master->fillGrid(); }).count() << "\n";
  for (const ExtraColumn& column : extraColumns()) {
    find<QAction>(column.name).setChecked(true);
    std::cerr << "show " << column.name << " " << longestOf([&] { QTest::qWait(800); }).count() << "\n";
  }
  for (int extra = 0; extra < 7; ++extra) {
    grid().scrollTo(grid().model()->index(0, 5 + extra));
    std::cerr << "sort extra " << extra << " " << longestOf([&] { clickCaption(5 + extra); }).count() << "\n";
  }
}

}  // namespace
}  // namespace tarnwick
