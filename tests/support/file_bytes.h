// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/local_files.h"

namespace tarnwick::testing {

/// The whole file.
inline std::string bytesOfFile(const std::string& path) {
  std::string all;
  FileSystem::readAll(*LocalFiles().open(path), [&](std::string_view bytes) { all += bytes; });
  return all;
}

/// Writes over the file, which is made when it is missing.
inline void writeFile(const std::string& path, const std::string& bytes, FileRest rest = FileRest::removed) {
  LocalFiles().overwrite(path, rest, [&](const ByteSink& sink) { sink(bytes); });
}

}  // namespace tarnwick::testing
