// SPDX-License-Identifier: MIT
#include "platform/program_folder.h"

#include <filesystem>
#include <system_error>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include "base/errors.h"
#include "platform/local_files.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFolderName = "tarnwick";
constexpr const char* kDatabase = "/tarnwick.mdb";
// What the user may change: laid out once.
constexpr const char* kUserFiles[] = {"/tarnwick.mdb", "/email.txt"};

QString qt(const std::string& text) { return QString::fromStdString(text); }

QByteArray contentsOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    throw FileError(path.toStdString(), file.errorString().toStdString() +
                                            ". The installation of Tarnwick is not whole: install it again.");
  }
  return file.readAll();
}

/// Writes a file that the user alone can read, whole or not at all.
void write(const QString& path, const QByteArray& contents) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) ||
      file.write(contents) != contents.size() || !file.commit()) {
    throw FileError(path.toStdString(), file.errorString().toStdString());
  }
}

/// Makes the folder and those above it that are missing, for the user alone.
void makePrivateFolder(const fs::path& folder) {
  if (folder.empty() || fs::exists(folder)) {
    return;
  }
  makePrivateFolder(folder.parent_path());
  if (LocalFiles().makeFolder(textOf(folder))) {
    fs::permissions(folder, fs::perms::owner_all);
  }
}

/// The files that belong to the program and not to the user, relative to the folder.
QStringList programFiles(const QDir& installation) {
  QStringList files;
  for (const QString& pattern : {QStringLiteral("help.html"), QStringLiteral("help/*"), QStringLiteral("help/images/*"),
                                 QStringLiteral("images/*"), QStringLiteral("reports/*.jpg")}) {
    const QFileInfo place(pattern);
    const QDir folder(installation.filePath(place.path()));
    for (const QString& name : folder.entryList({place.fileName()}, QDir::Files, QDir::Name)) {
      files << (place.path() == QStringLiteral(".") ? name : place.path() + QLatin1Char('/') + name);
    }
  }
  return files;
}

bool isUpToDate(const QString& path, const QByteArray& contents) {
  QFile present(path);
  return present.open(QIODevice::ReadOnly) && present.readAll() == contents;
}

/// Copies the program's own files where they are missing or differ.
void layProgramFiles(const QDir& installation, const QDir& folder) {
  for (const QString& name : programFiles(installation)) {
    const QByteArray contents = contentsOf(installation.filePath(name));
    const QString target = folder.filePath(name);
    if (isUpToDate(target, contents)) {
      continue;
    }
    folder.mkpath(QFileInfo(target).path());
    write(target, contents);
  }
}

void layNewFolder(const std::string& installation, const std::string& folder) {
  // Made under another name first: a first start that fails, or is watched by a second one, leaves nothing half-made.
  QTemporaryDir fresh(qt(folder) + QStringLiteral(".new-XXXXXX"));
  if (!fresh.isValid()) {
    throw FileError(folder, fresh.errorString().toStdString());
  }
  for (const char* const name : kUserFiles) {
    write(fresh.path() + qt(name), contentsOf(qt(installation + kFreshFolder + name)));
  }
  layProgramFiles(QDir(qt(installation)), QDir(fresh.path()));
  std::error_code fault;
  fs::rename(pathOf(fresh.path().toStdString()), pathOf(folder), fault);
  if (!fault) {
    fresh.setAutoRemove(false);
  } else if (!LocalFiles().exists(folder)) {
    throw FileError(folder, fault.message());
  }
}

}  // namespace

UserEnvironment userEnvironment() {
  QString dataHome = qEnvironmentVariable("XDG_DATA_HOME");
  if (!QDir::isAbsolutePath(dataHome)) {
    dataHome = qEnvironmentVariable("LOCALAPPDATA");
  }
  return {dataHome.toStdString(), qEnvironmentVariable("HOME").toStdString()};
}

std::string userFolder(const UserEnvironment& environment) {
  const fs::path dataHome = pathOf(environment.dataHome);
  if (dataHome.is_absolute()) {
    return textOf(dataHome / kFolderName);
  }
  const fs::path home = pathOf(environment.home);
  return home.is_absolute() ? textOf(home / ".local" / "share" / kFolderName) : std::string();
}

ExecutableFolder lookAt(const std::string& executableFolder) {
  // Who may do what follows from lists of many kinds; the one sure way is to try.
  const bool isWritable = QTemporaryFile(qt(executableFolder + "/XXXXXX.tmp")).open();
  return {executableFolder, LocalFiles().exists(executableFolder + kSharedMark), isWritable,
          QFileInfo(qt(executableFolder + kDatabase)).isReadable()};
}

std::string chooseFolder(const ExecutableFolder& executable, const UserEnvironment& environment) {
  if (!executable.isShared && (executable.isWritable || executable.hasOwnDatabase)) {
    return executable.path;
  }
  const std::string own = userFolder(environment);
  return own.empty() ? executable.path : own;
}

void layUserFolder(const std::string& installation, const std::string& folder) {
  if (LocalFiles().exists(folder)) {
    try {
      layProgramFiles(QDir(qt(installation)), QDir(qt(folder)));
    } catch (const FileError&) {
      // An older picture or help page keeps nobody from working.
    }
    return;
  }
  try {
    makePrivateFolder(pathOf(folder).parent_path());
    layNewFolder(installation, folder);
  } catch (const fs::filesystem_error& error) {
    throw FileError(folder, error.code().message());
  }
}

std::string programFolderFor(const std::string& executableFolder) {
  const std::string folder = chooseFolder(lookAt(executableFolder), userEnvironment());
  if (folder != executableFolder) {
    layUserFolder(executableFolder, folder);
  }
  return folder;
}

}  // namespace tarnwick
