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
  static QStringList schemes() { return {QStringLiteral("file"), QStringLiteral("http"), QStringLiteral("https")}; }
};

class QtDesktopOpenerTest : public ::testing::Test {
 protected:
  UrlHandler desktop;
  QtDesktopOpener opener;
};

TEST_F(QtDesktopOpenerTest, OpensAnAddressAsItStands) {
  EXPECT_TRUE(opener.open("https://localhost/a%20b?c=d#e"));
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
  EXPECT_TRUE(opener.open(path.toStdString()));
  ASSERT_EQ(desktop.opened.size(), 1);
  EXPECT_EQ(desktop.opened[0].toLocalFile(), path);
}

TEST_F(QtDesktopOpenerTest, RefusesAFileThatIsNotThere) {
  EXPECT_FALSE(opener.open("/nowhere/help.html"));
  EXPECT_FALSE(opener.open(""));
  EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(QtDesktopOpenerTest, AnAddressWithoutASchemeIsAWebAddress) {
  EXPECT_TRUE(opener.open("www.tarnwick.example/page"));
  ASSERT_EQ(desktop.opened.size(), 1);
  EXPECT_EQ(desktop.opened[0], QUrl(QStringLiteral("http://www.tarnwick.example/page")));
}

}  // namespace
}  // namespace tarnwick

#include "qt_desktop_opener_test.moc"
