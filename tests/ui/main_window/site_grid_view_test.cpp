// SPDX-License-Identifier: MIT
#include "ui/main_window/site_grid_view.h"

#include <gtest/gtest.h>

#include <chrono>
#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "ui/controls/colour_text.h"
#include "ui/support/site_table.h"

namespace tarnwick {
namespace {

using testing::SiteCells;
using testing::siteTable;

class SiteGridViewTest : public ::testing::Test {
 protected:
  SiteGridViewTest() {
    grid.resize(800, 300);
    grid.show();
  }

  void show(int sites) {
    std::vector<SiteCells> cells;
    for (int id = 1; id <= sites; ++id) {
      cells.push_back({.id = std::to_string(id), .status = "True"});
    }
    grid.setSites(siteTable(cells));
  }
  QPoint cellCentre(int row, int column) const { return grid.visualRect(grid.model()->index(row, column)).center(); }
  QString toolTipAt(QPoint position) {
    QTest::mouseMove(grid.viewport(), position);
    return grid.toolTip();
  }

  SiteGridModel model;
  SiteGridView grid{model};
};

TEST_F(SiteGridViewTest, TheToolTipFollowsTheColumnUnderTheMouse) {
  show(3);
  EXPECT_EQ(toolTipAt(cellCentre(0, 0)), QString());
  EXPECT_EQ(toolTipAt(cellCentre(0, 2)), QStringLiteral("Method ( get,post )"));
  EXPECT_EQ(toolTipAt(cellCentre(1, 3)), QStringLiteral("Active ( true,false )"));
  EXPECT_EQ(toolTipAt(cellCentre(2, 4)), QStringLiteral("Minutes Until Next Check"));
  EXPECT_EQ(toolTipAt(cellCentre(2, 1)), QString());
}

TEST_F(SiteGridViewTest, TheToolTipCountsTheHeaderAndTheEmptyPartOfAColumnToo) {
  show(1);
  const QPoint below(cellCentre(0, 2).x(), grid.viewport()->height() - 5);
  EXPECT_EQ(toolTipAt(below), QStringLiteral("Method ( get,post )"));
  QTest::mouseMove(grid.horizontalHeader()->viewport(), QPoint(cellCentre(0, 3).x(), 5));
  EXPECT_EQ(grid.toolTip(), QStringLiteral("Active ( true,false )"));
}

TEST_F(SiteGridViewTest, RightOfTheLastColumnThereIsNoToolTip) {
  EXPECT_EQ(grid.columnToolTip(5), QStringLiteral("Date Last Checked"));
  show(1);
  grid.horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid.horizontalHeader()->resizeSection(SiteGridModel::urlColumn, 100);
  EXPECT_EQ(toolTipAt(QPoint(grid.viewport()->width() - 3, 5)), QString());
}

TEST_F(SiteGridViewTest, TheUrlColumnTakesTheRoomThatAWiderWindowGives) {
  show(1);
  const int before = grid.columnWidth(SiteGridModel::urlColumn);
  const int time = grid.columnWidth(SiteGridModel::timeColumn);
  grid.resize(1100, 300);
  EXPECT_EQ(grid.columnWidth(SiteGridModel::urlColumn), before + 300);
  EXPECT_EQ(grid.columnWidth(SiteGridModel::timeColumn), time);
  EXPECT_EQ(grid.columnWidth(SiteGridModel::idColumn), time);
}

TEST_F(SiteGridViewTest, AClickChoosesItsRow) {
  show(3);
  QSignalSpy chosen(&grid, &SiteGridView::rowChosen);
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCentre(1, 1));
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 1);
  EXPECT_EQ(grid.currentSite(), std::int16_t{2});
}

TEST_F(SiteGridViewTest, AClickBesideTheRowsChoosesNothing) {
  show(1);
  QSignalSpy chosen(&grid, &SiteGridView::rowChosen);
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, QPoint(20, grid.viewport()->height() - 5));
  QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 5));
  EXPECT_EQ(chosen.size(), 0);
}

TEST_F(SiteGridViewTest, ArrowsMoveAndEnterChooses) {
  show(3);
  grid.selectSite(1);
  QSignalSpy chosen(&grid, &SiteGridView::rowChosen);
  QTest::keyClick(&grid, Qt::Key_Down);
  QTest::keyClick(&grid, Qt::Key_Down);
  QTest::keyClick(&grid, Qt::Key_Up);
  EXPECT_EQ(chosen.size(), 0);
  QTest::keyClick(&grid, Qt::Key_Return);
  QTest::keyClick(&grid, Qt::Key_Enter);
  ASSERT_EQ(chosen.size(), 2);
  EXPECT_EQ(chosen[0][0].toInt(), 1);
}

TEST_F(SiteGridViewTest, EnterWithoutARowChoosesNothing) {
  show(0);
  QSignalSpy chosen(&grid, &SiteGridView::rowChosen);
  QTest::keyClick(&grid, Qt::Key_Return);
  EXPECT_EQ(chosen.size(), 0);
}

TEST_F(SiteGridViewTest, ASelectedRowKeepsTheColourOfItsState) {
  show(3);
  grid.selectSite(2);
  const QColor up = colourFromText(colours::kUp);
  const QImage picture = grid.viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(cellCentre(1, 2)), up);
  // The frame around it tells that it is selected.
  const QRect cell = grid.visualRect(grid.model()->index(1, 2));
  EXPECT_NE(picture.pixelColor(cell.center().x(), cell.top()), up);
}

TEST_F(SiteGridViewTest, AFrameShowsTheCurrentRowFromTheStartAndDashesThatTheFocusIsElsewhere) {
  show(3);
  EXPECT_EQ(grid.currentSite(), std::int16_t{1});
  QLineEdit other;
  other.show();
  const auto darkOnTop = [&] {
    const QImage picture = grid.viewport()->grab().toImage();
    const QRect cell = grid.visualRect(grid.model()->index(0, SiteGridModel::urlColumn));
    int dark = 0;
    for (int x = cell.left(); x <= cell.right(); ++x) {
      dark += picture.pixelColor(x, cell.top()) == QColor(Qt::black) ? 1 : 0;
    }
    return 100 * dark / cell.width();
  };
  other.activateWindow();
  other.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_GT(darkOnTop(), 40);
  EXPECT_LT(darkOnTop(), 80);
  grid.activateWindow();
  grid.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
  EXPECT_EQ(darkOnTop(), 100);
}

TEST_F(SiteGridViewTest, WhereTheCurrentSiteIsGoneTheRowInItsPlaceIsCurrent) {
  show(3);
  grid.selectSite(3);
  show(2);
  EXPECT_EQ(grid.currentSite(), std::int16_t{2});
}

TEST_F(SiteGridViewTest, EachStateHasAShapeOfItsOwn) {
  std::vector<QImage> icons;
  for (const SiteState state : {SiteState::up, SiteState::changed, SiteState::noAnswer, SiteState::inactive,
                                SiteState::never, SiteState::notAPage}) {
    QImage icon(28, 28, QImage::Format_RGB32);
    icon.fill(Qt::white);
    QPainter painter(&icon);
    paintIcon(painter, QRectF(0, 0, 28, 28), state, Qt::black);
    painter.end();
    for (const QImage& other : icons) {
      EXPECT_NE(icon, other);
    }
    icons.push_back(icon);
  }
}

TEST_F(SiteGridViewTest, TheReasonIsAskedOnlyForTheSiteThatIsLookedAt) {
  std::vector<int> asked;
  grid.setReasons([&](std::int16_t idSite) {
    asked.push_back(idSite);
    return QStringLiteral("line 6: <b> \"x\"");
  });
  grid.setSites(siteTable({{.id = "1", .status = "True"}, {.id = "2", .status = "False"}, {.id = "3"}}));
  grid.repaint();
  const auto toolTip = [&](int row, int column) {
    QHelpEvent help(QEvent::ToolTip, cellCentre(row, column), grid.viewport()->mapToGlobal(cellCentre(row, column)));
    QApplication::sendEvent(grid.viewport(), &help);
    return QToolTip::text();
  };
  EXPECT_EQ(toolTip(0, 0), QString());
  EXPECT_EQ(toolTip(2, 0), QString());
  EXPECT_EQ(asked, std::vector<int>());
  EXPECT_EQ(toolTip(1, 0), QStringLiteral("<span>line 6: &lt;b&gt; &quot;x&quot;</span>"));
  EXPECT_EQ(asked, std::vector<int>{2});
  QTest::mouseMove(grid.viewport(), cellCentre(1, 2));
  EXPECT_EQ(toolTip(1, 2), QStringLiteral("Method ( get,post )"));
  EXPECT_EQ(grid.reasonOf(0), QString());
}

TEST_F(SiteGridViewTest, ARefillKeepsTheCurrentRowAndTheScrollPosition) {
  show(500);
  grid.selectSite(40);
  grid.verticalScrollBar()->setValue(30);
  show(600);
  EXPECT_EQ(grid.currentSite(), std::int16_t{40});
  EXPECT_EQ(grid.verticalScrollBar()->value(), 30);
}

TEST_F(SiteGridViewTest, SelectingASiteScrollsToIt) {
  show(500);
  grid.selectSite(400);
  EXPECT_EQ(grid.currentSite(), std::int16_t{400});
  EXPECT_TRUE(grid.viewport()->rect().intersects(grid.visualRect(grid.model()->index(399, 0))));
  grid.selectSite(501);
  EXPECT_EQ(grid.currentSite(), std::int16_t{400});
}

TEST_F(SiteGridViewTest, ThirtyThousandSitesAreShownInAMoment) {
  std::vector<SiteCells> cells;
  for (int id = 1; id <= 32767; ++id) {
    cells.push_back({.id = std::to_string(id), .status = "True"});
  }
  const TextTable table = siteTable(cells);
  const auto start = std::chrono::steady_clock::now();
  grid.setSites(table);
  grid.repaint();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(700));
  EXPECT_EQ(model.rowCount(), 32767);
}

TEST_F(SiteGridViewTest, IsWhiteInADarkThemeToo) {
  QPalette dark;
  dark.setColor(QPalette::Window, QColor(30, 30, 30));
  dark.setColor(QPalette::Base, QColor(20, 20, 20));
  dark.setColor(QPalette::Text, QColor(230, 230, 230));
  grid.setPalette(dark);
  show(1);
  const QImage picture = grid.viewport()->grab().toImage();
  EXPECT_EQ(picture.pixelColor(5, grid.viewport()->height() - 5), QColor(Qt::white));
}

}  // namespace
}  // namespace tarnwick
