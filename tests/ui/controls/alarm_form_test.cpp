// SPDX-License-Identifier: MIT
// When somebody is told: the page "Alarm" of a site and the pages "Defaults" and "Pause" of the settings.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>

#include "store/channel_table.h"
#include "ui/controls/alarm_section.h"
#include "ui/controls/alarm_words.h"
#include "ui/controls/quiet_hours_form.h"
#include "ui/settings/control_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using ::testing::HasSubstr;
using testing::waitUntil;

class AlarmFormTest : public DialogTest {
 protected:
  AlarmFormTest() { addSite(3, "http://one.test/"); }

  std::string options(int idSite) const {
    return folder.queryText(
        "select coalesce(group_concat(name || '=' || value, '; '), '') from (select * from "
        "siteOptions where idSite = " +
        std::to_string(idSite) + " and name not in ('newSites','adopt','mailLimit','logLimit') " + "order by name)");
  }
  void set(int idSite, const std::string& name, const std::string& value) {
    folder.execute("insert into siteOptions (idSite, name, value) values (" + std::to_string(idSite) + ",'" + name +
                   "','" + value + "')");
  }
  static QWidget& page(QWidget& form, int index) {
    auto& pages = in<QTabWidget>(form, "pages");
    pages.setCurrentIndex(index);
    return *pages.widget(index);
  }
  SiteEditor& openAlarm() {
    auto& editor = openEditor();
    page(editor, 1);
    return editor;
  }
  ControlDialog& openSettings(int index) {
    open();
    master->setEditors({.site = {}, .settings = settingsDialogOf(master->program(), *master)});
    click("btnSetup");
    auto& dialog = opened<ControlDialog>();
    page(dialog, index);
    return dialog;
  }
  static QRadioButton& preset(QWidget& form, int index) {
    return in<QRadioButton>(form, ("alarmPreset" + std::to_string(index)).c_str());
  }
  static void choosePreset(QWidget& form, int index) {
    auto& button = preset(form, index);
    ASSERT_TRUE(button.isVisible());
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    ASSERT_TRUE(button.isChecked());
  }
  static void toggle(QWidget& form, const char* name) {
    auto& box = in<QCheckBox>(form, name);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Space);
  }
  static std::string example(QWidget& form) { return in<QWidget>(form, "alarmExample").accessibleName().toStdString(); }
};

TEST_F(AlarmFormTest, DownForRealAndBackIsOneClick) {
  auto& editor = openAlarm();
  EXPECT_TRUE(preset(editor, 0).isChecked());
  EXPECT_EQ(preset(editor, 0).text(), QStringLiteral("As in Defaults (at every failed check)"));
  EXPECT_THAT(example(editor), HasSubstr("7 alerts"));
  choosePreset(editor, 2);
  EXPECT_EQ(example(editor), "What would happen: 2 alerts for an outage of 70 minutes (at every failed check: 7)");
  EXPECT_TRUE(in<QCheckBox>(editor, "alarmConfirm").isChecked());
  EXPECT_EQ(in<QSpinBox>(editor, "alarmConfirmCount").value(), 3);
  EXPECT_EQ(text(editor, "alarmConfirmAfter"), "5 s, 20 s");
  EXPECT_TRUE(in<QCheckBox>(editor, "alarmRecovery").isChecked());
  EXPECT_EQ(in<QComboBox>(editor, "alarmRemind").currentText(), QStringLiteral("say no more"));
  press(editor, "Command1");
  EXPECT_EQ(options(3), "alerts=on; confirm=3; confirmAfter=5 s, 20 s; recovery=on; remind=never");
}

TEST_F(AlarmFormTest, TheSamePresetForAllSites) {
  auto& dialog = openSettings(1);
  EXPECT_EQ(preset(dialog, 0).text(), QStringLiteral("At every failed check (as the original)"));
  EXPECT_FALSE(preset(dialog, 1).isVisible());
  choosePreset(dialog, 2);
  EXPECT_THAT(example(dialog), HasSubstr("2 alerts"));
  press(dialog, "btnOk");
  EXPECT_EQ(options(0), "alerts=on; confirm=3; confirmAfter=5 s, 20 s; recovery=on; remind=never");
}

TEST_F(AlarmFormTest, AnExplicitPresetHoldsWhateverTheDefaultsAre) {
  openProgram();
  set(0, "confirm", "3");
  set(0, "flapping", "5 in 30 min");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  page(editor, 1);
  EXPECT_EQ(preset(editor, 0).text(), QStringLiteral("As in Defaults (see the details)"));
  choosePreset(editor, 1);
  EXPECT_THAT(example(editor), HasSubstr("7 alerts"));
  press(editor, "Command3");
  EXPECT_EQ(options(3), "alerts=on; confirm=1; flapping=off; recovery=off; remind=every check");
}

TEST_F(AlarmFormTest, AsInDefaultsStoresNothing) {
  openProgram();
  set(3, "confirm", "5");
  set(3, "alerts", "on");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  page(editor, 1);
  EXPECT_TRUE(preset(editor, 4).isChecked());
  choosePreset(editor, 0);
  press(editor, "Command3");
  EXPECT_EQ(options(3), "");
}

TEST_F(AlarmFormTest, WhoTouchesADetailHasHisOwnChoiceAndOnlyThatIsStored) {
  auto& editor = openAlarm();
  toggle(editor, "alarmRecovery");
  EXPECT_TRUE(preset(editor, 4).isChecked());
  press(editor, "Command3");
  EXPECT_EQ(options(3), "recovery=on");
}

TEST_F(AlarmFormTest, NeverIsOneClickAndADetailTakesItBack) {
  auto& editor = openAlarm();
  choosePreset(editor, 3);
  EXPECT_THAT(example(editor), HasSubstr("0 alerts"));
  press(editor, "Command3");
  EXPECT_EQ(options(3), "alerts=off");
  toggle(editor, "alarmRecovery");
  press(editor, "Command3");
  EXPECT_EQ(options(3), "alerts=on; recovery=on");
}

TEST_F(AlarmFormTest, EveryDetailByKeyboard) {
  auto& editor = openAlarm();
  toggle(editor, "alarmConfirm");
  auto& count = in<QSpinBox>(editor, "alarmConfirmCount");
  count.setFocus();
  QTest::keyClick(&count, Qt::Key_Up);
  type(editor, "alarmConfirmAfter", "10");
  auto& remind = in<QComboBox>(editor, "alarmRemind");
  remind.setFocus();
  QTest::keyClick(&remind, Qt::Key_Down);
  QTest::keyClick(&remind, Qt::Key_Down);
  auto& every = in<QSpinBox>(editor, "alarmRemindEvery");
  ASSERT_TRUE(every.isVisible());
  toggle(editor, "alarmFlapping");
  toggle(editor, "alarmSlow");
  press(editor, "Command3");
  EXPECT_EQ(options(3), "confirm=4; confirmAfter=10 s; flapping=5 in 30 min; remind=60; slow=2000");
  EXPECT_TRUE(machine.prompts.shown().empty());
}

TEST_F(AlarmFormTest, WarningsOfACertificateGoWithEveryPreset) {
  auto& editor = openAlarm();
  auto& days = in<QLineEdit>(editor, "alarmCertificateDays");
  EXPECT_FALSE(days.isEnabled());
  EXPECT_EQ(days.text(), QStringLiteral("21"));
  toggle(editor, "alarmCertificate");
  EXPECT_TRUE(days.isEnabled());
  EXPECT_TRUE(preset(editor, 0).isChecked()) << "it is no other answer to when a failure is told";
  press(editor, "Command3");
  EXPECT_EQ(options(3), "certificate=21");
  days.setFocus();
  days.selectAll();
  QTest::keyClick(&days, Qt::Key_Delete);
  EXPECT_TRUE(days.isEnabled()) << "it can be typed anew";
  QTest::keyClicks(&days, QStringLiteral("30, third,7"));
  press(editor, "Command3");
  EXPECT_EQ(options(3), "certificate=third, 30, 7");
  EXPECT_TRUE(machine.prompts.shown().empty());
  toggle(editor, "alarmCertificate");
  press(editor, "Command3");
  EXPECT_EQ(options(3), "certificate=off");
}

TEST_F(AlarmFormTest, PausesThatAreNoneAreRefusedAndNothingIsStored) {
  auto& editor = openAlarm();
  toggle(editor, "alarmConfirm");
  type(editor, "alarmConfirmAfter", "soon");
  press(editor, "Command1");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_THAT(machine.prompts.shown()[0].text, HasSubstr("confirmAfter"));
  EXPECT_EQ(options(3), "");
  EXPECT_TRUE(editor.isVisible());
}

TEST_F(AlarmFormTest, WithoutATouchNothingIsWritten) {
  openProgram();
  set(3, "confirm", "5");
  set(3, "quiet", "nonsense of another tool");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  page(editor, 1);
  EXPECT_EQ(editor.unsavedEdits(), QString());
  press(editor, "Command3");
  EXPECT_EQ(options(3), "confirm=5; quiet=nonsense of another tool");
}

TEST_F(AlarmFormTest, AdoptIsStillThereForASite) {
  auto& editor = openAlarm();
  EXPECT_TRUE(in<QComboBox>(editor, "option_adopt").isVisible());
  EXPECT_EQ(editor.findChild<QWidget*>(QStringLiteral("option_ownNetwork")), nullptr);
  EXPECT_EQ(editor.findChild<QWidget*>(QStringLiteral("option_quiet")), nullptr);
}

TEST_F(AlarmFormTest, TheDefaultsHoldEveryOptionThatHasNoPlaceElsewhere) {
  auto& dialog = openSettings(1);
  for (const OptionField& option : programOptions()) {
    SCOPED_TRACE(option.name);
    // Proof of life stands beside the channels.
    QString life = QString::fromStdString(option.name);
    life = QStringLiteral("life") + life.front().toUpper() + life.mid(1);
    const bool hasPlaceElsewhere =
        AlarmSection::hasPlaceFor(option.name) || dialog.findChild<QWidget*>(life) != nullptr;
    EXPECT_EQ(dialog.findChild<QWidget*>(QString::fromStdString("option_" + option.name)) == nullptr,
              hasPlaceElsewhere);
  }
}

TEST_F(AlarmFormTest, TheNightIsQuietAtOneChoice) {
  auto& editor = openAlarm();
  auto& quiet = in<QComboBox>(editor, "alarmQuiet");
  EXPECT_EQ(quiet.currentText(), QStringLiteral("as for all sites: no quiet hours"));
  quiet.setFocus();
  QTest::keyClick(&quiet, Qt::Key_End);
  auto& how = in<QComboBox>(editor, "alarmQuietHow");
  how.setFocus();
  QTest::keyClick(&how, Qt::Key_End);
  EXPECT_TRUE(preset(editor, 0).isChecked());
  press(editor, "Command3");
  EXPECT_EQ(options(3), "quiet=daily 22:00-6:00; quietHow=do not check");
}

TEST_F(AlarmFormTest, TheHoursOfASiteAreEditedOnTheMap) {
  auto& editor = openAlarm();
  press(editor, "alarmQuietEdit");
  auto& dialog = opened<QuietHoursDialog>();
  auto& map = in<WeekMap>(dialog, "quietMap");
  map.setFocus();
  QTest::keyClick(&map, Qt::Key_Right);
  QTest::keyClick(&map, Qt::Key_Space);
  press(dialog, "quietOk");
  EXPECT_EQ(in<QComboBox>(editor, "alarmQuiet").currentText(), QStringLiteral("Mon 1:00-2:00"));
  press(editor, "Command3");
  EXPECT_EQ(options(3), "quiet=Mon 1:00-2:00");
}

TEST_F(AlarmFormTest, APauseStandsOnTopUntilItIsOver) {
  openProgram();
  set(0, "pause", "for good");
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  page(editor, 1);
  EXPECT_EQ(in<QLabel>(editor, "alarmPausedText").text(), QStringLiteral("Paused for good."));
  press(editor, "alarmResume");
  EXPECT_FALSE(in<QWidget>(editor, "alarmPaused").isVisible());
  press(editor, "Command3");
  EXPECT_EQ(options(3), "pause=no");
}

TEST_F(AlarmFormTest, ADragOverTheMapMakesHoursQuiet) {
  auto& dialog = openSettings(3);
  auto& map = in<WeekMap>(dialog, "quietMap");
  const auto middle = [&](int day, int hour) { return map.visualRect(map.model()->index(day, hour)).center(); };
  const QModelIndex first = map.model()->index(0, 22);
  EXPECT_EQ(first.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Monday 22 to 23: not quiet"));
  QTest::mousePress(map.viewport(), Qt::LeftButton, {}, middle(0, 22));
  QTest::mouseMove(map.viewport(), middle(4, 23));
  QTest::mouseRelease(map.viewport(), Qt::LeftButton, {}, middle(4, 23));
  EXPECT_EQ(first.data(Qt::AccessibleTextRole).toString(), QStringLiteral("Monday 22 to 23: quiet"));
  press(dialog, "btnOkPause");
  EXPECT_EQ(options(0), "quiet=Mon-Fri 22:00-24:00");
}

TEST_F(AlarmFormTest, ChosenHoursFollowSpace) {
  auto& dialog = openSettings(3);
  auto& map = in<WeekMap>(dialog, "quietMap");
  map.setFocus();
  QTest::keyClick(&map, Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(&map, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&map, Qt::Key_Space);
  press(dialog, "btnOkPause");
  EXPECT_EQ(options(0), "quiet=Mon, Tue 0:00-2:00");
}

TEST_F(AlarmFormTest, AllIsPausedUntilTomorrow) {
  auto& dialog = openSettings(3);
  auto& pause = in<QComboBox>(dialog, "pauseNow");
  pause.setFocus();
  QTest::keyClick(&pause, Qt::Key_Down);
  QTest::keyClick(&pause, Qt::Key_Down);
  press(dialog, "btnOkPause");
  const LocalTime now = machine.clock().localNow();
  EXPECT_EQ(options(0), "pause=" + pauseText({true, tomorrowMorning(now)}));
}

TEST_F(AlarmFormTest, ADatedWindowIsAddedAndRemoved) {
  auto& dialog = openSettings(3);
  EXPECT_EQ(dialog.unsavedEdits(), QString());
  press(dialog, "addWindow");
  EXPECT_NE(dialog.unsavedEdits(), QString());
  auto& table = in<QTableView>(dialog, "datedWindows");
  ASSERT_EQ(table.model()->rowCount(), 1);
  table.model()->setData(table.model()->index(0, DatedWindowsModel::noteColumn), QStringLiteral("new; server"));
  table.model()->setData(table.model()->index(0, DatedWindowsModel::whatColumn), 2);
  press(dialog, "btnOkPause");
  EXPECT_THAT(options(0), ::testing::AllOf(::testing::StartsWith("maintenance="),
                                           ::testing::EndsWith("12:00, do not check: new, server")));
}

TEST_F(AlarmFormTest, ASiteTellsThroughTheChannelsThatAreTicked) {
  openProgram();
  m& data = master->program().data();
  for (const char* name : {"phone", "office mail"}) {
    data.storeChannel({.name = name,
                       .kind = std::string(channel_kind::mail),
                       .settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}}});
  }
  clickRow(0);
  auto& editor = opened<SiteEditor>();
  page(editor, 1);
  auto& button = in<QPushButton>(editor, "alarmChannels");
  EXPECT_THAT(button.accessibleName().toStdString(), ::testing::StartsWith("Defaults: phone, office mail"));
  editor.findChild<QAction*>(QStringLiteral("alarmChannel0"))->trigger();
  EXPECT_EQ(button.text(), QStringLiteral("office mail"));
  press(editor, "alarmChannelsTest");
  auto& answer = in<QLabel>(editor, "alarmChannelsAnswer");
  EXPECT_TRUE(waitUntil([&] { return answer.text() == QStringLiteral("office mail: ok: The message: 250 taken"); }));
  press(editor, "Command3");
  EXPECT_EQ(options(3), "channels=office mail");
  editor.findChild<QAction*>(QStringLiteral("alarmChannel1"))->trigger();
  EXPECT_EQ(button.text(), QStringLiteral("none"));
  EXPECT_FALSE(in<QPushButton>(editor, "alarmChannelsTest").isEnabled());
  press(editor, "Command3");
  EXPECT_EQ(options(3), "channels=none");
  editor.findChild<QAction*>(QStringLiteral("alarmChannelsUsual"))->trigger();
  press(editor, "Command3");
  EXPECT_EQ(options(3), "");
}

TEST_F(AlarmFormTest, ATestGoesThroughEveryChosenChannel) {
  open();
  m& data = master->program().data();
  for (const char* name : {"phone", "office mail"}) {
    data.storeChannel({.name = name,
                       .kind = std::string(channel_kind::mail),
                       .settings = {{"to", "me@example.org"}, {"server", "smtp.example.org"}}});
  }
  auto& dialog = openSettings(1);
  machine.mails.answer({.delivered = false, .words = "RCPT TO: 550 no"});
  press(dialog, "alarmChannelsTest");
  auto& answer = in<QLabel>(dialog, "alarmChannelsAnswer");
  EXPECT_TRUE(waitUntil([&] {
    return answer.text() == QStringLiteral("phone: RCPT TO: 550 no\noffice mail: ok: The message: 250 taken");
  }));
}

TEST(DatedWindowsModelTest, TheEndNeverComesBeforeTheBeginning) {
  DatedWindowsModel model;
  model.setWindows(*readDatedWindows("2026-12-01 08:00 to 2026-12-01 12:00"));
  const auto at = [](const char* text) {
    return QDateTime::fromString(QString::fromLatin1(text), QStringLiteral("yyyy-MM-dd HH:mm"));
  };
  EXPECT_FALSE(model.setData(model.index(0, 1), at("2026-12-01 07:00"), Qt::EditRole));
  EXPECT_TRUE(model.setData(model.index(0, 0), at("2026-12-02 08:00"), Qt::EditRole));
  EXPECT_EQ(datedWindowsText(model.windows()), "2026-12-02 08:00 to 2026-12-02 12:00");
  EXPECT_EQ(model.index(0, 1).data(Qt::AccessibleTextRole).toString(), QStringLiteral("Until: 2026-12-02 12:00"));
}

}  // namespace
}  // namespace tarnwick
