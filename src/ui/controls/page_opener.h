// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services.h"

namespace tarnwick {

/// Has the desktop open a page, given by its address or its file's path. A desktop that refuses is no dead end: a box
/// tells the user where the page lies.
void openPage(const Services& services, const std::string& target);

}  // namespace tarnwick
