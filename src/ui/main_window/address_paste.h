// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <QAction>

#include "ui/main_window/site_grid_view.h"

namespace tarnwick {

/// Hands on the addresses that somebody drops on the list, pastes there by Ctrl+V, or has in the clipboard when the
/// entry of the menu is chosen, which is disabled while nobody takes them. `grid` outlives the events of `entry`.
void followAddresses(SiteGridView& grid, QAction& entry, std::function<void(const QString& text)> take);

}  // namespace tarnwick
