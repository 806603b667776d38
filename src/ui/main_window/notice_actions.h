// SPDX-License-Identifier: MIT
#pragma once

#include "program/program.h"
#include "ui/main_window/details_area.h"
#include "ui/main_window/notices.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// Has the notices of the window follow what is delivered, and done what its user chooses on a desktop notice about a
/// site: "show" and "default" bring the window up with the details of that site, "accept" shows its page to be accepted
/// too, "mute" pauses its alerts for an hour. A failure ends in a box. All of these outlive the program.
void followDelivery(Program& program, Notices& notices, SiteGridView& grid, DetailsArea& details);

}  // namespace tarnwick
