// SPDX-License-Identifier: MIT
#pragma once

#include "program/program.h"
#include "ui/controls/site_editing.h"
#include "ui/main_window/notices.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// Has the notices of the window follow what is delivered, and done what its user chooses on a desktop notice about a
/// site: "show" and "default" bring the window up with that site, "accept" opens its content too, "mute" pauses its
/// alerts for an hour. A failure ends in a box. All of these outlive the program.
void followDelivery(Program& program, Notices& notices, SiteGridView& grid, const SiteEditing& editing);

}  // namespace tarnwick
