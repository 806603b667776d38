#include <cstdlib>
#include <QApplication>

#include "platform/desktop/desktop_platform.h"
#include "ui/control_dialog.h"
#include "ui/master.h"
#include "ui/site_editor.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(tarnwick::kProductName));
  QApplication::setApplicationVersion(QStringLiteral(TARNWICK_VERSION));
  tarnwick::DesktopPlatform machine;
  tarnwick::Master window(QCoreApplication::applicationDirPath().toStdString(), machine.services());
  if (!window.load()) {
    return EXIT_FAILURE;
  }
  window.setEditors({.site = tarnwick::siteEditorOf(window.program(), window),
                     .settings = tarnwick::settingsDialogOf(window.program(), window)});
  window.show();
  return QApplication::exec();
}
