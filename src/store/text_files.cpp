// SPDX-License-Identifier: MIT
#include "store/text_files.h"

namespace tarnwick {

void TextFiles::saveFileB(const std::string& path, const std::string& data) {
  files_.overwrite(path, FileRest::kept, [&](const ByteSink& sink) { sink(data); });
}

void TextFiles::saveFile(const std::string& path, const std::string& text) {
  files_.replace(path, [&](const ByteSink& sink) {
    sink(text);
    sink("\r\n");
  });
}

std::string TextFiles::getFile(const std::string& path) {
  const auto length = static_cast<std::size_t>(files_.sizeOf(path));
  std::string bytes;
  files_.open(path)->read(bytes, length);
  return bytes;
}

void TextFiles::openFileFromSystem(const std::string& path) { opener_.openFile(path); }

}  // namespace tarnwick
