// SPDX-License-Identifier: MIT
#include "platform/sound/wave_file.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "base/errors.h"
#include "platform/file_system.h"

namespace tarnwick {

bool isWaveFile(const std::string& fileName) {
  try {
    const std::filesystem::path path = pathOf(fileName);
    std::error_code fault;
    std::array<char, 12> start{};
    if (!std::filesystem::is_regular_file(path, fault) ||
        !std::ifstream(path, std::ios::binary).read(start.data(), start.size())) {
      return false;
    }
    const std::string_view text(start.data(), start.size());
    return text.starts_with("RIFF") && text.ends_with("WAVE");
  } catch (const FileError&) {
    return false;  // no file has such a name
  }
}

}  // namespace tarnwick
