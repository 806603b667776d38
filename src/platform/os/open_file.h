// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "base/errors.h"

/// Files as the system opens them. The programs that are started meanwhile do not inherit them. Every failure raises
/// FileError.
namespace tarnwick {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

enum class FileUse {
  read,
  /// From its start; what stood there is gone.
  write,
  /// From its start; what is not written over stays.
  update
};
FileHandle openFile(const std::string& path, FileUse use);

/// Makes a file that those who may read and write the file `like` may read and write, its owner alone when that is
/// empty, and nobody else at any moment. A name that is taken, be it by a link, is an error.
FileHandle openNewFile(const std::string& path, const std::string& like);

/// The file system has no locks.
class NoFileLocks : public FileError {
 public:
  using FileError::FileError;
};

/// Opens the file, emptied or newly made, for this process and its owner alone, until it is closed or the process ends;
/// nothing while another one has it so. Raises NoFileLocks where nobody could be kept out. Where an open file cannot be
/// removed it goes when it is closed.
FileHandle openAlone(const std::string& path);

/// Whether the open file still has this name, and no other one has been given it.
bool standsAt(std::FILE* file, const std::string& path);

/// Waits until the disk holds what has been written. `path` is for the error.
void syncToDisk(std::FILE* file, const std::string& path);

}  // namespace tarnwick
