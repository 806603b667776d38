// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The folder in which the program keeps what the user enters: the database, the mail template, the report.
///
/// A program folder that was unpacked or built for one user is that folder itself. An installation that all users share
/// cannot be: there each user has a folder of their own. Either way no package, archive or build brings a database or a
/// mail template: the first start lays both from the pristine ones of the installation, once. After that a database
/// that is missing is an error, and never an empty one in its place. All paths are UTF-8.
namespace tarnwick {

/// Beside the executable: the mark of an installation that all users share.
inline constexpr const char* kSharedMark = "/shared-installation.txt";
/// Beside the executable: the folder of the pristine database and mail template.
inline constexpr const char* kFreshFolder = "/fresh";
/// In the folder of the executable, or in one that was laid on request: the mark that it has had its database.
inline constexpr const char* kLaidMark = "/laid-once.txt";

/// What the system says about the user's folders.
struct UserEnvironment {
  /// Where programs keep the user's data: XDG_DATA_HOME (XDG Base Directory Specification), on Windows LOCALAPPDATA.
  /// Anything but an absolute path is ignored.
  std::string dataHome;
  /// The user's home; what counts without the other is `.local/share` in it.
  std::string home;
};

/// The environment of this process.
UserEnvironment userEnvironment();

/// The user's own folder of this program; empty when the environment names no place for it.
std::string userFolder(const UserEnvironment& environment);

/// What the executable's folder is like.
struct ExecutableFolder {
  std::string path;
  /// It is marked as the installation of all users.
  bool isShared = false;
  /// Files can be made in it by this user.
  bool isWritable = false;
  /// It holds a database that this user can read.
  bool hasOwnDatabase = false;
};

/// Looks at the folder.
ExecutableFolder lookAt(const std::string& executableFolder);

/// Which folder is the program's: the executable's own, or the user's when that one is shared or cannot be written. A
/// folder with a database that the user can read stays the program's even when it cannot be written: an empty list in
/// place of a known one would look like a loss. Touches nothing.
std::string chooseFolder(const ExecutableFolder& executable, const UserEnvironment& environment);

/// Makes the user's folder from the installation, whole or not at all, unless it is there: the fresh database and mail
/// template, and the bars of the report. In one that is there the bars are brought up to date with the installation,
/// and what is the user's is left alone. Folder and files can be read by the user alone. Raises FileError when the
/// folder cannot be made.
void layUserFolder(const std::string& installation, const std::string& folder);

/// What has become of a folder that was to be laid once.
enum class Laid {
  now,      ///< the fresh database lies there
  before,   ///< it has a database already; a mail template that was missing at the first look is laid
  lost,     ///< it has had one, or shows signs of it, and has none any more: nothing is laid
  nothing,  ///< the installation has no fresh one
};

/// Lays the fresh database and mail template into `folder`, which is made when it is missing, unless it has ever had a
/// database: an older program's counts. What is there is never touched; of two at a time one is first. Raises FileError
/// when the database cannot be laid.
Laid layOnce(const std::string& installation, const std::string& folder);

/// The program's folder for an executable in this folder: chosen, and laid out when it is the user's. Raises FileError.
std::string programFolderFor(const std::string& executableFolder);

}  // namespace tarnwick
