#pragma once

#include <filesystem>
#include <string>

namespace tarnwick {

/// What `pathOf` and `textOf` are made of. Neither raises anything for bytes that are no valid text: where the system
/// takes them for a name they are kept, elsewhere replacement characters stand for them.
std::filesystem::path pathOfText(const std::string& utf8);
std::string textOfPath(const std::filesystem::path& path);

}  // namespace tarnwick
