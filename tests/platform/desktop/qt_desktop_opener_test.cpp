// SPDX-License-Identifier: MIT
#include "platform/desktop/qt_desktop_opener.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QUrl>

#include "support/system.h"

namespace tarnwick {
namespace {

// Stands where the desktop's own programs would be asked.
class UrlHandler : public QObject {
  Q_OBJECT

 public:
  UrlHandler() {
    for (const QString& scheme : schemes()) {
      QDesktopServices::setUrlHandler(scheme, this, "take");
    }
  }
  ~UrlHandler() override {
    for (const QString& scheme : schemes()) {
      QDesktopServices::unsetUrlHandler(scheme);
    }
  }

  Q_INVOKABLE void take(const QUrl& url) { opened.append(url); }

  QList<QUrl> opened;

 private:
  static QStringList schemes() {
    return {QStringLiteral("file"), QStringLiteral("http"),       QStringLiteral("https"),
            QStringLiteral("ftps"), QStringLiteral("javascript"), QStringLiteral("ms-msdt")};
  }
};

class QtDesktopOpenerTest : public ::testing::Test {
 protected:
  UrlHandler desktop;
  QtDesktopOpener opener;
};

TEST_F(QtDesktopOpenerTest, OpensAnAddressAsItStands) {
  EXPECT_TRUE(opener.openAddress("https://localhost/a%20b?c=d#e"));
  ASSERT_EQ(desktop.opened.size(), 1);
  EXPECT_EQ(desktop.opened[0].toEncoded(), "https://localhost/a%20b?c=d#e");
}

TEST_F(QtDesktopOpenerTest, OpensAFileWhateverItsName) {
  // There a question mark is part of no name.
  const QString name =
      testing::kOnWindows ? QStringLiteral("/XXXXXX a#b c.html") : QStringLiteral("/XXXXXX a#b?c.html");
  QTemporaryFile file(QDir::tempPath() + name);
  ASSERT_TRUE(file.open());
  const QString path = QFileInfo(file).absoluteFilePath();
  EXPECT_TRUE(opener.openFile(path.toStdString()));
  ASSERT_EQ(desktop.opened.size(), 1);
  EXPECT_EQ(desktop.opened[0].toLocalFile(), path);
}

TEST_F(QtDesktopOpenerTest, RefusesAFileThatIsNotThere) {
  EXPECT_FALSE(opener.openFile("/nowhere/help.html"));
  EXPECT_FALSE(opener.openFile(""));
  EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(QtDesktopOpenerTest, EachDoorOpensItsOwnKindOnly) {
  QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.html"));
  ASSERT_TRUE(file.open());
  const QFileInfo there(file);
  for (const QString& text :
       {there.absoluteFilePath(), there.fileName(), QUrl::fromLocalFile(there.filePath()).toString(),
        QStringLiteral("file:///"), QStringLiteral("javascript:1"), QStringLiteral("ms-msdt:/id"),
        QStringLiteral("C:/Windows"), QStringLiteral("//server/share"), QStringLiteral("localhost"),
        QStringLiteral("http://"), QString()}) {
    EXPECT_FALSE(opener.openAddress(text.toStdString())) << text.toStdString();
  }
  for (const char* text : {"https://localhost/", "file:///", ".", "javascript:1"}) {
    EXPECT_FALSE(opener.openFile(text)) << text;
  }
  EXPECT_TRUE(desktop.opened.isEmpty());
  EXPECT_TRUE(opener.openFile(there.absolutePath().toStdString())) << "a folder";
  EXPECT_TRUE(opener.openAddress("ftps://localhost/"));
  EXPECT_EQ(desktop.opened.size(), 2);
}

}  // namespace
}  // namespace tarnwick

#include "qt_desktop_opener_test.moc"
