// SPDX-License-Identifier: MIT
#include "platform/desktop/qt_desktop_opener.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace tarnwick {

bool QtDesktopOpener::open(const std::string& pathOrAddress) {
  const QString text = QString::fromStdString(pathOrAddress);
  if (QDir::isAbsolutePath(text)) {
    return QFileInfo::exists(text) && QDesktopServices::openUrl(QUrl::fromLocalFile(text));
  }
  const QUrl address = QUrl::fromUserInput(text);
  return address.isValid() && QDesktopServices::openUrl(address);
}

}  // namespace tarnwick
