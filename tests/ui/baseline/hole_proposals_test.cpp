// SPDX-License-Identifier: MIT
// The offer that a difference is no change: from the menu of a row to what is stored.
#include <random>
#include <QMenu>

#include "support/system.h"
#include "support/wait_until.h"
#include "ui/baseline/hole_table.h"
#include "ui/support/dialog_fixture.h"
#include "ui/support/longest_gap.h"
#include "ui/support/patience.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using testing::waitUntil;

class HoleProposalsTest : public DialogTest {
 protected:
  HoleProposalsTest() { addSite(1, "http://shop.test/"); }

  static std::string page(const std::string& time, const std::string& rest = "as it was") {
    return "<h1>Shop</h1>\n<p>Seen at " + time + "</p>\n<p>The rest is " + rest + ".</p>\n" + std::string(300, 'x') +
           "\n";
  }
  /// What is stored of the last check.
  void checked(const std::string& before, const std::string& now, bool up = false) {
    folder.execute("update sites set content_compare = '" + before + "', content_runtime = '" + now +
                   "', status = " + (up ? "-1" : "0") + ", lastChecked = '2026-11-21 04:24:41' where idSite = 1");
  }
  QTableView& grid() { return find<QTableView>("grid1"); }
  QAction& inMenu() {
    grid().selectRow(0);
    Q_EMIT grid().customContextMenuRequested(grid().visualRect(grid().model()->index(0, 1)).center());
    auto& menu = find<QMenu>("rowMenu");
    EXPECT_TRUE(waitUntil([&] { return menu.isVisible(); }));
    return in<QAction>(menu, "alwaysChanges");
  }
  ContentDialog& openProposals() {
    openProgram();
    inMenu().trigger();
    find<QMenu>("rowMenu").close();
    return opened<ContentDialog>();
  }
  void pressKeys() {
    master->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(master.get()));
    grid().setFocus();
    QTest::keyClick(&grid(), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
  }
  static std::string said(QWidget& dialog) { return in<QLabel>(dialog, "holesProposed").text().toStdString(); }
  /// The sentence, once there is one.
  static std::string saidAtLast(QWidget& dialog) {
    EXPECT_TRUE(waitUntil([&] { return !said(dialog).starts_with("Looking"); }, std::chrono::seconds(20)));
    return said(dialog);
  }
  static QAbstractItemModel& rows(QWidget& dialog) { return *in<HoleTable>(dialog, "holes").model(); }
  RuleSet rules() { return master->program().data().rulesOf(1); }
};

TEST_F(HoleProposalsTest, OkStoresWhatIsProposed) {
  checked(page("18:40:11"), page("19:02:45"));
  auto& dialog = openProposals();
  EXPECT_EQ(saidAtLast(dialog), "Line 2: a time. 97.8 % stays watched.");
  EXPECT_TRUE(in<QLabel>(dialog, "holesProposed").isVisible());
  ASSERT_EQ(rows(dialog).rowCount(), 1);
  const QModelIndex place = rows(dialog).index(0, HoleTableModel::placeColumn);
  EXPECT_TRUE(place.data(Qt::FontRole).value<QFont>().bold());
  EXPECT_EQ(place.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Place: Line 2, proposed"));
  EXPECT_EQ(rows(dialog).index(0, HoleTableModel::seenColumn).data().toString(), QStringLiteral("19:02:45"));
  EXPECT_TRUE(rules().empty()) << "nothing widens by itself";
  press(dialog, "btnOk");
  ASSERT_EQ(rules().holes.size(), 1U);
  EXPECT_EQ(rules().holes.front().kind, HoleClass::date);
  EXPECT_EQ(column(1, "content_compare"), page("18:40:11"));
}

TEST_F(HoleProposalsTest, CancelAndRemoveDropIt) {
  checked(page("18:40:11"), page("19:02:45"));
  auto& dialog = openProposals();
  saidAtLast(dialog);
  EXPECT_FALSE(dialog.unsavedEdits().isEmpty());
  press(dialog, "btnCancel");
  EXPECT_TRUE(rules().empty());
  EXPECT_TRUE(waitUntil([&] { return shown<ContentDialog>() == nullptr; }));

  pressKeys();
  auto& again = opened<ContentDialog>();
  saidAtLast(again);
  press(again, "btnRemove");
  press(again, "btnOk");
  EXPECT_TRUE(rules().empty());
}

TEST_F(HoleProposalsTest, AddsToWhatMayVaryAlready) {
  checked(page("18:40:11", "17 apples"), page("19:02:45", "18 apples"));
  folder.execute("update sites set content_runtime = '" + page("18:40:11", "18 apples") + "'");
  auto& first = openProposals();
  EXPECT_EQ(saidAtLast(first).substr(0, 17), "Line 3: a number ");
  press(first, "btnOk");
  folder.execute("update sites set content_runtime = '" + page("19:02:45", "204 apples") + "'");
  inMenu().trigger();
  find<QMenu>("rowMenu").close();
  auto& second = opened<ContentDialog>();
  EXPECT_EQ(saidAtLast(second).substr(0, 15), "Line 2: a time.");
  ASSERT_EQ(rows(second).rowCount(), 2);
  EXPECT_TRUE(rows(second).index(0, 0).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(rows(second).index(1, 0).data(Qt::FontRole).value<QFont>().bold()) << "it was stored";
  press(second, "btnOk");
  EXPECT_EQ(rules().holes.size(), 2U);
}

TEST_F(HoleProposalsTest, SaysWhatStaysAChange) {
  checked(page("18:40:11"), page("19:02:45", "defaced"));
  auto& dialog = openProposals();
  EXPECT_EQ(saidAtLast(dialog), "Line 2: a time. 97.8 % stays watched. Line 3 differs as well: it stays watched.");
  press(dialog, "btnCancel");
  folder.execute("update sites set content_runtime = '" + page("18:40:11", "defaced") + "'");
  inMenu().trigger();
  find<QMenu>("rowMenu").close();
  auto& words = opened<ContentDialog>();
  EXPECT_EQ(saidAtLast(words), "Line 3 differs, and nothing of it looks like what always changes.");
  EXPECT_EQ(rows(words).rowCount(), 0);
  EXPECT_TRUE(words.unsavedEdits().isEmpty());
}

TEST_F(HoleProposalsTest, IsOfferedOfAPageThatDiffersOnly) {
  checked(page("18:40:11"), page("18:40:11"), true);
  openProgram();
  EXPECT_FALSE(inMenu().isEnabled());
  find<QMenu>("rowMenu").close();
  pressKeys();
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
}

TEST_F(HoleProposalsTest, HoldsTheWindowUpForNoTimeWhateverThePagesHold) {
  SKIP_ON_WINDOWS("There it is done in the window's own process.");
  const auto noise = [](unsigned seed) {
    std::mt19937 random(seed);
    std::string text;
    while (text.size() < 5'000'000) {
      text += static_cast<char>('(' + static_cast<char>(random() % 80));
    }
    return text;
  };
  checked(page("18:40:11"), noise(2));
  auto& dialog = openProposals();
  testing::LongestGap gap;
  EXPECT_TRUE(saidAtLast(dialog).starts_with("Line 1 differs")) << said(dialog);
  EXPECT_LE(gap.longest(), testing::patience(std::chrono::milliseconds(30)));
}

}  // namespace
}  // namespace tarnwick
