// SPDX-License-Identifier: MIT
#include "cli/terminal/input_file.h"

#include <iostream>
#include <iterator>

namespace tarnwick {

std::string readInput(FileSystem& files, const std::string& file) {
  if (file == "-") {
    return {std::istreambuf_iterator<char>(std::cin), {}};
  }
  // A pipe ends with its writer. Other files that are no plain ones may never end: asking for their size raises
  // FileError.
  if (files.kindOf(file) != FileKind::pipe) {
    files.sizeOf(file);
  }
  std::string all;
  FileSystem::readAll(*files.open(file), [&](std::string_view bytes) { all += bytes; });
  return all;
}

std::string readLineOf(FileSystem& files, const std::string& file) {
  std::string line = readInput(files, file);
  if (line.ends_with('\n')) {
    line.pop_back();
    if (line.ends_with('\r')) {
      line.pop_back();
    }
  }
  return line;
}

}  // namespace tarnwick
