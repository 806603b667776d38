#include "platform/os/path_text.h"

namespace tarnwick {

std::filesystem::path pathOfText(const std::string& utf8) { return utf8; }

std::string textOfPath(const std::filesystem::path& path) { return path.native(); }

}  // namespace tarnwick
