// SPDX-License-Identifier: MIT
#include "platform/desktop/qt_desktop_opener.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

#include "platform/address.h"

namespace tarnwick {

bool QtDesktopOpener::openFile(const std::string& path) {
  const QString file = QString::fromStdString(path);
  return QDir::isAbsolutePath(file) && QFileInfo::exists(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool QtDesktopOpener::openAddress(const std::string& url) {
  const QUrl address(QString::fromStdString(url));
  return address.isValid() && !address.host().isEmpty() && isFetchedScheme(address.scheme().toStdString()) &&
         QDesktopServices::openUrl(address);
}

}  // namespace tarnwick
