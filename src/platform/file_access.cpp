#include "platform/file_access.h"

#include "platform/errors.h"

namespace tarnwick {

std::filesystem::path pathOf(const std::string& utf8) {
  if (const auto nul = utf8.find('\0'); nul != std::string::npos) {
    throw FileError(utf8.substr(0, nul), "A file's name cannot hold a NUL character.");
  }
  return {std::u8string(utf8.begin(), utf8.end())};
}

std::string textOf(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

}  // namespace tarnwick
