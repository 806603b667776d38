// SPDX-License-Identifier: MIT
// The content baseline dialog.
#include "ui/baseline/content_dialog.h"

#include <chrono>
#include <QGroupBox>
#include <QTimer>

#include "support/wait_until.h"
#include "ui/support/dialog_fixture.h"
#include "ui/support/patience.h"

namespace tarnwick {
namespace {

using testing::DialogTest;
using testing::waitUntil;

std::string hexOf(const std::string& bytes) { return QByteArray::fromStdString(bytes).toHex().toStdString(); }

class ContentDialogTest : public DialogTest {
 protected:
  ContentDialog& openContent() {
    auto& editor = openEditor();
    press(editor, "Command2");
    auto& dialog = opened<ContentDialog>();
    if (!QTest::qWaitForWindowActive(&dialog)) {
      throw std::runtime_error("The dialog did not become the active window.");
    }
    return dialog;
  }
  void store(const std::string& page) {
    folder.execute("update sites set content_compare = cast(x'" + hexOf(page) + "' as text)");
  }
  std::string baseline() { return column(1, "content_compare"); }
  static BaselineEdit& content(QWidget& dialog) { return in<BaselineEdit>(dialog, "tContent"); }
  static std::string shownContent(QWidget& dialog) { return content(dialog).toPlainText().toStdString(); }
};

std::vector<std::string> awkwardPages() {
  std::string oneLine(1'000'000, 'x');
  return {"a\r\nb\nc\rd",
          "end\r\n",
          "no end",
          std::string("NUL\0\0 bytes\n", 12),
          "invalid \xff\xc3( UTF-8\r",
          "\xEF\xBB\xBFmarked \xc3\xa9\r\n",
          "unmarked \xc3\xa9\r\n",
          "\xe2\x80\xa8 and \xe2\x80\xa9",
          "caf\xe9 \x93quoted\x94\r\n",
          "it's 'quoted'",
          oneLine,
          ""};
}

TEST_F(ContentDialogTest, HasItsControlsAndCaptions) {
  addSite(1, server.url("/"));
  store("stored\r\npage");
  auto& dialog = openContent();
  EXPECT_EQ(dialog.objectName().toStdString(), "frmContent");
  EXPECT_EQ(dialog.windowTitle().toStdString(), "Content");
  EXPECT_EQ(in<QGroupBox>(dialog, "Frame1").title().toStdString(), "Url: ");
  EXPECT_EQ(in<QGroupBox>(dialog, "Frame2").title().toStdString(), "Content");
  EXPECT_EQ(caption<QPushButton>(dialog, "btnLoad"), "Load From Url");
  EXPECT_EQ(caption<QPushButton>(dialog, "btnOk"), "OK");
  EXPECT_EQ(caption<QPushButton>(dialog, "btnCancel"), "Cancel");
  EXPECT_EQ(shownContent(dialog), "stored\npage");
  EXPECT_EQ(dialog.focusWidget(), &content(dialog));
  EXPECT_EQ(tabOrder(dialog, content(dialog)),
            (std::vector<std::string>{"tContent", "btnHoles", "btnLoad", "btnOk", "btnCancel"}));
}

TEST_F(ContentDialogTest, OpensAfterTheSiteWasSaved) {
  addSite(1, server.url("/"));
  auto& editor = openEditor();
  type(editor, "tUrl", server.url("/typed"));
  press(editor, "Command2");
  EXPECT_EQ(column(1, "url"), server.url("/typed"));
  server.respond("/typed", {.body = "typed page"});
  load(opened<ContentDialog>());
  EXPECT_EQ(shownContent(opened<ContentDialog>()), "typed page");
}

TEST_F(ContentDialogTest, OkWithoutAnEditLeavesEveryByteAsItWas) {
  addSite(1, server.url("/"));
  openProgram();
  for (const std::string& page : awkwardPages()) {
    store(page);
    clickRow(0);
    auto& editor = opened<SiteEditor>();
    press(editor, "Command2");
    press(opened<ContentDialog>(), "btnOk");
    EXPECT_EQ(baseline(), page);
    press(editor, "Command8");
  }
}

TEST_F(ContentDialogTest, ALoadedPageIsStoredByteForByte) {
  addSite(1, server.url("/page"));
  auto& editor = openEditor();
  for (const std::string& page : awkwardPages()) {
    server.respond("/page", {.body = page});
    press(editor, "Command2");
    load(opened<ContentDialog>());
    press(opened<ContentDialog>(), "btnOk");
    EXPECT_EQ(baseline(), page);
    EXPECT_EQ(shown<ContentDialog>(), nullptr);
  }
}

TEST_F(ContentDialogTest, AnEditChangesOnlyWhatWasEdited) {
  addSite(1, server.url("/"));
  store(std::string("one\r\ntwo\0\rthree\xff\n", 17));
  auto& dialog = openContent();
  QTest::keyClick(&content(dialog), Qt::Key_End);
  QTest::keyClicks(&content(dialog), QStringLiteral("!"));
  QTest::keyClick(&content(dialog), Qt::Key_Return);
  press(dialog, "btnOk");
  EXPECT_EQ(baseline(), std::string("one!\r\n\r\ntwo\0\rthree\xff\n", 20));
}

TEST_F(ContentDialogTest, LoadThenCancelLeavesTheBaseline) {
  addSite(1, server.url("/page"));
  store("old");
  server.respond("/page", {.body = "new"});
  auto& dialog = openContent();
  load(dialog);
  EXPECT_EQ(shownContent(dialog), "new");
  press(dialog, "btnCancel");
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
  EXPECT_EQ(baseline(), "old");
}

TEST_F(ContentDialogTest, EscapeCancels) {
  addSite(1, server.url("/"));
  store("old");
  auto& dialog = openContent();
  QTest::keyClicks(&content(dialog), QStringLiteral("typed"));
  QTest::keyClick(&content(dialog), Qt::Key_Escape);
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
  EXPECT_EQ(baseline(), "old");
}

TEST_F(ContentDialogTest, AnEmptyTextIsStoredAsAnEmptyBaseline) {
  addSite(1, server.url("/"));
  store("\xEF\xBB\xBFold");
  auto& dialog = openContent();
  QTest::keyClick(&content(dialog), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&content(dialog), Qt::Key_Delete);
  press(dialog, "btnOk");
  EXPECT_EQ(column(1, "typeof(content_compare) || length(content_compare)"), "text0");
}

TEST_F(ContentDialogTest, WhileAPageIsFetchedTheDialogSaysSo) {
  addSite(1, server.url("/slow"));
  store("old");
  server.respond("/slow", {.body = "new", .hold = true});
  auto& dialog = openContent();
  std::string during;
  bool okEnabled = true;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (server.inFlight() > 0) {
      watch.stop();
      during = shownContent(dialog);
      okEnabled = in<QPushButton>(dialog, "btnOk").isEnabled();
      server.release();
    }
  });
  watch.start(5);
  press(dialog, "btnLoad");
  EXPECT_TRUE(waitUntil([&] { return in<QPushButton>(dialog, "btnOk").isEnabled(); }));
  EXPECT_EQ(during, "LOADING: Please Wait ...");
  EXPECT_FALSE(okEnabled) << "the loading text could be stored as the baseline";
  EXPECT_EQ(shownContent(dialog), "new");
  EXPECT_TRUE(in<QPushButton>(dialog, "btnOk").isEnabled());
}

TEST_F(ContentDialogTest, AFailedFetchShowsWhatItReturned) {
  addSite(1, "http://127.0.0.1:1/");
  store("old");
  auto& dialog = openContent();
  load(dialog);
  EXPECT_NE(shownContent(dialog).find(" : "), std::string::npos);
  EXPECT_EQ(baseline(), "old");
}

TEST_F(ContentDialogTest, CancelGivesUpTheFetch) {
  addSite(1, server.url("/silent"));
  store("old");
  server.respond("/silent", {.hold = true});
  auto& dialog = openContent();
  press(dialog, "btnLoad");
  ASSERT_TRUE(waitUntil([&] { return server.inFlight() > 0; }));
  press(dialog, "btnCancel");
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
  EXPECT_TRUE(waitUntil([&] { return server.openConnections() == 0; }));
  // The control is free for the next one.
  server.respond("/silent", {.body = "new"});
  press(opened<SiteEditor>(), "Command2");
  load(opened<ContentDialog>());
  EXPECT_EQ(shownContent(opened<ContentDialog>()), "new");
}

TEST_F(ContentDialogTest, APassDoesNotWaitForAPageThatIsLoaded) {
  addSite(1, server.url("/silent"));
  addSite(2, server.url("/page"));
  folder.execute("update sites set active = 0 where idSite = 1");
  server.respond("/silent", {.hold = true});
  auto& dialog = openContent();
  server.handle("/page", [&](const auto&) {
    press(dialog, "btnLoad");
    return testing::HttpResponse{.body = "a page"};
  });
  click("btnStart");
  EXPECT_EQ(column(2, "success"), "1");
  EXPECT_FALSE(master->program().run().busy());
  EXPECT_EQ(shownContent(dialog), "LOADING: Please Wait ...");
}

TEST_F(ContentDialogTest, ACharacterThatThePageCannotHoldIsToldAndTheDialogStays) {
  addSite(1, server.url("/"));
  store("caf\xe9");
  auto& dialog = openContent();
  content(dialog).insertPlainText(QStringLiteral("\u03a9"));
  press(dialog, "btnOk");
  ASSERT_EQ(machine.prompts.texts().size(), 1U);
  EXPECT_NE(machine.prompts.texts()[0].find("\u03a9"), std::string::npos);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(baseline(), "caf\xe9");
  QTest::keyClick(&content(dialog), Qt::Key_Delete);
  press(dialog, "btnOk");
  EXPECT_EQ(baseline(), "caf\xe9");
  EXPECT_EQ(shown<ContentDialog>(), nullptr);
}

TEST_F(ContentDialogTest, AFailureToStoreKeepsTheDialogOpen) {
  addSite(1, server.url("/"));
  auto& dialog = openContent();
  QTest::keyClicks(&content(dialog), QStringLiteral("typed"));
  folder.execute("delete from sites");
  press(dialog, "btnOk");
  EXPECT_EQ(machine.prompts.texts().size(), 1U);
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(shownContent(dialog), "typed");
}

TEST_F(ContentDialogTest, TwentyMegabytesOpenAndStoreWithoutWaiting) {
  std::string page;
  while (page.size() < 20'000'000) {
    page += "<p>A line of a page.</p>\r\n";
  }
  addSite(1, server.url("/"));
  store(page);
  auto& editor = openEditor();
  const auto start = std::chrono::steady_clock::now();
  press(editor, "Command2");
  auto& dialog = opened<ContentDialog>();
  dialog.repaint();
  EXPECT_LT(std::chrono::steady_clock::now() - start, testing::patience(std::chrono::seconds(2)));
  press(dialog, "btnOk");
  EXPECT_TRUE(baseline() == page);
}

}  // namespace
}  // namespace tarnwick
