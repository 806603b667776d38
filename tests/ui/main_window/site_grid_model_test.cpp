// SPDX-License-Identifier: MIT
#include "ui/main_window/site_grid_model.h"

#include <gtest/gtest.h>

#include <chrono>
#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include "ui/controls/colour_text.h"
#include "ui/support/site_table.h"

namespace tarnwick {
namespace {

using testing::SiteCells;
using testing::siteTable;

const QColor kUp = colourFromText(colours::kUp);
const QColor kDown = colourFromText(colours::kDown);
const QColor kInactive = colourFromText(colours::kInactive);
const QColor kWhite = colourFromText(colours::kUnpainted);

class SiteGridModelTest : public ::testing::Test {
 protected:
  void show(const std::vector<SiteCells>& sites) { model.setSites(siteTable(sites)); }
  QString text(int row, int column) const { return model.index(row, column).data().toString(); }
  QColor background(int row, int column) const {
    return model.index(row, column).data(Qt::BackgroundRole).value<QColor>();
  }
  QColor foreground(int row, int column) const {
    return model.index(row, column).data(Qt::ForegroundRole).value<QColor>();
  }
  void expectRowColour(int row, const QColor& colour) const {
    for (int column = 0; column < model.columnCount(); ++column) {
      EXPECT_EQ(background(row, column), colour) << "column " << column;
    }
  }

  SiteGridModel model;
};

TEST_F(SiteGridModelTest, WithoutSitesThereIsOnlyTheHeader) {
  show({});
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(model.columnCount(), 5);
  QStringList headers;
  for (int column = 0; column < model.columnCount(); ++column) {
    headers << model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  }
  EXPECT_EQ(headers.join(QLatin1Char('|')), QStringLiteral("ID|URL|Up|Down|Time Of Last Test"));
}

TEST_F(SiteGridModelTest, ShowsTheSitesInTheirOrder) {
  show({{.id = "7", .url = "http://b", .success = "3", .failure = "2", .lastChecked = "2024-02-03 04:05:06"},
        {.id = "2", .url = "http://a"}});
  ASSERT_EQ(model.rowCount(), 2);
  EXPECT_EQ(text(0, 0), QStringLiteral("7"));
  EXPECT_EQ(text(0, 1), QStringLiteral("http://b"));
  EXPECT_EQ(text(0, 2), QStringLiteral("3"));
  EXPECT_EQ(text(0, 3), QStringLiteral("2"));
  EXPECT_EQ(text(0, 4), QStringLiteral("2024-02-03 04:05:06"));
  EXPECT_EQ(text(1, 0), QStringLiteral("2"));
}

TEST_F(SiteGridModelTest, NullsAreShownBlank) {
  show({{.id = "1", .url = "NULL"}});
  for (int column = 1; column < model.columnCount(); ++column) {
    EXPECT_EQ(text(0, column), QString()) << column;
  }
}

TEST_F(SiteGridModelTest, TheColourTellsTheState) {
  show({{.id = "1", .status = "True"}, {.id = "2", .status = "False"}, {.id = "3", .status = "NULL"}});
  expectRowColour(0, kUp);
  expectRowColour(1, kDown);
  expectRowColour(2, kWhite);
}

TEST_F(SiteGridModelTest, AnInactiveSiteIsGreyWhateverItsStatus) {
  show({{.id = "1", .active = "False", .status = "True"},
        {.id = "2", .active = "False", .status = "False"},
        {.id = "3", .active = "False", .status = "NULL"},
        {.id = "4", .active = "NULL", .status = "True"}});
  for (int row = 0; row < model.rowCount(); ++row) {
    expectRowColour(row, kInactive);
  }
}

TEST_F(SiteGridModelTest, TheTextIsReadableOnItsBackground) {
  show({{.id = "1", .status = "True"}, {.id = "2", .status = "False"}, {.id = "3"}, {.id = "4", .active = "False"}});
  for (int row = 0; row < model.rowCount(); ++row) {
    EXPECT_GE(contrastRatio(foreground(row, 1), background(row, 1)), 4.5) << row;
  }
  model.brighten(2, 90);
  EXPECT_GE(contrastRatio(foreground(1, 1), background(1, 1)), 4.5);
}

TEST_F(SiteGridModelTest, TheStateIsToldInWordsToo) {
  show({{.id = "1", .status = "True"}, {.id = "2", .status = "False"}});
  EXPECT_TRUE(model.index(0, 1).data(Qt::AccessibleTextRole).toString().endsWith(QStringLiteral("up")));
  EXPECT_TRUE(model.index(1, 1).data(Qt::AccessibleTextRole).toString().endsWith(QStringLiteral("down")));
}

TEST_F(SiteGridModelTest, TheNumberOfASiteBearsItsState) {
  SiteRows sites;
  sites.add(siteTable({{.id = "1", .status = "True"},
                       {.id = "2", .status = "False"},
                       {.id = "3", .status = "False"},
                       {.id = "4", .status = "True"},
                       {.id = "5", .active = "False", .status = "False"},
                       {.id = "6"}}),
            {3, 4, 5}, model.columns());
  model.setSites(std::move(sites));
  model.brighten(6, 10);
  QStringList words;
  for (int row = 0; row < model.rowCount(); ++row) {
    EXPECT_EQ(text(row, 0), QString::number(row + 1));
    words << model.index(row, 0).data(Qt::AccessibleTextRole).toString();
  }
  EXPECT_EQ(words.join(QLatin1Char('|')),
            QStringLiteral("1, up|2, changed|3, no answer|4, not a page|5, not active|6, testing …"));
  model.unbrighten(6);
  EXPECT_EQ(model.index(5, 0).data(Qt::AccessibleTextRole).toString(), QStringLiteral("6, never"));
  // A baseline that is no page keeps its green.
  expectRowColour(3, kUp);
}

TEST_F(SiteGridModelTest, WhatIsSeenOfAnAlarmRefinesTheState) {
  using State = AlarmView::State;
  show({{.id = "1", .active = "True", .status = "True"},
        {.id = "2", .active = "True", .status = "False"},
        {.id = "3", .active = "False", .status = "True"}});
  const auto word = [&](int row) { return model.index(row, 0).data(SiteGridModel::wordRole).toString(); };
  for (int row = 0; row < 3; ++row) {
    model.setAlarm(row, {.state = State::unconfirmed, .failures = 1, .confirm = 3});
  }
  EXPECT_EQ(word(0), QStringLiteral("up"));
  EXPECT_EQ(word(1), QStringLiteral("1 of 3"));
  expectRowColour(1, kDown);
  model.setAlarm(0, {.state = State::slow});
  EXPECT_EQ(word(0), QStringLiteral("slow"));
  expectRowColour(0, colourFromText(colours::kWarning));
  model.setAlarm(1, {.state = State::unsteady});
  EXPECT_EQ(word(1), QStringLiteral("unsteady"));
  for (int row = 0; row < 3; ++row) {
    model.setAlarm(row, {.state = State::unknown});
  }
  EXPECT_EQ(word(0), QStringLiteral("offline"));
  expectRowColour(0, colourFromText(colours::kOffline));
  EXPECT_EQ(word(2), QStringLiteral("not active"));
  expectRowColour(2, kInactive);
  model.setAlarm(0, {.state = State::slow, .pause = Pause{.isOn = true, .until = {}}});
  EXPECT_EQ(word(0), QStringLiteral("paused"));
  model.setAlarm(0, {});
  EXPECT_EQ(word(0), QStringLiteral("up"));
  expectRowColour(0, kUp);
}

TEST_F(SiteGridModelTest, WhatACheckToldOfItsFetchStaysUntilTheNextOne) {
  const SiteCells down{.id = "1", .status = "False", .lastChecked = "2024-02-03 04:05:06"};
  show({down});
  EXPECT_EQ(model.stateOfRow(0), SiteState::changed);
  model.setFetched(1, false);
  EXPECT_EQ(model.stateOfRow(0), SiteState::noAnswer);
  model.updateSite(siteTable({down}));
  show({{.id = "7"}, down});
  EXPECT_EQ(model.stateOfRow(1), SiteState::noAnswer);
  show({{.id = "1", .status = "False", .lastChecked = "2024-02-03 04:15:06"}});
  EXPECT_EQ(model.stateOfRow(0), SiteState::changed);
}

TEST_F(SiteGridModelTest, BrightenPaintsIdAndUrlOnly) {
  show({{.id = "1", .status = "True"}, {.id = "2", .status = "True"}});
  model.brighten(2, 16);
  EXPECT_EQ(background(1, SiteGridModel::idColumn), brightened(kUp, 16));
  EXPECT_EQ(background(1, SiteGridModel::urlColumn), brightened(kUp, 16));
  EXPECT_EQ(background(1, SiteGridModel::upColumn), kUp);
  EXPECT_EQ(background(1, SiteGridModel::timeColumn), kUp);
  expectRowColour(0, kUp);
}

TEST_F(SiteGridModelTest, BrightenGoesOnFromTheColourTheCellHas) {
  show({{.id = "1", .status = "False"}});
  model.brighten(1, 20);
  model.brighten(1, -5);
  EXPECT_EQ(background(0, SiteGridModel::urlColumn), brightened(kDown, 15));
}

TEST_F(SiteGridModelTest, UnbrightenPaintsTheStateAgain) {
  show({{.id = "1", .status = "False"}});
  model.brighten(1, 20);
  model.unbrighten(1);
  expectRowColour(0, kDown);
}

TEST_F(SiteGridModelTest, AResultPaintsTheRowAndEndsItsMark) {
  show({{.id = "1"}, {.id = "2", .status = "True"}});
  model.brighten(1, -30);
  model.setResult(1, true);
  expectRowColour(0, kUp);
  model.setResult(2, false);
  expectRowColour(1, kDown);
}

TEST_F(SiteGridModelTest, AResultLeavesAnInactiveSiteGrey) {
  show({{.id = "1", .active = "False"}});
  model.setResult(1, true);
  expectRowColour(0, kInactive);
}

TEST_F(SiteGridModelTest, ARecordRewritesItsRow) {
  show({{.id = "1"}, {.id = "2"}});
  model.updateSite(siteTable({{.id = "2",
                               .url = "http://new",
                               .status = "True",
                               .success = "8",
                               .failure = "9",
                               .lastChecked = "2024-02-03 04:05:06"}}));
  EXPECT_EQ(text(1, 1), QStringLiteral("http://new"));
  EXPECT_EQ(text(1, 2), QStringLiteral("8"));
  EXPECT_EQ(text(1, 3), QStringLiteral("9"));
  EXPECT_EQ(text(1, 4), QStringLiteral("2024-02-03 04:05:06"));
  expectRowColour(1, kUp);
  expectRowColour(0, kWhite);
}

TEST_F(SiteGridModelTest, WhatIsSaidOfASiteThatIsGoneChangesNothing) {
  show({{.id = "1"}});
  QSignalSpy changes(&model, &SiteGridModel::dataChanged);
  model.updateSite(siteTable({}));
  model.updateSite(siteTable({{.id = "5"}}));
  model.setResult(5, true);
  model.setLastChecked(5, "2024-02-03 04:05:06");
  model.brighten(5, 10);
  model.unbrighten(5);
  EXPECT_EQ(changes.size(), 0);
  expectRowColour(0, kWhite);
}

TEST_F(SiteGridModelTest, TheTimeOfTheLastTestIsWritten) {
  show({{.id = "1"}});
  model.setLastChecked(1, "2024-02-03 04:05:06");
  EXPECT_EQ(text(0, 4), QStringLiteral("2024-02-03 04:05:06"));
}

TEST_F(SiteGridModelTest, EveryRowOfAnIdFollowsItsSite) {
  show({{.id = "4"}, {.id = "1"}, {.id = "4"}});
  model.setLastChecked(4, "2024-02-03 04:05:06");
  EXPECT_EQ(text(0, 4), text(2, 4));
  EXPECT_EQ(text(1, 4), QString());
  EXPECT_EQ(model.rowOfSite(4), 0);
}

TEST_F(SiteGridModelTest, AnIdBeyond16BitsIsShownButIsNoSite) {
  show({{.id = "65537"}, {.id = "1"}});
  EXPECT_EQ(text(0, 0), QStringLiteral("65537"));
  EXPECT_FALSE(model.siteOfRow(0).has_value());
  EXPECT_EQ(model.siteOfRow(1), std::int16_t{1});
  EXPECT_EQ(model.rowOfSite(1), 1);
  EXPECT_FALSE(model.siteOfRow(-1).has_value());
  EXPECT_FALSE(model.siteOfRow(2).has_value());
}

TEST_F(SiteGridModelTest, MarksSurviveARefill) {
  show({{.id = "1", .status = "True"}});
  model.brighten(1, 12);
  show({{.id = "3"}, {.id = "1", .status = "True"}});
  EXPECT_EQ(background(1, SiteGridModel::urlColumn), brightened(kUp, 12));
  expectRowColour(0, kWhite);
}

TEST_F(SiteGridModelTest, KeepsTheRulesOfModels) {
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  show({{.id = "1"}, {.id = "2"}});
  model.brighten(1, 3);
  model.setResult(1, true);
  show({});
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(SiteGridModelTest, ARowOfThirtyThousandIsFoundWithoutASearch) {
  std::vector<SiteCells> sites;
  for (int id = 1; id <= 32767; ++id) {
    sites.push_back({.id = std::to_string(id)});
  }
  show(sites);
  const auto start = std::chrono::steady_clock::now();
  for (int id = 1; id <= 32767; ++id) {
    model.setResult(static_cast<std::int16_t>(id), true);
  }
  // A search through the list for each would take 500 million comparisons.
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  expectRowColour(32766, kUp);
}

}  // namespace
}  // namespace tarnwick
