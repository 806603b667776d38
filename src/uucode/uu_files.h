// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace tarnwick {

/// Paths are UTF-8 everywhere. A path that holds a NUL character raises FileError.

/// The name without its folders.
std::string fileName(const std::string& path);
/// The name without its folders and without its last dot and what follows that.
std::string fileStem(const std::string& path);
/// A file's path in a folder, whether or not the folder's ends with a separator; empty is the current folder.
std::string inFolder(const std::string& folder, const std::string& name);

/// Files none of which comes into being before all are written: each is written beside its place under a name of no
/// meaning, and gets its own name in the end.
class OutputFiles {
 public:
  explicit OutputFiles(FileSystem& files) : files_(files) {}
  /// Removes what has not been given its name.
  ~OutputFiles();
  OutputFiles(const OutputFiles&) = delete;
  OutputFiles& operator=(const OutputFiles&) = delete;

  /// Writes what shall become the file `path`, with the permissions of the file `like`. Raises FileError, and whatever
  /// `fill` raises.
  void write(const std::string& path, const std::string& like, const FileFill& fill);

  /// Gives every file its name, in place of a file that has it, the last one first. Raises FileError when that fails;
  /// the files that have their names then stay.
  void finish();

 private:
  struct Written {
    std::string path;
    std::string temporary;
  };

  FileSystem& files_;
  std::vector<Written> written_;
};

}  // namespace tarnwick
