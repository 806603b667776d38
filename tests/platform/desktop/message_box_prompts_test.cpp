// SPDX-License-Identifier: MIT
#include "platform/desktop/message_box_prompts.h"

#include <gtest/gtest.h>

#include <functional>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "platform/events/qt_event_loop.h"

namespace tarnwick {
namespace {

class MessageBoxPromptsTest : public ::testing::Test {
 protected:
  /// Calls `act` with the next dialog that stands on the desktop.
  template <typename Dialog>
  void whenOpen(const std::function<void(Dialog&)>& act) {
    watch_.disconnect();
    QObject::connect(&watch_, &QTimer::timeout, [this, act] {
      for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<Dialog*>(window); dialog != nullptr && dialog->isVisible()) {
          watch_.stop();
          act(*dialog);
          return;
        }
      }
    });
    watch_.start(5);
  }

  QtEventPump pump;
  MessageBoxPrompts prompts{pump};

 private:
  QTimer watch_;
};

TEST_F(MessageBoxPromptsTest, InformsWithPlainTextThatCanBeCopied) {
  bool seen = false;
  whenOpen<QMessageBox>([&](QMessageBox& box) {
    seen = true;
    EXPECT_EQ(box.text(), QStringLiteral("<b>no</b> mark-up"));
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Tarnwick"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
  });
  prompts.inform("<b>no</b> mark-up", kProductName, PromptIcon::error);
  EXPECT_TRUE(seen);
}

TEST_F(MessageBoxPromptsTest, ConfirmIsTrueOnYesOnly) {
  whenOpen<QMessageBox>([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
  EXPECT_TRUE(prompts.confirm("Sure?", kProductName, PromptIcon::question));
  whenOpen<QMessageBox>([](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
  EXPECT_FALSE(prompts.confirm("Sure?", kProductName, PromptIcon::question));
  whenOpen<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_FALSE(prompts.confirm("Sure?", kProductName, PromptIcon::question));
}

TEST_F(MessageBoxPromptsTest, OtherWindowsTakeNoInputMeanwhile) {
  QPushButton elsewhere(QStringLiteral("Start"));
  int clicks = 0;
  QObject::connect(&elsewhere, &QPushButton::clicked, [&] { ++clicks; });
  elsewhere.show();
  whenOpen<QMessageBox>([&](QMessageBox& box) {
    QTest::mouseClick(&elsewhere, Qt::LeftButton);
    QTest::keyClick(&elsewhere, Qt::Key_Space);
    box.reject();
  });
  prompts.inform("Wait.", kProductName, PromptIcon::none);
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&elsewhere, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MessageBoxPromptsTest, TheMainWindowCanStillBeClosed) {
  QWidget mainWindow;
  mainWindow.show();
  whenOpen<QMessageBox>([&](QMessageBox& box) {
    EXPECT_FALSE(box.isModal());
    EXPECT_TRUE(mainWindow.close());
    box.reject();
  });
  prompts.inform("Wait.", kProductName, PromptIcon::none);
  EXPECT_FALSE(mainWindow.isVisible());
}

TEST_F(MessageBoxPromptsTest, WhileTheProgramIsClosedNobodyIsAsked) {
  pump.close();
  prompts.inform("Too late.", kProductName, PromptIcon::error);
  EXPECT_FALSE(prompts.confirm("Too late?", kProductName, PromptIcon::question));
  EXPECT_FALSE(prompts.chooseFile("/", "Audio Files (*.wav)|*.wav").has_value());
}

TEST_F(MessageBoxPromptsTest, AChosenFileIsGivenWithItsFullPath) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("alarm.wav"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  QStringList filters;
  whenOpen<QFileDialog>([&](QFileDialog& dialog) {
    filters = dialog.nameFilters();
    dialog.selectFile(path);
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(prompts.chooseFile(folder.path().toStdString(), "Audio Files (*.wav;*.au)|*.wav;*.au"),
            QDir::toNativeSeparators(path).toStdString());
  EXPECT_EQ(filters.value(0), QStringLiteral("Audio Files (*.wav *.au)"));
#ifndef Q_OS_WIN
  EXPECT_EQ(filters.value(1), QStringLiteral("All Files (*)")) << "a program without an ending can be chosen";
#endif
}

TEST_F(MessageBoxPromptsTest, ACancelledChoiceIsNothing) {
  whenOpen<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(prompts.chooseFile("/", "Audio Files (*.wav)|*.wav").has_value());
}

}  // namespace
}  // namespace tarnwick
