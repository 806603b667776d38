// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "ui/main_window/master_layout.h"

namespace tarnwick {

/// Loads the pictures of the main window from the program's files: those with English words in them, or for the other
/// languages those without.
void loadPictures(const MasterControls& controls, const std::string& programFolder);

}  // namespace tarnwick
