// SPDX-License-Identifier: MIT
#include "ui/controls/program_file.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tarnwick {

QString programFile(const std::string& programFolder, const QString& name) {
  const QString installed = QCoreApplication::applicationDirPath() + name;
  return QFileInfo::exists(installed) ? installed : QString::fromStdString(programFolder) + name;
}

}  // namespace tarnwick
