// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarnwick {

/// Whether this is a plain file that begins as a .wav file does. What is no plain file is not opened: a pipe or a
/// device could keep the program waiting for ever.
bool isWaveFile(const std::string& fileName);

}  // namespace tarnwick
