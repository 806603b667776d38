#include <cstdlib>
#include <QApplication>

#include "platform/desktop/desktop_platform.h"
#include "ui/master.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(tarnwick::kProductName));
  QApplication::setApplicationVersion(QStringLiteral(TARNWICK_VERSION));
  tarnwick::DesktopPlatform machine;
  tarnwick::Master window(QCoreApplication::applicationDirPath().toStdString(), machine.services());
  if (!window.load()) {
    return EXIT_FAILURE;
  }
  window.show();
  return QApplication::exec();
}
