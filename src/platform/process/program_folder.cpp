// SPDX-License-Identifier: MIT
#include "platform/program_folder.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
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

const QString kReports = QStringLiteral("reports");
constexpr const char* kFolderName = "tarnwick";
constexpr const char* kDatabase = "/tarnwick.mdb";
/// What the user may change. In this order: a start that is killed leaves what the next one takes up.
constexpr const char* kUsersFiles[] = {kDatabase, "/email.txt", "/recovered.txt"};
/// The program has its text built in, so that an installation without it is whole.
constexpr const char* kMayBeMissing = "/recovered.txt";
constexpr const char* kLaidText =
    "The first start has laid the list and the mail template into this folder. While this file is here, a list that "
    "is\n"
    "missing is reported, and never replaced by an empty one.\n";
// What nothing but a database leaves: one whose list is gone was laid before there was a mark. The template came with
// it.
constexpr const char* kTraces[] = {"/tarnwick.mdb-wal",     "/tarnwick.mdb-shm", "/tarnwick.mdb-journal",
                                   "/tarnwick.mdb-wal.old", "/backup.mdb",       "/temp.mdb",
                                   "/tarnwick.lock",        "/email.txt",        "/reports/report.html"};

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

bool isUpToDate(const QString& path, const QByteArray& contents) {
  QFile present(path);
  return present.open(QIODevice::ReadOnly) && present.readAll() == contents;
}

/// Copies the bars of the report, which its page looks for beside it, where they are missing or differ.
void layBars(const QDir& installation, const QDir& folder) {
  const QStringList bars = QDir(installation.filePath(kReports)).entryList({QStringLiteral("*.jpg")}, QDir::Files);
  for (const QString& name : bars) {
    const QString place = kReports + QLatin1Char('/') + name;
    const QByteArray contents = contentsOf(installation.filePath(place));
    const QString target = folder.filePath(place);
    if (!isUpToDate(target, contents)) {
      folder.mkpath(kReports);
      write(target, contents);
    }
  }
}

/// The same where an older bar keeps nobody from working.
void bringBarsUpToDate(const std::string& installation, const std::string& folder) {
  try {
    layBars(QDir(qt(installation)), QDir(qt(folder)));
  } catch (const FileError&) {
  }
}

bool isFreshThere(const std::string& installation, const char* name) {
  return name != std::string_view(kMayBeMissing) || LocalFiles().exists(installation + kFreshFolder + name);
}

void layNewFolder(const std::string& installation, const std::string& folder) {
  // Made under another name first: a first start that fails, or is watched by a second one, leaves nothing half-made.
  QTemporaryDir fresh(qt(folder) + QStringLiteral(".new-XXXXXX"));
  if (!fresh.isValid()) {
    throw FileError(folder, fresh.errorString().toStdString());
  }
  for (const char* const name : kUsersFiles) {
    if (isFreshThere(installation, name)) {
      write(fresh.path() + qt(name), contentsOf(qt(installation + kFreshFolder + name)));
    }
  }
  layBars(QDir(qt(installation)), QDir(fresh.path()));
  std::error_code fault;
  fs::rename(pathOf(fresh.path().toStdString()), pathOf(folder), fault);
  if (!fault) {
    fresh.setAutoRemove(false);
  } else if (!LocalFiles().exists(folder)) {
    throw FileError(folder, fault.message());
  }
}

/// Copies the fresh file to its place, for the user alone, whole or not at all. What has come there meanwhile stays.
void layFresh(const std::string& installation, const std::string& folder, const char* name) {
  LocalFiles files;
  const std::string target = folder + name;
  const QByteArray contents = contentsOf(qt(installation + kFreshFolder + name));
  const std::string unfinished = files.unusedNameBeside(target);
  files.write(unfinished, "", [&contents](const ByteSink& sink) { sink(contents.toStdString()); });
  // Unlike the system's, this one never takes another file's place.
  if (!QFile::rename(qt(unfinished), qt(target))) {
    files.remove(unfinished);
    if (!files.exists(target)) {
      throw FileError(target, "The fresh file cannot be given this name.");
    }
  }
}

bool hasTraces(const std::string& folder) {
  LocalFiles files;
  return std::ranges::any_of(kTraces, [&](const char* name) { return files.exists(folder + name); }) ||
         !QDir(qt(folder)).entryList({QStringLiteral("replaced-*.mdb")}, QDir::Files).isEmpty();
}

/// Where it cannot be laid, the traces have to do.
void markAsLaid(const std::string& folder) {
  try {
    LocalFiles().overwrite(folder + kLaidMark, FileRest::removed, [](const ByteSink& sink) { sink(kLaidText); });
  } catch (const FileError&) {
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
    bringBarsUpToDate(installation, folder);
    return;
  }
  try {
    makePrivateFolder(pathOf(folder).parent_path());
    layNewFolder(installation, folder);
  } catch (const fs::filesystem_error& error) {
    throw FileError(folder, error.code().message());
  }
}

Laid layOnce(const std::string& installation, const std::string& folder) {
  LocalFiles files;
  const bool hasDatabase = files.exists(folder + kDatabase);
  if (files.exists(folder + kLaidMark)) {
    return hasDatabase ? Laid::before : Laid::lost;
  }
  if (!files.exists(installation + kFreshFolder + kDatabase)) {
    return Laid::nothing;
  }
  if (!hasDatabase && hasTraces(folder)) {
    return Laid::lost;
  }
  try {
    makePrivateFolder(pathOf(folder));
  } catch (const fs::filesystem_error& error) {
    throw FileError(folder, error.code().message());
  }
  for (const char* const name : kUsersFiles) {
    if (!files.exists(folder + name) && isFreshThere(installation, name)) {
      layFresh(installation, folder, name);
    }
  }
  if (folder != installation) {
    bringBarsUpToDate(installation, folder);
  }
  markAsLaid(folder);
  return hasDatabase ? Laid::before : Laid::now;
}

std::string programFolderFor(const std::string& executableFolder) {
  const ExecutableFolder executable = lookAt(executableFolder);
  std::string folder = chooseFolder(executable, userEnvironment());
  if (folder != executableFolder) {
    layUserFolder(executableFolder, folder);
  } else if (executable.isWritable && !executable.isShared) {
    layOnce(executableFolder, folder);
  }
  return folder;
}

}  // namespace tarnwick
