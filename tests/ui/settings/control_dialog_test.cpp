// SPDX-License-Identifier: MIT
// The settings dialog: what it shows, what it stores.
#include "ui/settings/control_dialog.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>

#include "ui/settings/control_dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::ControlDialogTest;
using ::testing::HasSubstr;
using Strings = std::vector<std::string>;

TEST_F(ControlDialogTest, TheButtonAndThePictureOpenIt) {
  auto& dialog = openSettings("btnSetup");
  EXPECT_EQ(dialog.objectName().toStdString(), "frmControl");
  EXPECT_TRUE(QTest::qWaitFor([&] { return in<QLineEdit>(dialog, "tEmail").hasFocus(); }));
  press(dialog, "Command2");
  click("imgSetup");
  EXPECT_NE(shown<ControlDialog>(), nullptr);
}

TEST_F(ControlDialogTest, HasItsControlsAndCaptions) {
  auto& dialog = openSettings();
  const std::vector<std::pair<const char*, std::string>> buttons = {{"Command6", "Browse"},
                                                                    {"Command7", "Test"},
                                                                    {"Command9", "Browse"},
                                                                    {"Command8", "Test"},
                                                                    {"cLogs", "Logs"},
                                                                    {"cReports", "Reports"},
                                                                    {"cEmail", "Email"},
                                                                    {"cAudio", "Audio"},
                                                                    {"cProgram", "Program"},
                                                                    {"Command1", "OK"},
                                                                    {"Command2", "Cancel"},
                                                                    {"Command3", "Clear Logs"},
                                                                    {"Command4", "Compact Database"},
                                                                    {"Command5", "Create / View Report"}};
  for (const auto& [name, expected] : buttons) {
    EXPECT_EQ(caption<QAbstractButton>(dialog, name), expected) << name;
  }
  Strings frames;
  for (const auto* frame : dialog.findChildren<QGroupBox*>()) {
    frames.push_back(frame->title().toStdString());
  }
  EXPECT_EQ(frames, (Strings{"Configuration Data", "Administration Functions"}));
  EXPECT_EQ(label(dialog, "lblLogs"), "logs ...");
  EXPECT_EQ(label(dialog, "lblCompact"), "compact ...");
  EXPECT_EQ(label(dialog, "lblReport"), "report ...");
}

TEST_F(ControlDialogTest, EveryFieldHasItsLabel) {
  auto& dialog = openSettings();
  std::vector<std::pair<std::string, std::string>> labels;
  for (const auto* shown : dialog.findChildren<QLabel*>()) {
    if (shown->buddy() != nullptr) {
      labels.emplace_back(shown->buddy()->objectName().toStdString(),
                          QString(shown->text()).remove(QLatin1Char('&')).toStdString());
    }
  }
  std::ranges::sort(labels);
  EXPECT_EQ(labels, (std::vector<std::pair<std::string, std::string>>{{"lbInterval", "TCP Timeout"},
                                                                      {"tAudio", "Audio"},
                                                                      {"tEmail", "Email"},
                                                                      {"tProgram", "Program"},
                                                                      {"tSmtp", "SMTP"}}));
}

TEST_F(ControlDialogTest, OffersTenTimeouts) {
  auto& dialog = openSettings();
  Strings items;
  for (int row = 0; row < timeouts(dialog).count(); ++row) {
    items.push_back(timeouts(dialog).item(row)->text().toStdString());
  }
  EXPECT_EQ(items, (Strings{"1", "10", "20", "30", "45", "60", "90", "120", "150", "180"}));
}

TEST_F(ControlDialogTest, ShowsTheStoredSettings) {
  arrange(
      "email = 'me@example.org', smtp = 'mail.example.org', audio = '/a b/c.wav', program = 'run \"~1~\"', timeout = "
      "90, clogs = 0, creports = 1, cemail = -1, caudio = 0, cprogram = 1");
  auto& dialog = openSettings();
  EXPECT_EQ(text(dialog, "tEmail"), "me@example.org");
  EXPECT_EQ(text(dialog, "tSmtp"), "mail.example.org");
  EXPECT_EQ(text(dialog, "tAudio"), "/a b/c.wav");
  EXPECT_EQ(text(dialog, "tProgram"), "run \"~1~\"");
  EXPECT_EQ(timeout(dialog), "90");
  EXPECT_FALSE(ticked(dialog, "cLogs"));
  EXPECT_TRUE(ticked(dialog, "cReports"));
  EXPECT_TRUE(ticked(dialog, "cEmail"));
  EXPECT_FALSE(ticked(dialog, "cAudio"));
  EXPECT_TRUE(ticked(dialog, "cProgram"));
}

TEST_F(ControlDialogTest, NullSettingsAreEmptyAndUnticked) {
  arrange(
      "email = null, smtp = null, audio = null, program = null, timeout = null, clogs = null, creports = null, cemail "
      "= null, caudio = null, cprogram = null");
  auto& dialog = openSettings();
  for (const char* name : {"tEmail", "tSmtp", "tAudio", "tProgram"}) {
    EXPECT_EQ(text(dialog, name), "") << name;
  }
  EXPECT_EQ(timeout(dialog), "");
  for (const char* name : {"cLogs", "cReports", "cEmail", "cAudio", "cProgram"}) {
    EXPECT_FALSE(ticked(dialog, name)) << name;
  }
}

TEST_F(ControlDialogTest, ATimeoutThatIsNotInTheListSelectsNothing) {
  arrange("timeout = 25");
  EXPECT_EQ(timeout(openSettings()), "");
}

TEST_F(ControlDialogTest, TheSelectedTimeoutIsInSight) {
  arrange("timeout = 180");
  auto& dialog = openSettings();
  auto& list = timeouts(dialog);
  EXPECT_EQ(timeout(dialog), "180");
  EXPECT_TRUE(QTest::qWaitFor([&] { return list.viewport()->rect().contains(list.visualItemRect(list.item(9))); }));
}

TEST_F(ControlDialogTest, OkStoresEverySettingAndCloses) {
  auto& dialog = openSettings();
  type(dialog, "tEmail", "it's me@example.org");
  type(dialog, "tSmtp", "mail.example.org");
  type(dialog, "tAudio", "/sounds/alarm.wav");
  type(dialog, "tProgram", "/bin/run \"~1~\"");
  chooseTimeout(dialog, 7);
  for (const char* name : {"cLogs", "cReports", "cEmail", "cAudio", "cProgram"}) {
    tick(dialog, name);
  }
  press(dialog, "Command1");
  EXPECT_EQ(shown<ControlDialog>(), nullptr);
  EXPECT_EQ(stored(), "it's me@example.org|mail.example.org|/sounds/alarm.wav|120|/bin/run \"~1~\"|0|1|1|1|1\n");
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(ControlDialogTest, SettingsAreStoredInTheirOrder) {
  folder.execute("create table told (key text)");
  for (const std::string key :
       {"email", "smtp", "audio", "timeout", "program", "clogs", "creports", "cemail", "caudio", "cprogram"}) {
    folder.execute("create trigger on_" + key + " after update of " + key +
                   " on control begin insert into told values ('" + key + "'); end");
  }
  press(openSettings(), "Command1");
  EXPECT_EQ(folder.queryText("select group_concat(key, ' ') from told"),
            "email smtp audio timeout program clogs creports cemail caudio cprogram");
}

TEST_F(ControlDialogTest, WhatWasNotEditedIsStoredByteForByte) {
  folder.execute("update control set email = cast(x'66fc72' as text), audio = ' 007 '");
  auto& dialog = openSettings();
  EXPECT_EQ(in<QLineEdit>(dialog, "tEmail").text(), QStringLiteral("für"));
  press(dialog, "Command1");
  EXPECT_EQ(folder.queryText("select hex(email) || '/' || audio from control"), "66FC72/ 007 ");
}

TEST_F(ControlDialogTest, ATimeoutThatIsNotInTheListIsToldBesideItAndStoredAsNone) {
  arrange("email = 'old', timeout = 25");
  {
    auto& dialog = openSettings();
    EXPECT_TRUE(in<QLabel>(dialog, "lblTimeout").isVisible());
    EXPECT_EQ(in<QLabel>(dialog, "lblTimeout").text(), QStringLiteral("25 s stored"));
    type(dialog, "tEmail", "new");
    const QPointer<ControlDialog> open(&dialog);
    press(dialog, "Command1");
    EXPECT_TRUE(open.isNull() || !open->isVisible());
  }
  EXPECT_TRUE(machine.prompts.shown().empty());
  EXPECT_EQ(folder.queryRows("select email, timeout = '' from control"), "new|1\n");
  EXPECT_EQ(master->program().data().requestTimeout(), std::chrono::seconds(60));
  click("btnSetup");
  auto& again = opened<ControlDialog>();
  EXPECT_EQ(in<QLabel>(again, "lblTimeout").text(), QStringLiteral("60 s"));
  chooseTimeout(again, 0);
  EXPECT_FALSE(in<QLabel>(again, "lblTimeout").isVisible());
}

TEST_F(ControlDialogTest, PassingTheListWithTheTabKeySelectsNothing) {
  arrange("timeout = 25");
  auto& dialog = openSettings();
  for (int step = 0; step < 12; ++step) {
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(timeout(dialog), "");
  press(dialog, "Command1");
  EXPECT_EQ(folder.queryText("select timeout from control"), "");
}

TEST_F(ControlDialogTest, ARefusedSettingIsToldAndBroughtToTheUser) {
  folder.execute(
      "create trigger refuse before update of program on control begin select raise(abort, 'no programs here'); end");
  const std::string before = stored();
  auto& dialog = openSettings();
  type(dialog, "tEmail", "new");
  press(dialog, "Command1");
  EXPECT_EQ(stored(), before);
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_THAT(machine.prompts.shown()[0].text, HasSubstr("no programs here"));
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.focusWidget(), &in<QWidget>(dialog, "tProgram"));
}

TEST_F(ControlDialogTest, AMissingSettingsRowIsToldInsteadOfLosingWhatWasTyped) {
  folder.execute("delete from control");
  auto& dialog = openSettings();
  EXPECT_EQ(text(dialog, "tEmail"), "");
  EXPECT_FALSE(ticked(dialog, "cLogs"));
  type(dialog, "tEmail", "new");
  press(dialog, "Command1");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(text(dialog, "tEmail"), "new");
}

TEST_F(ControlDialogTest, SettingsThatCannotBeReadAreToldAndNoDialogOpens) {
  open();
  master->setEditors({.site = {}, .settings = settingsDialogOf(master->program(), *master)});
  folder.execute("drop table control");
  click("btnSetup");
  EXPECT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_EQ(shown<ControlDialog>(), nullptr);
}

TEST_F(ControlDialogTest, ASettingOfTheTableStandsInTheDialog) {
  folder.execute("alter table control add column proxy TEXT");
  folder.execute("alter table control add column cQuiet YESNO default 0");
  static Fields more = programFields();
  more.settings.push_back({"proxy", FieldKind::text, "Proxy", "the server that pages are asked through"});
  more.settings.push_back({"cQuiet", FieldKind::flag, "Quiet", "no alerts at night"});
  fields = &more;
  auto& dialog = openSettings();
  EXPECT_EQ(spoken(in<QWidget>(dialog, "proxy")).toStdString(), "Proxy");
  EXPECT_EQ(in<QWidget>(dialog, "proxy").toolTip().toStdString(), "the server that pages are asked through");
  type(dialog, "proxy", "proxy.example.org");
  tick(dialog, "cQuiet");
  press(dialog, "Command1");
  EXPECT_TRUE(machine.prompts.shown().empty());
  EXPECT_EQ(folder.queryRows("select proxy, cQuiet from control"), "proxy.example.org|1\n");
  click("btnSetup");
  EXPECT_EQ(text(opened<ControlDialog>(), "proxy"), "proxy.example.org");
  EXPECT_TRUE(ticked(opened<ControlDialog>(), "cQuiet"));
}

TEST_F(ControlDialogTest, CancelEscapeAndTheCloseButtonStoreNothing) {
  const std::string before = stored();
  const std::vector<std::function<void(ControlDialog&)>> ways = {
      [](ControlDialog& dialog) { press(dialog, "Command2"); },
      [](ControlDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
      [](ControlDialog& dialog) { dialog.close(); }};
  open();
  master->setEditors({.site = {}, .settings = settingsDialogOf(master->program(), *master)});
  for (const auto& leave : ways) {
    click("btnSetup");
    auto& dialog = opened<ControlDialog>();
    type(dialog, "tEmail", "new");
    tick(dialog, "cAudio");
    chooseTimeout(dialog, 9);
    leave(dialog);
    EXPECT_EQ(shown<ControlDialog>(), nullptr);
    EXPECT_EQ(stored(), before);
  }
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(ControlDialogTest, SetupBringsTheOpenDialogBackWithWhatWasTyped) {
  auto& dialog = openSettings();
  type(dialog, "tEmail", "new");
  dialog.showMinimized();
  click("imgSetup");
  EXPECT_FALSE(dialog.isMinimized());
  EXPECT_EQ(&opened<ControlDialog>(), &dialog);
  EXPECT_EQ(master->findChildren<ControlDialog*>().size(), 1);
  EXPECT_EQ(text(dialog, "tEmail"), "new");
}

TEST_F(ControlDialogTest, ItIsReadAfreshEachTimeAndLeavesNothingBehind) {
  press(openSettings(), "Command2");
  arrange("email = 'elsewhere', timeout = 1");
  click("btnSetup");
  EXPECT_EQ(text(opened<ControlDialog>(), "tEmail"), "elsewhere");
  EXPECT_EQ(timeout(opened<ControlDialog>()), "1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return master->findChildren<ControlDialog*>().size() == 1; }));
}

TEST_F(ControlDialogTest, ClosingItRefreshesTheMainWindow) {
  auto& dialog = openSettings();
  addSite(1, "http://one.test/");
  EXPECT_EQ(rows(), 0);
  press(dialog, "Command1");
  EXPECT_EQ(rows(), 1);
}

TEST_F(ControlDialogTest, AChangedTimeoutCountsAtItsNextUse) {
  auto& dialog = openSettings();
  chooseTimeout(dialog, 1);
  press(dialog, "Command1");
  EXPECT_EQ(master->program().data().requestTimeout(), std::chrono::seconds(10));
}

TEST_F(ControlDialogTest, IsReachedByTheKeyboardInTheOrderOfTheEye) {
  auto& dialog = openSettings();
  EXPECT_EQ(tabOrder(dialog, in<QWidget>(dialog, "tEmail")),
            (Strings{"tEmail",   "tSmtp",           "tAudio",     "Command6", "Command7", "tProgram", "Command9",
                     "Command8", "mailWayChannels", "lbInterval", "cLogs",    "cReports", "cEmail",   "cAudio",
                     "cProgram", "Command1",        "Command2",   "Command3", "Command4", "Command5"}));
  std::vector<QChar> keys = mnemonics(dialog);
  std::ranges::sort(keys);
  EXPECT_TRUE(std::ranges::adjacent_find(keys) == keys.end()) << "two controls share a mnemonic";
  Strings names;
  for (const std::string& control : tabOrder(dialog, in<QWidget>(dialog, "tEmail"))) {
    names.push_back(spoken(in<QWidget>(dialog, control.c_str())).toStdString());
    EXPECT_FALSE(names.back().empty()) << control;
  }
  std::ranges::sort(names);
  EXPECT_TRUE(std::ranges::adjacent_find(names) == names.end()) << "two controls are spoken alike";
}

TEST_F(ControlDialogTest, EnterInATextBoxIsOk) {
  auto& dialog = openSettings();
  type(dialog, "tSmtp", "mail.example.org");
  QTest::keyClick(&in<QWidget>(dialog, "tSmtp"), Qt::Key_Return);
  EXPECT_EQ(shown<ControlDialog>(), nullptr);
  EXPECT_EQ(folder.queryText("select smtp from control"), "mail.example.org");
}

TEST_F(ControlDialogTest, ClosingTheMainWindowEndsTheProgramAndStoresNothing) {
  const std::string before = stored();
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(true);
  type(dialog, "tEmail", "new");
  master->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible(); }));
  EXPECT_TRUE(machine.pump.closing());
  EXPECT_EQ(stored(), before);
}

}  // namespace
}  // namespace tarnwick
