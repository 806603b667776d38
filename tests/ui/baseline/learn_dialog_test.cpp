// SPDX-License-Identifier: MIT
// Learning what varies in a page, from the content dialog.
#include "ui/baseline/learn_dialog.h"

#include <random>
#include <QComboBox>

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

class LearnDialogTest : public DialogTest {
 protected:
  static std::string page(int visit) {
    return "<p>Visitor number " + std::to_string(1820 + 7 * visit) + " of this page</p>\n<p>" + std::string(300, 'x') +
           "</p>\n";
  }
  LearnDialogTest() {
    addSite(1, server.url("/page"));
    server.handle("/page", [this](const auto&) { return testing::HttpResponse{.body = page(++visits)}; });
  }
  void store(const std::string& page) { folder.execute("update sites set content_compare = '" + page + "'"); }
  ContentDialog& openContent() {
    press(openEditor(), "Command2");
    return opened<ContentDialog>();
  }
  LearnDialog& openLearn() {
    auto& content = openContent();
    press(content, "btnHoles");
    press(content, "btnLearn");
    auto& dialog = opened<LearnDialog>();
    if (!QTest::qWaitForWindowActive(&dialog)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    return dialog;
  }
  static std::string said(QWidget& dialog, const char* label) {
    return in<QLabel>(dialog, label).isVisible() ? in<QLabel>(dialog, label).text().toStdString() : std::string();
  }
  static bool isReady(QWidget& dialog) { return in<QPushButton>(dialog, "learnStart").isEnabled(); }
  RuleSet rules() { return master->program().data().rulesOf(1); }

  int visits = 0;
};

TEST_F(LearnDialogTest, LearnsWhatVariesAndOkOfTheContentStoresIt) {
  store(page(0));
  auto& dialog = openLearn();
  EXPECT_EQ(dialog.objectName(), QStringLiteral("frmLearn"));
  EXPECT_EQ(in<QSpinBox>(dialog, "learnTimes").value(), 5);
  EXPECT_FALSE(in<QPushButton>(dialog, "btnTake").isEnabled());
  QTest::keyClick(&dialog, Qt::Key_Return);
  ASSERT_TRUE(waitUntil([&] { return isReady(dialog); }));
  EXPECT_EQ(visits, 5);
  const std::string result = said(dialog, "learnResult");
  EXPECT_TRUE(result.starts_with("1 place: a number of 1 to ")) << result;
  EXPECT_NE(result.find("98."), std::string::npos) << result;
  EXPECT_EQ(said(dialog, "learnWarnings"), "");
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_EQ(shown<LearnDialog>(), nullptr);
  auto& content = opened<ContentDialog>();
  EXPECT_EQ(in<HoleTable>(content, "holes").model()->rowCount(), 1);
  EXPECT_TRUE(rules().empty());
  press(content, "btnOk");
  ASSERT_EQ(rules().holes.size(), 1U);
  EXPECT_EQ(rules().holes[0].begin, page(0).find("1820"));
  EXPECT_EQ(column(1, "content_compare"), page(0)) << "the baseline was changed";
}

// Each is worse than any page for one of the steps of learning.
std::vector<std::string> hostilePages(int visit) {
  constexpr std::size_t kSize = 5'000'000;
  std::mt19937 random(static_cast<unsigned>(visit));
  std::string ones;
  std::string noise;
  std::string days;
  while (ones.size() < kSize) {
    ones += random() % 97 == 0 ? "2," : "1,";
    noise += static_cast<char>(' ' + static_cast<char>(random() % 95));
    noise += static_cast<char>(' ' + static_cast<char>(random() % 95));
    days += random() % 97 == 0 ? "Tue " : "Mon ";
  }
  return {ones, noise, days.substr(0, kSize)};
}

TEST_F(LearnDialogTest, HoldsTheWindowUpForNoTimeWhateverThePagesHold) {
  SKIP_ON_WINDOWS("There it is done in the window's own process.");
  const std::vector<std::vector<std::string>> pages{hostilePages(1), hostilePages(2)};
  auto& dialog = openLearn();
  in<QSpinBox>(dialog, "learnTimes").setValue(2);
  for (std::size_t kind = 0; kind < pages[0].size(); ++kind) {
    visits = 0;
    server.handle("/page", [&](const auto&) {
      return testing::HttpResponse{.body = pages[static_cast<std::size_t>(visits++ % 2)][kind]};
    });
    in<QProgressBar>(dialog, "learnProgress").setValue(0);
    testing::LongestGap gap;
    press(dialog, "learnStart");
    ASSERT_TRUE(waitUntil([&] { return isReady(dialog); }, testing::patience(std::chrono::seconds(20))));
    EXPECT_LE(gap.longest(), testing::patience(std::chrono::milliseconds(30))) << "page " << kind;
    EXPECT_EQ(said(dialog, "learnWarnings").find("differs"), std::string::npos) << "page " << kind;
    EXPECT_TRUE(in<QPushButton>(dialog, "btnTake").isEnabled()) << "page " << kind;
  }
}

TEST_F(LearnDialogTest, WithoutABaselineTheFirstCopyBecomesIt) {
  auto& dialog = openLearn();
  press(dialog, "learnStart");
  ASSERT_TRUE(waitUntil([&] { return isReady(dialog); }));
  press(dialog, "btnTake");
  press(opened<ContentDialog>(), "btnOk");
  EXPECT_EQ(column(1, "content_compare"), page(1));
  EXPECT_EQ(rules().holes.size(), 1U);
}

TEST_F(LearnDialogTest, TellsThatThePageHasChangedOtherwise) {
  store("<h1>Before</h1>\n" + page(0));
  auto& dialog = openLearn();
  press(dialog, "learnStart");
  ASSERT_TRUE(waitUntil([&] { return isReady(dialog); }));
  EXPECT_NE(said(dialog, "learnWarnings").find("differs from the baseline also in line 1"), std::string::npos)
      << said(dialog, "learnWarnings");
}

TEST_F(LearnDialogTest, TellsThatNothingVaries) {
  store(page(0));
  server.respond("/page", {.body = page(0)});
  auto& dialog = openLearn();
  in<QSpinBox>(dialog, "learnTimes").setValue(2);
  press(dialog, "learnStart");
  ASSERT_TRUE(waitUntil([&] { return isReady(dialog); }));
  EXPECT_EQ(said(dialog, "learnResult"), "Nothing varies: the page was the same each time.");
  EXPECT_FALSE(in<QPushButton>(dialog, "btnTake").isEnabled());
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(shown<LearnDialog>(), nullptr);
  EXPECT_TRUE(opened<ContentDialog>().isVisible());
}

TEST_F(LearnDialogTest, TellsWhyNothingWasLearnt) {
  folder.execute("update sites set url = 'http://127.0.0.1:1/'");
  auto& dialog = openLearn();
  press(dialog, "learnStart");
  ASSERT_TRUE(waitUntil([&] { return isReady(dialog); }));
  EXPECT_EQ(said(dialog, "learnResult"), "Nothing was learnt.");
  EXPECT_FALSE(said(dialog, "learnWarnings").empty());
}

TEST_F(LearnDialogTest, EscapeGivesUpWhatIsFetched) {
  server.respond("/page", {.hold = true});
  auto& dialog = openLearn();
  press(dialog, "learnStart");
  EXPECT_FALSE(isReady(dialog));
  ASSERT_TRUE(waitUntil([&] { return server.inFlight() > 0; }));
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(shown<LearnDialog>(), nullptr);
  EXPECT_TRUE(waitUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(LearnDialogTest, TheProgramCanBeClosedMeanwhile) {
  server.respond("/page", {.hold = true});
  press(openLearn(), "learnStart");
  ASSERT_TRUE(waitUntil([&] { return server.inFlight() > 0; }));
  master->close();
  EXPECT_TRUE(waitUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(LearnDialogTest, FetchesAreSpreadOnWish) {
  auto& dialog = openLearn();
  EXPECT_FALSE(in<QComboBox>(dialog, "learnOver").isEnabled());
  QTest::keyClick(&dialog, Qt::Key_O, Qt::AltModifier);
  ASSERT_TRUE(waitUntil([&] { return in<QComboBox>(dialog, "learnOver").isEnabled(); }));
  EXPECT_EQ(in<QComboBox>(dialog, "learnOver").currentText(), QStringLiteral("1 day"));
  press(dialog, "learnStart");
  ASSERT_TRUE(waitUntil([&] { return in<QProgressBar>(dialog, "learnProgress").value() == 1; }));
  EXPECT_EQ(in<QProgressBar>(dialog, "learnProgress").text(), QStringLiteral("1 of 5"));
  EXPECT_EQ(visits, 1);
}

TEST_F(LearnDialogTest, KeyboardReachesAll) {
  auto& dialog = openLearn();
  EXPECT_EQ(dialog.focusWidget()->objectName(), QStringLiteral("learnStart"));
  std::vector<QChar> keys = mnemonics(dialog);
  std::ranges::sort(keys);
  EXPECT_EQ(std::ranges::adjacent_find(keys), keys.end()) << "two controls have the same key";
  EXPECT_EQ(spoken(in<QSpinBox>(dialog, "learnTimes")), QStringLiteral("Fetch so many times"));
  EXPECT_EQ(spoken(in<QProgressBar>(dialog, "learnProgress")), QStringLiteral("Fetched"));
}

}  // namespace
}  // namespace tarnwick
