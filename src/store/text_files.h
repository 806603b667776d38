// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/desktop.h"
#include "platform/file_system.h"

namespace tarnwick {

/// Whole files read and written, and files handed to the desktop. Paths are UTF-8; bytes are kept as they are. A file
/// that cannot be opened, read or written raises FileError, which names it and the cause.
class TextFiles {
 public:
  TextFiles(FileSystem& files, DesktopOpener& opener) : files_(files), opener_(opener) {}

  /// Vocabulary: no front end calls it.
  /// Writes `data` over the start of the file, which is made when it is missing. What an existing file holds beyond
  /// the data stays.
  void saveFileB(const std::string& path, const std::string& data);

  /// Replaces the file by `text` and one CR LF, as a whole: a failure leaves it as it was.
  void saveFile(const std::string& path, const std::string& text);

  /// The whole file.
  std::string getFile(const std::string& path);

  /// Vocabulary: the front ends tell when nothing was opened.
  /// Asks the desktop to open the file; whether it did is not reported. An address is no file.
  void openFileFromSystem(const std::string& path);

 private:
  FileSystem& files_;
  DesktopOpener& opener_;
};

}  // namespace tarnwick
