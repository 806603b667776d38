// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Whether the user's desktop opens this program's window when it starts.
bool isStartedWithDesktop();
/// Has it do so, or no longer. Raises std::runtime_error, which names what could not be written.
void startWithDesktop(bool wanted);

}  // namespace tarnwick
