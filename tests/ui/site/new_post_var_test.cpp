// SPDX-License-Identifier: MIT
// The POST variable editor.
#include "ui/site/new_post_var.h"

#include <filesystem>
#include <QGroupBox>
#include <QLabel>

#include "platform/local_files.h"
#include "support/wait_until.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using testing::waitUntil;

class NewPostVarTest : public DialogTest {
 protected:
  void SetUp() override {
    addSite(1, "http://one.test/");
    addVar(1, "a", "1");
    addVar(1, "b''", " two ");
  }
  static void clickVar(SiteEditor& editor, int row) {
    auto& grid = in<QTableView>(editor, "grid1");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid.visualRect(grid.model()->index(row, 0)).center());
  }
  NewPostVar& openVar(int row) {
    auto& editor = openEditor();
    clickVar(editor, row);
    auto& form = opened<NewPostVar>();
    if (!QTest::qWaitForWindowActive(&form)) {
      throw std::runtime_error("The form did not become the active window.");
    }
    return form;
  }
  std::string gridCell(int row, int column) {
    return in<QTableView>(opened<SiteEditor>(), "grid1").model()->index(row, column).data().toString().toStdString();
  }
  int gridRows() { return in<QTableView>(opened<SiteEditor>(), "grid1").model()->rowCount(); }
};

TEST_F(NewPostVarTest, AClickOnAVariableOpensIt) {
  auto& form = openVar(1);
  EXPECT_EQ(form.objectName().toStdString(), "newPostVar");
  EXPECT_EQ(form.windowTitle().toStdString(), "Add / Edit Post Variable");
  EXPECT_EQ(in<QGroupBox>(form, "Frame1").title().toStdString(), "HTTP Post Variables");
  EXPECT_EQ(caption<QLabel>(form, "Label1"), "Name");
  EXPECT_EQ(caption<QLabel>(form, "Label2"), "Value");
  EXPECT_EQ(caption<QPushButton>(form, "Command4"), "Update");
  EXPECT_EQ(caption<QPushButton>(form, "Command1"), "Delete");
  EXPECT_EQ(caption<QPushButton>(form, "Command2"), "Cancel");
  EXPECT_EQ(text(form, "pvName"), "b'");
  EXPECT_EQ(text(form, "pvValue"), " two ");
  EXPECT_EQ(form.focusWidget(), &in<QWidget>(form, "pvName"));
  EXPECT_EQ(tabOrder(form, in<QWidget>(form, "pvName")),
            (std::vector<std::string>{"pvName", "pvValue", "Command4", "Command1", "Command2"}));
}

TEST_F(NewPostVarTest, UpdateStoresTheVariableAndTheGridShowsIt) {
  auto& form = openVar(0);
  type(form, "pvName", "new'name");
  type(form, "pvValue", "x&y");
  press(form, "Command4");
  EXPECT_EQ(shown<NewPostVar>(), nullptr);
  EXPECT_EQ(vars(1), "new'name=x&y;b'= two ");
  EXPECT_EQ(gridCell(0, 0), "new'name");
}

TEST_F(NewPostVarTest, TheVariableThatIsShownIsMeantThoughAllWereNumberedAnewMeanwhile) {
  folder.execute("update postVars set idPostVars = idPostVars + 10");
  auto& form = openVar(0);
  m(folder.path(), machine.services()).reIdpostVars();
  type(form, "pvValue", "changed");
  press(form, "Command4");
  EXPECT_EQ(vars(1), "a=changed;b'= two ");
}

TEST_F(NewPostVarTest, AVariableThatIsGoneIsToldAndNothingElseIsTouched) {
  for (const char* button : {"Command4", "Command1"}) {
    auto& form = openVar(0);
    folder.execute("update postVars set pvalue = 'by another' where pname = 'a'");
    press(form, button);
    EXPECT_NE(machine.prompts.texts().back().find("another program"), std::string::npos);
    EXPECT_EQ(vars(1), "a=by another;b'= two ");
    press(form, "Command2");
    folder.execute("update postVars set pvalue = '1' where pname = 'a'");
    press(opened<SiteEditor>(), "Command8");
    master.reset();
  }
}

TEST_F(NewPostVarTest, AListThatCannotBeReadForAMomentIsNotStoredAsAnEmptyOne) {
  if (!LocalFiles().replacesOpenFiles()) {
    GTEST_SKIP() << "Here nobody can move a file that is open.";
  }
  auto& form = openVar(0);
  const std::string away = folder.databasePath() + ".away";
  std::filesystem::rename(folder.databasePath(), away);
  // The files are looked after ten times a second.
  ASSERT_TRUE(waitUntil([&] {
    try {
      static_cast<void>(master->program().data().getUrl(1));
      return false;
    } catch (const std::exception&) {
      return true;
    }
  }));
  press(form, "Command2");
  std::filesystem::rename(away, folder.databasePath());
  EXPECT_EQ(gridRows(), 2);
  press(opened<SiteEditor>(), "Command1");
  EXPECT_EQ(vars(1), "a=1;b'= two ");
}

TEST_F(NewPostVarTest, UpdateWithoutAChangeRewritesTheSame) {
  folder.execute("update postVars set pvalue = cast(x'e9' as text) where pname = 'a'");
  auto& form = openVar(0);
  press(form, "Command4");
  EXPECT_EQ(folder.queryText("select hex(pvalue) from postVars where pname = 'a'"), "E9");
  EXPECT_EQ(gridRows(), 2);
}

TEST_F(NewPostVarTest, DeleteRemovesItWithoutASaveOfTheSite) {
  press(openVar(0), "Command1");
  EXPECT_EQ(gridRows(), 1);
  EXPECT_EQ(gridCell(0, 0), "b'");
  press(opened<SiteEditor>(), "Command8");
  EXPECT_EQ(vars(1), "b'= two ");
}

TEST_F(NewPostVarTest, OfTwoEqualVariablesTheFirstIsEdited) {
  addVar(1, "a", "1");
  auto& form = openVar(2);
  type(form, "pvValue", "changed");
  press(form, "Command4");
  EXPECT_EQ(vars(1), "a=changed;b'= two ;a=1");
}

TEST_F(NewPostVarTest, CancelEscapeAndEnterDoWhatTheySay) {
  auto& form = openVar(0);
  type(form, "pvName", "lost");
  press(form, "Command2");
  clickVar(opened<SiteEditor>(), 0);
  type(opened<NewPostVar>(), "pvName", "lost");
  QTest::keyClick(&in<QWidget>(opened<NewPostVar>(), "pvName"), Qt::Key_Escape);
  EXPECT_EQ(vars(1), "a=1;b'= two ");
  clickVar(opened<SiteEditor>(), 0);
  type(opened<NewPostVar>(), "pvName", "kept");
  QTest::keyClick(&in<QWidget>(opened<NewPostVar>(), "pvName"), Qt::Key_Return);
  EXPECT_EQ(vars(1), "kept=1;b'= two ");
}

TEST_F(NewPostVarTest, ClosingReloadsTheVariablesAndKeepsWhatWasTypedElsewhere) {
  auto& editor = openEditor();
  type(editor, "tUrl", "http://typed.test/");
  type(editor, "pvName", "typed name");
  folder.execute("update postVars set pvalue = 'changed' where pname = 'a'");
  clickVar(editor, 1);
  press(opened<NewPostVar>(), "Command2");
  EXPECT_EQ(gridCell(0, 1), "changed");
  EXPECT_EQ(text(editor, "tUrl"), "http://typed.test/");
  EXPECT_EQ(text(editor, "pvName"), "typed name");
}

TEST_F(NewPostVarTest, TheKeyboardOpensTheVariableToo) {
  auto& editor = openEditor();
  auto& grid = in<QTableView>(editor, "grid1");
  grid.setFocus();
  grid.selectRow(1);
  QTest::keyClick(&grid, Qt::Key_Return);
  EXPECT_EQ(text(opened<NewPostVar>(), "pvName"), "b'");
}

TEST_F(NewPostVarTest, AVariableThatIsNotStoredAsShownIsNotEditedInVain) {
  folder.execute("update postVars set pvalue = null where pname = 'a'");
  auto& editor = openEditor();
  clickVar(editor, 0);
  EXPECT_EQ(shown<NewPostVar>(), nullptr);
  ASSERT_EQ(machine.prompts.texts().size(), 1U);
  EXPECT_NE(machine.prompts.texts().front().find("Press Apply"), std::string::npos);
  press(editor, "Command3");
  clickVar(editor, 0);
  type(opened<NewPostVar>(), "pvValue", "new");
  press(opened<NewPostVar>(), "Command4");
  EXPECT_EQ(vars(1), "a=new;b'= two ");
}

TEST_F(NewPostVarTest, TheSiteEditorWaitsMeanwhile) {
  auto& form = openVar(0);
  auto& editor = opened<SiteEditor>();
  press(editor, "Command1");
  EXPECT_TRUE(editor.isVisible());
  EXPECT_TRUE(form.isVisible());
}

}  // namespace
}  // namespace tarnwick
