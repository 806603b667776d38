// SPDX-License-Identifier: MIT
// The text box of a page, driven by keyboard, mouse and clipboard.
#include "ui/baseline/baseline_edit.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include "ui/support/patience.h"

namespace tarnwick {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;
using testing::patience;

class BaselineEditTest : public ::testing::Test {
 protected:
  void SetUp() override {
    edit_.resize(600, 400);
    edit_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&edit_));
  }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { QTest::keyClick(&edit_, key, modifiers); }
  void moveTo(int position) {
    QTextCursor cursor = edit_.textCursor();
    cursor.setPosition(position);
    edit_.setTextCursor(cursor);
  }
  void select(int from, int to) {
    QTextCursor cursor = edit_.textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    edit_.setTextCursor(cursor);
  }
  std::string shown() const { return edit_.toPlainText().toStdString(); }

  BaselineEdit edit_;
};

const std::string kMixed("one\r\ntwo\0\rthree\nfour", 20);

TEST_F(BaselineEditTest, GivesBackWhatWasNotEdited) {
  for (const std::string& page : {std::string(), kMixed, std::string("caf\xe9\r"), std::string("\xEF\xBB\xBFx\n")}) {
    edit_.setPage(page);
    EXPECT_EQ(edit_.page(), page);
  }
}

TEST_F(BaselineEditTest, TypedLettersChangeNothingElse) {
  edit_.setPage(kMixed);
  moveTo(3);
  QTest::keyClicks(&edit_, QStringLiteral("!?"));
  key(Qt::Key_Return);
  key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(edit_.page(), std::string("one!?\r\n\r\n\r\ntwo\0\rthree\nfour", 26));
}

TEST_F(BaselineEditTest, ErasedLettersAndLineEndsTakeOnlyTheirBytes) {
  edit_.setPage(kMixed);
  moveTo(4);
  key(Qt::Key_Backspace);
  EXPECT_EQ(edit_.page(), std::string("onetwo\0\rthree\nfour", 18));
  moveTo(6);
  key(Qt::Key_Delete);
  EXPECT_EQ(edit_.page(), std::string("onetwo\rthree\nfour", 17));
  key(Qt::Key_Delete, Qt::ControlModifier);
  moveTo(edit_.document()->characterCount() - 1);
  key(Qt::Key_Backspace, Qt::ControlModifier);
  EXPECT_TRUE(edit_.page().ends_with("\n")) << edit_.page();
}

TEST_F(BaselineEditTest, UndoAndRedoGiveTheBytesBack) {
  edit_.setPage(kMixed);
  edit_.selectAll();
  QTest::keyClicks(&edit_, QStringLiteral("new"));
  EXPECT_EQ(edit_.page(), "new");
  QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit_.page(), kMixed);
  EXPECT_EQ(shown(), "one\ntwo\u2400\nthree\nfour");
  QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(edit_.page(), "new");
}

TEST_F(BaselineEditTest, CutAndPasteMoveTheBytes) {
  edit_.setPage(kMixed);
  select(4, 9);
  edit_.cut();
  EXPECT_EQ(edit_.page(), "one\r\nthree\nfour");
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "two\u2400\n");
  moveTo(4);
  edit_.paste();
  EXPECT_EQ(edit_.page(), kMixed);
  EXPECT_EQ(shown(), "one\ntwo\u2400\nthree\nfour");
}

TEST_F(BaselineEditTest, TextOfAnotherProgramTakesTheLineEndsOfThePage) {
  edit_.setPage("a\r\nb");
  QApplication::clipboard()->setText(QStringLiteral("1\n2\n"));
  moveTo(3);
  edit_.paste();
  EXPECT_EQ(edit_.page(), "a\r\nb1\r\n2\r\n");
}

TEST_F(BaselineEditTest, ADroppedSelectionKeepsItsBytes) {
  edit_.setPage("abc\r\n\xff\n");
  select(2, 5);
  edit_.copy();
  const QMimeData& copied = *QApplication::clipboard()->mimeData();
  QMimeData mime;
  for (const QString& format : copied.formats()) {
    mime.setData(format, copied.data(format));
  }
  const QPoint start = edit_.cursorRect(QTextCursor(edit_.document())).center();
  QDragEnterEvent enter(start, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(edit_.viewport(), &enter);
  QDropEvent drop(start, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(edit_.viewport(), &drop);
  EXPECT_EQ(edit_.page(),
            "c\r\n\xff"
            "abc\r\n\xff\n");
}

TEST_F(BaselineEditTest, ErasingReachesOverTheBreakOfALongLine) {
  const std::string page(5000, 'x');
  edit_.setPage(page);
  const int rowBreak = static_cast<int>(edit_.document()->firstBlock().length()) - 1;
  moveTo(rowBreak + 1);
  key(Qt::Key_Backspace);
  EXPECT_EQ(edit_.page().size(), 4999U);
  moveTo(rowBreak - 1);
  key(Qt::Key_Delete);
  EXPECT_EQ(edit_.page().size(), 4998U);
  moveTo(static_cast<int>(edit_.document()->firstBlock().length()) - 1);
  key(Qt::Key_Return);
  EXPECT_EQ(edit_.page().size(), 4999U);
  EXPECT_EQ(shown().find("\n\n"), std::string::npos);
  edit_.selectAll();
  edit_.copy();
  EXPECT_EQ(QApplication::clipboard()->text().count(QLatin1Char('\n')), 1);
}

TEST_F(BaselineEditTest, ANoticeIsNoPartOfThePage) {
  edit_.setPage(kMixed);
  edit_.showNotice(QStringLiteral("LOADING"));
  EXPECT_EQ(shown(), "LOADING");
  QTest::keyClicks(&edit_, QStringLiteral("abc"));
  QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(shown(), "LOADING");
  EXPECT_EQ(edit_.page(), kMixed);
  edit_.endNotice();
  EXPECT_EQ(edit_.page(), kMixed);
  EXPECT_FALSE(edit_.isReadOnly());
}

TEST_F(BaselineEditTest, GoesWithItsFormWhileItsMenuIsOpen) {
  auto form = std::make_unique<QWidget>();
  auto* edit = new BaselineEdit(form.get());
  form->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get()));
  QTimer::singleShot(0, form.get(), [&form] { form.reset(); });
  QContextMenuEvent click(QContextMenuEvent::Mouse, {1, 1}, edit->viewport()->mapToGlobal(QPoint(1, 1)));
  QApplication::sendEvent(edit->viewport(), &click);
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form == nullptr; }));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(BaselineEditTest, ATypedCharacterThatTheCharacterSetLacksIsSelected) {
  edit_.setPage("caf\xe9");
  moveTo(1);
  edit_.insertPlainText(QStringLiteral("\u03a9"));
  ASSERT_TRUE(edit_.selectForeign());
  EXPECT_EQ(edit_.textCursor().selectedText(), QStringLiteral("\u03a9"));
  key(Qt::Key_Delete);
  EXPECT_FALSE(edit_.selectForeign());
  EXPECT_EQ(edit_.page(), "caf\xe9");
}

struct Large {
  const char* name;
  std::string page;
};

std::vector<Large> largePages() {
  std::string lines;
  while (lines.size() < 20'000'000) {
    lines += "<p class=\"line\">A line of a page as there are many of them in the world.</p>\r\n";
  }
  std::string shortLines;
  while (shortLines.size() < 20'000'000) {
    shortLines += "x\n";
  }
  std::string words;
  while (words.size() < 20'000'000) {
    words += "word ";
  }
  return {{"lines", lines},
          {"one line", std::string(20'000'000, 'x')},
          {"one line of words", words},
          {"short lines", shortLines}};
}

TEST_F(BaselineEditTest, APageOfVeryManyLinesIsEditedLikeAnyOther) {
  std::string page;
  for (int i = 0; i < 60'000; ++i) {
    page += i % 2 == 0 ? "x\r\n" : "\n";
  }
  edit_.setPage(page);
  EXPECT_LT(edit_.blockCount(), 10'000);
  EXPECT_EQ(edit_.page(), page);
  moveTo(1);
  key(Qt::Key_Delete);
  key(Qt::Key_Return);
  key(Qt::Key_Y);
  std::string expected = page;
  expected.replace(0, 3, "x\ny");
  EXPECT_EQ(edit_.page(), expected);
  edit_.selectAll();
  key(Qt::Key_Delete);
  EXPECT_EQ(edit_.page(), "");
  QTest::keyClick(&edit_, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(edit_.page(), expected);
  EXPECT_GT(edit_.verticalScrollBar()->maximum(), 50'000);
}

TEST_F(BaselineEditTest, TwentyMegabytesAreShownAndEditedWithoutWaiting) {
  for (const Large& large : largePages()) {
    auto start = steady_clock::now();
    edit_.setPage(large.page);
    edit_.repaint();
    QApplication::processEvents();
    EXPECT_LT(steady_clock::now() - start, patience(milliseconds(1500))) << large.name;

    start = steady_clock::now();
    moveTo(10'000'000);
    edit_.ensureCursorVisible();
    for (int i = 0; i < 20; ++i) {
      key(Qt::Key_Y);
      edit_.repaint();
    }
    EXPECT_LT(steady_clock::now() - start, patience(milliseconds(1000))) << large.name;

    start = steady_clock::now();
    for (int i = 0; i < 20; ++i) {
      edit_.verticalScrollBar()->setValue(edit_.verticalScrollBar()->maximum() * i / 20);
      edit_.repaint();
    }
    key(Qt::Key_End, Qt::ControlModifier);
    key(Qt::Key_Return);
    EXPECT_LT(steady_clock::now() - start, patience(milliseconds(1500))) << large.name;
    EXPECT_EQ(edit_.page().size() / 1000, 20'000U) << large.name;
  }
}

}  // namespace
}  // namespace tarnwick
