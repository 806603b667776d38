// SPDX-License-Identifier: MIT
// A question that is answered while a pass is on which began behind it: the answer reaches the form that asked only
// when the pass ends, and the form may have been closed, or show another site by then.
#include <functional>
#include <utility>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include "platform/desktop/message_box_prompts.h"
#include "support/wait_until.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using testing::DialogTest;

class QuestionsInARunTest : public DialogTest {
 protected:
  void SetUp() override {
    server.respond("/slow", {.body = "slow page"});
    server.respond("/page", {.body = "a page"});
    addSite(1, server.url("/slow"));
    addSite(7, server.url("/page"));
    master = std::make_unique<Master>(folder.path(), machine.services().with({.prompts = &prompts_}));
    ASSERT_TRUE(master->load());
    master->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(master.get()));
    master->setEditors({siteEditorOf(master->program(), *master), {}});
    click("btnStart");
    server.respond("/slow", {.body = "slow page", .hold = true});
    clickRow(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&opened<SiteEditor>()));
  }

  /// Presses Delete on site 1. While its box stands a pass begins; then the box is answered, `afterwards` is done, and
  /// only then the pass can end.
  void deleteAndAnswerInAPass(QMessageBox::StandardButton answer, const std::function<void()>& afterwards) {
    QTimer beginPass;
    QTimer answerBox;
    QTimer endPass;
    QObject::connect(&beginPass, &QTimer::timeout, [&] {
      if (box() != nullptr) {
        beginPass.stop();
        folder.execute("update sites set lastChecked = '2020-01-01 00:00:00' where idSite = 1");
        master->program().run().init();
        answerBox.start(5);
      }
    });
    QObject::connect(&answerBox, &QTimer::timeout, [&] {
      if (server.requestsFor("/slow").size() == 2) {
        answerBox.stop();
        QTest::mouseClick(box()->button(answer), Qt::LeftButton);
        endPass.start(5);
      }
    });
    const QPointer<SiteEditor> editor(&opened<SiteEditor>());
    bool acted = false;
    QObject::connect(&endPass, &QTimer::timeout, [&] {
      if (!std::exchange(acted, true)) {
        EXPECT_EQ(box(), nullptr);
        afterwards();
      } else if (editor == nullptr || editor->isVisible()) {
        // What was closed has been taken down.
        endPass.stop();
        server.release();
      }
    });
    beginPass.start(5);
    press(opened<SiteEditor>(), "Command6");
    EXPECT_FALSE(endPass.isActive());
  }

  static QMessageBox* box() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* found = qobject_cast<QMessageBox*>(window); found != nullptr && found->isVisible()) {
        return found;
      }
    }
    return nullptr;
  }

  std::string sites() const { return folder.queryText("select group_concat(idSite) from sites"); }

 private:
  MessageBoxPrompts prompts_{machine.pump};
};

TEST_F(QuestionsInARunTest, TheSiteThatWasAskedAboutIsDeletedThoughTheFormShowsAnotherByThen) {
  deleteAndAnswerInAPass(QMessageBox::Yes, [&] { clickRow(1); });
  EXPECT_EQ(sites(), "7");
  EXPECT_EQ(in<QGroupBox>(opened<SiteEditor>(), "Frame1").title().toStdString(), "Site ID: 7");
  EXPECT_EQ(rows(), 1);
}

TEST_F(QuestionsInARunTest, TheSiteIsDeletedThoughTheFormHasBeenClosed) {
  const QPointer<SiteEditor> editor(&opened<SiteEditor>());
  deleteAndAnswerInAPass(QMessageBox::Yes, [&] { press(opened<SiteEditor>(), "Command8"); });
  EXPECT_TRUE(editor.isNull());
  EXPECT_EQ(sites(), "7");
  EXPECT_EQ(rows(), 1);
}

TEST_F(QuestionsInARunTest, NothingIsDeletedAfterNoThoughTheFormHasBeenClosed) {
  const QPointer<SiteEditor> editor(&opened<SiteEditor>());
  deleteAndAnswerInAPass(QMessageBox::No, [&] { press(opened<SiteEditor>(), "Command8"); });
  EXPECT_TRUE(editor.isNull());
  EXPECT_EQ(sites(), "1,7");
}

}  // namespace
}  // namespace tarnwick
