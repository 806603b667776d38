// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Blocks until the application object's event loop has handled at least one event.
void waitForQtEvent();

}  // namespace tarnwick
