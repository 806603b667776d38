#include "platform/os/path_text.h"
#include "platform/os/windows_text.h"

namespace tarnwick {

std::filesystem::path pathOfText(const std::string& utf8) { return wideOf(utf8); }

std::string textOfPath(const std::filesystem::path& path) { return utf8Of(path.generic_wstring()); }

}  // namespace tarnwick
