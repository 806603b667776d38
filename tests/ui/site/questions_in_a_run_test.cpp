// SPDX-License-Identifier: MIT
// The real boxes of the desktop while a run is on: none of them holds up a pass, another box, or the end of the
// program.
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include "platform/desktop/message_box_prompts.h"
#include "support/wait_until.h"
#include "ui/settings/control_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using testing::waitUntil;

class QuestionsInARunTest : public DialogTest {
 protected:
  void SetUp() override {
    server.respond("/slow", {.body = "slow page", .hold = true});
    server.respond("/page", {.body = "a page"});
    addSite(1, server.url("/slow"));
    addSite(7, server.url("/page"));
    master = std::make_unique<Master>(folder.path(), machine.services().with({.prompts = &prompts_}));
    ASSERT_TRUE(master->load());
    master->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
    master->setEditors({siteEditorOf(master->program(), *master), settingsDialogOf(master->program(), *master)});
  }

  /// Starts a run; once the pass waits for site 1, `question` is put and left open. True when the pass has ended all
  /// the same, with its result recorded.
  bool passEndsBehind(const std::function<void()>& question) {
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      if (!server.requestsFor("/slow").empty()) {
        watch.stop();
        question();
        server.release();
      }
    });
    watch.start(5);
    click("btnStart");
    return !master->program().run().busy() && column(1, "success") == "1";
  }

  template <typename Dialog>
  static Dialog* standing() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* found = qobject_cast<Dialog*>(window); found != nullptr && found->isVisible()) {
        return found;
      }
    }
    return nullptr;
  }
  static void answer(QMessageBox::StandardButton button) {
    QTest::mouseClick(standing<QMessageBox>()->button(button), Qt::LeftButton);
  }
  std::string sites() const { return folder.queryText("select group_concat(idSite) from sites"); }

 private:
  MessageBoxPrompts prompts_{machine.pump};
};

TEST_F(QuestionsInARunTest, ThePassEndsBehindAnOpenQuestion) {
  EXPECT_TRUE(passEndsBehind([&] {
    clickRow(1);
    press(opened<SiteEditor>(), "Command6");
  }));
  ASSERT_NE(standing<QMessageBox>(), nullptr);
  EXPECT_EQ(sites(), "1,7") << "nobody has answered yet";
  answer(QMessageBox::Yes);
  EXPECT_EQ(sites(), "1");
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(shown<SiteEditor>(), nullptr);
}

TEST_F(QuestionsInARunTest, ThePassEndsBehindAnOpenFileChooser) {
  EXPECT_TRUE(passEndsBehind([&] {
    click("btnSetup");
    press(opened<ControlDialog>(), "Command6");
  }));
  ASSERT_NE(standing<QFileDialog>(), nullptr);
  standing<QFileDialog>()->reject();
}

TEST_F(QuestionsInARunTest, ThePassEndsBehindTheQuestionOfTheSettings) {
  EXPECT_TRUE(passEndsBehind([&] {
    click("btnSetup");
    press(opened<ControlDialog>(), "Command3");
  }));
  EXPECT_EQ(folder.queryText("select count(*) from log"), "2");
  answer(QMessageBox::Yes);
  EXPECT_EQ(folder.queryText("select count(*) from log"), "0");
  answer(QMessageBox::Ok);
  EXPECT_EQ(in<QLabel>(opened<ControlDialog>(), "lblLogs").text().toStdString(), "Complete");
}

TEST_F(QuestionsInARunTest, TheSiteThatTheQuestionIsAboutStaysInItsForm) {
  server.release();
  clickRow(0);
  press(opened<SiteEditor>(), "Command6");
  clickRow(1);
  EXPECT_EQ(in<QGroupBox>(opened<SiteEditor>(), "Frame1").title().toStdString(), "Site ID: 1");
  press(opened<SiteEditor>(), "Command8");
  EXPECT_NE(shown<SiteEditor>(), nullptr) << "it waits for the answer";
  answer(QMessageBox::Yes);
  EXPECT_EQ(sites(), "7");
}

TEST_F(QuestionsInARunTest, NewAddsNothingWhileTheEditorWaitsForAnswerOrDialog) {
  server.release();
  clickRow(0);
  type(opened<SiteEditor>(), "tUrl", "http://typed.test/");
  click("btnNew");
  ASSERT_NE(standing<QMessageBox>(), nullptr);
  click("btnNew");
  answer(QMessageBox::No);
  EXPECT_EQ(sites(), "1,7");
  EXPECT_EQ(text(opened<SiteEditor>(), "tUrl"), "http://typed.test/");
  press(opened<SiteEditor>(), "Command2");
  click("btnNew");
  EXPECT_EQ(sites(), "1,7") << "the content of site 1 is being edited";
  press(opened<ContentDialog>(), "btnCancel");
  click("btnNew");
  EXPECT_EQ(sites(), "1,7,8");
  EXPECT_EQ(in<QGroupBox>(opened<SiteEditor>(), "Frame1").title().toStdString(), "Site ID: 8");
}

TEST_F(QuestionsInARunTest, ASiteThatIsBeingTypedIsNotTestedBeforeItIsStored) {
  server.respond("/slow", {.body = "slow page"});
  click("btnNew");
  type(opened<SiteEditor>(), "tUrl", server.url("/page"));
  click("btnStart");
  EXPECT_EQ(column(7, "success"), "1");
  EXPECT_EQ(column(8, "success"), "NULL");
  press(opened<SiteEditor>(), "Command3");
  click("btnStop");
  click("btnStart");
  EXPECT_EQ(column(8, "success"), "1");
  EXPECT_EQ(column(8, "content_compare"), "a page");
}

TEST_F(QuestionsInARunTest, AFaultIsToldBesideAnOpenQuestionAndBothCanBeAnswered) {
  server.release();
  click("btnSetup");
  press(opened<ControlDialog>(), "Command3");
  QPointer<QMessageBox> question(standing<QMessageBox>());
  folder.execute("drop view sites; drop table siteRows");
  click("btnStart");
  QMessageBox* fault = nullptr;
  for (auto* box : master->findChildren<QMessageBox*>(QString(), Qt::FindDirectChildrenOnly)) {
    fault = box;
  }
  ASSERT_NE(fault, nullptr);
  QTest::mouseClick(fault->button(QMessageBox::Ok), Qt::LeftButton);
  EXPECT_FALSE(fault->isVisible());
  QTest::mouseClick(question->button(QMessageBox::No), Qt::LeftButton);
  EXPECT_TRUE(question == nullptr || !question->isVisible());
}

TEST_F(QuestionsInARunTest, TheHelpIsOpenedFromEveryWindow) {
  const auto press = [&](QWidget& window) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const std::size_t before = machine.opener.opened.size();
    QTest::keyClick(window.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(machine.opener.opened.size(), before + 1) << window.windowTitle().toStdString();
  };
  clickRow(0);
  press(opened<SiteEditor>());
  DialogTest::press(opened<SiteEditor>(), "Command2");
  press(opened<ContentDialog>());
  DialogTest::press(opened<ContentDialog>(), "btnCancel");
  DialogTest::press(opened<SiteEditor>(), "Command6");
  press(*standing<QMessageBox>());
  answer(QMessageBox::No);
  click("btnSetup");
  press(opened<ControlDialog>());
}

TEST_F(QuestionsInARunTest, TheWindowIsClosedOverEveryBox) {
  server.release();
  clickRow(0);
  press(opened<SiteEditor>(), "Command6");
  click("btnSetup");
  press(opened<ControlDialog>(), "Command6");
  ASSERT_NE(standing<QFileDialog>(), nullptr);
  EXPECT_TRUE(master->close());
  EXPECT_EQ(standing<QMessageBox>(), nullptr);
  EXPECT_EQ(standing<QFileDialog>(), nullptr);
  EXPECT_EQ(sites(), "1,7");
}

TEST_F(QuestionsInARunTest, ClosingAsksAboutWhatIsNotStored) {
  server.release();
  clickRow(0);
  type(opened<SiteEditor>(), "tUrl", "http://typed.test/");
  click("btnSetup");
  type(opened<ControlDialog>(), "tEmail", "me@example.org");
  EXPECT_FALSE(master->close());
  ASSERT_NE(standing<QMessageBox>(), nullptr);
  EXPECT_EQ(standing<QMessageBox>()->text().toStdString(),
            "These changes are not stored: site 1, the settings.\n\nDo You Want To Discard Them And Close Tarnwick?");
  QTest::keyClick(standing<QMessageBox>(), Qt::Key_Return);
  EXPECT_TRUE(master->isVisible());
  EXPECT_EQ(text(opened<SiteEditor>(), "tUrl"), "http://typed.test/");
  EXPECT_FALSE(master->close()) << "asked anew after No";
  answer(QMessageBox::Yes);
  EXPECT_TRUE(waitUntil([&] { return !master->isVisible(); }));
  EXPECT_EQ(column(1, "url"), server.url("/slow"));
}

TEST_F(QuestionsInARunTest, ClosingOnceMoreIsAnAnswerToo) {
  server.release();
  clickRow(0);
  type(opened<SiteEditor>(), "tUrl", "http://typed.test/");
  EXPECT_FALSE(master->close());
  EXPECT_TRUE(master->close());
  EXPECT_EQ(standing<QMessageBox>(), nullptr);
  EXPECT_FALSE(master->isVisible());
}

}  // namespace
}  // namespace tarnwick
