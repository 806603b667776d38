// SPDX-License-Identifier: MIT
#include "uucode/uu_files.h"

#include <filesystem>

#include "base/errors.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

/// Raises FileError when no file can be made at this place, in words that speak of it and not of the temporary one.
void requirePlaceForFile(FileSystem& files, const std::string& path) {
  const fs::path place = pathOf(path);
  if (place.filename().empty() || files.kindOf(path) == FileKind::folder) {
    throw FileError(path, "This is a folder; give the name of a file.");
  }
  if (const fs::path folder = place.parent_path();
      !folder.empty() && files.kindOf(textOf(folder)) != FileKind::folder) {
    throw FileError(path, "There is no such folder; make it first.");
  }
}

}  // namespace

std::string fileName(const std::string& path) { return textOf(pathOf(path).filename()); }

std::string fileStem(const std::string& path) { return textOf(pathOf(path).stem()); }

std::string inFolder(const std::string& folder, const std::string& name) {
  return textOf(pathOf(folder) / pathOf(name));
}

OutputFiles::~OutputFiles() {
  for (const Written& file : written_) {
    try {
      files_.remove(file.temporary);
    } catch (const FileError&) {
      // What made the files useless has been reported already, and is the more important news.
    }
  }
}

void OutputFiles::write(const std::string& path, const std::string& like, const FileFill& fill) {
  requirePlaceForFile(files_, path);
  const std::string temporary = files_.unusedNameBeside(path);
  files_.write(temporary, like, fill);
  written_.push_back({path, temporary});
}

void OutputFiles::finish() {
  while (!written_.empty()) {
    files_.rename(written_.back().temporary, written_.back().path);
    written_.pop_back();
  }
}

}  // namespace tarnwick
