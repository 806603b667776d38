// SPDX-License-Identifier: MIT
#include <algorithm>
#include <QCoreApplication>
#include <QProcess>

#include "platform/os/socket_inheritance.h"
#include "platform/process/detached_programs.h"

namespace tarnwick {

bool DetachedPrograms::start(const std::vector<std::string>& arguments) {
  const bool passable = std::none_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
    return argument.find('\0') != std::string::npos;
  });
  if (arguments.empty() || arguments.front().empty() || !passable) {
    return false;
  }
  QStringList rest;
  std::transform(arguments.begin() + 1, arguments.end(), std::back_inserter(rest), &QString::fromStdString);

  QProcess process;
  process.setProgram(QString::fromStdString(arguments.front()));
  process.setArguments(rest);
  process.setWorkingDirectory(QCoreApplication::applicationDirPath());
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  setCloseOnExecOnAll();
  return process.startDetached();
}

}  // namespace tarnwick
