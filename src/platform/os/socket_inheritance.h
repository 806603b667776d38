// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace tarnwick {

/// A program started as an alert must not inherit the connection and keep it open. `socket` is the system's handle.
void setCloseOnExec(std::uintptr_t socket);

/// The same for all that this process has open beyond its standard streams, also what libraries have opened.
void setCloseOnExecOnAll();

}  // namespace tarnwick
