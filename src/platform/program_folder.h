// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The folder in which the program keeps what the user enters: the database, the mail template, the report.
///
/// A program folder that was unpacked or built for one user is that folder itself. An installation that all users share
/// cannot be: there each user has a folder of their own, which the first start lays out from the pristine files of the
/// installation. It is laid out once. After that a database that is missing there is an error as it is anywhere else,
/// and never an empty one in its place. All paths are UTF-8.
namespace tarnwick {

/// Beside the executable: the mark of an installation that all users share.
inline constexpr const char* kSharedMark = "/shared-installation.txt";
/// Beside the executable: the folder of the pristine database and mail template.
inline constexpr const char* kFreshFolder = "/fresh";

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
/// template, the bars of the report, the pictures and the help page. In one that is there the pictures, bars and help
/// page are brought up to date with the installation, and what is the user's is left alone. Folder and files can be
/// read by the user alone. Raises FileError when the folder cannot be made.
void layUserFolder(const std::string& installation, const std::string& folder);

/// The program's folder for an executable in this folder: chosen, and laid out when it is the user's. Raises FileError.
std::string programFolderFor(const std::string& executableFolder);

}  // namespace tarnwick
