#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

/// Files as the system gives them. Paths are UTF-8 on every system; with a folder they may be as long as the file
/// system allows. Every failure raises FileError, which names the file and the cause.
namespace tarnwick {

/// A path for taking apart and putting together; the functions below are what touches the disk. Raises FileError when
/// the text holds a NUL character, which no name can. The text of a path has slashes on every system.
std::filesystem::path pathOf(const std::string& utf8);
std::string textOf(const std::filesystem::path& path);

enum class FileKind { none, file, folder, other };

/// What stands at `path`, behind links; `other` also when it cannot be looked at.
FileKind kindOf(const std::string& path);
/// Whether the name is taken, be it by a link that leads nowhere.
bool isTaken(const std::string& path);
/// The file's own name, behind all links that lead to it; `path` itself where nothing stands.
std::string behindLinks(const std::string& path);
/// The size in bytes.
std::uint64_t sizeOf(const std::string& path);
/// Whether both paths lead to one file. False when one of them leads nowhere.
bool isSameFile(const std::string& one, const std::string& other);

/// A file that is made here can be written by its owner only, and read by whom the user's own rule for new files lets.
enum class FileUse {
  read,
  /// From its start; what stood there is gone.
  write,
  /// From its start; what is not written over stays.
  update
};

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
/// An open file, which the programs that are started meanwhile do not inherit.
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

FileHandle openFile(const std::string& path, FileUse use);
/// Waits until the disk holds what has been written. `path` is for the error.
void settle(std::FILE* file, const std::string& path);

/// Gives the file `from` the name `to` in the same folder, in place of a file that has this name. On the disk when this
/// returns.
void replaceFile(const std::string& from, const std::string& to);
/// Whether `replaceFile` can put a file in the place of one that is open.
bool canReplaceOpenFiles();
/// Removes the file; nothing when there is none.
void removeFile(const std::string& path);

/// Whether this user may make files in the folder.
bool isWritableFolder(const std::string& path);
/// False when the folder is there already.
bool makeFolder(const std::string& path);
/// Whether the folder holds a plain file that a listing shows. False without such a folder.
bool holdsVisibleFile(const std::string& folder);

}  // namespace tarnwick
