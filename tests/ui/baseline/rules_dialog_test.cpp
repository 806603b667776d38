// SPDX-License-Identifier: MIT
// The rules of a page, from the content dialog.
#include "ui/baseline/rules_dialog.h"

#include <QComboBox>

#include "support/wait_until.h"
#include "ui/controls/tones.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using testing::waitUntil;

const std::string kPage =
    "<html><body>\n<div class=\"ad\">Buy this</div>\n<p>The news of the day, and what else there is to say</p>\n"
    "<div class=\"ad\">And that</div>\n</body></html>\n";

class RulesDialogTest : public DialogTest {
 protected:
  RulesDialogTest() {
    addSite(1, server.url("/page"));
    const std::string hex = QByteArray::fromStdString(kPage).toHex().toStdString();
    folder.execute("update sites set content_compare = cast(x'" + hex + "' as text)");
  }
  RulesDialog& openRules() {
    if (master == nullptr) {
      press(openEditor(), "Command2");
      press(opened<ContentDialog>(), "btnHoles");
    }
    press(opened<ContentDialog>(), "btnRules");
    auto& dialog = opened<RulesDialog>();
    if (!QTest::qWaitForWindowActive(&dialog)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    return dialog;
  }
  static RuleTable& table(QWidget& dialog) { return in<RuleTable>(dialog, "rules"); }
  static std::string cell(QWidget& dialog, int row, int column) {
    const QAbstractItemModel& model = *table(dialog).model();
    return model.data(model.index(row, column)).toString().toStdString();
  }
  /// Types into the field that is being edited.
  static void typeRule(QWidget& dialog, const std::string& text) {
    auto* field = table(dialog).viewport()->findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    field->selectAll();
    QTest::keyClicks(field, QString::fromStdString(text));
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return table(dialog).viewport()->findChild<QLineEdit*>() == nullptr; }));
  }
  static void choose(QWidget& dialog, int row, int column, int down) {
    RuleTable& rules = table(dialog);
    rules.setCurrentIndex(rules.model()->index(row, column));
    QTest::keyClick(&rules, Qt::Key_F2);
    auto* choice = rules.viewport()->findChild<QComboBox*>();
    ASSERT_NE(choice, nullptr);
    QTest::keyClick(choice, Qt::Key_Home);
    for (int i = 0; i < down; ++i) {
      QTest::keyClick(choice, Qt::Key_Down);
    }
    QTest::keyClick(choice, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return rules.viewport()->findChild<QComboBox*>() == nullptr; }));
  }
  static void addCss(QWidget& dialog, const std::string& selector) {
    press(dialog, "btnAddRule");
    typeRule(dialog, selector);
    choose(dialog, table(dialog).model()->rowCount() - 1, RuleTableModel::languageColumn, 1);
  }
  static std::string remarks(QWidget& dialog) {
    const auto& line = in<QLabel>(dialog, "ruleRemarks");
    return line.isVisible() ? line.text().toStdString() : std::string();
  }
  RuleSet rules() { return master->program().data().rulesOf(1); }
};

#ifdef TARNWICK_ALL_LANGUAGES

TEST_F(RulesDialogTest, ARuleIsMadeTriedAndStoredByOkOfTheContent) {
  auto& dialog = openRules();
  EXPECT_EQ(dialog.objectName(), QStringLiteral("frmRules"));
  addCss(dialog, "div.ad");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::useColumn), "leave out");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::languageColumn), "CSS");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::ruleColumn), "div.ad");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::matchesColumn), "2 places");
  EXPECT_EQ(remarks(dialog), "");
  const auto shaded = in<BaselineEdit>(dialog, "rulePreview").extraSelections();
  ASSERT_EQ(shaded.size(), 2);
  EXPECT_EQ(shaded[0].cursor.selectedText(), QStringLiteral("<div class=\"ad\">Buy this</div>"));
  press(dialog, "rulesOk");
  auto& content = opened<ContentDialog>();
  EXPECT_EQ(caption<QPushButton>(content, "btnRules"), "Rules (1)…");
  EXPECT_TRUE(rules().empty());
  EXPECT_FALSE(content.unsavedEdits().isEmpty());
  press(content, "btnOk");
  const std::vector<PageRule> expected{{PageRule::Use::leaveOut, PageRule::Language::css, "div.ad"}};
  EXPECT_EQ(rules().rules, expected);
}

TEST_F(RulesDialogTest, ComparingOnlyAPartShadesTheRest) {
  auto& dialog = openRules();
  addCss(dialog, "p");
  choose(dialog, 0, RuleTableModel::useColumn, 0);
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::useColumn), "compare only");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::matchesColumn), "1 place");
  EXPECT_EQ(in<BaselineEdit>(dialog, "rulePreview").extraSelections().size(), 2);
  EXPECT_TRUE(in<QLabel>(dialog, "rulesWatched").text().startsWith(QStringLiteral("38 % of the page")))
      << in<QLabel>(dialog, "rulesWatched").text().toStdString();
}

TEST_F(RulesDialogTest, ARuleThatMatchesNothingIsTold) {
  auto& dialog = openRules();
  addCss(dialog, "div.news");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::matchesColumn), "matches nothing: would not be watched");
  const QAbstractItemModel& model = *table(dialog).model();
  EXPECT_EQ(model.data(model.index(0, RuleTableModel::matchesColumn), Qt::BackgroundRole).value<QColor>(),
            noticeColours(NoticeTone::amber, false).fill);
  EXPECT_EQ(remarks(dialog), "Rule 1 matches nothing: it would not be watched.");
  EXPECT_TRUE(in<QPushButton>(dialog, "rulesOk").isEnabled());
}

#endif

TEST_F(RulesDialogTest, ARuleThatCannotBeUnderstoodSaysWhy) {
  auto& dialog = openRules();
  press(dialog, "btnAddRule");
  typeRule(dialog, "(");
  EXPECT_EQ(cell(dialog, 0, RuleTableModel::matchesColumn), "not understood");
  EXPECT_TRUE(remarks(dialog).starts_with("The rule \"regex (\" cannot be understood")) << remarks(dialog);
  EXPECT_FALSE(in<QPushButton>(dialog, "rulesOk").isEnabled());
  QTest::keyClick(&table(dialog), Qt::Key_Delete);
  EXPECT_EQ(table(dialog).model()->rowCount(), 0);
  EXPECT_EQ(remarks(dialog), "");
  EXPECT_TRUE(in<QPushButton>(dialog, "rulesOk").isEnabled());
}

TEST_F(RulesDialogTest, EscapeDropsTheRulesAndAnEmptyOneIsNone) {
  auto& dialog = openRules();
  addCss(dialog, "p");
  table(dialog).setFocus();
  QTest::keyClick(&table(dialog), Qt::Key_Escape);
  EXPECT_EQ(shown<RulesDialog>(), nullptr);
  EXPECT_EQ(caption<QPushButton>(opened<ContentDialog>(), "btnRules"), "Rules…");
  auto& again = openRules();
  press(again, "btnAddRule");
  press(again, "rulesOk");
  press(opened<ContentDialog>(), "btnOk");
  EXPECT_TRUE(rules().empty());
}

TEST_F(RulesDialogTest, KeyboardReachesAllAndEachHasItsName) {
  auto& dialog = openRules();
  press(dialog, "btnAddRule");
  std::vector<QChar> keys = mnemonics(dialog);
  std::ranges::sort(keys);
  EXPECT_EQ(std::ranges::adjacent_find(keys), keys.end()) << "two controls have the same key";
  EXPECT_EQ(spoken(table(dialog)), QStringLiteral("Rules"));
  EXPECT_FALSE(spoken(in<BaselineEdit>(dialog, "rulePreview")).isEmpty());
}

}  // namespace
}  // namespace tarnwick
