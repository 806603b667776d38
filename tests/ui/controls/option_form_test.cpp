// SPDX-License-Identifier: MIT
// The pages of options: made from the table, read when they are seen, stored with the rest of their dialog.
#include "ui/controls/option_form.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QLabel>
#include <QShortcut>
#include <QSpinBox>
#include <QTabWidget>

#include "ui/settings/control_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using ::testing::HasSubstr;

Fields fieldsWith(std::vector<OptionField> options) {
  Fields fields = programFields();
  fields.options = std::move(options);
  return fields;
}

/// One option of each kind, and one that a single site cannot have.
const Fields& ofEachKind() {
  static const Fields fields = fieldsWith({
      {.name = "quiet",
       .kind = OptionKind::flag,
       .ofSite = true,
       .original = "it tells",
       .label = "Be quiet",
       .meaning = "Whether nothing is told"},
      {.name = "patience",
       .kind = OptionKind::number,
       .ofSite = true,
       .least = 1,
       .most = 3600,
       .unit = "seconds",
       .original = "it waits without end",
       .label = "Patience",
       .meaning = "How long it waits"},
      {.name = "adoption",
       .kind = OptionKind::choice,
       .ofSite = true,
       .choices = {"pages only", "anything"},
       .original = "anything",
       .label = "Adoption",
       .meaning = "What is adopted"},
      {.name = "agent",
       .kind = OptionKind::text,
       .ofSite = true,
       .original = "no name",
       .label = "Agent",
       .meaning = "By which name it asks"},
      {.name = "pace",
       .kind = OptionKind::number,
       .ofSite = true,
       .least = 5,
       .most = 256,
       .choices = {"auto"},
       .original = "five",
       .label = "Pace",
       .meaning = "How many at a time"},
      {.name = "ofAll", .kind = OptionKind::flag, .original = "it is not", .label = "Of all", .meaning = "For all"},
  });
  return fields;
}

class OptionFormTest : public DialogTest {
 protected:
  OptionFormTest() {
    fields = &ofEachKind();
    addSite(3, "http://one.test/");
  }

  std::string options() const {
    return folder.queryRows("select idSite, name, value from siteOptions order by idSite, name");
  }
  /// What is set by another program.
  void set(int idSite, const std::string& name, const std::string& value) {
    folder.execute("insert into siteOptions (idSite, name, value) values (" + std::to_string(idSite) + ",'" + name +
                   "','" + value + "')");
  }
  /// Turns to a page of a form, the first one is 1.
  static void turnToPage(QWidget& form, int page) {
    if (!QTest::qWaitForWindowActive(&form)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + page));
    for (auto* shortcut : form.findChildren<QShortcut*>()) {
      if (shortcut->key() == keys) {
        Q_EMIT shortcut->activated();
      }
    }
    EXPECT_EQ(in<QTabWidget>(form, "pages").currentIndex(), page - 1);
  }
  SiteEditor& openOptions() {
    auto& editor = openEditor();
    turnToPage(editor, 2);
    return editor;
  }
  ControlDialog& openDefaults() {
    open();
    master->setEditors({.site = {}, .settings = settingsDialogOf(master->program(), *master)});
    click("btnSetup");
    auto& dialog = opened<ControlDialog>();
    turnToPage(dialog, 2);
    return dialog;
  }
  static QCheckBox& quiet(QWidget& form) { return in<QCheckBox>(form, "option_quiet"); }
  static QSpinBox& patience(QWidget& form) { return in<QSpinBox>(form, "option_patience"); }
  static QComboBox& adoption(QWidget& form) { return in<QComboBox>(form, "option_adoption"); }
  static void typeNumber(QSpinBox& box, const char* digits) {
    box.setFocus();
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, QString::fromLatin1(digits));
  }
};

TEST_F(OptionFormTest, WhatIsNotSetSaysSo) {
  auto& editor = openOptions();
  EXPECT_EQ(quiet(editor).text(), QStringLiteral("As in Defaults"));
  EXPECT_EQ(patience(editor).text(), QStringLiteral("As in Defaults"));
  EXPECT_EQ(adoption(editor).currentText(), QStringLiteral("As in Defaults"));
  EXPECT_EQ(in<QLineEdit>(editor, "option_agent").placeholderText(), QStringLiteral("As in Defaults"));
}

TEST_F(OptionFormTest, ANumberMayHaveWordsBesideIt) {
  set(3, "pace", "auto");
  auto& editor = openOptions();
  auto& pace = in<QSpinBox>(editor, "option_pace");
  EXPECT_EQ(pace.text(), QStringLiteral("auto"));
  typeNumber(pace, "64");
  press(editor, "Command1");
  EXPECT_EQ(options(), "3|pace|64\n");
}

TEST_F(OptionFormTest, AWordOfANumberIsTyped) {
  auto& editor = openOptions();
  typeNumber(in<QSpinBox>(editor, "option_pace"), "Auto");
  press(editor, "Command1");
  EXPECT_EQ(options(), "3|pace|auto\n");
}

TEST_F(OptionFormTest, TheDefaultOfASiteIsShownInItsPlace) {
  folder.queryText("select 1");
  openProgram();
  set(0, "patience", "60");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  turnToPage(editor, 2);
  EXPECT_EQ(patience(editor).text(), QStringLiteral("As in Defaults (60)"));
}

TEST_F(OptionFormTest, EveryOptionOfTheTableHasItsRow) {
  auto& dialog = openDefaults();
  for (const OptionField& option : fields->options) {
    SCOPED_TRACE(option.name);
    auto& control = in<QWidget>(dialog, ("option_" + option.name).c_str());
    EXPECT_THAT(control.accessibleName().toStdString(), ::testing::EndsWith(option.label));
    EXPECT_THAT(control.accessibleDescription().toStdString(), HasSubstr(option.meaning));
    EXPECT_THAT(control.toolTip().toStdString(), HasSubstr(option.original));
    bool labelled = false;
    for (const auto* label : dialog.findChildren<QLabel*>()) {
      labelled = labelled || (label->buddy() == &control && label->text().toStdString() == option.label);
    }
    EXPECT_TRUE(labelled);
  }
}

TEST_F(OptionFormTest, ASiteHasNoRowForWhatHoldsForAllOnly) {
  auto& editor = openOptions();
  EXPECT_EQ(editor.findChild<QWidget*>(QStringLiteral("option_ofAll")), nullptr);
}

TEST_F(OptionFormTest, OkStoresBothPages) {
  auto& editor = openEditor();
  type(editor, "tUrl", "http://other.test/");
  turnToPage(editor, 2);
  QTest::keyClick(&quiet(editor), Qt::Key_Space);
  typeNumber(patience(editor), "45");
  QTest::keyClick(&adoption(editor), Qt::Key_Down);
  type(editor, "option_agent", "me");
  press(editor, "Command1");
  EXPECT_EQ(column(3, "url"), "http://other.test/");
  EXPECT_EQ(options(), "3|adoption|pages only\n3|agent|me\n3|patience|45\n3|quiet|on\n");
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(OptionFormTest, WhatIsUnsetAgainIsNotStored) {
  openProgram();
  set(3, "patience", "45");
  set(3, "agent", "me");
  set(3, "quiet", "off");
  set(3, "adoption", "anything");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  turnToPage(editor, 2);
  EXPECT_EQ(quiet(editor).text(), QStringLiteral("off"));
  EXPECT_EQ(adoption(editor).currentText(), QStringLiteral("anything"));
  QTest::keyClick(&quiet(editor), Qt::Key_Space);
  typeNumber(patience(editor), "");
  type(editor, "option_agent", "");
  QTest::keyClick(&adoption(editor), Qt::Key_Home);
  press(editor, "Command3");
  EXPECT_EQ(options(), "");
}

TEST_F(OptionFormTest, WithoutAChangeNothingIsWritten) {
  auto& editor = openOptions();
  folder.execute("create trigger refuse before insert on siteOptions begin select raise(abort, 'written'); end");
  press(editor, "Command1");
  EXPECT_TRUE(machine.prompts.shown().empty());
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
}

TEST_F(OptionFormTest, AValueThatItsControlCannotShowStays) {
  openProgram();
  set(3, "patience", "99999");
  set(3, "adoption", "nothing at all");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  turnToPage(editor, 2);
  press(editor, "Command3");
  EXPECT_EQ(options(), "3|adoption|nothing at all\n3|patience|99999\n");
}

TEST_F(OptionFormTest, AnOptionThatIsRefusedIsToldAndNothingIsStored) {
  auto& editor = openEditor();
  type(editor, "tUrl", "http://other.test/");
  turnToPage(editor, 2);
  typeNumber(patience(editor), "45");
  folder.execute("create trigger refuse before insert on siteOptions begin select raise(abort, 'not patience'); end");
  turnToPage(editor, 1);
  press(editor, "Command1");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_THAT(machine.prompts.shown()[0].text, HasSubstr("patience"));
  EXPECT_EQ(column(3, "url"), "http://one.test/");
  ASSERT_TRUE(editor.isVisible());
  EXPECT_EQ(in<QTabWidget>(editor, "pages").currentIndex(), 1);
  EXPECT_EQ(patience(editor).value(), 45);
}

TEST_F(OptionFormTest, AnotherSiteAsksAboutWhatWasChosen) {
  addSite(4, "http://two.test/");
  auto& editor = openOptions();
  QTest::keyClick(&quiet(editor), Qt::Key_Space);
  machine.prompts.answerConfirm(false);
  clickRow(1);
  EXPECT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_EQ(in<QGroupBox>(editor, "Frame1").title().toStdString(), "Site ID: 3");
}

TEST_F(OptionFormTest, TheDefaultsAreStoredWithTheSettings) {
  auto& dialog = openDefaults();
  EXPECT_EQ(patience(dialog).text(), QStringLiteral("As the original"));
  typeNumber(patience(dialog), "30");
  QTest::keyClick(&patience(dialog), Qt::Key_Return);
  EXPECT_EQ(shown<ControlDialog>(), nullptr);
  EXPECT_EQ(options(), "0|patience|30\n");
}

TEST_F(OptionFormTest, CancelOnTheDefaultsStoresNothing) {
  auto& dialog = openDefaults();
  typeNumber(patience(dialog), "30");
  press(dialog, "btnCancel");
  EXPECT_EQ(options(), "");
}

TEST_F(OptionFormTest, WithoutAnyOptionThePageSaysSo) {
  static const Fields none = fieldsWith({});
  fields = &none;
  auto& editor = openOptions();
  bool said = false;
  for (const auto* label : editor.findChildren<QLabel*>()) {
    said = said || label->text() == QStringLiteral("There is nothing to be chosen here.");
  }
  EXPECT_TRUE(said);
  press(editor, "Command1");
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(OptionFormTest, TheWheelMovesThePageAndNoValue) {
  auto& editor = openOptions();
  auto& box = adoption(editor);
  quiet(editor).setFocus();
  QWheelEvent wheel(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&box, &wheel);
  EXPECT_EQ(box.currentIndex(), 0);
}

}  // namespace
}  // namespace tarnwick
