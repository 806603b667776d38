#include "platform/file_access.h"

#include <system_error>

#include "base/errors.h"
#include "platform/os/path_text.h"

namespace tarnwick {

std::filesystem::path pathOf(const std::string& utf8) {
  if (const auto nul = utf8.find('\0'); nul != std::string::npos) {
    throw FileError(utf8.substr(0, nul), "A file's name cannot hold a NUL character.");
  }
  return pathOfText(utf8);
}

std::string textOf(const std::filesystem::path& path) { return textOfPath(path); }

std::string behindLinks(const std::string& path) {
  std::error_code fault;
  const std::filesystem::path place = std::filesystem::canonical(pathOf(path), fault);
  return fault ? path : textOf(place);
}

}  // namespace tarnwick
