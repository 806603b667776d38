#pragma once

#include <functional>
#include <string>

#include "platform/file_access.h"
#include "platform/file_system.h"

namespace tarnwick {

/// Makes the file `path` (UTF-8), or replaces the one that stands there, of the bytes that `fill` hands to its sink.
/// Nobody but its owner can read it, at no moment. It is replaced as a whole, and only when it is complete: a file that
/// cannot be completed, or whose `fill` raises something, leaves what stood there. Behind a link it is the file that
/// the link leads to; what is no file, as a pipe, is written to as it is. Raises FileError.
void writePrivateFile(const std::string& path, const std::function<void(const ByteSink& sink)>& fill);

/// Opens a new file for writing that nobody but its owner can read; nothing when the name is taken, be it by a link.
/// Raises FileError.
FileHandle openNewPrivateFile(const std::string& path);

/// The same, but those who may read and write the file `like` may do so with the new one too, and nobody else at any
/// moment.
FileHandle openNewFileLike(const std::string& path, const std::string& like);

}  // namespace tarnwick
