// SPDX-License-Identifier: MIT
#include "own_process.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace tarnwick::testing {
namespace {

std::size_t statusBytes(const std::string& name) {
  std::ifstream file("/proc/self/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(name + ":")) {
      return std::stoull(line.substr(name.size() + 1)) * 1024;
    }
  }
  return 0;
}

}  // namespace

std::vector<std::string> openDescriptors() {
  std::vector<std::string> all;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    all.push_back(std::filesystem::read_symlink(entry.path(), gone).string());
  }
  std::ranges::sort(all);
  return all;
}

std::size_t residentMemory() { return statusBytes("VmRSS"); }

std::size_t peakMemory() { return statusBytes("VmHWM"); }

bool forgetPeakMemory() {
#if defined(__SANITIZE_ADDRESS__)
  // What was freed is kept for a while then, and every byte has a shadow.
  return false;
#else
  std::ofstream file("/proc/self/clear_refs");
  file << "5" << std::flush;
  return file.good();
#endif
}

}  // namespace tarnwick::testing
