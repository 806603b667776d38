// SPDX-License-Identifier: MIT
// What the desktop starts, in a configuration of the test's own.
#include "platform/desktop/desktop_start.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tarnwick {
namespace {

class DesktopStartTest : public ::testing::Test {
 protected:
  DesktopStartTest() { qputenv("XDG_CONFIG_HOME", folder.path().toUtf8()); }
  ~DesktopStartTest() override { before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before); }

  QByteArray before = qgetenv("XDG_CONFIG_HOME");
  QTemporaryDir folder;
};

TEST_F(DesktopStartTest, IsAnEntryOfTheUsersOwn) {
  EXPECT_FALSE(isStartedWithDesktop());
  startWithDesktop(false);
  startWithDesktop(true);
  EXPECT_TRUE(isStartedWithDesktop());
  QFile entry(folder.filePath(QStringLiteral("autostart/tarnwick.desktop")));
  ASSERT_TRUE(entry.open(QIODevice::ReadOnly));
  const std::string text = entry.readAll().toStdString();
  EXPECT_THAT(text, ::testing::StartsWith("[Desktop Entry]\nType=Application\n"));
  EXPECT_THAT(text, ::testing::HasSubstr("\nExec=\"" + QCoreApplication::applicationFilePath().toStdString() + "\"\n"));
  startWithDesktop(false);
  EXPECT_FALSE(isStartedWithDesktop());
}

TEST_F(DesktopStartTest, WhatCannotBeWrittenIsNamed) {
  QFile inTheWay(folder.filePath(QStringLiteral("autostart")));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  try {
    startWithDesktop(true);
    FAIL() << "a file lies where the folder should be";
  } catch (const std::runtime_error& refusal) {
    EXPECT_THAT(refusal.what(), ::testing::HasSubstr("autostart/tarnwick.desktop cannot be changed: "));
  }
}

}  // namespace
}  // namespace tarnwick
