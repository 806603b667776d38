// SPDX-License-Identifier: MIT
// The settings dialog: the administration functions, and the buttons that choose and test files.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <QTimer>

#include "support/system.h"
#include "ui/settings/control_dialog_fixture.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;
using testing::ControlDialogTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::HttpServer;
using ::testing::IsEmpty;
using testing::RecordingPrompts;
using ::testing::StartsWith;

constexpr const char* kAskClearLogs = "Are You Sure You Want To Delete All Logs?";
constexpr const char* kAskCompact =
    "Compacting the database may take several minutes and disable this application during that time. Are You Sure You "
    "Want To Compact This DataBase?";

class ControlAdministrationTest : public ControlDialogTest {
 protected:
  void addLogLine() { folder.execute("insert into log (idSite,url,status) values (1,'http://one.test/',1)"); }
  std::string logLines() const { return folder.queryText("select count(*) from log"); }
  /// Makes a reports folder as it is installed.
  void layReports() {
    fs::create_directories(folder.file("reports"));
    std::ofstream(folder.file("reports/green.jpg")) << "bar";
  }
  /// Records what a status label says while each box is open.
  void watchLabel(QWidget& dialog, const char* name) {
    machine.prompts.whileOpen = [this, &dialog, name](const RecordingPrompts::Box&) {
      whileOpen.push_back(label(dialog, name));
    };
  }

  std::vector<std::string> whileOpen;
};

TEST_F(ControlAdministrationTest, ClearLogsAsksClearsAndTells) {
  addLogLine();
  auto& dialog = openSettings();
  watchLabel(dialog, "lblLogs");
  machine.prompts.answerConfirm(true);
  press(dialog, "Command3");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(kAskClearLogs, "Logs Cleared"));
  EXPECT_THAT(whileOpen, ElementsAre("In Progress ...", "In Progress ..."));
  EXPECT_EQ(label(dialog, "lblLogs"), "Complete");
  EXPECT_EQ(logLines(), "0");
  EXPECT_EQ(label(dialog, "lblCompact"), "compact ...");
}

TEST_F(ControlAdministrationTest, DecliningToClearLeavesTheLogAndTheLabelAtComplete) {
  addLogLine();
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(false);
  press(dialog, "Command3");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(kAskClearLogs));
  EXPECT_EQ(label(dialog, "lblLogs"), "Complete");
  EXPECT_EQ(logLines(), "1");
}

TEST_F(ControlAdministrationTest, ALogThatCannotBeClearedIsToldAndTheLabelSaysSo) {
  auto& dialog = openSettings();
  folder.execute("drop table log");
  watchLabel(dialog, "lblLogs");
  machine.prompts.answerConfirm(true);
  press(dialog, "Command3");
  ASSERT_EQ(machine.prompts.shown().size(), 2U);
  EXPECT_EQ(machine.prompts.shown()[1].icon, PromptIcon::error);
  EXPECT_THAT(machine.prompts.shown()[1].text, HasSubstr("log"));
  EXPECT_THAT(whileOpen, ElementsAre("In Progress ...", "Failed"));
  EXPECT_EQ(label(dialog, "lblLogs"), "Failed");
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ControlAdministrationTest, CompactAsksCompactsAndTells) {
  arrange("email = 'kept'");
  auto& dialog = openSettings();
  watchLabel(dialog, "lblCompact");
  machine.prompts.answerConfirm(true);
  press(dialog, "Command4");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(kAskCompact, "Compact Successful"));
  EXPECT_THAT(whileOpen, ElementsAre("In Progress ...", "In Progress ..."));
  EXPECT_EQ(label(dialog, "lblCompact"), "Complete");
  EXPECT_TRUE(fs::exists(folder.file("backup.mdb")));
  EXPECT_TRUE(fs::exists(folder.file("temp.mdb")));
  EXPECT_EQ(dialog.cursor().shape(), Qt::ArrowCursor);
  type(dialog, "tSmtp", "after");
  press(dialog, "Command1");
  EXPECT_EQ(folder.queryRows("select email, smtp from control"), "kept|after\n");
}

TEST_F(ControlAdministrationTest, DecliningToCompactTouchesNothing) {
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(false);
  press(dialog, "Command4");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(kAskCompact));
  EXPECT_EQ(label(dialog, "lblCompact"), "Complete");
  EXPECT_FALSE(fs::exists(folder.file("backup.mdb")));
}

TEST_F(ControlAdministrationTest, AFailedCompactionIsTold) {
  auto& dialog = openSettings();
  // No backup can be put in place of a folder.
  fs::create_directory(folder.file("backup.mdb"));
  machine.prompts.answerConfirm(true);
  press(dialog, "Command4");
  EXPECT_THAT(machine.prompts.texts(),
              ElementsAre(kAskCompact, StartsWith("Aborting compact:\r\n"), "Compact Failed - Data May Be Corrupt"));
  EXPECT_EQ(label(dialog, "lblCompact"), "Complete");
  press(dialog, "Command1");
  EXPECT_EQ(shown<ControlDialog>(), nullptr) << "the database is open again";
}

TEST_F(ControlAdministrationTest, ADatabaseThatIsGoneAfterwardsIsToldAndTheLabelSaysSo) {
  SKIP_ON_WINDOWS("There nobody can remove the file.");
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(true);
  machine.prompts.whileOpen = [&](const RecordingPrompts::Box& box) {
    if (box.text == kAskCompact) {
      fs::remove(folder.databasePath());
    }
  };
  press(dialog, "Command4");
  EXPECT_EQ(label(dialog, "lblCompact"), "Failed");
  ASSERT_FALSE(machine.prompts.shown().empty());
  EXPECT_THAT(machine.prompts.shown().back().text, HasSubstr("tarnwick.mdb"));
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ControlAdministrationTest, ThePassInProgressGoesOnAfterACompaction) {
  server.respond("/", {.body = "hello", .hold = true});
  addSite(1, server.url("/"));
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(true);
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (server.inFlight() > 0) {
      watch.stop();
      press(dialog, "Command4");
      server.release();
    }
  });
  watch.start(5);
  click("btnStart");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(kAskCompact, "Compact Successful"));
  EXPECT_EQ(folder.queryText("select success from sites"), "1");
  EXPECT_TRUE(master->program().run().running());
}

TEST_F(ControlAdministrationTest, TheReportIsWrittenAndOpened) {
  layReports();
  addLogLine();
  auto& dialog = openSettings();
  press(dialog, "Command5");
  const std::string page = folder.file("reports/report.html");
  EXPECT_TRUE(fs::exists(page));
  EXPECT_THAT(machine.opener.opened, ElementsAre(page));
  EXPECT_EQ(label(dialog, "lblReport"), "Complete");
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
}

TEST_F(ControlAdministrationTest, ADesktopWithoutAViewerIsToldWhereTheReportLies) {
  layReports();
  auto& dialog = openSettings();
  machine.opener.result = false;
  press(dialog, "Command5");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr(folder.file("reports/report.html"))));
  EXPECT_EQ(label(dialog, "lblReport"), "Complete");
}

TEST_F(ControlAdministrationTest, AReportThatCannotBeWrittenIsToldAndNotOpened) {
  fs::create_directories(folder.file("reports"));
  auto& dialog = openSettings();
  press(dialog, "Command5");
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(HasSubstr("reports folder")));
  EXPECT_EQ(label(dialog, "lblReport"), "Failed");
  EXPECT_THAT(machine.opener.opened, IsEmpty());
}

TEST_F(ControlAdministrationTest, EnterOnAButtonPressesThatButton) {
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(false);
  in<QWidget>(dialog, "Command3").setFocus();
  QTest::keyClick(&in<QWidget>(dialog, "Command3"), Qt::Key_Return);
  EXPECT_THAT(machine.prompts.texts(), ElementsAre(kAskClearLogs));
  EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ControlAdministrationTest, ClosingTheMainWindowWhileAskedEndsTheProgram) {
  addLogLine();
  auto& dialog = openSettings();
  machine.prompts.answerConfirm(false);
  machine.prompts.whileOpen = [&](const RecordingPrompts::Box&) { master->close(); };
  press(dialog, "Command3");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_TRUE(machine.pump.closing());
  EXPECT_EQ(logLines(), "1");
}

TEST_F(ControlAdministrationTest, BrowseOffersSoundsAndStoresNothingBeforeOk) {
  auto& dialog = openSettings();
  machine.prompts.answerFile("/home/me/my sounds/alarm.wav");
  press(dialog, "Command6");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_EQ(machine.prompts.shown()[0].text, "Audio Files (*.wav)|*.wav");
  EXPECT_EQ(machine.prompts.shown()[0].title, folder.path());
  EXPECT_EQ(text(dialog, "tAudio"), "/home/me/my sounds/alarm.wav");
  EXPECT_EQ(text(dialog, "tProgram"), "");
  EXPECT_EQ(folder.queryText("select audio from control"), "");
  press(dialog, "Command1");
  EXPECT_EQ(folder.queryText("select audio from control"), "/home/me/my sounds/alarm.wav");
}

TEST_F(ControlAdministrationTest, BrowseOffersPrograms) {
  auto& dialog = openSettings();
  machine.prompts.answerFile("/usr/bin/true");
  press(dialog, "Command9");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_EQ(machine.prompts.shown()[0].text, "Program Files (*.exe;*.bat;*.vbs)|*.exe;*.bat;*.vbs");
  EXPECT_EQ(machine.prompts.shown()[0].title, folder.path());
  EXPECT_EQ(text(dialog, "tProgram"), "/usr/bin/true");
  EXPECT_EQ(text(dialog, "tAudio"), "");
}

TEST_F(ControlAdministrationTest, ACancelledChoiceLeavesTheTextBox) {
  arrange("audio = '/old.wav', program = '/bin/old'");
  auto& dialog = openSettings();
  machine.prompts.answerFile(std::nullopt);
  machine.prompts.answerFile(std::nullopt);
  press(dialog, "Command6");
  press(dialog, "Command9");
  EXPECT_EQ(text(dialog, "tAudio"), "/old.wav");
  EXPECT_EQ(text(dialog, "tProgram"), "/bin/old");
}

TEST_F(ControlAdministrationTest, TestPlaysTheSoundThatStandsInTheTextBox) {
  arrange("audio = '/old.wav', caudio = 0");
  auto& dialog = openSettings();
  type(dialog, "tAudio", "/new.wav");
  press(dialog, "Command7");
  EXPECT_THAT(machine.sound.played, ElementsAre("/new.wav"));
  EXPECT_EQ(folder.queryText("select audio from control"), "/old.wav");
}

TEST_F(ControlAdministrationTest, ASoundThatCannotBePlayedIsNotReported) {
  auto& dialog = openSettings();
  machine.sound.result = 0;
  press(dialog, "Command7");
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
}

TEST_F(ControlAdministrationTest, TestStartsTheProgramThatStandsInTheTextBoxWithSampleValues) {
  arrange("email = 'me@example.org', program = '/bin/old'");
  auto& dialog = openSettings();
  type(dialog, "tProgram", " /bin/new --id ~3~ ~email~ ");
  press(dialog, "Command8");
  EXPECT_THAT(machine.programs.started, ElementsAre(ElementsAre("/bin/new", "--id", "27", "me@example.org")));
  EXPECT_EQ(folder.queryText("select program from control"), "/bin/old");
}

}  // namespace
}  // namespace tarnwick
