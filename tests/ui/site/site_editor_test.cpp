// SPDX-License-Identifier: MIT
// The site editor: what it shows, what it stores.
#include "ui/site/site_editor.h"

#include <algorithm>
#include <QLabel>
#include <QScrollBar>

#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using Strings = std::vector<std::string>;

class SiteEditorTest : public DialogTest {
 protected:
  static QListWidget& intervals(QWidget& editor) { return in<QListWidget>(editor, "lbInterval"); }
  static void chooseInterval(QWidget& editor, int row) {
    auto& list = intervals(editor);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(row)).center());
  }
  static Strings grid(QWidget& editor) {
    const QAbstractItemModel& model = *in<QTableView>(editor, "grid1").model();
    Strings rows;
    for (int row = 0; row < model.rowCount(); ++row) {
      rows.push_back((model.index(row, 0).data().toString() + QLatin1Char('=') + model.index(row, 1).data().toString())
                         .toStdString());
    }
    return rows;
  }
};

TEST_F(SiteEditorTest, AClickOnARowOpensTheEditorOnThatSite) {
  addSite(3, "http://one.test/");
  addSite(7, "http://two.test/");
  openProgram();
  clickRow(1);
  auto& editor = opened<SiteEditor>();
  EXPECT_EQ(in<QGroupBox>(editor, "Frame1").title().toStdString(), "Site ID: 7");
  EXPECT_EQ(text(editor, "tUrl"), "http://two.test/");
  EXPECT_TRUE(QTest::qWaitFor([&] { return in<QLineEdit>(editor, "tUrl").hasFocus(); }));
}

TEST_F(SiteEditorTest, ShowsTheBeginningOfALongAddressAndGivesItTheRoom) {
  addSite(1, "http://one.test/" + std::string(400, 'x'));
  auto& editor = openEditor();
  auto& url = in<QLineEdit>(editor, "tUrl");
  EXPECT_EQ(url.selectedText(), url.text());
  EXPECT_EQ(url.cursorPosition(), 0);
  EXPECT_GE(url.width(), 300);
  EXPECT_LT(in<QTableView>(editor, "grid1").width(), editor.width() * 4 / 10);
}

TEST_F(SiteEditorTest, TellsWhyTheSiteIsDownWhereItCanBeCopied) {
  addSite(1, "http://one.test/", ",content_compare,content_runtime,status,lastChecked",
          ",'old','new',0,'2024-02-03 04:05:06'");
  addSite(2, "http://two.test/");
  auto& editor = openEditor();
  auto& reason = in<QLabel>(editor, "lReason");
  EXPECT_TRUE(reason.isVisible());
  EXPECT_EQ(reason.text(), QStringLiteral(R"(line 1: expected "old", found "new")"));
  EXPECT_EQ(spoken(reason), reason.text());
  EXPECT_TRUE(reason.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
  editor.editSite(2);
  EXPECT_EQ(editor.findChild<QLabel*>(QStringLiteral("lReason")), nullptr);
}

TEST_F(SiteEditorTest, NewOpensTheEditorOnAFreshRecordWithEmptyFields) {
  openProgram();
  click("btnNew");
  auto& editor = opened<SiteEditor>();
  EXPECT_EQ(text(editor, "tUrl"), "http://localhost");
  EXPECT_EQ(text(editor, "tUsername"), "");
  EXPECT_EQ(text(editor, "tPassword"), "");
  EXPECT_EQ(text(editor, "tEmail"), "");
  EXPECT_FALSE(in<QCheckBox>(editor, "cEmail").isChecked());
  EXPECT_TRUE(in<QCheckBox>(editor, "tActive").isChecked());
  EXPECT_TRUE(in<QRadioButton>(editor, "tGet").isChecked());
  EXPECT_EQ(intervals(editor).currentItem()->text().toStdString(), "10");
  press(editor, "Command1");
  EXPECT_EQ(folder.queryRows("select email, sUserName, sPassWord from sites"), "||\n");
}

TEST_F(SiteEditorTest, HasItsControlsAndCaptions) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  EXPECT_EQ(editor.objectName().toStdString(), "site");
  const std::vector<std::pair<const char*, std::string>> buttons = {{"tGet", "Get"},
                                                                    {"tPost", "Post"},
                                                                    {"tActive", "Active"},
                                                                    {"Command9", "Visit"},
                                                                    {"Command4", "Add POST Variable"},
                                                                    {"Command5", "Clear POST Variables"},
                                                                    {"Command1", "OK"},
                                                                    {"Command3", "Apply"},
                                                                    {"Command2", "Content"},
                                                                    {"Command6", "Delete"},
                                                                    {"Command7", "Counters"},
                                                                    {"Command8", "Cancel"},
                                                                    {"cEmail", "Email"},
                                                                    {"cPager", "Pager"}};
  for (const auto& [name, expected] : buttons) {
    EXPECT_EQ(caption<QAbstractButton>(editor, name), expected);
  }
  EXPECT_EQ(in<QGroupBox>(editor, "Frame2").title().toStdString(), "HTTP Post Variables");
  EXPECT_EQ(in<QGroupBox>(editor, "Frame3").title().toStdString(), "Control");
  EXPECT_EQ(in<QGroupBox>(editor, "Frame4").title().toStdString(), "Alerts");
  EXPECT_EQ(text(editor, "pvName"), "enter name here");
  EXPECT_EQ(text(editor, "pvValue"), "enter value here");
  Strings labels;
  for (const auto* label : editor.findChildren<QLabel*>()) {
    labels.push_back(QString(label->text()).remove(QLatin1Char('&')).toStdString());
  }
  EXPECT_EQ(labels, (Strings{"Url", "Username", "Password", "Method", "Interval ( in minutes )"}));
  Strings minutes;
  for (int row = 0; row < intervals(editor).count(); ++row) {
    minutes.push_back(intervals(editor).item(row)->text().toStdString());
  }
  EXPECT_EQ(minutes, (Strings{"1", "5", "10", "15", "30", "45", "60", "90", "120"}));
}

TEST_F(SiteEditorTest, IsReachedByTheKeyboardInTheOrderOfTheEye) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  const Strings order = tabOrder(editor, in<QWidget>(editor, "tUrl"));
  EXPECT_EQ(order,
            (Strings{"tUrl",     "Command9", "tUsername", "tPassword", "tGet",     "tPost",    "tActive", "lbInterval",
                     "cEmail",   "tEmail",   "cPager",    "tPager",    "grid1",    "pvName",   "pvValue", "Command4",
                     "Command5", "Command1", "Command3",  "Command2",  "Command6", "Command7", "Command8"}));
  std::vector<QChar> keys = mnemonics(editor);
  std::ranges::sort(keys);
  EXPECT_TRUE(std::ranges::adjacent_find(keys) == keys.end()) << "two controls share a mnemonic";
  for (auto* control : editor.findChildren<QWidget*>()) {
    if (!control->objectName().isEmpty() && !control->objectName().startsWith(QLatin1String("qt_"))) {
      EXPECT_FALSE(spoken(*control).isEmpty()) << control->objectName().toStdString();
    }
  }
}

TEST_F(SiteEditorTest, AFieldOfTheTableStandsInTheForm) {
  folder.laySitesAsOneTable();
  folder.execute("alter table sites add column note TEXT");
  folder.execute("alter table sites add column watched YESNO default 0");
  static Fields more = programFields();
  more.site.push_back({"note", FieldKind::text, {}, "Note", "what is to be known of it"});
  more.site.push_back({"watched", FieldKind::flag, {}, "Watched", "whether somebody looks"});
  fields = &more;
  addSite(1, "http://one.test/", ",note", ",'old'");
  auto& editor = openEditor();
  EXPECT_EQ(text(editor, "note"), "old");
  EXPECT_EQ(in<QWidget>(editor, "note").accessibleName().toStdString(), "Note");
  type(editor, "note", "new");
  QTest::mouseClick(&in<QWidget>(editor, "watched"), Qt::LeftButton, {}, QPoint(8, 8));
  press(editor, "Command1");
  EXPECT_TRUE(machine.prompts.shown().empty());
  EXPECT_EQ(folder.queryRows("select note, watched from sites"), "new|1\n");
}

TEST_F(SiteEditorTest, DoesNotShowThePassword) {
  addSite(1, "http://one.test/", ",sPassWord", ",'secret'");
  auto& editor = openEditor();
  EXPECT_EQ(in<QLineEdit>(editor, "tPassword").echoMode(), QLineEdit::Password);
  EXPECT_EQ(in<QLineEdit>(editor, "tPassword").displayText().indexOf(QLatin1String("secret")), -1);
  press(editor, "Command3");
  EXPECT_EQ(column(1, "sPassWord"), "secret");
}

TEST_F(SiteEditorTest, ApplyStoresEveryFieldAndStaysOpen) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  type(editor, "tUrl", "https://x.test/it's");
  type(editor, "tUsername", "me");
  type(editor, "tPassword", "pass");
  QTest::mouseClick(&in<QWidget>(editor, "tPost"), Qt::LeftButton, {}, QPoint(8, 8));
  QTest::mouseClick(&in<QWidget>(editor, "tActive"), Qt::LeftButton, {}, QPoint(8, 8));
  chooseInterval(editor, 1);
  QTest::mouseClick(&in<QWidget>(editor, "cEmail"), Qt::LeftButton, {}, QPoint(8, 8));
  type(editor, "tEmail", "a@b.c");
  type(editor, "tPager", "555");
  press(editor, "Command3");
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(folder.queryRows("select url,method,active,tInterval,alertEmail,email,sUserName,sPassWord from sites"),
            "https://x.test/it's|post|0|5|1|a@b.c|me|pass\n");
  EXPECT_EQ(cell(0, 1).toStdString(), "http://one.test/");
  press(editor, "Command8");
  EXPECT_EQ(cell(0, 1).toStdString(), "https://x.test/it's");
}

TEST_F(SiteEditorTest, OkStoresClosesAndRefreshesTheGrid) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  type(editor, "tUrl", "http://new.test/");
  press(editor, "Command1");
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
  EXPECT_EQ(column(1, "url"), "http://new.test/");
  EXPECT_EQ(cell(0, 1).toStdString(), "http://new.test/");
}

TEST_F(SiteEditorTest, CancelEscapeAndTheFrameCloseWithoutSaving) {
  addSite(1, "http://one.test/");
  openProgram();
  for (const int way : {0, 1, 2}) {
    clickRow(0);
    auto& editor = opened<SiteEditor>();
    type(editor, "tUrl", "http://lost.test/");
    if (way == 0) {
      press(editor, "Command8");
    } else if (way == 1) {
      QTest::keyClick(&in<QWidget>(editor, "tUrl"), Qt::Key_Escape);
    } else {
      editor.close();
    }
    EXPECT_EQ(shown<SiteEditor>(), nullptr) << way;
    EXPECT_EQ(column(1, "url"), "http://one.test/") << way;
  }
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(SiteEditorTest, EnterPressesOkAndTheButtonInHand) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  type(editor, "tUrl", "http://first.test/");
  in<QPushButton>(editor, "Command3").setFocus();
  QTest::keyClick(&in<QWidget>(editor, "Command3"), Qt::Key_Return);
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(column(1, "url"), "http://first.test/");
  type(editor, "tUrl", "http://second.test/");
  QTest::keyClick(&in<QWidget>(editor, "tUrl"), Qt::Key_Return);
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
  EXPECT_EQ(column(1, "url"), "http://second.test/");
}

TEST_F(SiteEditorTest, AnIntervalThatIsNotInTheListIsNotSelectedAndKept) {
  addSite(1, "http://one.test/");
  folder.execute("update sites set tInterval = 7");
  auto& editor = openEditor();
  EXPECT_EQ(intervals(editor).currentItem(), nullptr);
  EXPECT_TRUE(intervals(editor).selectedItems().isEmpty());
  press(editor, "Command3");
  EXPECT_EQ(column(1, "tInterval"), "7");
  chooseInterval(editor, 8);
  press(editor, "Command1");
  EXPECT_EQ(column(1, "tInterval"), "120");
}

TEST_F(SiteEditorTest, PassingTheIntervalsWithTheTabKeySelectsNothing) {
  addSite(1, "http://one.test/");
  folder.execute("update sites set tInterval = 7");
  auto& editor = openEditor();
  intervals(editor).setFocus();
  for (int step = 0; step < 3; ++step) {
    QTest::keyClick(editor.focusWidget(), Qt::Key_Backtab);
  }
  for (int step = 0; step < 6; ++step) {
    QTest::keyClick(editor.focusWidget(), Qt::Key_Tab);
  }
  press(editor, "Command3");
  EXPECT_EQ(column(1, "tInterval"), "7");
}

TEST_F(SiteEditorTest, AnIntervalThatIsMissingBecomesThatOfANewSite) {
  addSite(1, "http://one.test/");
  folder.execute("update sites set tInterval = null");
  auto& editor = openEditor();
  EXPECT_EQ(intervals(editor).currentItem(), nullptr);
  press(editor, "Command1");
  EXPECT_EQ(column(1, "tInterval"), "10");
}

TEST_F(SiteEditorTest, TheStoredMethodIsFoundInAnyLetterCase) {
  addSite(1, "http://one.test/");
  addSite(2, "http://two.test/");
  addSite(3, "http://three.test/");
  folder.execute("update sites set method = 'pOsT' where idSite = 1; update sites set method = 'PUT' where idSite = 2");
  auto& editor = openEditor();
  EXPECT_TRUE(in<QRadioButton>(editor, "tPost").isChecked());
  clickRow(1);
  EXPECT_FALSE(in<QRadioButton>(editor, "tPost").isChecked());
  EXPECT_FALSE(in<QRadioButton>(editor, "tGet").isChecked());
  clickRow(2);
  EXPECT_TRUE(in<QRadioButton>(editor, "tGet").isChecked());
  press(editor, "Command3");
  EXPECT_EQ(column(3, "method"), "get");
}

TEST_F(SiteEditorTest, AnInvalidAddressBlocksApplyWithOneBox) {
  addSite(1, "http://one.test/", ",alertEmail,email", ",1,'nobody'");
  auto& editor = openEditor();
  type(editor, "tUrl", "http://typed.test/");
  press(editor, "Command3");
  ASSERT_EQ(machine.prompts.texts(), Strings{"You must enter a valid email address."});
  EXPECT_EQ(machine.prompts.shown()[0].title, "Tarnwick");
  EXPECT_EQ(editor.focusWidget(), &in<QWidget>(editor, "tEmail"));
  EXPECT_EQ(column(1, "url"), "http://one.test/");
  EXPECT_EQ(text(editor, "tUrl"), "http://typed.test/");
}

TEST_F(SiteEditorTest, AUserNameOfSeveralLinesIsNotSaved) {
  addSite(1, "ftp://one.test/");
  auto& editor = openEditor();
  in<QLineEdit>(editor, "tUsername").setText(QStringLiteral("me\r\nDELE x"));
  press(editor, "Command3");
  ASSERT_EQ(machine.prompts.texts(), Strings{"The user name holds a line end. Enter it as one line."});
  EXPECT_EQ(editor.focusWidget(), &in<QWidget>(editor, "tUsername"));
  EXPECT_NE(column(1, "sUserName"), "me\r\nDELE x");
}

TEST_F(SiteEditorTest, AnInvalidAddressIsToldTwiceByOkWhichStaysOpen) {
  addSite(1, "http://one.test/", ",alertEmail,email", ",1,'nobody'");
  auto& editor = openEditor();
  press(editor, "Command1");
  EXPECT_EQ(machine.prompts.texts(),
            (Strings{"You must enter a valid email address.", "You must enter a valid email address."}));
  EXPECT_TRUE(editor.isVisible());
  type(editor, "tEmail", "a@b.c");
  press(editor, "Command1");
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
  EXPECT_EQ(column(1, "email"), "a@b.c");
}

TEST_F(SiteEditorTest, AnInvalidAddressKeepsTheContentDialogClosed) {
  addSite(1, "http://one.test/", ",alertEmail,email", ",1,'nobody'");
  auto& editor = openEditor();
  press(editor, "Command2");
  EXPECT_EQ(machine.prompts.texts().size(), 1U);
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
}

TEST_F(SiteEditorTest, AnEmptyAddressPassesWhenNoMailIsSent) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  press(editor, "Command1");
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(SiteEditorTest, DeleteAsksFirst) {
  addSite(1, "http://one.test/");
  addVar(1, "a", "b");
  auto& editor = openEditor();
  machine.prompts.answerConfirm(false);
  press(editor, "Command6");
  EXPECT_EQ(machine.prompts.texts(), Strings{"Do You Want To Delete This Site?\n\nSite 1: http://one.test/"});
  EXPECT_TRUE(machine.prompts.shown()[0].destroys);
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(rows(), 1);
  machine.prompts.answerConfirm(true);
  press(editor, "Command6");
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
  EXPECT_EQ(rows(), 0);
  EXPECT_EQ(folder.queryText("select count(*) from sites"), "0");
  EXPECT_EQ(folder.queryText("select count(*) from postVars"), "0");
}

TEST_F(SiteEditorTest, ShowsThePostVariables) {
  addSite(1, "http://one.test/");
  addVar(1, "a", "1");
  addVar(1, "b", "");
  auto& editor = openEditor();
  EXPECT_EQ(grid(editor), (Strings{"a=1", "b="}));
  const QAbstractItemModel& model = *in<QTableView>(editor, "grid1").model();
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString().toStdString(), "Name");
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString().toStdString(), "Value");
}

TEST_F(SiteEditorTest, AddedVariablesAreStoredAtOnce) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  type(editor, "pvName", "n'1");
  type(editor, "pvValue", "v 1");
  press(editor, "Command4");
  EXPECT_EQ(vars(1), "n'1=v 1");
  EXPECT_EQ(grid(editor), Strings{"n'1=v 1"});
  type(editor, "pvName", "second");
  QTest::keyClick(&in<QWidget>(editor, "pvName"), Qt::Key_Return);
  EXPECT_TRUE(editor.isVisible());
  press(editor, "Command8");
  EXPECT_EQ(vars(1), "n'1=v 1;second=v 1");
}

TEST_F(SiteEditorTest, ClearedVariablesGoWithTheNextSaveOnly) {
  addSite(1, "http://one.test/");
  addVar(1, "a", "1");
  auto& editor = openEditor();
  press(editor, "Command5");
  EXPECT_TRUE(grid(editor).empty());
  press(editor, "Command8");
  EXPECT_EQ(vars(1), "a=1");
  clickRow(0);
  auto& again = opened<SiteEditor>();
  press(again, "Command5");
  press(again, "Command3");
  EXPECT_EQ(vars(1), "NULL");
}

TEST_F(SiteEditorTest, SavingKeepsTheVariablesAndTheirOrder) {
  addSite(1, "http://one.test/");
  addVar(1, "z", "1");
  addVar(1, "a", "it''s");
  addVar(1, "z", "1");
  auto& editor = openEditor();
  press(editor, "Command1");
  EXPECT_EQ(vars(1), "z=1;a=it's;z=1");
}

TEST_F(SiteEditorTest, TheLettersNullAreAValueAndANullIsNone) {
  addSite(1, "http://one.test/");
  addVar(1, "letters", "NULL");
  folder.execute("insert into postVars (idSite,pname,pvalue) values (1,'nothing',null)");
  auto& editor = openEditor();
  EXPECT_EQ(grid(editor), (Strings{"letters=NULL", "nothing="}));
  press(editor, "Command1");
  EXPECT_EQ(vars(1), "letters=NULL;nothing=");
}

TEST_F(SiteEditorTest, BytesThatAreNotEditedStayAsTheyWere) {
  addSite(1, "http://one.test/");
  folder.execute("update sites set sUserName = cast(x'636166e9' as text), url = 'http://' || char(10) || 'x'");
  auto& editor = openEditor();
  EXPECT_EQ(in<QLineEdit>(editor, "tUsername").text(), QStringLiteral("caf\u00e9"));
  press(editor, "Command1");
  EXPECT_EQ(column(1, "hex(sUserName)"), "636166E9");
  EXPECT_EQ(column(1, "url"), "http://\nx");
}

TEST_F(SiteEditorTest, LongValuesAreKeptWhole) {
  const std::string url = "http://one.test/" + std::string(100'000, 'x');
  addSite(1, url);
  auto& editor = openEditor();
  EXPECT_LE(editor.width(), 1200);
  type(editor, "tEmail", "x");
  press(editor, "Command1");
  EXPECT_EQ(column(1, "url"), url);
}

TEST_F(SiteEditorTest, ThousandsOfVariablesScroll) {
  addSite(1, "http://one.test/");
  folder.execute(
      "with recursive n(i) as (select 1 union all select i + 1 from n where i < 5000) "
      "insert into postVars (idSite,pname,pvalue) select 1, 'n' || i, 'v' || i from n");
  auto& editor = openEditor();
  EXPECT_EQ(grid(editor).size(), 5000U);
  EXPECT_TRUE(in<QTableView>(editor, "grid1").verticalScrollBar()->isVisible());
  press(editor, "Command1");
  EXPECT_EQ(folder.queryText("select count(*) from postVars"), "5000");
}

TEST_F(SiteEditorTest, AFailedSaveIsOneBoxAndStoresNothing) {
  addSite(1, "http://one.test/");
  addVar(1, "a", "1");
  auto& editor = openEditor();
  folder.execute("create trigger t before insert on postVars begin select raise(abort, 'disk trouble'); end");
  type(editor, "tUrl", "http://typed.test/");
  press(editor, "Command1");
  ASSERT_EQ(machine.prompts.texts().size(), 1U);
  EXPECT_NE(machine.prompts.texts()[0].find("disk trouble"), std::string::npos);
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(text(editor, "tUrl"), "http://typed.test/");
  EXPECT_EQ(column(1, "url"), "http://one.test/");
  EXPECT_EQ(vars(1), "a=1");
  folder.execute("drop trigger t");
  press(editor, "Command1");
  EXPECT_EQ(column(1, "url"), "http://typed.test/");
}

TEST_F(SiteEditorTest, ASiteThatAnotherProgramDeletedIsNotHalfStored) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  folder.execute("delete from sites");
  press(editor, "Command4");
  press(editor, "Command1");
  EXPECT_EQ(machine.prompts.texts().size(), 2U);
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(folder.queryText("select count(*) from postVars"), "0");
}

TEST_F(SiteEditorTest, ASiteThatIsGoneIsNotOpened) {
  addSite(1, "http://one.test/");
  openProgram();
  folder.execute("delete from sites");
  clickRow(0);
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
  EXPECT_EQ(machine.prompts.texts().size(), 1U);
}

}  // namespace
}  // namespace tarnwick
