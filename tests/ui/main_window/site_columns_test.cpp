// SPDX-License-Identifier: MIT
// The columns of the list are lines of one table: each stands in the list with all that its line says.
#include "ui/main_window/site_columns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <QHeaderView>
#include <QTest>

#include "store/site_table.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {
namespace {

/// A site each of whose fields tells its number.
TextTable site(const std::string& mark) {
  TextTable sites(site_column::last);
  sites.addRow();
  for (std::size_t field = 1; field <= site_column::last; ++field) {
    sites.at(field, 1) = mark + std::to_string(field);
  }
  sites.at(site_column::idSite, 1) = "7";
  return sites;
}

std::string expected(const SiteColumn& column, const std::string& mark) {
  return column.field == site_column::idSite ? "7" : mark + std::to_string(column.field);
}

void expectEachLineInTheList(SiteColumns columns) {
  SiteGridModel model(columns);
  SiteGridView grid(model);
  grid.resize(1200, 300);
  grid.show();
  grid.setSites(site("field "));
  ASSERT_EQ(model.columnCount(), static_cast<int>(columns.size()));
  for (int section = 0; section < model.columnCount(); ++section) {
    const SiteColumn& column = columns[static_cast<std::size_t>(section)];
    SCOPED_TRACE(column.header);
    const QModelIndex cell = model.index(0, section);
    EXPECT_EQ(cell.data().toString().toStdString(), expected(column, "field "));
    EXPECT_EQ(model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString(), QLatin1String(column.header));
    for (const QVariant& alignment :
         {cell.data(Qt::TextAlignmentRole), model.headerData(section, Qt::Horizontal, Qt::TextAlignmentRole)}) {
      EXPECT_EQ(alignment.toInt(), Qt::AlignVCenter | column.alignment);
    }
    QTest::mouseMove(grid.viewport(), grid.visualRect(grid.model()->index(0, section)).center());
    EXPECT_EQ(grid.toolTip(), QLatin1String(column.hint));
    if (column.widest != nullptr) {
      const int text = grid.fontMetrics().horizontalAdvance(QLatin1String(column.widest));
      EXPECT_GT(grid.columnWidth(section), text);
      EXPECT_LT(grid.columnWidth(section), 2 * text + 40);
    } else if (section == SiteGridModel::urlColumn) {
      EXPECT_EQ(grid.horizontalHeader()->sectionResizeMode(section), QHeaderView::Stretch);
    } else {
      EXPECT_NEAR(grid.columnWidth(section) * 3500.0 / column.part, grid.columnWidth(SiteGridModel::urlColumn), 10);
    }
  }
  model.updateSite(site("later "));
  for (int section = 0; section < model.columnCount(); ++section) {
    EXPECT_EQ(model.index(0, section).data().toString().toStdString(),
              expected(columns[static_cast<std::size_t>(section)], "later "));
  }
}

TEST(SiteColumnsTest, EveryLineOfTheTableIsInTheList) { expectEachLineInTheList(siteColumns()); }

TEST(SiteColumnsTest, ANewColumnIsOneLine) {
  std::vector<SiteColumn> columns(siteColumns().begin(), siteColumns().end());
  columns.push_back({"Interval", "Minutes between two checks", Qt::AlignRight, "00000", 0, site_column::tInterval});
  expectEachLineInTheList(columns);
}

TEST(SiteColumnsTest, ATimeIsWrittenWhereTheTimesStand) {
  std::vector<SiteColumn> columns(siteColumns().begin(), siteColumns().end());
  columns.push_back({"Method", nullptr, Qt::AlignLeft, "post", 0, site_column::method});
  SiteGridModel model(columns);
  model.setSites(site("field "));
  model.setLastChecked(7, "2024-02-03 04:05:06");
  EXPECT_EQ(model.index(0, SiteGridModel::timeColumn).data().toString(), QStringLiteral("2024-02-03 04:05:06"));
  EXPECT_EQ(model.index(0, 5).data().toString().toStdString(), expected(columns.back(), "field "));
}

}  // namespace
}  // namespace tarnwick
