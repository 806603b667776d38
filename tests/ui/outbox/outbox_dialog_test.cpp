// SPDX-License-Identifier: MIT
// The window of the alerts that are on their way, on a real list and a mail server that is played.
#include "ui/outbox/outbox_dialog.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>

#include "store/channel_table.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kUnknown = "RCPT TO: 550 5.1.1 <admin@example.org>: User unknown";

class OutboxDialogTest : public DialogTest {
 protected:
  OutboxDialogTest() {
    addSite(3, "http://one.test/");
    open();
    office = data().storeChannel({.name = "office mail",
                                  .kind = std::string(channel_kind::mail),
                                  .settings = {{"to", "admin@example.org"}, {"server", "smtp.example.org"}}});
  }

  m& data() { return master->program().data(); }
  /// An alert of site 3 that leaves as soon as possible.
  void happen(const std::string& cause) {
    Transaction whole(data().database());
    const LocalTime now = machine.clock().localNow();
    data().delivery().add(
        {.idSite = 3, .made = now, .pass = now, .event = "down", .url = "http://one.test/", .cause = cause},
        std::nullopt);
    whole.commit();
    data().delivery().deliver();
  }
  void refuse(const std::string& cause) {
    const std::size_t before = machine.mails.sent.size();
    machine.mails.answer({.delivered = false, .words = kUnknown});
    happen(cause);
    ASSERT_TRUE(waitUntil([&] { return machine.mails.sent.size() > before && !data().delivery().isUnderWay(); }));
  }
  OutboxDialog& openOutbox() {
    master->setEditors({.site = {}, .settings = {}, .outbox = outboxOf(master->program(), *master, [this](auto id) {
                                                      opened_.push_back(id);
                                                    })});
    QTest::keyClick(master.get(), Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    auto& dialog = opened<OutboxDialog>();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    return dialog;
  }
  static std::string tab(QWidget& dialog, int index) {
    return in<QTabWidget>(dialog, "outboxPages").tabText(index).toStdString();
  }
  static std::string cell(QWidget& dialog, const char* table, int column, int row = 0) {
    return in<QTableView>(dialog, table).model()->index(row, column).data().toString().toStdString();
  }
  static void choose(QWidget& dialog, const char* name, int row = 0) {
    auto& table = in<QTableView>(dialog, name);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(table.model()->index(row, 0)).center());
  }

  std::int64_t office = 0;
  std::vector<std::int64_t> opened_;
};

TEST_F(OutboxDialogTest, NothingIsWaiting) {
  auto& dialog = openOutbox();
  EXPECT_EQ(tab(dialog, 0), "Waiting (0)");
  auto& empty = in<QLabel>(dialog, "outboxWaitingEmpty");
  EXPECT_TRUE(empty.isVisible());
  EXPECT_EQ(empty.text(), QStringLiteral("Nothing is waiting."));
  EXPECT_FALSE(in<QPushButton>(dialog, "outboxRetry").isEnabled());
  press(dialog, "outboxClose");
  EXPECT_EQ(shown<OutboxDialog>(), nullptr);
}

TEST_F(OutboxDialogTest, WhatWaitsIsShownWithTheServersOwnWords) {
  refuse("line 6 differs");
  auto& dialog = openOutbox();
  EXPECT_EQ(tab(dialog, 0), "Waiting (1)");
  EXPECT_EQ(cell(dialog, "outboxWaiting", OutboxModel::site), "3");
  EXPECT_EQ(cell(dialog, "outboxWaiting", OutboxModel::through), "office mail");
  EXPECT_EQ(cell(dialog, "outboxWaiting", OutboxModel::tries), "1");
  EXPECT_THAT(cell(dialog, "outboxWaiting", OutboxModel::alert), HasSubstr("line 6 differs"));
  EXPECT_EQ(cell(dialog, "outboxWaiting", OutboxModel::answer), kUnknown);
  choose(dialog, "outboxWaiting");
  auto& answer = in<QPlainTextEdit>(dialog, "outboxAnswer");
  EXPECT_THAT(answer.toPlainText().toStdString(),
              AllOf(StartsWith(kUnknown + "\n\none.test does not answer\nAddress:       http://one.test/\n"),
                    HasSubstr("\nCause:         line 6 differs")));
  EXPECT_TRUE(answer.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
  press(dialog, "outboxChannel");
  EXPECT_THAT(opened_, ElementsAre(office));
}

TEST_F(OutboxDialogTest, RetryNowTriesAtOnceAndTheWindowFollows) {
  refuse("first");
  auto& dialog = openOutbox();
  press(dialog, "outboxRetry");
  EXPECT_TRUE(waitUntil([&] { return tab(dialog, 0) == "Waiting (0)"; }));
  in<QTabWidget>(dialog, "outboxPages").setCurrentIndex(1);
  EXPECT_EQ(cell(dialog, "outboxSent", OutboxModel::tries), "1") << "counted anew with each press";
  EXPECT_EQ(cell(dialog, "outboxSent", OutboxModel::answer), "The message: 250 taken");
  EXPECT_FALSE(in<QPushButton>(dialog, "outboxDrop").isEnabled());
}

TEST_F(OutboxDialogTest, WhatIsDroppedIsNamedAndNoIsTheDefault) {
  refuse("first");
  happen("second");
  auto& dialog = openOutbox();
  ASSERT_EQ(tab(dialog, 0), "Waiting (2)");
  choose(dialog, "outboxWaiting", 1);
  machine.prompts.answerConfirm(false);
  press(dialog, "outboxDrop");
  ASSERT_EQ(machine.prompts.shown().size(), 1U);
  EXPECT_TRUE(machine.prompts.shown().front().destroys);
  EXPECT_THAT(machine.prompts.shown().front().text, HasSubstr("Site 3: does not answer: second, through office mail"));
  EXPECT_EQ(folder.queryText("select count(*) from outbox"), "2");
  machine.prompts.answerConfirm(true);
  press(dialog, "outboxDrop");
  EXPECT_EQ(folder.queryText("select group_concat(cause) from outbox"), "first");
  EXPECT_EQ(tab(dialog, 0), "Waiting (1)");
}

TEST_F(OutboxDialogTest, WhatAnotherProgramChangesIsSeen) {
  refuse("first");
  auto& dialog = openOutbox();
  folder.execute("update outbox set state = 'failed'");
  EXPECT_TRUE(waitUntil([&] { return tab(dialog, 0) == "Waiting (0)" && tab(dialog, 2) == "Failed (1)"; }));
  in<QTabWidget>(dialog, "outboxPages").setCurrentIndex(2);
  EXPECT_EQ(cell(dialog, "outboxFailed", OutboxModel::answer), kUnknown);
}

TEST_F(OutboxDialogTest, RowsAreCopiedAsText) {
  refuse("first");
  auto& dialog = openOutbox();
  press(dialog, "outboxCopy");
  EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), HasSubstr("\toffice mail\t1\t"));
}

TEST_F(OutboxDialogTest, TheNoticeOfTheMainWindowTellsAndOpensIt) {
  auto& notice = find<NoticeButton>("noticeOutbox");
  EXPECT_FALSE(notice.isVisible());
  refuse("first");
  ASSERT_TRUE(waitUntil([&] { return notice.isVisible(); }));
  EXPECT_EQ(notice.sentence().toStdString(), "1 alert is waiting: " + kUnknown);
  EXPECT_EQ(notice.action(), QStringLiteral("Outbox…"));
  auto& dialog = openOutbox();
  press(dialog, "outboxClose");
  click("noticeOutbox");
  press(opened<OutboxDialog>(), "outboxRetry");
  EXPECT_TRUE(waitUntil([&] { return !notice.isVisible(); }));
}

TEST_F(OutboxDialogTest, WhatWasGivenUpStandsInTheNotice) {
  refuse("first");
  folder.execute("update outbox set state = 'failed'");
  refuse("second");
  folder.execute("update outbox set state = 'failed'");
  master->program().run().init();
  auto& notice = find<NoticeButton>("noticeOutbox");
  ASSERT_TRUE(waitUntil([&] { return notice.isVisible() && notice.sentence().startsWith(QStringLiteral("2 ")); }));
  EXPECT_THAT(notice.sentence().toStdString(), HasSubstr("2 alerts were not delivered: "));
}

}  // namespace
}  // namespace tarnwick::testing
