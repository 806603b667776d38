// SPDX-License-Identifier: MIT
// The further columns of the list: hidden until somebody wants them, by menu, mouse and keyboard, and as they were
// left.
#include "ui/main_window/extra_columns.h"

#include <string>
#include <vector>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>

#include "ui/main_window/extra_words.h"
#include "ui/support/master_fixture.h"
#include "ui/support/played_habits.h"

namespace tarnwick {
namespace {

using testing::MasterTest;
using testing::waitUntil;

constexpr int kFirst = SiteGridModel::timeColumn + 1;
constexpr std::size_t kAll = 7;

class ExtraColumnsTest : public MasterTest {
 protected:
  void openThree() {
    addSite(3, "http://shop.example.org/", ",status,success,failure,lastChecked,content_compare,content_runtime",
            ",0,4,50,datetime('now','localtime','-190 seconds'),'<p>' || char(10) || 'a','<p>' || char(10) || 'b'");
    addSite(9, "http://example.org/", ",status,lastChecked", ",1,'2024-02-01 04:05:06'");
    addSite(12, "http://localhost/never");
    folder.execute(
        "insert into latestChecks (idSite, at, up, whole) values (3, 1700000000, 0, 2400), (9, 1700000000, 1, 182)");
    folder.execute(
        "insert into outages values (3, strftime('%s','now') - 200, null, 1, 'the page differs from the baseline'), "
        "(9, 1690000000, 1690000100, 1, 'refused')");
    folder.execute("insert into siteTags values (3, 'shop'), (3, 'Live'), (12, 'new')");
    open();
  }
  SiteGridView& grid() { return find<SiteGridView>("grid1"); }
  QAction& entry(const char* name) { return find<QAction>(name); }
  void show(const char* name) { entry(name).setChecked(true); }
  void showAll() {
    for (const ExtraColumn& column : extraColumns()) {
      show(column.name);
    }
  }
  /// The text of a further column in the first rows.
  std::vector<std::string> texts(std::size_t extra) {
    std::vector<std::string> texts;
    for (int row = 0; row < rows(); ++row) {
      texts.push_back(cell(row, kFirst + static_cast<int>(extra)).toStdString());
    }
    return texts;
  }
  std::string toolTip(int row, std::size_t extra) {
    return grid().model()->index(row, kFirst + static_cast<int>(extra)).data(Qt::ToolTipRole).toString().toStdString();
  }
  std::string shownCaptions() {
    QStringList captions;
    for (int column = 0; column < grid().model()->columnCount(); ++column) {
      if (!grid().isColumnHidden(column)) {
        captions << grid().model()->headerData(column, Qt::Horizontal).toString();
      }
    }
    return captions.join(QStringLiteral("|")).toStdString();
  }
  void clickCaption(std::size_t extra) {
    const int column = kFirst + static_cast<int>(extra);
    QHeaderView& header = *grid().horizontalHeader();
    grid().scrollTo(grid().model()->index(0, column));
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      QPoint(header.sectionViewportPosition(column) + 10, header.height() / 2));
  }
  std::string shown() {
    std::string ids;
    for (int row = 0; row < rows(); ++row) {
      ids += (row == 0 ? "" : " ") + cell(row, 0).toStdString();
    }
    return ids;
  }
};

TEST_F(ExtraColumnsTest, AreHiddenUntilTheyAreChosen) {
  openThree();
  EXPECT_EQ(shownCaptions(), "ID|URL|Up|Down|Time Of Last Test");
  EXPECT_EQ(extraColumns().size(), kAll);
  show("columnLatency");
  show("columnState");
  EXPECT_EQ(shownCaptions(), "ID|URL|Up|Down|Time Of Last Test|State|Latency");
  entry("originalColumns").trigger();
  EXPECT_EQ(shownCaptions(), "ID|URL|Up|Down|Time Of Last Test");
  EXPECT_FALSE(entry("columnState").isChecked());
}

TEST_F(ExtraColumnsTest, TheOriginalColumnsStayAsTheyAreWhenTheOthersHaveGoneAgain) {
  openThree();
  const auto widths = [&] {
    std::vector<int> all;
    for (int column = 0; column < kFirst; ++column) {
      all.push_back(grid().columnWidth(column));
    }
    return all;
  };
  const auto before = widths();
  EXPECT_EQ(grid().horizontalScrollBar()->maximum(), 0);
  showAll();
  EXPECT_EQ(grid().columnWidth(SiteGridModel::urlColumn), 200);
  EXPECT_TRUE(waitUntil([&] { return grid().horizontalScrollBar()->maximum() > 0; }))
      << "there is more than the window has room for";
  entry("originalColumns").trigger();
  EXPECT_EQ(widths(), before);
  EXPECT_EQ(grid().horizontalHeader()->sectionResizeMode(SiteGridModel::urlColumn), QHeaderView::Stretch);
}

TEST_F(ExtraColumnsTest, TheAddressesTakeWhatAWiderWindowGives) {
  openThree();
  show("columnTags");
  show("columnLatency");
  master->resize(1600, 600);
  EXPECT_TRUE(waitUntil([&] { return grid().columnWidth(SiteGridModel::urlColumn) > 600; }));
  EXPECT_EQ(grid().horizontalScrollBar()->maximum(), 0);
  master->resize(700, 600);
  EXPECT_TRUE(waitUntil([&] { return grid().columnWidth(SiteGridModel::urlColumn) == 200; }));
}

TEST_F(ExtraColumnsTest, TellHowTheSitesStand) {
  openThree();
  showAll();
  using Texts = std::vector<std::string>;
  ASSERT_TRUE(waitUntil([&] { return texts(1).front() == "line 2 differs"; })) << texts(1).front();
  EXPECT_EQ(texts(1), (Texts{"line 2 differs", "as the baseline", ""}));
  EXPECT_TRUE(texts(0)[0].starts_with("changed, since ")) << texts(0)[0];
  EXPECT_TRUE(texts(0)[1].starts_with("up, since 2023-07-2")) << texts(0)[1];
  EXPECT_EQ(texts(0)[2], "never");
  EXPECT_EQ(texts(2)[0], "3 min ago");
  EXPECT_EQ(texts(2)[2], "never");
  EXPECT_EQ(texts(3), (Texts{"2400 ms", "182 ms", ""}));
  EXPECT_EQ(texts(4), (Texts{"no run is on", "no run is on", "no run is on"}));
  EXPECT_EQ(texts(5), (Texts{"Live, shop", "", "new"}));
  EXPECT_EQ(toolTip(1, 2), "2024-02-01 04:05:06");
}

TEST_F(ExtraColumnsTest, FollowTheChecksAndTheTags) {
  openThree();
  show("columnLastResult");
  show("columnLatency");
  show("columnTags");
  ASSERT_TRUE(waitUntil([&] { return texts(1).front() == "line 2 differs" && texts(5).back() == "new"; }));
  folder.execute("update latestChecks set whole = 77 where idSite = 9");
  folder.execute(
      "update sites set status = 0, lastChecked = '2024-02-01 05:05:06', content_runtime = 'c' where idSite = 9");
  master->updateGridRow(9, false);
  EXPECT_TRUE(waitUntil([&] { return texts(3)[1] == "77 ms"; }));
  EXPECT_EQ(texts(1)[1], "the page differs");
  folder.execute("update siteTags set tag = 'other' where idSite = 12");
  master->fillGrid();
  EXPECT_TRUE(waitUntil([&] { return texts(5).back() == "other"; }));
}

TEST_F(ExtraColumnsTest, AreSortedByWhatTheyMeanWithTheUnknownLast) {
  openThree();
  showAll();
  ASSERT_TRUE(waitUntil([&] { return texts(5).back() == "new"; }));
  struct Sorted {
    std::size_t column;
    const char* up;
    const char* down;
  };
  for (const Sorted& sorted :
       {Sorted{0, "3 9 12", "12 9 3"}, Sorted{1, "3 9 12", "9 3 12"}, Sorted{2, "12 9 3", "3 9 12"},
        Sorted{3, "9 3 12", "3 9 12"}, Sorted{4, "9 3 12", "3 9 12"}, Sorted{5, "3 12 9", "12 3 9"}}) {
    SCOPED_TRACE(sorted.column);
    clickCaption(sorted.column);
    EXPECT_EQ(shown(), sorted.up);
    EXPECT_TRUE(find<QPushButton>("sortChip").text().contains(QLatin1String(extraColumns()[sorted.column].header)));
    clickCaption(sorted.column);
    EXPECT_EQ(shown(), sorted.down);
    clickCaption(sorted.column);
    EXPECT_EQ(shown(), "3 9 12");
  }
  clickCaption(3);
  entry("columnLatency").setChecked(false);
  EXPECT_FALSE(find<QPushButton>("sortChip").isVisible()) << "nobody sees by what";
}

TEST_F(ExtraColumnsTest, AClickOnThemOnlyChoosesTheRow) {
  openThree();
  std::vector<int> opened;
  master->setEditors(
      {.site = {.open = [&](std::int16_t idSite) { opened.push_back(idSite); }, .openNew = {}}, .settings = {}});
  show("columnLatency");
  const auto click = [&](int column) {
    const QModelIndex cell = grid().model()->index(1, column);
    grid().scrollTo(cell);
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().visualRect(cell).center());
  };
  click(kFirst + 3);
  EXPECT_EQ(grid().currentSite(), std::int16_t{9});
  EXPECT_TRUE(opened.empty());
  click(SiteGridModel::urlColumn);
  EXPECT_EQ(opened, std::vector<int>{9});
}

TEST_F(ExtraColumnsTest, ARightClickOnTheCaptionsOffersThem) {
  openThree();
  QWidget& captions = *grid().horizontalHeader()->viewport();
  QContextMenuEvent wish(QContextMenuEvent::Mouse, QPoint(20, 5), captions.mapToGlobal(QPoint(20, 5)));
  QCoreApplication::sendEvent(&captions, &wish);
  auto& menu = find<QMenu>("columns");
  ASSERT_TRUE(menu.isVisible());
  QTest::keyClick(&menu, Qt::Key_Down);
  QTest::keyClick(&menu, Qt::Key_Return);
  EXPECT_TRUE(entry("columnState").isChecked());
  EXPECT_TRUE(grid().isExtraColumnShown(0));
}

TEST_F(ExtraColumnsTest, StayAsTheyWereLeft) {
  testing::PlayedHabits habits;
  habits.numbers["listColumns"] = 1 << 3;
  openThree();
  master->rememberIn(habits);
  EXPECT_TRUE(grid().isExtraColumnShown(3));
  EXPECT_FALSE(grid().isExtraColumnShown(0));
  show("columnState");
  EXPECT_EQ(habits.numbers["listColumns"], 1 << 3) << "half a second later";
  EXPECT_TRUE(waitUntil([&] { return habits.numbers["listColumns"] == (1 << 3 | 1); }));
}

TEST_F(ExtraColumnsTest, WhatIsCopiedOfThemDoesNotGrowOlder) {
  openThree();
  show("columnLastCheck");
  show("columnTags");
  ASSERT_TRUE(waitUntil([&] { return texts(5).back() == "new"; }));
  grid().selectSite(12);
  grid().selectSites({9, 12});
  QTest::keyClick(&grid(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            QStringLiteral("9\thttp://example.org/\t\t\t2024-02-01 04:05:06\t2024-02-01 04:05:06\t\n"
                           "12\thttp://localhost/never\t\t\t\t\tnew"));
}

TEST(ExtraColumnTest, TellsWhenACertificateEndsAndWhoHasIssuedIt) {
  const ExtraColumn& column = extraColumns()[6];
  const LocalTime now = *parseDateTime("2026-11-23 12:00:00");
  SiteRow row;
  row.cells.resize(5);
  ListedFacts facts;
  const auto cell = [&] { return ExtraCell{.row = row, .facts = facts, .now = now}; };
  EXPECT_EQ(column.text(cell()), QString());
  EXPECT_EQ(column.toolTip(cell()), QString());
  EXPECT_FALSE(column.key(cell()).isKnown);
  facts.certificate = {momentAt(now + std::chrono::days(12)), "Example CA"};
  EXPECT_EQ(column.text(cell()), QStringLiteral("in 12 days"));
  EXPECT_EQ(column.toolTip(cell()), QStringLiteral("ends 2026-12-05 12:00:00, issued by Example CA"));
  const SortKey later = column.key(cell());
  facts.certificate = {momentAt(now - std::chrono::days(3)), ""};
  EXPECT_EQ(column.text(cell()), QStringLiteral("3 days ago"));
  EXPECT_EQ(column.toolTip(cell()), QStringLiteral("ends 2026-11-20 12:00:00"));
  EXPECT_LT(column.key(cell()), later);
}

TEST(ExtraColumnTest, TellsWhenTheNextCheckIsDue) {
  const ExtraColumn& column = extraColumns()[kNextCheckColumn];
  SiteRow row{.interval = 10};
  row.cells = {"3", "http://localhost", "", "", "2026-11-23 12:00:30"};
  row.shade = SiteRow::Shade::up;
  const ListedFacts facts;
  ExtraCell cell{.row = row, .facts = facts, .now = *parseDateTime("2026-11-23 12:04:00"), .runIsOn = true};
  EXPECT_EQ(column.text(cell), QStringLiteral("in 6 min"));
  EXPECT_EQ(column.toolTip(cell), QStringLiteral("2026-11-23 12:10:00"));
  cell.now += std::chrono::minutes(6);
  EXPECT_EQ(column.text(cell), QStringLiteral("now"));
  row.alarm.rests = true;
  EXPECT_EQ(column.text(cell), QStringLiteral("after quiet hours"));
  row.cells[SiteGridModel::timeColumn] = "";
  EXPECT_EQ(column.text(cell), QStringLiteral("at the next Start"));
  row.shade = SiteRow::Shade::inactive;
  EXPECT_EQ(column.text(cell), QString());
}

TEST(ExtraColumnTest, TellsOfAnUnconfirmedFailureWhichOneItIs) {
  const ExtraColumn& column = extraColumns()[0];
  SiteRow row;
  row.cells.resize(5);
  row.shade = SiteRow::Shade::down;
  row.alarm = {.state = AlarmView::State::unconfirmed,
               .failures = 1,
               .confirm = 3,
               .since = parseDateTime("2026-11-23 04:24:41")};
  const ListedFacts facts;
  ExtraCell cell{.row = row, .facts = facts, .now = *parseDateTime("2026-11-23 12:04:00")};
  EXPECT_EQ(column.text(cell), QStringLiteral("down, 1 of 3, since 04:24"));
  EXPECT_EQ(column.toolTip(cell), QStringLiteral("down, 1 of 3, since 2026-11-23 04:24:41"));
}

TEST(ExtraWordsTest, TellOfAgesAsPeopleDo) {
  const LocalTime now = *parseDateTime("2026-11-23 12:00:00");
  const auto ago = [&](std::chrono::seconds age) { return agoWords(now - age, now).toStdString(); };
  using namespace std::chrono_literals;
  EXPECT_EQ(ago(-10s), "just now") << "a clock may be set back";
  EXPECT_EQ(ago(59s), "just now");
  EXPECT_EQ(ago(60s), "1 min ago");
  EXPECT_EQ(ago(3599s), "59 min ago");
  EXPECT_EQ(ago(1h), "1 h ago");
  EXPECT_EQ(ago(47h), "47 h ago");
  EXPECT_EQ(ago(48h), "2 days ago");
  const auto in = [&](std::chrono::seconds left) { return inWords(now + left, now).toStdString(); };
  EXPECT_EQ(in(0s), "now");
  EXPECT_EQ(in(-1h), "now");
  EXPECT_EQ(in(1s), "in 1 min");
  EXPECT_EQ(in(61s), "in 2 min");
  EXPECT_EQ(in(1h), "in 1 h");
  EXPECT_EQ(in(12 * 24h), "in 12 days");
  EXPECT_EQ(inWords(now - 1h, now, Past::told).toStdString(), "1 h ago");
  EXPECT_EQ(sinceWords(now - 1h, now).toStdString(), "11:00");
  EXPECT_EQ(sinceWords(now - 24h, now).toStdString(), "2026-11-22");
}

}  // namespace
}  // namespace tarnwick
