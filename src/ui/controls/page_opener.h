// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services.h"

namespace tarnwick {

/// Has the desktop open a page of the program's own, given by its file's path. A desktop that refuses is no dead end: a
/// box tells the user where the page lies.
void openPage(const Services& services, const std::string& path);

/// The same for a page of the web, opened as it would be fetched. A text that is no address of such a page is not
/// opened but told in a box, whatever the desktop could do with it. `owner` is that of the box.
void visitPage(const Services& services, const std::string& address, QWidget* owner = nullptr);

}  // namespace tarnwick
