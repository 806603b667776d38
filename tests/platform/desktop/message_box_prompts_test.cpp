// SPDX-License-Identifier: MIT
#include "platform/desktop/message_box_prompts.h"

#include <gtest/gtest.h>
#ifndef _WIN32
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <optional>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/events/qt_event_loop.h"

namespace tarnwick {
namespace {

class MessageBoxPromptsTest : public ::testing::Test {
 protected:
  MessageBoxPromptsTest() {
    form.setLayout(new QVBoxLayout);
    form.layout()->addWidget(&button);
    QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
    mainWindow.show();
    form.show();
  }
  ~MessageBoxPromptsTest() override {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      window->hide();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// The dialog that stands on the desktop; fails the test when there is none.
  template <typename Dialog>
  static Dialog& standing() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<Dialog*>(window); dialog != nullptr && dialog->isVisible()) {
        return *dialog;
      }
    }
    throw std::runtime_error("No such dialog stands on the desktop.");
  }
  static int boxes() {
    int count = 0;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
      count += qobject_cast<const QMessageBox*>(window) != nullptr && window->isVisible() ? 1 : 0;
    }
    return count;
  }
  static void press(QMessageBox& box, QMessageBox::StandardButton button) {
    QTest::mouseClick(box.button(button), Qt::LeftButton);
  }

  QMainWindow mainWindow;
  QWidget form;
  QPushButton button{QStringLiteral("Delete")};
  int clicks = 0;
  QtEventPump pump;
  MessageBoxPrompts desktop{pump};
  Prompts& prompts = desktop;
};

TEST_F(MessageBoxPromptsTest, InformsWithPlainTextThatCanBeCopied) {
  bool closed = false;
  prompts.inform({.text = "<b>no</b> mark-up", .icon = PromptIcon::error}, [&] { closed = true; });
  auto& box = standing<QMessageBox>();
  EXPECT_EQ(box.text(), QStringLiteral("<b>no</b> mark-up"));
  EXPECT_EQ(box.windowTitle(), QStringLiteral("Tarnwick"));
  EXPECT_EQ(box.textFormat(), Qt::PlainText);
  EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
  EXPECT_EQ(box.icon(), QMessageBox::Critical);
  EXPECT_FALSE(closed) << "nobody has read it yet";
  press(box, QMessageBox::Ok);
  EXPECT_TRUE(closed);
  EXPECT_EQ(boxes(), 0);
}

TEST_F(MessageBoxPromptsTest, ConfirmIsTrueOnYesOnly) {
  std::optional<bool> answer;
  const auto ask = [&] {
    answer.reset();
    prompts.confirm({.text = "Sure?"}, [&](bool yes) { answer = yes; });
  };
  ask();
  EXPECT_FALSE(answer.has_value());
  press(standing<QMessageBox>(), QMessageBox::Yes);
  EXPECT_EQ(answer, true);
  ask();
  press(standing<QMessageBox>(), QMessageBox::No);
  EXPECT_EQ(answer, false);
  ask();
  QTest::keyClick(&standing<QMessageBox>(), Qt::Key_Escape);
  EXPECT_EQ(answer, false);
}

TEST_F(MessageBoxPromptsTest, EnterDestroysNothing) {
  std::optional<bool> answer;
  prompts.confirm({.text = "Delete all?", .destroys = true}, [&](bool yes) { answer = yes; });
  QTest::keyClick(&standing<QMessageBox>(), Qt::Key_Return);
  EXPECT_EQ(answer, false);
  prompts.confirm({.text = "Go on?"}, [&](bool yes) { answer = yes; });
  QTest::keyClick(&standing<QMessageBox>(), Qt::Key_Return);
  EXPECT_EQ(answer, true);
}

TEST_F(MessageBoxPromptsTest, TheFormThatAsksTakesNoInputMeanwhile) {
  prompts.confirm({.text = "Sure?", .owner = &form}, [](bool) {});
  const auto click = [this] { QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, button.geometry().center()); };
  click();
  EXPECT_EQ(clicks, 0);
  press(standing<QMessageBox>(), QMessageBox::No);
  click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(MessageBoxPromptsTest, NoBoxHoldsUpAnother) {
  bool answered = false;
  int closed = 0;
  prompts.confirm({.text = "Clear?", .owner = &form}, [&](bool) { answered = true; });
  auto& question = standing<QMessageBox>();
  prompts.inform({.text = "The database is gone."}, [&] { ++closed; });
  EXPECT_EQ(boxes(), 2);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* box = qobject_cast<QMessageBox*>(window); box != nullptr && box != &question && box->isVisible()) {
      press(*box, QMessageBox::Ok);
    }
  }
  EXPECT_EQ(closed, 1);
  prompts.inform({.text = "It is still gone."}, [&] { ++closed; });
  press(question, QMessageBox::No);
  EXPECT_TRUE(answered) << "the other way round, too";
  press(standing<QMessageBox>(), QMessageBox::Ok);
  EXPECT_EQ(closed, 2);
}

TEST_F(MessageBoxPromptsTest, TheMainWindowIsBlockedByNothing) {
  QPushButton stop(QStringLiteral("Stop"), &mainWindow);
  int stopped = 0;
  QObject::connect(&stop, &QPushButton::clicked, [&] { ++stopped; });
  stop.show();
  prompts.confirm({.text = "Sure?", .owner = &form}, [](bool) {});
  prompts.inform({.text = "A fault."});
  QTest::mouseClick(mainWindow.windowHandle(), Qt::LeftButton, {}, stop.geometry().center());
  EXPECT_EQ(stopped, 1);
}

TEST_F(MessageBoxPromptsTest, ABoxGoesWithTheFormThatAskedAndIsNotAnswered) {
  auto owner = std::make_unique<QWidget>();
  owner->show();
  bool answered = false;
  prompts.confirm({.text = "Sure?", .owner = owner.get()}, [&](bool) { answered = true; });
  owner.reset();
  EXPECT_EQ(boxes(), 0);
  EXPECT_FALSE(answered);
}

TEST_F(MessageBoxPromptsTest, WhatIsToldByAFormThatHasBeenClosedIsStillTold) {
  form.hide();
  prompts.inform({.text = "Too late, but true.", .owner = &form});
  EXPECT_EQ(boxes(), 1);
  press(standing<QMessageBox>(), QMessageBox::Ok);
}

TEST_F(MessageBoxPromptsTest, WhileTheProgramIsClosedNobodyIsAsked) {
  bool answered = false;
  prompts.confirm({.text = "Sure?", .owner = &form}, [&](bool) { answered = true; });
  auto& box = standing<QMessageBox>();
  pump.close();
  box.reject();
  prompts.inform({.text = "Too late."}, [&] { answered = true; });
  prompts.confirm({.text = "Too late?"}, [&](bool) { answered = true; });
  prompts.chooseFile({.folder = "/", .filter = "Audio Files (*.wav)|*.wav"}, [&](const auto&) { answered = true; });
  EXPECT_EQ(boxes(), 0);
  EXPECT_FALSE(answered);
}

class FileChoiceTest : public MessageBoxPromptsTest {
 protected:
  void SetUp() override {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  QFileDialog& choose(const std::string& filter) {
    prompts.chooseFile({.folder = folder.path().toStdString(), .filter = filter, .owner = &form},
                       [this](const std::string& file) { chosen = file; });
    return standing<QFileDialog>();
  }

  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("impatient.wav"));
  std::optional<std::string> chosen;
};

TEST_F(FileChoiceTest, AChosenFileIsGivenWithItsFullPath) {
  QFileDialog& dialog = choose("Audio Files (*.wav;*.au)|*.wav;*.au");
  EXPECT_EQ(dialog.nameFilters().value(0), QStringLiteral("Audio Files (*.wav *.au)"));
#ifndef Q_OS_WIN
  EXPECT_EQ(dialog.nameFilters().value(1), QStringLiteral("All Files (*)"));
#endif
  dialog.selectFile(path);
  static_cast<QDialog&>(dialog).accept();
  EXPECT_EQ(chosen, QDir::toNativeSeparators(path).toStdString());
}

// The list that completes a name drops down in a window without a parent, which takes all input of the desktop.
TEST_F(FileChoiceTest, AFileIsChosenByTypingTheBeginningOfItsName) {
  QFileDialog& dialog = choose("Audio Files (*.wav)|*.wav");
  const QPointer<QLineEdit> name(dialog.findChild<QLineEdit*>());
  ASSERT_NE(name, nullptr);
  name->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  ASSERT_TRUE(QTest::qWaitFor([&] {
    name->clear();
    QTest::keyClicks(name, QStringLiteral("im"));
    return QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }, 200);
  })) << "no list dropped down";
  const QPointer<QWidget> list(QApplication::activePopupWidget());
  QTest::keyClick(list, Qt::Key_Down);
  ASSERT_NE(list, nullptr);
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
  if (name != nullptr && name->isVisible()) {
    QTest::keyClick(name, Qt::Key_Return);
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return chosen.has_value(); }));
  EXPECT_EQ(chosen, QDir::toNativeSeparators(path).toStdString());
}

#ifndef _WIN32
// Whoever opens and closes a file gives up the locks that his process has on it: those by which SQLite shares a
// database.
TEST_F(FileChoiceTest, AFileThatThisProgramHasLockedStaysLockedWhileItIsListed) {
  const QString shared = folder.filePath(QStringLiteral("tarnwick.mdb-shm"));
  QFile held(shared);
  ASSERT_TRUE(held.open(QIODevice::ReadWrite));
  ASSERT_EQ(held.write("no text that tells what it is"), 29);
  ASSERT_TRUE(held.flush());
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  ASSERT_EQ(::fcntl(held.handle(), F_SETLK, &whole), 0);

  const QFileDialog& dialog = choose("All Files (*)|*");
  const auto* listed = dialog.findChild<QFileSystemModel*>();
  ASSERT_NE(listed, nullptr);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !listed->type(listed->index(shared)).isEmpty(); })) << "it is not listed";

  const pid_t other = ::fork();
  if (other == 0) {
    ::_exit(::fcntl(held.handle(), F_GETLK, &whole) == 0 && whole.l_type == F_WRLCK ? 0 : 1);
  }
  int status = 1;
  ASSERT_EQ(::waitpid(other, &status, 0), other);
  EXPECT_EQ(status, 0) << "another program could lock it";
}
#endif

TEST_F(FileChoiceTest, FilesAreLookedForHereNotChanged) {
  const QFileDialog& dialog = choose("Audio Files (*.wav)|*.wav");
  EXPECT_TRUE(dialog.testOption(QFileDialog::ReadOnly));
  for (const QAction* action : dialog.findChildren<QAction*>()) {
    const bool changes = action->text().contains(QStringLiteral("Rename")) ||
                         action->text().contains(QStringLiteral("Delete")) ||
                         action->text().contains(QStringLiteral("New Folder"));
    EXPECT_FALSE(changes && action->isVisible()) << action->text().toStdString();
  }
}

#ifndef Q_OS_WIN
TEST_F(FileChoiceTest, ProgramsAreThoseOfThisSystemFirst) {
  const QStringList filters = choose("Program Files (*.exe;*.bat;*.vbs)|*.exe;*.bat;*.vbs").nameFilters();
  EXPECT_EQ(filters,
            (QStringList{QStringLiteral("Programs (*)"), QStringLiteral("Program Files (*.exe *.bat *.vbs)")}));
}
#endif

TEST_F(FileChoiceTest, ACancelledChoiceIsNothing) {
  choose("Audio Files (*.wav)|*.wav").reject();
  EXPECT_FALSE(chosen.has_value());
}

}  // namespace
}  // namespace tarnwick
