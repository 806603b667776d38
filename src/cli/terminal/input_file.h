// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/file_system.h"

namespace tarnwick {

/// The bytes of a file that the command line names: "-" is standard input, and a pipe that the shell lays in place of a
/// file is read to its end. Raises FileError.
std::string readInput(FileSystem& files, const std::string& file);

/// The same for a password, which is a line: editors end it, and `echo` does. That end is no part of it.
std::string readLineOf(FileSystem& files, const std::string& file);

}  // namespace tarnwick
