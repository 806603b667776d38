#include "cli/terminal/input_file.h"

#include <fstream>
#include <iostream>
#include <iterator>
#include <system_error>

#include "platform/file_access.h"
#include "store/text_files.h"

namespace tarnwick {
namespace {

std::string allOf(std::istream& stream) { return {std::istreambuf_iterator<char>(stream), {}}; }

// Such a pipe ends with its writer. Other files that are no plain ones may never end, so they are not read.
bool isPipe(const std::string& file) {
  std::error_code unknown;
  return std::filesystem::is_fifo(pathOf(file), unknown);
}

}  // namespace

std::string readInput(const std::string& file) {
  if (file == "-") {
    return allOf(std::cin);
  }
  if (isPipe(file)) {
    std::ifstream pipe(pathOf(file), std::ios::binary);
    return allOf(pipe);
  }
  return TextFiles::getFile(file);
}

}  // namespace tarnwick
