// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// From now on neither a connection or a pipe that the other side has closed, nor a file that has reached the size it
/// may have, ends the process: the call that failed tells it. Programs that are started are not concerned.
void ignoreUnwantedSignals();

}  // namespace tarnwick
